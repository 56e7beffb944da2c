#pragma once
// The turn of the year, played by keystrokes: December's readings of a block, the year closed, the clock moved on, and
// January's readings in the new year's file.
#include "samples/month.h"

namespace samples {

struct YearEndReport {
  QList<MonthBill> december,
      january;      ///< households 1 to 30 of 달빛아파트 101; January's arrears are the carried ones
  int carried = 0;  ///< rows of the new book's January with arrears
};

/** Books as makeBooks leaves them at closingClock. options: a stage at a clock. Throws std::runtime_error. */
YearEndReport playYearEnd(const std::function<Stage::Options(const QString& clock)>& options,
                          const std::function<void(const QString&)>& tell);

inline constexpr char closingClock[] = "2026-12-31 17:00:00", newYearClock[] = "2027-01-26 09:00:00";

}  // namespace samples
