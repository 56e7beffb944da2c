#pragma once
// A piece of work done over and over on equal books, each time with another call to the disk failing.
#include <QStringList>

#include "tests/storm/failing_disk.h"

namespace storm {

/** What can be swept: "post", "delete", "read", "recalculate", "build", "collect", "client", "close", "start", "first-start",
 *  "back-up", "restore". */
const QStringList& sweptWorks();

/** The process's work: ROOT WORK FAULT LASTING PLACES, for a program with the failing disk in front. Tries so many of the
 *  work's calls to the disk, evenly spread; 0: every one. Tells "fault TEXT" for what must not be, at
 *  the end "swept PLACES TOLD". */
int runSweep(const QStringList& arguments);

}  // namespace storm
