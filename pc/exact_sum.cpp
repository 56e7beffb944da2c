#include "pc/exact_sum.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace pc {
namespace {

constexpr int decimalPlaces = 9;
constexpr qint64 billion = 1'000'000'000;
constexpr double largest = 1e18;

}  // namespace

void ExactSum::add(qint64 number) {
  billionths_ += __int128(number) * billion;
}

void ExactSum::add(double number) {
  if (!(std::abs(number) < largest)) {
    tooLarge_ = true;
    return;
  }
  const QString digits = QString::number(number, 'e', 14);  // d.dddddddddddddde+xx
  const qsizetype mark = digits.indexOf(u'e');
  __int128 scaled = digits.left(mark).remove(u'.').toLongLong();
  int shift = digits.mid(mark + 1).toInt() - 14 + decimalPlaces;
  for (; shift > 0; --shift) scaled *= 10;
  if (shift < -16) shift = -16, scaled = 0;
  for (; shift < -1; ++shift) scaled /= 10;
  if (shift == -1) scaled = (scaled + (scaled < 0 ? -5 : 5)) / 10;
  billionths_ += scaled;
}

void ExactSum::add(const ExactSum& other) {
  billionths_ += other.billionths_;
  tooLarge_ = tooLarge_ || other.tooLarge_;
}

QString ExactSum::text() const {
  const __int128 size = billionths_ < 0 ? -billionths_ : billionths_;
  const __int128 whole = size / billion;
  if (tooLarge_ || whole >= __int128(largest)) return u"###"_s;
  QString text = QString::number(qint64(whole));
  if (const qint64 rest = qint64(size % billion); rest != 0) {
    QString fraction = QString::number(rest).rightJustified(decimalPlaces, u'0');
    while (fraction.endsWith(u'0')) fraction.chop(1);
    text += u'.' + fraction;
  }
  return billionths_ < 0 ? u'-' + text : text;
}

}  // namespace pc
