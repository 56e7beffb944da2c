#pragma once
// Bill money in steps of ten won.
#include <QtGlobal>

#include <optional>

struct Session;

/** won by the company's rule: 1 down, 2 up, 3 half up, as without a user row; 10,230 stays. Any other rule gives 0.
 *  Error 6 beyond a currency's range. */
double RoundByPayState(Session& session, double won);
/** The company's rule, read now; nothing when there is no user row or the query failed, which has been told. */
std::optional<int> companyPayState(Session& session);
/** The rule alone; payState is nothing when there is no user row. */
double roundToTen(double won, std::optional<int> payState);
