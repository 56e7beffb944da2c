#pragma once
// Sums that do not drift: whole numbers as they are, fractions by the decimals they are written with.
#include <QString>

namespace pc {

/** Starts at 0. Holds up to 18 digits before the point and 9 behind it; beyond that text() is "###". */
class ExactSum {
 public:
  void add(qint64 number);
  /** The 15 significant digits of the number count, so ten times 0.1 is 1. */
  void add(double number);
  void add(const ExactSum& other);
  /** "1234", "-0.5"; no superfluous zeros behind the point. */
  QString text() const;

 private:
  __int128 billionths_ = 0;
  bool tooLarge_ = false;
};

}  // namespace pc
