#pragma once
// The figures of one day, sheet by sheet, as the sale screen shows them on F5.
#include <array>

#include "store/session.h"
#include "trade/line_kinds.h"

/** Sums of one sheet; 0 for a day without a line. */
struct DaySum {
  qint64 pieces = 0;
  qint64 income = 0, discount = 0, trust = 0;  ///< won
};

class TodaySale {
 public:
  explicit TodaySale(Session& session) : session_(session) {}

  /** "MM/DD" of the day and the words behind it. */
  QString title() const;
  /** General, volume and material, by SaleSheet; false after a failed query has been told. */
  bool load();
  const DaySum& sum(SaleSheet sheet) const { return sums_[size_t(sheet)]; }

 private:
  Session& session_;
  std::array<DaySum, 3> sums_;
};
