#include "store/folder_swap.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>

#ifdef Q_OS_LINUX
#include <fcntl.h>
#include <unistd.h>
#endif

#include "pc/paths.h"
#include "store/jet/error.h"

using namespace Qt::StringLiterals;

namespace {

const QString unfinishedMark = u"/.unfinished"_s;

QString withoutEnd(QString folder) {
  while (folder.endsWith(u'\\') || folder.endsWith(u'/')) folder.chop(1);
  return folder;
}

[[noreturn]] void failSwap(const QString& folder) {
  throw jet::Error(75,
                   folder + u"\n폴더를 만들거나 이름을 바꿀 수 없습니다. 경로와 쓰기 권한을 확인하십시오."_s);
}

bool isUnfinished(const QString& native) {
  return QFileInfo::exists(native + unfinishedMark);
}

/** A dated name beside the folder that nobody has. */
QString keptName(const pc::Paths& paths, const QString& folder, const QDateTime& now) {
  const QString dated = withoutEnd(folder) + u"-이전-"_s + now.toString(u"yyyyMMdd-HHmmss"_s);
  QString name = dated;
  for (int more = 2; paths.exists(name); ++more) name = dated + u'-' + QString::number(more);
  return name;
}

void flushFolder([[maybe_unused]] const QString& native) {
#ifdef Q_OS_LINUX
  const int file = ::open(QFile::encodeName(native).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (file < 0) return;
  ::fsync(file);
  ::close(file);
#endif
}

/** Both names change their folders in one step; false where the disk cannot do that. */
bool exchange([[maybe_unused]] const QString& one, [[maybe_unused]] const QString& other) {
#if defined(Q_OS_LINUX) && defined(RENAME_EXCHANGE)
  return ::renameat2(AT_FDCWD, QFile::encodeName(one).constData(), AT_FDCWD,
                     QFile::encodeName(other).constData(), RENAME_EXCHANGE) == 0;
#else
  return false;
#endif
}

}  // namespace

QString preparedFolder(const QString& folder) {
  return withoutEnd(folder) + u"-준비중"_s;
}

void beginPreparing(const pc::Paths& paths, const QString& folder, const QDateTime& now) {
  const QString native = paths.native(preparedFolder(folder));
  if (QFileInfo::exists(native)) {
    // Without the mark it is what a swap took out just before the power went: books, not rubbish.
    const bool gone = isUnfinished(native)
                          ? QDir(native).removeRecursively()
                          : QDir().rename(native, paths.native(keptName(paths, folder, now)));
    if (!gone) failSwap(native);
  }
  QDir().mkpath(QFileInfo(native).path());
  // The mark is there before anything else can be.
  const QString born = native + u".new"_s;
  QDir(born).removeRecursively();
  if (!QDir().mkdir(born, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner)) failSwap(native);
  QFile mark(born + unfinishedMark);
  if (!mark.open(QIODevice::WriteOnly)) failSwap(native);
  mark.close();
  if (!QDir().rename(born, native)) failSwap(native);
}

void dropPrepared(const pc::Paths& paths, const QString& folder) {
  const QString native = paths.native(preparedFolder(folder));
  if (isUnfinished(native)) QDir(native).removeRecursively();
}

QString swapIn(const pc::Paths& paths, const QString& folder, const QDateTime& now) {
  const QString place = paths.native(withoutEnd(folder)), prepared = paths.native(preparedFolder(folder));
  const QString above = QFileInfo(prepared).path();
  flushFolder(prepared);
  if (!QFile::remove(prepared + unfinishedMark)) failSwap(prepared);
  flushFolder(prepared);
  const auto giveUp = [&] {
    QFile mark(prepared + unfinishedMark);  // nobody's books yet
    mark.open(QIODevice::WriteOnly);
    failSwap(place);
  };
  if (!QFileInfo::exists(place)) {
    if (!QDir().rename(prepared, place)) giveUp();
    flushFolder(above);
    return {};
  }
  QString kept = keptName(paths, folder, now);
  const QString nativeKept = paths.native(kept);
  if (exchange(prepared, place)) {
    flushFolder(above);
    // What stood there is safe under either name.
    const bool named = QDir().rename(prepared, nativeKept);
    flushFolder(above);
    return named ? kept : preparedFolder(folder);
  }
  if (!QDir().rename(place, nativeKept)) giveUp();
  flushFolder(above);
  if (!QDir().rename(prepared, place)) {
    QDir().rename(nativeKept, place);
    giveUp();
  }
  flushFolder(above);
  return kept;
}

bool finishSwap(const pc::Paths& paths, const QString& folder) {
  const QString place = paths.native(withoutEnd(folder)), prepared = paths.native(preparedFolder(folder));
  if (QFileInfo::exists(place) || !QFileInfo(prepared).isDir() || isUnfinished(prepared)) return false;
  if (!QDir().rename(prepared, place)) return false;
  flushFolder(QFileInfo(place).path());
  return true;
}
