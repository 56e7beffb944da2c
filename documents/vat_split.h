#pragma once
// How an amount parts into supply and tax: the one rule behind statements, invoices and the trader's own choice.
#include <QString>
#include <QStringList>

/** As Trader.VAT stores them. */
enum class Vat {
  None = 0,      ///< "계산안함"
  Included = 1,  ///< "단가/1.1": the amount holds the tax
  OnTop = 2      ///< "단가*0.1": the tax comes to the amount
};

/** The captions of the three, by their codes. */
const QStringList& vatCaptions();
/** The code's meaning; a code that is none counts as 0. */
Vat vatOf(qint64 code);

/** Whole won. supply + tax is total, whatever the sign. */
struct VatSplit {
  qint64 supply = 0, tax = 0, total = 0;
  bool operator==(const VatSplit&) const = default;
};

/** Worked out in whole numbers, so exact; a tie goes to the even won (5 on top: tax 0, 15 on top: tax 2). */
VatSplit splitAmount(qint64 amount, Vat vat);

/** A number nearest to another, a tie going to the even one: a typed quantity times a price in won. */
qint64 wholeWon(double amount);

/** "1,234"; nothing for zero. What every amount on these papers and in their sums is written with. */
QString wonOrBlank(qint64 won);
