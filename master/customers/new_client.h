#pragma once
// The short entry of a plain customer, for one that a search did not find.
#include "master/customers/client_entry.h"
#include "store/session.h"

/** What the boxes show at first: a searched number stands as the telephone, any other text as the name. */
ClientEntry newClientFrom(const QString& searchText);

/** Stores the customer, collected on a visit and joined today. Name, telephone (with its dashes), postcode, address, memo
 *  and what a meter customer needs are taken from the boxes. Throws jet::Error. */
ClientSaved saveNewClient(const Session& session, const ClientEntry& boxes);
