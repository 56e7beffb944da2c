#pragma once
// How a household's payments are spread over its months: the oldest bills are paid first, so that what is open lies on
// the newest ones. Pure arithmetic; nothing is read or written.
#include <optional>
#include <vector>

/** A month of the meter book as it was billed. Money in won. */
struct AptMonth {
  int year = 0, month = 0;                   ///< month 0 is a year's opening row
  double usePay = 0, manage = 0, delay = 0;  ///< the month's own bill
  double trust = 0, pay = 0, total = 0;
};

/** What the rules of the bill say about a statement. */
struct AptRules {
  int afterDueMethod = 0;       ///< 1: a bill goes into the next month without its late charge
  std::optional<int> payState;  ///< rounding of bill money
};

struct AptOpen {
  double billed =
      0;  ///< the month's own bill as it stands in the next month's arrears; of an opening row its total
  double open = 0;  ///< what of it is not paid; below 0 on the newest month: paid too much
};

/** months: of one household, newest first; the first is the month asked for. older: what is owed for months before the
 *  listed ones. open of all months and older add up to what the month asked for came to. */
struct AptSpread {
  std::vector<AptOpen> months;
  double older = 0;
};
AptSpread spreadPayments(const std::vector<AptMonth>& months, const AptRules& rules);
