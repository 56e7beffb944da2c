#include "store/closing/file_replacement.h"

#include <unistd.h>

#include <QFile>
#include <cerrno>
#include <filesystem>

#include "pc/paths.h"
#include "store/data_files.h"
#include "store/jet/error_texts.h"
#include "store/jet/file_system.h"

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

constexpr int patience = 2000;  ///< milliseconds for a program that is just leaving
const QString journalEnding = u"-journal"_s;
const QString fileEnding = u".mdb"_s;

fs::path osPath(const QString& native) {
  return native.toStdU16String();
}

[[noreturn]] void refuse(int code, const QString& file) {
  if (code == ENOSPC || code == EDQUOT || code == EFBIG) throw jet::errorOf(3026, file);
  throw jet::errorOf(code == EACCES || code == EPERM || code == EROFS || code == EBUSY ? 3051 : 3043, file);
}

/** Takes the place of whatever is there, in one step. */
void moveOver(const QString& from, const QString& to, const QString& shown) {
  std::error_code failure;
  fs::rename(osPath(from), osPath(to), failure);
  if (failure) refuse(failure.value(), shown);
}

/** The copy lies on the disk when this returns. */
void copyBytes(const QString& from, const QString& to, const QString& shown) {
  constexpr qint64 piece = 1 << 20;
  QFile source(from), copy(to);
  errno = 0;
  if (!source.open(QFile::ReadOnly | QFile::Unbuffered)) refuse(errno, shown);
  if (!copy.open(QFile::WriteOnly | QFile::Unbuffered)) refuse(errno, shown);
  for (;;) {
    errno = 0;
    const QByteArray bytes = source.read(piece);
    if (bytes.isEmpty() && source.error() != QFile::NoError) refuse(errno, shown);
    if (bytes.isEmpty()) break;
    errno = 0;
    if (copy.write(bytes) != bytes.size()) refuse(errno, shown);
  }
  if (::fsync(copy.handle()) != 0) refuse(errno, shown);
}

QString beside(const QString& place, const QString& more) {
  return place.chopped(fileEnding.size()) + u'-' + more + fileEnding;
}

}  // namespace

FileReplacement::FileReplacement(const pc::Paths& paths, const QString& place)
    : paths_(paths), place_(place), alone_(std::in_place, paths.native(place), patience) {
  for (const QString& left : {made(), made() + journalEnding})  // of one that was ended in its middle
    QFile::remove(paths_.native(left));
}

FileReplacement::~FileReplacement() {
  for (const QString& left : {made(), made() + journalEnding}) QFile::remove(paths_.native(left));
}

QString FileReplacement::made() const {
  return place_ + u".new"_s;
}

void FileReplacement::copyFrom(const QString& file) {
  const QString from = paths_.native(file);
  // Opened once, so that what a power cut left in its journal is played back before the bytes are taken.
  if (from != paths_.native(place_)) {
    jet::Workspace(jet::Workspace::Options{}).OpenDatabase(from);
    const jet::AloneWith alone(from, patience);
    return copyBytes(from, paths_.native(made()), file);
  }
  jet::requireFile(from);
  copyBytes(from, paths_.native(made()), file);
}

/** The old file under a second name: by a link, which costs no room, where the disk knows links. */
void FileReplacement::keepOld(const QDateTime& now) {
  const QString moment = now.toString(u"yyyyMMdd-HHmmss"_s);
  kept_ = beside(place_, moment);
  for (int more = 2; isThere(paths_, kept_); ++more)
    kept_ = beside(place_, moment + u'-' + QString::number(more));
  const QString old = paths_.native(place_), kept = paths_.native(kept_);
  std::error_code failure;
  fs::create_hard_link(osPath(old), osPath(kept), failure);
  if (!failure) return;
  copyBytes(old, kept + u".new"_s, kept_);
  moveOver(kept + u".new"_s, kept, kept_);
}

void FileReplacement::takePlace(const QDateTime& now) {
  const QString place = paths_.native(place_);
  if (jet::isThere(paths_.native(made()) + journalEnding)) throw jet::errorOf(3043, made());
  if (jet::isThere(place)) {
    keepOld(now);
    // Only a file that cannot be opened still has one; it would be taken for the new file's.
    if (jet::isThere(place + journalEnding))
      moveOver(place + journalEnding, paths_.native(kept_) + journalEnding, kept_);
  }
  moveOver(paths_.native(made()), place, place_);
  alone_.reset();
}

void FileReplacement::dropKept() {
  if (kept_.isEmpty()) return;
  QFile::remove(paths_.native(kept_) + journalEnding);
  QFile::remove(paths_.native(kept_));
  kept_.clear();
}

void FileReplacement::putBack() {
  if (kept_.isEmpty()) return;
  const jet::AloneWith alone(paths_.native(place_), patience);
  moveOver(paths_.native(kept_), paths_.native(place_), place_);
  kept_.clear();
}

QStringList keptBeside(const pc::Paths& paths, const QString& place) {
  const qsizetype name = place.lastIndexOf(u'\\') + 1;
  QStringList files;
  for (const QString& file : filesIn(paths, place.left(name), beside(place.mid(name), u"*"_s)))
    files << place.left(name) + file;
  return files;
}
