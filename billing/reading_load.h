#pragma once
// A book's rows for one month, as the year's file has them, in the order in which they are listed and printed.
#include <QString>

struct ReadingSheet;

/** What must be chosen before a book can be shown. */
enum class Selection { Complete, NoMonth, NoBuilding };

/** Tells what is missing. */
Selection CheckSelection(ReadingSheet& sheet);
/** Entries of CboBDName: "아파트 전체" or "다가구 전체", then the book's buildings or blocks. Empty for the individual
 *  book. Nothing is chosen afterwards. */
void fillBuildings(ReadingSheet& sheet);
/** Shows the chosen book, month and building: the issued amount is open for typing in the opening entry alone, whose
 *  notes come first; the reading day is today again. */
void showReadings(ReadingSheet& sheet);
/** Fills the grid. A failed query has been told; the grid is then left as it is. Throws jet::Error. */
void RefreshReadingGrid(ReadingSheet& sheet);

/** Where the list is ordered by block and room number; else by the order in which the customers came. */
bool ordersByRoom(const ReadingSheet& sheet);

/** Customer code, month and use of the shown book and building for a span of months of one file. */
QString usesStatement(const ReadingSheet& sheet, int firstMonth, int lastMonth);

/** All rows of the book for a month, by customer, without a building: columns and joins of the book's statement. */
QString wholeBookStatement(const ReadingSheet& sheet, int month);
