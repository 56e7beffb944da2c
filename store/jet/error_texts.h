#pragma once
// The Korean text of every number the engine fails with, in one table.
#include "store/jet/error.h"

namespace jet {

/** %1 in the number's text is replaced by detail (a table's, field's or file's name). A number without a text of its
 *  own speaks of an unknown failure and shows the detail. */
Error errorOf(int number, const QString& detail = {});
/** 3024 or 3044 for a data file that is not there, or that only its journal tells of: it was taken away while it was
 *  written, and in its place no other may be made. */
Error missingFile(const QString& path);
/** Whether a number tells that the store itself has failed (disk, room, lock, permission, connection), and not that a
 *  statement's text or data were refused. */
bool isStoreFailure(int number);
[[noreturn]] void fail(int number, const QString& detail = {});

}  // namespace jet
