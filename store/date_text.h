#pragma once
// Typed dates: what the operator writes, and the date text "yyyy-MM-dd" it stands for.
#include <QString>

#include "pc/clock.h"

/** "03": a month or day in its two digits. */
QString twoDigits(int number);
/** The date text a typed date stands for; '' when it is no date. */
QString checkedDate(const QString& typed, const pc::Clock& clock);
/** The same for a typed month and day ("11-24", "1.2") of a year of four digits. */
QString checkedMonthDay(const QString& typed, const QString& year, const pc::Clock& clock);
