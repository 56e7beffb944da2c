#pragma once
// SQLite's way to the files, with three precautions of our own. A journal is played back into its file only when it
// fits: a file that was put back from a backup is not spoilt by the journal of the one before. What is no file (a pipe, a
// folder) is never opened in a file's place; a pipe would never answer. And a deletion that was done counts as done,
// although the disk failed to confirm it: what the deletion decides, whether a commit stands, has been decided.
#include <optional>

#include "store/jet/error.h"

namespace jet {

/** Its name for sqlite3_open_v2. */
const char* fileSystem();

/** Why a file was refused since the last question; nothing when none was. */
std::optional<Error> takeRefusal();

}  // namespace jet
