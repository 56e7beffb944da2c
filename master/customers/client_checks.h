#pragma once
// What keeps a customer's boxes from being saved. Each objection is told in a box of its own.
#include <optional>

#include "master/customers/client_entry.h"
#include "store/session.h"

/** Asked before every save: something to know the customer by, what a meter customer needs, dates and money. The box
 *  that the focus goes to, or nothing. */
std::optional<ClientBox> missingOrWrong(const Session& session, const ClientEntry& boxes);

/** Asked before a new customer: a telephone is not given out twice; a name or household is, after a yes. */
std::optional<ClientBox> takenAlready(const Session& session, const ClientEntry& boxes);
