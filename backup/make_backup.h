#pragma once
// One backup from the free data folder to the finished archive. The data folder is only read; whatever ends the work, the
// books and the archives of before are as they were.
#include "backup/archive.h"
#include "backup/archive_shelf.h"
#include "backup/settings.h"

namespace pc {
struct Pc;
}

namespace backup {

class DataFolderAlone;

struct BackupDone {
  QString archive;  ///< as written
  ArchiveFacts facts;
  qint64 bytes = 0;     ///< of the archive
  QStringList strange;  ///< files of other programs, packed as they are
  QStringList damaged;  ///< packed all the same: of a support archive only
};

/** Copies the held folder's files aside, lets the folder go, checks every data file of the copy, packs it and reads the
 *  archive back; only then it takes its name, and older ones beyond the number that is kept go. A damaged data file ends
 *  the work (3049), but for support it is packed and told. Throws jet::Error and Stopped. */
BackupDone makeBackup(const pc::Pc& pc, const QString& dataFolder, const Settings& settings, Series series,
                      std::unique_ptr<DataFolderAlone> held, const Tell& tell);

/** The archive's copy on the server: into its folder, read back there, and by its command. Throws jet::Error and
 *  Stopped. */
void sendToServer(const pc::Pc& pc, const QString& archive, const Settings& settings, const Tell& tell);

/** Reads every data file of a folder wholly. Names that are damaged, and names that are no data files of ours. */
struct Soundness {
  QStringList damaged, strange;
};
Soundness checkDataFiles(const QString& nativeFolder, const QStringList& names, const Tell& tell);

}  // namespace backup
