#pragma once
// The statements that write one customer. Texts stand between plain quotes: an apostrophe in one makes the statement
// fail, and the save is dropped with the report of it; kept.
#include "master/customers/client_entry.h"

/** A new customer of any page; the columns differ by page and by whether a meter bills the customer. */
QString insertStatement(const ClientEntry& client);

/** A change of the customer with the entry's code; movedBalances: ", GasInit = GasInit + 500" and the like. sameUnit: the
 *  unit stays as it is stored; the head row of a block is known by its Null, which the box shows as ''. */
QString updateStatement(const ClientEntry& client, const QString& movedBalances, bool sameUnit);

/** The new price of a metered block's households that had the old one. It compares Ho with Null by <>, which holds for
 *  no row, so no household follows; kept. */
QString unitSpreadStatement(const ClientEntry& client, const QString& oldUnit);
