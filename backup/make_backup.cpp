#include "backup/make_backup.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStorageInfo>

#include "backup/data_folder_alone.h"
#include "pc/pc.h"
#include "store/jet/database.h"
#include "store/jet/error_texts.h"
#include "store/jet/presence.h"

using namespace Qt::StringLiterals;

namespace backup {

namespace {

const QString workFolder = u".packing"_s;
const QString unfinishedZip = u".packing.zip"_s;

/** Files below the data folder that are the books': not the marks of who is in, not what a broken-off step left. */
QStringList filesToPack(const QString& nativeFolder, const QString& nativeShelf) {
  QStringList names;
  const QDir folder(nativeFolder);
  for (QDirIterator it(nativeFolder, QDir::Files | QDir::Hidden | QDir::NoSymLinks,
                       QDirIterator::Subdirectories);
       it.hasNext();) {
    const QString path = it.next(), name = folder.relativeFilePath(path);
    if (path.startsWith(QDir::cleanPath(nativeShelf) + u'/')) continue;  // a shelf within the data folder
    if (name.endsWith(u".ldb"_s, Qt::CaseInsensitive) || name.endsWith(u".new"_s)) continue;
    names << name;
  }
  names.sort();
  return names;
}

void requireRoom(const QString& nativeFolder, qint64 bytes) {
  const QStorageInfo disk(nativeFolder);
  if (!disk.isValid() || disk.bytesAvailable() < 0 || disk.bytesAvailable() >= bytes) return;
  throw jet::Error(diskFull, nativeFolder + u"\n디스크 공간이 부족합니다. 필요한 공간 "_s +
                                 QString::number(bytes / 1'000'000 + 1) + u"MB, 남은 공간 "_s +
                                 QString::number(disk.bytesAvailable() / 1'000'000) + u"MB"_s);
}

/** A folder to work in that goes with the work, and that of a killed run before it. */
struct WorkFolder {
  explicit WorkFolder(const QString& native) : path(native) {
    QDir(path).removeRecursively();
    if (!QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)) failWriting(path, errno);
  }
  ~WorkFolder() { QDir(path).removeRecursively(); }
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;
  const QString path;
};

[[noreturn]] void failDamaged(const QStringList& names) {
  throw jet::Error(damagedData,
                   u"자료 파일이 손상되어 백업을 마치지 않았습니다: "_s + names.join(u", "_s) +
                       u"\n전에 만든 백업은 그대로 있습니다. [A/S용 백업]은 손상된 파일도 담습니다."_s);
}

/** A lock that goes with its process: what a killed run leaves locks nobody out. */
jet::AloneWith aloneAt(const QString& nativeShelf) {
  constexpr int patience = 200;  // milliseconds
  try {
    return {nativeShelf + u"/packing"_s, patience};
  } catch (const jet::Error&) {
    throw jet::Error(3045,
                     nativeShelf + u"\n이 폴더에 다른 백업을 만들고 있습니다. 끝난 뒤에 다시 하십시오."_s);
  }
}

/** Some second later when an archive of this second stands already. */
QDateTime freeMoment(const pc::Pc& pc, const QString& folder, Series series) {
  QDateTime made = pc.clock.now();
  while (pc.paths.exists(folder + archiveName(series, made))) made = made.addSecs(1);
  return made;
}

void copyToFolder(const pc::Paths& paths, const QString& archive, const QString& folder, const Tell& tell) {
  if (!paths.makeFolder(folder)) failWriting(paths.native(folder), 0);
  const QString from = paths.native(archive),
                target = paths.native(folder) + u'/' + QFileInfo(from).fileName(),
                unfinished = target + u".part"_s;
  QFile::remove(unfinished);
  const QString what = u"서버로 복사"_s;
  try {
    copyFile(from, unfinished, what, 0, QFileInfo(from).size(), tell);
    verify(unfinished, tell);
    if (!QFile::rename(unfinished, target)) failWriting(target, errno);
  } catch (...) {
    QFile::remove(unfinished);
    throw;
  }
}

void runCommand(const pc::Paths& paths, const QString& archive, const QString& line, const Tell& tell) {
  QStringList words = QProcess::splitCommand(line);
  if (words.isEmpty()) return;
  for (QString& word : words) word.replace(u"%1"_s, paths.native(archive));
  const QString program = words.takeFirst();
  QProcess process;
  process.setProcessChannelMode(QProcess::MergedChannels);
  process.start(program, words);
  constexpr int look = 100;  // milliseconds between two words to the operator
  const auto failed = [&](const QString& why) {
    throw jet::Error(cannotWrite,
                     u"서버 명령이 끝나지 않았거나 실패했습니다.\n"_s + line + u'\n' + why.trimmed());
  };
  if (!process.waitForStarted()) failed(process.errorString());
  while (process.state() != QProcess::NotRunning && !process.waitForFinished(look)) {
    if (tell && !tell(u"서버 명령 실행 중"_s, 0, 0)) {
      process.kill();
      process.waitForFinished();
      throw Stopped{};
    }
  }
  if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
    failed(QString::fromLocal8Bit(process.readAll().right(500)));
}

}  // namespace

Soundness checkDataFiles(const QString& nativeFolder, const QStringList& names, const Tell& tell) {
  Soundness found;
  qint64 done = 0;
  for (const QString& name : names) {
    tellOrStop(tell, u"자료 검사: "_s + name, done++, names.size());
    if (!name.endsWith(u".mdb"_s, Qt::CaseInsensitive)) continue;
    try {
      const jet::Workspace workspace{jet::Workspace::Options{}};
      if (!workspace.OpenDatabase(nativeFolder + u'/' + name).isSound()) found.damaged << name;
    } catch (const jet::Error& error) {
      if (error.number() == 3343)
        found.strange << name;
      else if (error.number() == 3049 || error.number() == 3428 || error.number() == 3024)
        found.damaged << name;
      else
        throw;
    }
  }
  return found;
}

BackupDone makeBackup(const pc::Pc& pc, const QString& dataFolder, const Settings& settings, Series series,
                      std::unique_ptr<DataFolderAlone> held, const Tell& tell) {
  const pc::Paths& paths = pc.paths;
  if (!paths.makeFolder(settings.folder)) failWriting(paths.native(settings.folder), 0);
  const QString shelf = paths.native(settings.folder), books = paths.native(dataFolder);
  const jet::AloneWith one = aloneAt(shelf);
  const QStringList names = filesToPack(books, shelf);
  if (names.isEmpty()) throw jet::errorOf(3024, dataFolder + u"Basic.mdb"_s);
  qint64 total = 0, done = 0;
  for (const QString& name : names) total += QFileInfo(books + u'/' + name).size();

  BackupDone result;
  const WorkFolder copy(shelf + u'/' + workFolder);
  requireRoom(shelf, total);
  for (const QString& name : names) {
    copyFile(books + u'/' + name, copy.path + u'/' + name, u"복사: "_s + name, done, total, tell);
    done += QFileInfo(copy.path + u'/' + name).size();
  }
  held.reset();  // the other PCs may go on

  Soundness sound = checkDataFiles(copy.path, names, tell);
  if (series != Series::Support && !sound.damaged.isEmpty()) failDamaged(sound.damaged);
  result.damaged = sound.damaged;
  result.strange = sound.strange;

  const QString zip = shelf + u'/' + unfinishedZip;
  QFile::remove(zip);
  ArchiveFacts facts;
  facts.made = freeMoment(pc, settings.folder, series);
  facts.folder = dataFolder;
  facts.program = QString::fromLatin1(HAEON_VERSION);
  try {
    facts = pack(copy.path, names, facts, zip, tell);
    verify(zip, tell, facts.bytes());
    result.archive = settings.folder + archiveName(series, facts.made);
    if (!QFile::rename(zip, shelf + u'/' + archiveName(series, facts.made))) failWriting(shelf, errno);
  } catch (...) {
    QFile::remove(zip);
    throw;
  }
  flushToDisk(shelf);
  result.facts = facts;
  result.bytes = QFileInfo(paths.native(result.archive)).size();
  keepNewest(paths, settings.folder, series, settings.keep, archiveName(series, facts.made));
  return result;
}

void sendToServer(const pc::Pc& pc, const QString& archive, const Settings& settings, const Tell& tell) {
  if (!settings.serverFolder.isEmpty()) {
    copyToFolder(pc.paths, archive, settings.serverFolder, tell);
    keepNewest(pc.paths, settings.serverFolder, Series::Books, settings.keep,
               QFileInfo(pc.paths.native(archive)).fileName());
  }
  if (!settings.serverCommand.isEmpty()) runCommand(pc.paths, archive, settings.serverCommand, tell);
}

}  // namespace backup
