#pragma once
// What issuing does to the data: the lines leave the pending list before anything is printed, and each is written down
// in the history. Of two PCs that issue the same line one gets it.
#include "documents/statements/deal_statement.h"

/** By which column a sale line is marked: the ledger's layout asks for its own first. */
enum class DealMark { SaleId, LedgerCode };

/** Marks these rows of the pending list as issued, each in the file of its own date's year. Those that this call has
 *  got, in their order: one that another PC issued meanwhile, that is gone, or whose year's file does not open is not
 *  among them. */
std::vector<int> claimDeals(Session& session, const SpreadModel& list, const std::vector<int>& rows,
                            DealMark mark);

/** Writes the lines of the statements into the history. Inserts that fail are told, once; the rest is written. A history
 *  that is not open or fails as a whole is told alike. */
void writeDealHistory(Session& session, const jet::Database& history,
                      const std::vector<DealStatement>& statements);
