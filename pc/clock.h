#pragma once
// The PC's clock and short date format, which the program may move for itself alone.
#include <QDate>
#include <QDateTime>
#include <QString>

namespace pc {

class Clock {
 public:
  /** Starts at the moment that HAEON_CLOCK names ("2026-03-02 09:00:00" or the date alone), else at the PC's. */
  Clock();
  QDateTime now() const;
  QDate today() const { return now().date(); }
  /** Today as date text, "yyyy-MM-dd". */
  QString dateText() const { return today().toString(u"yyyy-MM-dd"); }
  /** From now on the clock shows this moment and goes on from there. */
  void set(const QDateTime& moment);

  QString shortDateFormat() const { return shortDate_; }
  void setShortDateFormat(const QString& format) { shortDate_ = format; }

 private:
  qint64 shiftMilliseconds_ = 0;
  QString shortDate_ = "yyyy-MM-dd";
};

}  // namespace pc
