#pragma once
// The sample day, played by keystrokes: sign-in, a call, a delivery, a collection, a loan, a change, a deletion, a
// purchase, the month's stock in and out.
#include <functional>

#include "samples/stage.h"

namespace samples {

/** What the day's customer and the delivered item stand at. Balances in won, gas in kg, cylinders in pieces. */
struct Figures {
  qint64 gasInit = 0, utilInit = 0;
  qint64 stockKilograms = 0, full = 0, empty = 0, loan = 0, total = 0;
  QString lastDate;
};

struct DayReport {
  Figures before, after;
  QStringList lines;      ///< the day's lines: kind, item, size, number, income, trust
  QStringList purchases;  ///< station, kind, item, size, number, payment, trust
  QString stock;          ///< of the item in the month: opening, bought, sold, closing
};

/** Plays the day on books made by makeBooks; tell is given one sentence a step. Throws std::runtime_error. */
DayReport playDay(Stage& stage, const std::function<void(const QString&)>& tell);

/** The day's date in the test and in ./run: the books are made for it. */
inline constexpr char dayClock[] = "2026-03-16 09:00:00";

}  // namespace samples
