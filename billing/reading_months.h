#pragma once
// Which months the meter book offers, and which of them may still be changed by hand.
#include <QStringList>

namespace pc {
class Clock;
}
struct ReadingSheet;

/** "기초", "01", ... up to the calendar month: a month's place is its number. Kept: it goes by the clock, not by the
 *  work year, so in a past year's file the later months are not reached. */
QStringList FillMonthList(const pc::Clock& clock);
/** month: two digits. True for "00", the opening entry, and for the calendar month. */
bool IsEditableMonth(const pc::Clock& clock, const QString& month);
/** Whether a cell of the column may be typed in the shown month; a refusal is told. */
bool ValidateCellEdit(ReadingSheet& sheet, int col);
/** What the operator must know before the opening entry. */
QString openingNotes(const ReadingSheet& sheet);
