#pragma once
// A year closed over and over, with work in the next year's file in between that the next closing throws away.
#include "store/closing/year_close.h"
#include "tests/storm/books.h"

namespace storm {

/** Goes on wherever it is asked, and counts the comparisons that found a difference. */
ClosingScreen loneScreen(int* differing = nullptr);
/** So many more customers with a meter, and a December bill of everybody who has one. */
void writeDecember(Pc& here, int more);
/** A line of the next year, which only its file holds. */
void workInNextYear(Pc& here, int number);

/** The process's work: ROOT SEED: tells "at N" before the line N of the next year is written, "made N" when it stands,
 *  and "done N" when the closing behind it has ended. */
int runCloser(const QStringList& arguments);

}  // namespace storm
