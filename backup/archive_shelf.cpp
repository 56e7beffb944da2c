#include "backup/archive_shelf.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include "backup/settings.h"
#include "pc/paths.h"

using namespace Qt::StringLiterals;

namespace backup {

namespace {

const QString stamp = u"yyyyMMdd-HHmmss"_s;

QString beginning(Series series) {
  return series == Series::Support ? u"해온판매-AS-"_s : u"해온판매-"_s;
}

/** When an archive of the series with this name was made; invalid for any other name. */
QDateTime madeAt(Series series, const QString& name) {
  static const QRegularExpression books(u"^해온판매-(\\d{8}-\\d{6})\\.zip$"_s),
      support(u"^해온판매-AS-(\\d{8}-\\d{6})\\.zip$"_s);
  const auto match = (series == Series::Support ? support : books).match(name);
  return match.hasMatch() ? QDateTime::fromString(match.captured(1), stamp) : QDateTime();
}

QList<ShelfArchive> archivesIn(const pc::Paths& paths, const QString& folder, Series series) {
  QList<ShelfArchive> found;
  for (const QString& name : paths.list(folder, u"해온판매-*.zip"_s)) {
    const QDateTime made = madeAt(series, name);
    if (made.isValid())
      found << ShelfArchive{folder + name, made, QFileInfo(paths.native(folder + name)).size()};
  }
  std::ranges::stable_sort(found, std::greater(), &ShelfArchive::made);
  return found;
}

}  // namespace

QString archiveName(Series series, const QDateTime& made) {
  return beginning(series) + made.toString(stamp) + u".zip"_s;
}

QList<ShelfArchive> archivesOf(const pc::Paths& paths, const Settings& settings) {
  QList<ShelfArchive> all = archivesIn(paths, settings.folder, Series::Books);
  if (settings.serverFolder.isEmpty() || settings.serverFolder == settings.folder) return all;
  for (ShelfArchive& archive : archivesIn(paths, settings.serverFolder, Series::Books)) {
    archive.onServer = true;
    all << archive;
  }
  std::ranges::stable_sort(all, std::greater(), &ShelfArchive::made);
  return all;
}

void keepNewest(const pc::Paths& paths, const QString& folder, Series series, int keep, const QString& made) {
  QList<ShelfArchive> others = archivesIn(paths, folder, series);
  const qsizetype spared =
      others.removeIf([&](const ShelfArchive& archive) { return archive.path == folder + made; });
  for (qsizetype i = std::max(1, keep) - spared; i < others.size(); ++i)
    QFile::remove(paths.native(others[i].path));
}

}  // namespace backup
