#pragma once
// A row of the sheet goes into the year's book, and what it leaves unpaid into the next month.
struct ReadingSheet;

/** Writes the row's month (of the opening entry: all months before the calendar month) and carries its total into the
 *  arrears of the next one; one flush. Only that month's arrears are touched: months computed before stay as they are
 *  until their reading is entered again or they are recalculated. Throws jet::Error; neither is then written, unless
 *  the second statement alone failed. */
void SaveReadingRow(ReadingSheet& sheet, int row);
