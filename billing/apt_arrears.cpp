#include "billing/apt_arrears.h"

#include <algorithm>
#include <cmath>

#include "store/rounding.h"

namespace {

/** The month's own part of the bill: its arrears come in multiples of ten, so the rounding is the own part's. */
double ownBill(const AptMonth& of, bool newest, const AptRules& rules) {
  if (of.month == 0) return of.total;
  // A bill of nothing but gas goes over whole; it has no late charge to lose either.
  const double late = newest || rules.afterDueMethod == 0 ? std::nearbyint(of.delay) : 0;
  return roundToTen(of.usePay + late + of.manage, rules.payState);
}

}  // namespace

AptSpread spreadPayments(const std::vector<AptMonth>& months, const AptRules& rules) {
  AptSpread spread;
  if (months.empty()) return spread;
  // What of earlier bills is still open once this month's payment is taken off; below 0 it pays the month's own bill.
  const AptMonth& newest = months.front();
  double rest = newest.trust - newest.pay;
  for (const AptMonth& of : months) {
    const bool isNewest = &of == &newest;
    AptOpen line{.billed = ownBill(of, isNewest, rules)};
    if (isNewest) {
      // As issued: a sum moved by hand counts, too.
      line.open = of.month == 0 ? of.total : of.total - std::max(rest, 0.0);
      if (of.month == 0) rest = 0;
    } else {
      line.open = std::clamp(rest, 0.0, std::max(line.billed, 0.0));
      rest -= line.open;
    }
    spread.months.push_back(line);
  }
  spread.older = std::max(rest, 0.0);
  return spread;
}
