#include "master/customers/tel_format.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int tailDigits = 4;

QString digitsOf(const QString& text) {
  QString digits;
  for (QChar c : text) {
    if (c >= u'0' && c <= u'9') digits += c;
  }
  return digits;
}

int areaCodeLength(const QString& digits) {
  if (digits.startsWith(u"02"_s)) return 2;
  return digits.startsWith(u'0') && digits.size() >= 9 ? 3 : 0;
}

}  // namespace

TelNumber FormatTel(const QString& text) {
  if (text.size() < 6) return {text, text};
  const QString digits = digitsOf(text);
  if (digits.size() <= tailDigits) return {digits, digits};

  int area = areaCodeLength(digits);
  if (digits.size() < area + tailDigits) area = 0;  // too short to hold its area code beside the last four
  const QString tail = digits.right(tailDigits);
  const QString middle = digits.mid(area, digits.size() - area - tailDigits);
  const QString local = middle + u'-' + tail;
  return {area > 0 ? digits.left(area) + u'-' + local : local, local};
}
