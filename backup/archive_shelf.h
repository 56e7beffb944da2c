#pragma once
// The archives that lie in a folder: their names, the newest first, and how many of them stay.
#include <QDateTime>
#include <QList>

namespace pc {
class Paths;
}

namespace backup {

struct Settings;

/** Kept apart from each other: a support archive never pushes an ordinary one out. */
enum class Series { Books, Support };

struct ShelfArchive {
  QString path;  ///< as written
  QDateTime made;
  qint64 bytes = 0;
  bool onServer = false;
};

/** "해온판매-20260316-090000.zip", "해온판매-AS-20260316-090000.zip" */
QString archiveName(Series series, const QDateTime& made);
/** Ordinary archives of the folder and the server's folder, the newest first. */
QList<ShelfArchive> archivesOf(const pc::Paths& paths, const Settings& settings);
/** Deletes the oldest archives of a series until so many stay. Files of other names stay, and so does the one just made
 *  (its name): on a PC whose clock has gone back it would be the oldest. */
void keepNewest(const pc::Paths& paths, const QString& folder, Series series, int keep,
                const QString& made = {});

}  // namespace backup
