#pragma once
// A PC that backs up, or puts backups back, over and over.
#include <QStringList>
#include <memory>

namespace backup {
class DataFolderAlone;
}

namespace storm {

struct Pc;

/** The data folder for this PC alone; who has a file open is reported. */
std::unique_ptr<backup::DataFolderAlone> hold(Pc& here);

/** ROOT: backups until it is killed. */
int runPacker(const QStringList& arguments);
/** ROOT: the archives "one.zip" and "two.zip" of its shelf put back in turn until it is killed. */
int runRestorer(const QStringList& arguments);

}  // namespace storm
