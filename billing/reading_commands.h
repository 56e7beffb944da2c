#pragma once
// The commands on the shown book: reader and collector, a changed meter, recalculation, clearing the use, and a month
// without readings. Long ones run in groups, tell how far they are and can be stopped between two rows.
#include <QString>

#include <functional>

struct ReadingSheet;

/** Told with the rows done and their count; False stops behind the row done last. */
using ReadingProgress = std::function<bool(int done, int count)>;

/** F5: asks for the meter reader of the row in UseGage, for the collector in Pay, and stores the name. Nothing in other
 *  columns, in the opening entry, and where the book has no such row. */
void askPerson(ReadingSheet& sheet, int row, int col);

/** "사용량 수정": the use of a row after a change of the meter; the previous reading moves so that it fits. */
void correctUse(ReadingSheet& sheet, int row);

/** "재계산": every row with a reading is computed and saved, from the first to the last; each carry reaches the next
 *  month alone. A row without a reading keeps its sums and carries nothing. */
void recalculate(ReadingSheet& sheet, const ReadingProgress& progress);

/** "사용량 클리어": the use of every shown customer becomes 0. True: the sheet must be shown anew. */
bool clearUse(ReadingSheet& sheet, const ReadingProgress& progress);

/** "미검침": nobody was read this month, last month's reading and total go on as they are. Kept: the question names the
 *  building, the work is done on the whole book. True: the sheet must be shown anew. */
bool skipReadings(ReadingSheet& sheet, const ReadingProgress& progress);
/** Whether the shown month may go without readings: not the opening entry, and December has no month behind it. */
bool maySkipReadings(const ReadingSheet& sheet);
