#pragma once
// A range of days as its months: a month lies in exactly one year's file.
#include <QDate>

#include <vector>

/** Days "yyyy-MM-dd", the last one included; the file is that of from's year. */
struct MonthPart {
  QString from, to;
};

/** The first part runs from the first day, the last to the last day, each between them over its whole month. None for a
 *  day that is none or a range that runs backward. */
std::vector<MonthPart> monthsOf(const QDate& from, const QDate& to);
