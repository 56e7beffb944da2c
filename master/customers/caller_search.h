#pragma once
// Who is calling: the customers who have exactly this number.
#include <vector>

#include "master/registers/pickers.h"
#include "store/session.h"

/** A customer with a caller's number. */
struct CallingClient {
  ClientChoice client;
  bool metered = false;
};

/** Over all customers, those whose first, second or third telephone or search name is the whole number; dashes and
 *  blanks do not count, the area code does. Throws jet::Error. */
std::vector<CallingClient> clientsCalling(Session& session, const QString& number);

/** Whether one of the current customer's numbers is this one, digit for digit. */
bool hasNumber(const jet::Recordset& client, const QString& number);
