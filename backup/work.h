#pragma once
// What all work of the data compressor shares: how it is told, stopped and failed.
#include <QString>

#include <functional>

#include "store/jet/error.h"

namespace backup {

/** Told while work runs: what is being done and how much of how much (bytes; a total of 0 is not known). False asks the
 *  work to stop, which it does before anything that stood is touched. */
using Tell = std::function<bool(const QString& what, qint64 done, qint64 total)>;

/** Thrown when the operator stopped the work; nothing has changed then. */
struct Stopped {};

/** Tells, and leaves when the answer is to stop. */
inline void tellOrStop(const Tell& tell, const QString& what, qint64 done, qint64 total) {
  if (tell && !tell(what, done, total)) throw Stopped{};
}

// Numbers of the failures; each goes to the operator with its Korean text.
constexpr int cannotWrite = 75;  ///< a folder or file that cannot be made or written
constexpr int diskFull = 61;
constexpr int notAnArchive = 321;  ///< torn, changed or never ours
constexpr int damagedData = 3049;  ///< a data file

/** 61 where the disk is full, else 75, with the path. */
[[noreturn]] void failWriting(const QString& nativePath, int systemError);

}  // namespace backup
