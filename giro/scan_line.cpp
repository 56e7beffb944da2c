#include "giro/scan_line.h"

#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype codeField = 23, totalField = 13, closingField = 5;

/** What fills the sum up to the next ten. */
int upToTen(int sum) {
  return (10 - sum % 10) % 10;
}

/** What is no digit, the sign of a negative total, counts nothing. */
int digitValue(QChar character) {
  const int value = character.digitValue();
  return value < 0 ? 0 : value;
}

}  // namespace

int checkDigitOfCode(const QString& code) {
  int sum = 0, weight = 2;
  for (auto place = code.crbegin(); place != code.crend(); ++place, weight = 3 - weight) {
    const int product = digitValue(*place) * weight;
    sum += product / 10 + product % 10;
  }
  return upToTen(sum);
}

int checkDigitOfTotal(const QString& total) {
  static constexpr int weights[] = {7, 3, 1};
  int sum = 0, place = 0;
  for (auto character = total.crbegin(); character != total.crend(); ++character, ++place)
    sum += digitValue(*character) * weights[place % 3];
  return upToTen(sum);
}

QString scanLine(const QString& giroNumber, const QString& code, const QString& total) {
  const QString customer = u'+' + code + QString::number(checkDigitOfCode(code)) + u'+';
  const QString amount = u'+' + total + QString::number(checkDigitOfTotal(total)) + u'<';
  return u'<' + giroNumber + u'+' + customer.rightJustified(codeField) + amount.rightJustified(totalField) +
         u" <11<"_s.rightJustified(closingField);
}
