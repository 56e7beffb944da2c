#include "pc/clock.h"

namespace pc {

Clock::Clock() {
  const QString start = qEnvironmentVariable("HAEON_CLOCK").trimmed().replace(u' ', u'T');
  const QDateTime moment = QDateTime::fromString(start, Qt::ISODate);
  if (moment.isValid()) set(moment);
}

QDateTime Clock::now() const {
  return QDateTime::currentDateTime().addMSecs(shiftMilliseconds_);
}

void Clock::set(const QDateTime& moment) {
  shiftMilliseconds_ = QDateTime::currentDateTime().msecsTo(moment);
}

}  // namespace pc
