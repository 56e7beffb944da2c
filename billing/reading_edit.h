#pragma once
// What happens when the hand has changed a cell of the meter book: the month's rule, the question, the bill, the row in
// the book, and where the cursor goes.
#include <QString>

struct ReadingSheet;

/** A cell's place; row 0 is nowhere. */
struct CellPlace {
  int row = 0, col = 0;
};

/** The end of an edit. PutBack: the cell has its old text and the cursor stays. Otherwise the cursor goes to next. */
struct ReadingEdit {
  enum End { Done, PutBack } end = PutBack;
  CellPlace next = {};
};

/** A cell got another text (amounts without separators). When a statement fails the row is as it was before, and
 *  jet::Error goes on. */
ReadingEdit finishReadingCell(ReadingSheet& sheet, int row, int col, const QString& typed);
/** Where the cursor goes from a cell that has been edited; the cell itself where it stays. */
CellPlace MoveAfterEdit(const ReadingSheet& sheet, int row, int col);
/** A typed collection date into its cell, as "MM/DD". A bad one is told and gives False. */
bool ApplyTrustDayEdit(ReadingSheet& sheet, int row, const QString& typed);
/** The tick "paid late": only for a bill that was paid, and set only where nothing is left of it. Stored at once,
 *  nothing is computed. Throws jet::Error. */
void tickPaidLate(ReadingSheet& sheet, int row, bool on);
/** TxtDay was left with this text: five characters stand, anything else is read as month and day of the work year or
 *  becomes today after a box. */
void takeReadingDay(ReadingSheet& sheet, const QString& typed);
