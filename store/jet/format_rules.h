#pragma once
// The language's Format: a number or a date by its picture.
#include <QString>

#include "store/jet/value.h"

class QDateTime;

namespace jet {

/** A number by a picture of 0 # . , % with up to four sections (positive;negative;zero;Null). Half rounds away from
 *  zero. "#,###" of 0 is empty. */
QString formatNumber(double number, QStringView picture);
/** A moment by a picture of y m d h n s (any case; mm behind h is minutes), AM/PM; ddddd is the short and dddddd the
 *  long date. "/" is the PC's date separator, which is "-". Other characters stand as they are. */
QString formatDate(const QDateTime& moment, QStringView picture);
/** Chooses by the picture: a date text ("2026-11-24") under a date picture, a number under a number's; what is neither
 *  comes back as it stands. Null is ''. */
QString format(const Value& value, QStringView picture);

}  // namespace jet
