#include "store/jet/sql.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "store/jet/text_rules.h"

namespace jet {

Sql& Sql::whole(qint64 number) {
  char digits[24];
  char* const end = std::to_chars(digits, digits + sizeof digits, number).ptr;
  char16_t wide[sizeof digits];
  text_.append(wide, std::copy(digits, end, wide) - wide);
  return *this;
}

Sql& Sql::operator<<(double number) {
  constexpr double shownWhole = 1e15;
  if (std::fabs(number) < shownWhole && number == std::trunc(number)) return whole(qint64(number));
  return *this << QStringView(textOf(number));
}

}  // namespace jet
