#pragma once
// The Korean text of every number the engine fails with, in one table.
#include "store/jet/error.h"

namespace jet {

/** %1 in the number's text is replaced by detail (a table's, field's or file's name). A number without a text of its
 *  own speaks of an unknown failure and shows the detail. */
Error errorOf(int number, const QString& detail = {});
[[noreturn]] void fail(int number, const QString& detail = {});

}  // namespace jet
