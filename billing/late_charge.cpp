#include "billing/late_charge.h"

std::optional<double> lateChargeBase(double arrears, int month, bool oneMonthOnly, bool paidLate,
                                     const PastGas& past) {
  if (!oneMonthOnly && !paidLate) return arrears;
  if (month == 1 && arrears != 0) return past.lastDecember(arrears);
  if (arrears != 0 || paidLate) return past.monthBefore(arrears);
  return arrears;
}
