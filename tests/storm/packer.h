#pragma once
// A PC that backs up, or puts backups back, over and over.
#include <QStringList>

namespace storm {

/** ROOT: backups until it is killed. */
int runPacker(const QStringList& arguments);
/** ROOT: the archives "one.zip" and "two.zip" of its shelf put back in turn until it is killed. */
int runRestorer(const QStringList& arguments);

}  // namespace storm
