#pragma once
// What a month's late charge runs on: the bill and the arrears statement share it.
#include <functional>
#include <optional>

/** What the rule looks up of other months, in won: the gas money, or what is handed in where there is no such row; nothing
 *  where the book cannot be read. */
struct PastGas {
  std::function<std::optional<double>(double otherwise)> lastDecember, monthBefore;
};

/** All arrears, or the money of last month's gas alone: with oneMonthOnly, or when the month before was paid after its due
 *  date without the late charge. month: 1 to 12. Nothing when that cannot be read. */
std::optional<double> lateChargeBase(double arrears, int month, bool oneMonthOnly, bool paidLate,
                                     const PastGas& past);
