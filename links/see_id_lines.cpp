#include "links/see_id_lines.h"

namespace {

constexpr int longestLine = 80;
constexpr int fewestDigits = 3, mostDigits = 20;  // from an extension number to an international one

/** The digits of a number written with blanks, dashes or brackets; '' when other signs stand in it. */
QString dialledDigits(const QByteArray& text) {
  QString digits;
  for (char sign : text) {
    if (sign >= '0' && sign <= '9')
      digits += QLatin1Char(sign);
    else if (QByteArrayView(" -()").indexOf(sign) < 0)
      return {};
  }
  return digits.size() >= fewestDigits && digits.size() <= mostDigits ? digits : QString();
}

SeeIdEvent eventOfLine(const QByteArray& line) {
  const auto equals = line.indexOf('=');
  if (equals < 0) {
    const QString digits = dialledDigits(line);
    return {digits.isEmpty() ? 0 : 2, digits};
  }
  if (line.left(equals).trimmed().toUpper() != "NMBR") return {};
  const QString digits = dialledDigits(line.mid(equals + 1).trimmed());
  return {digits.isEmpty() ? 0 : 1, digits};
}

}  // namespace

std::vector<SeeIdEvent> SeeIdLines::feed(const QByteArray& bytes) {
  std::vector<SeeIdEvent> events;
  for (char byte : bytes) {
    if (byte == '\r' || byte == '\n') {
      const QByteArray line = line_.trimmed();
      if (!line.isEmpty() && !overlong_) events.push_back(eventOfLine(line));
      line_.clear();
      overlong_ = false;
    } else if (line_.size() >= longestLine) {
      overlong_ = true;
    } else {
      line_ += byte;
    }
  }
  return events;
}
