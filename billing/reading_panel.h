#pragma once
// What the screen tells about the customer whose row the cursor is on.
#include <QString>

struct ReadingSheet;

struct ReadingPanel {
  QString status;  ///< for the main window's status line: name, telephone, address
  QString man;     ///< PnlMan: price, meter reader, collector
};

/** The cursor came to a row: the sheet's reading day becomes the row's own, with one blank behind it, unless the row
 *  has none. Both texts are empty for a row without a customer. */
ReadingPanel enterReadingRow(ReadingSheet& sheet, int row);

/** The row's own reading day, when it has one, becomes the sheet's. */
void takeStoredReadingDay(ReadingSheet& sheet, int row);
