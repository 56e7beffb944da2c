#pragma once
// The Korean text of every number the engine fails with, in one table.
#include "store/jet/error.h"

namespace jet {

/** %1 in the number's text is replaced by detail (a table's, field's or file's name). A number without a text of its
 *  own speaks of an unknown failure and shows the detail. */
Error errorOf(int number, const QString& detail = {});
/** Whether a number tells that the store itself has failed (disk, room, lock, permission, connection), and not that a
 *  statement's text or data were refused. */
bool isStoreFailure(int number);
[[noreturn]] void fail(int number, const QString& detail = {});

}  // namespace jet
