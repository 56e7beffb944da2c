#include "documents/vat_split.h"

#include "store/jet/text_rules.h"
#include "store/text_width.h"

namespace {

/** amount * by / over to the nearest whole number, a tie to the even one; over is positive. */
qint64 shareOf(qint64 amount, qint64 by, qint64 over) {
  const qint64 times = amount * by;
  qint64 whole = times / over, rest = times % over;
  if (rest < 0) {
    rest += over;
    --whole;
  }
  const bool up = 2 * rest > over || (2 * rest == over && whole % 2 != 0);
  return up ? whole + 1 : whole;
}

}  // namespace

const QStringList& vatCaptions() {
  static const QStringList captions{"계산안함", "단가/1.1", "단가*0.1"};
  return captions;
}

Vat vatOf(qint64 code) {
  return code == 1 ? Vat::Included : code == 2 ? Vat::OnTop : Vat::None;
}

VatSplit splitAmount(qint64 amount, Vat vat) {
  switch (vat) {
    case Vat::Included: {
      const qint64 supply = shareOf(amount, 10, 11);
      return {supply, amount - supply, amount};
    }
    case Vat::OnTop: {
      const qint64 tax = shareOf(amount, 1, 10);
      return {amount, tax, amount + tax};
    }
    case Vat::None:
      break;
  }
  return {amount, 0, amount};
}

qint64 wholeWon(double amount) {
  return qint64(jet::roundHalfEven(amount));
}

QString wonOrBlank(qint64 won) {
  return won == 0 ? QString() : moneyText(double(won));
}
