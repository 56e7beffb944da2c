#pragma once
// The month's list on paper: the sheet's rows staged for "체적검침현황.rpt".
struct ReadingSheet;

/** Stages the rows as they stand on the screen and shows the report. Kept: a customer without a name ends the list.
 *  Throws jet::Error. */
void printReadingList(ReadingSheet& sheet);
