#pragma once
// What caller-identification units send over the wire, turned into calls.
#include <QByteArray>
#include <QString>
#include <vector>

/** One event of the unit. State 1: the number came as NMBR=...; 2: as plain digits; 0: anything else (a ring, a
 *  date, a withheld number), which carries no number. */
struct SeeIdEvent {
  int state = 0;
  QString number;  ///< digits only
};

/** Collects bytes into lines ended by CR or LF. Reads may split a line anywhere; a line longer than any unit sends
 *  is noise and is dropped up to its end. */
class SeeIdLines {
 public:
  std::vector<SeeIdEvent> feed(const QByteArray& bytes);

 private:
  QByteArray line_;
  bool overlong_ = false;
};
