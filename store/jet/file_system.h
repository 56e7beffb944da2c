#pragma once
// SQLite's way to the files, with three precautions of our own. A journal is played back into its file only when it
// fits: a file that was put back from a backup is not spoilt by the journal of the one before. What is no file (a pipe, a
// folder) is never opened in a file's place; a pipe would never answer. And a deletion that was done counts as done,
// although the disk failed to confirm it: what the deletion decides, whether a commit stands, has been decided.
#include <optional>

#include "store/jet/error.h"

namespace jet {

enum class Found { Nothing, File, Other };
/** What is there under a path of the PC. A disk or network that does not answer is no answer: throws 3043. */
Found lookAt(const QString& nativePath);
/** Whether anything is. */
bool isThere(const QString& nativePath);
/** One path for one file, however it was written. Throws 3043. */
QString onePath(const QString& nativePath);
/** Whether every byte of it can be read. SQLite takes a disk that fails for a damaged file. */
bool answers(const QString& nativePath);
/** Throws 3024 or 3044 where no data file is. One that only its journal tells of was taken away while it was written: in
 *  its place no other may be made. */
void requireFile(const QString& nativePath);
/** The same for a file that is to be made: throws 3204 where there is one, and where a journal tells of one. */
void requireNothing(const QString& nativePath);

/** Its name for sqlite3_open_v2. */
const char* fileSystem();

/** Why a file was refused since the last question; nothing when none was. */
std::optional<Error> takeRefusal();

}  // namespace jet
