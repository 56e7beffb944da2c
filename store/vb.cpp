#include "store/vb.h"

#include <QRegularExpression>
#include <QStringList>
#include <cmath>

#include "store/jet/error_texts.h"
#include "store/jet/format_rules.h"
#include "store/jet/text_rules.h"

using namespace Qt::StringLiterals;

namespace vb {

namespace {

double within(double number, double least, double most) {
  if (number >= least && number <= most) return number;
  jet::fail(6);  // also for what is no number at all
}

int fullYear(const QString& digits) {
  const int year = digits.toInt();
  if (digits.size() > 2) return year;
  return year < 30 ? 2000 + year : 1900 + year;
}

/** The numbers of a date text as they were written; empty when it holds anything else. */
QStringList dateNumbers(const QString& text) {
  static const QRegularExpression time(u"\\s+([01]?\\d|2[0-3]):[0-5]?\\d(:[0-5]?\\d)?$"_s);
  static const QRegularExpression numbers(
      u"^(\\d{1,4})\\s*(?:[-/.]|[년월])\\s*(\\d{1,4})(?:\\s*(?:[-/.]|월)\\s*(\\d{1,4}))?\\s*일?$"_s);
  const QRegularExpressionMatch match = numbers.match(text.trimmed().remove(time));
  if (!match.hasMatch()) return {};
  QStringList found = match.capturedTexts().mid(1);
  found.removeAll(QString());
  return found;
}

}  // namespace

double Val(QStringView text) {
  return jet::val(text);
}

double CDbl(QStringView text) {
  const std::optional<double> number = jet::numberOf(text);
  if (!number) jet::fail(13);
  if (std::isinf(*number)) jet::fail(6);
  return *number;
}

qint64 CLng(double number) {
  return qint64(within(jet::roundHalfEven(number), -2147483648.0, 2147483647.0));
}

qint64 CLng(QStringView text) {
  return CLng(CDbl(text));
}

int CInt(double number) {
  return int(within(jet::roundHalfEven(number), -32768, 32767));
}

int CInt(QStringView text) {
  return CInt(CDbl(text));
}

double CCur(double number) {
  return within(jet::roundHalfEven(number, 4), -922337203685477.0, 922337203685477.0);
}

QString CStr(double number) {
  return jet::textOf(number);
}
bool IsNumeric(QStringView text) {
  return jet::numberOf(text).has_value();
}

std::optional<QDate> CDate(const QString& text, int currentYear) {
  const QStringList parts = dateNumbers(text);
  QDate day;
  if (parts.size() == 2) {
    day = QDate(currentYear, parts[0].toInt(), parts[1].toInt());
  } else if (parts.size() == 3) {
    day = parts[2].size() == 4 ? QDate(parts[2].toInt(), parts[0].toInt(), parts[1].toInt())
                               : QDate(fullYear(parts[0]), parts[1].toInt(), parts[2].toInt());
  }
  if (!day.isValid() || day.year() < 100) return {};
  return day;
}

bool IsDate(const QString& text, int currentYear) {
  return CDate(text, currentYear).has_value();
}

QString Format(double number, const QString& picture) {
  return jet::formatNumber(number, picture);
}

QString Format(const QDateTime& moment, const QString& picture) {
  QString local = picture;
  local.replace(u"DDDDD"_s, u"yyyy-mm-dd"_s, Qt::CaseInsensitive);
  return jet::formatDate(moment, local.replace(u'/', u'-'));
}

QString Format(const QDate& day, const QString& picture) {
  return Format(day.startOfDay(), picture);
}

}  // namespace vb
