#include "store/date_text.h"

#include "store/vb.h"

using namespace Qt::StringLiterals;

QString twoDigits(int number) {
  return QString::number(number).rightJustified(2, u'0');
}

QString checkedDate(const QString& typed, const pc::Clock& clock) {
  const std::optional<QDate> day = vb::CDate(typed, clock.today().year());
  return day ? day->toString(u"yyyy-MM-dd"_s) : QString();
}

QString checkedMonthDay(const QString& typed, const QString& year, const pc::Clock& clock) {
  QString monthDay = typed;
  if (monthDay.size() == 5) monthDay.replace(u'-', u'.');
  return checkedDate(year + u'.' + monthDay, clock);
}
