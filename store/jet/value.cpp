#include "store/jet/value.h"

#include <cmath>
#include <limits>

#include "store/jet/error_texts.h"
#include "store/jet/text_rules.h"

namespace jet {

qint64 Value::toLong() const {
  if (isWhole()) return std::get<qint64>(data_);
  const double rounded = roundHalfEven(toDouble());
  // 2^63 is a double, 2^63 - 1 is none.
  constexpr double limit = 9223372036854775808.0;
  if (!(rounded >= -limit && rounded < limit)) fail(6);
  return qint64(rounded);
}

double Value::toDouble() const {
  if (isWhole()) return double(std::get<qint64>(data_));
  if (isDouble()) return std::get<double>(data_);
  if (isText()) return val(std::get<QString>(data_));
  return 0;
}

QString Value::toText() const {
  if (isText()) return std::get<QString>(data_);
  if (isWhole()) return QString::number(std::get<qint64>(data_));
  if (isDouble()) return textOf(std::get<double>(data_));
  return {};
}

}  // namespace jet
