#pragma once
// The sample month, played by keystrokes: the readings of an apartment block and of the metered shops, the slips on
// paper, the bank's file of what was paid, what the next month opens with, and the month's statements and invoices.
#include <functional>

#include "samples/stage.h"

namespace samples {

/** What the bill of one customer went through. Readings and use in cubic metres, money in won. */
struct MonthBill {
  qint64 code = 0;
  QString name;
  qint64 reading = 0, use = 0, amount = 0, arrears = 0, late = 0, fee = 0;
  qint64 issued = 0;       ///< before anything was paid
  qint64 paid = 0;         ///< through the bank
  qint64 nextArrears = 0;  ///< what the next month opens with
};

struct MonthReport {
  QList<MonthBill> block, shops;
  int paidSlips = 0;  ///< records in the bank's file
  int invoices = 0;   ///< tax invoices issued
};

/** Households 1 to 30 of 달빛아파트 101 and the individual book, in March; books as makeBooks leaves them.
 *  reading and collecting: stages on one PC at readingClock and collectingClock; pdf names the slips' file, the documents
 *  lie beside it ("거래명세표.pdf", "세금계산서.pdf").
 *  Throws std::runtime_error. */
MonthReport playMonth(const std::function<Stage::Options(const QString& clock)>& options,
                      const std::function<void(const QString&)>& tell);

/** What a customer used in the played month, by his place in the list, from 1. */
constexpr int usedByHousehold(int place) {
  return 10 + place;
}
constexpr int usedByShop(int place) {
  return 100 + place;
}
/** Two of three households pay at the bank. */
constexpr bool paysAtTheBank(qint64 code) {
  return code % 3 != 0;
}

inline constexpr int statementsIssued = 3;

inline constexpr char readingClock[] = "2026-03-26 09:00:00", collectingClock[] = "2026-04-13 09:00:00",
                      documentClock[] = "2026-03-31 18:00:00";

}  // namespace samples
