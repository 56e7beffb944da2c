#pragma once
// An archive: a zip file of the data folder's files with a list of their sizes and SHA-256 sums as its last entry. An
// archive without that list, or whose files differ from it, is none: torn, changed, or somebody else's.
#include <QByteArray>
#include <QDateTime>
#include <QList>

#include "backup/work.h"

namespace backup {

struct PackedFile {
  QString name;  ///< below the data folder, "/" between folders
  qint64 size = 0;
  QByteArray sum;  ///< SHA-256, hexadecimal
};

struct ArchiveFacts {
  QDateTime made;
  QString folder;   ///< the data folder as written
  QString program;  ///< version
  QList<PackedFile> files;
  qint64 bytes() const;  ///< of all files unpacked
};

/** Packs so named files of a folder into a new zip file, flushed to the disk; what it gives is what the list says. On
 *  any failure the file is taken away. Throws jet::Error and Stopped. */
ArchiveFacts pack(const QString& nativeFolder, const QStringList& names, ArchiveFacts facts,
                  const QString& nativeZip, const Tell& tell);

/** Reads the whole archive back and compares every file with the list. expected: the bytes it unpacks to, for the bar.
 *  Throws jet::Error 321 and Stopped. */
ArchiveFacts verify(const QString& nativeZip, const Tell& tell, qint64 expected = 0);

/** Unpacks into an empty folder, comparing while it writes; every file is flushed. Throws jet::Error and Stopped. */
void unpack(const QString& nativeZip, const ArchiveFacts& facts, const QString& nativeFolder,
            const Tell& tell);

/** One file's copy, flushed to the disk; tells the bytes of this file added to before. Throws jet::Error, Stopped. */
void copyFile(const QString& nativeFrom, const QString& nativeTo, const QString& what, qint64 before,
              qint64 total, const Tell& tell);

/** Waits until a written file or folder has reached the disk. False when the disk refuses. */
bool flushToDisk(const QString& nativePath);

}  // namespace backup
