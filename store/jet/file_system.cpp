#include "store/jet/file_system.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <algorithm>
#include <filesystem>
#include <memory>
#include <vector>

#include "store/jet/error_texts.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

constexpr int kHeader = 100;        // bytes of a data file before its first page's content
constexpr int kCounterAt = 24;      // of the changes, big-endian, in the header
constexpr quint32 kUntilEnd = ~0u;  // a journal that does not count its pages

thread_local std::optional<Error> refusal;

sqlite3_vfs* base() {
  static sqlite3_vfs* const vfs = sqlite3_vfs_find(nullptr);
  return vfs;
}

quint32 numberAt(const QByteArray& bytes, qsizetype at) {
  return bytes.size() >= at + 4 ? qFromBigEndian<quint32>(bytes.constData() + at) : 0;
}

/** The header of the file as it was when its journal was begun, by the journal's copy of the first page; empty when
 *  there is none, or nothing that SQLite would play back. */
QByteArray headerInJournal(const QString& path) {
  static const QByteArray magic = QByteArray::fromHex("d9d505f920a163d7");
  QFile journal(path);
  if (!journal.open(QIODevice::ReadOnly)) return {};
  qint64 at = 0;
  for (;;) {  // one part after each flush within the transaction
    journal.seek(at);
    const QByteArray part = journal.read(28);
    if (!part.startsWith(magic)) return {};
    const quint32 counted = numberAt(part, 8), sector = numberAt(part, 20), page = numberAt(part, 24);
    if (sector < 32 || page < 512 || sector > 65536 || page > 65536) return {};
    const qint64 record = 4 + qint64(page) + 4;
    at += sector;
    const qint64 room = std::max<qint64>(0, (journal.size() - at) / record);
    const qint64 records = counted == kUntilEnd ? room : std::min<qint64>(counted, room);
    if (records == 0) return {};
    for (qint64 i = 0; i < records; ++i, at += record) {
      journal.seek(at);
      if (const QByteArray copy = journal.read(4 + kHeader); numberAt(copy, 0) == 1) return copy.sliced(4);
    }
    at = (at + sector - 1) / sector * sector;
  }
}

/** A file opened by SQLite's own way: were it opened and closed here, the locks of this process on it would be gone. */
class OpenFile {
 public:
  explicit OpenFile(const char* path) {
    int out = 0;
    base()->xOpen(base(), path, file(), SQLITE_OPEN_MAIN_DB | SQLITE_OPEN_READONLY, &out);
  }
  ~OpenFile() {
    if (file()->pMethods) file()->pMethods->xClose(file());
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  /** SQLite's code. */
  int read(QByteArray& into, qint64 at) const {
    return file()->pMethods ? file()->pMethods->xRead(file(), into.data(), int(into.size()), at)
                            : SQLITE_CANTOPEN;
  }

 private:
  sqlite3_file* file() const { return reinterpret_cast<sqlite3_file*>(room_.get()); }
  std::unique_ptr<char[]> room_{new char[size_t(base()->szOsFile)]()};
};

QByteArray headerOf(const char* path) {
  QByteArray header(kHeader, '\0');
  return OpenFile(path).read(header, 0) == SQLITE_OK ? header : QByteArray();
}

/** The first page is written last and whole, so the file stands at the change the journal began with, and looks as it
 *  did, or at the next one. A journal without a copy of that page has not let anything into it. */
bool fits(const char* journal, const char* file) {
  const QByteArray before = headerInJournal(QString::fromUtf8(journal));
  if (before.size() < kHeader) return true;
  const QByteArray found = headerOf(file);
  if (found.isEmpty()) return true;  // SQLite will meet the same failure and tell it
  if (numberAt(found, kCounterAt) == numberAt(before, kCounterAt)) return found == before;
  return numberAt(found, kCounterAt) == numberAt(before, kCounterAt) + 1;
}

Error missing(const QString& path) {
  if (!isThere(QFileInfo(path).path())) return errorOf(3044, path);
  if (!isThere(path + u"-journal"_s)) return errorOf(3024, path);
  return Error(
      3024,
      u"'%1' 파일은 없고 쓰다 만 저널 파일(%2-journal)만 남아 있습니다. 새 파일을 만들지 않았습니다. "
      u"파일을 옮겼으면 제자리에 돌려놓고, 없어졌으면 자료 폴더를 비우고 백업한 폴더 전체를 복구하세요."_s
          .arg(path, QFileInfo(path).fileName()));
}

int refuse(const Error& why) {
  refusal = why;
  return SQLITE_CANTOPEN;
}

QString fileName(const char* path) {
  return QFileInfo(QString::fromUtf8(path)).fileName();
}

int openFile(sqlite3_vfs*, const char* path, sqlite3_file* file, int flags, int* out) {
  file->pMethods = nullptr;
  refusal.reset();
  if (path) {
    std::error_code unanswered;
    const auto found = std::filesystem::status(path, unanswered);
    if (exists(found) && !is_regular_file(found))
      return refuse(
          Error(3051, u"'%1' 자리에 파일이 아닌 것이 있어 열 수 없습니다. 그것을 치우고 다시 하세요."_s.arg(
                          fileName(path))));
    // Neither read-only (a look at it) nor to be made: it is about to be played back, and we alone hold the file.
    constexpr int playback = SQLITE_OPEN_MAIN_JOURNAL | SQLITE_OPEN_READWRITE;
    if ((flags & (playback | SQLITE_OPEN_CREATE)) == playback) {
      const char* const played = sqlite3_filename_database(path);
      if (!fits(path, played)) return refuse(errorOf(3428, fileName(played)));
    }
  }
  return base()->xOpen(base(), path, file, flags, out);
}

int deleteFile(sqlite3_vfs*, const char* path, int flush) {
  const int code = base()->xDelete(base(), path, flush);
  return code == SQLITE_IOERR_DIR_FSYNC ? SQLITE_OK : code;
}

}  // namespace

Found lookAt(const QString& nativePath) {
  std::error_code failure;
  const std::filesystem::file_status found = std::filesystem::status(nativePath.toStdU16String(), failure);
  if (found.type() == std::filesystem::file_type::none) fail(3043, nativePath);
  return !exists(found) ? Found::Nothing : is_regular_file(found) ? Found::File : Found::Other;
}

bool isThere(const QString& nativePath) {
  return lookAt(nativePath) != Found::Nothing;
}

QString onePath(const QString& nativePath) {
  std::error_code failure;
  const std::filesystem::path path = std::filesystem::canonical(nativePath.toStdU16String(), failure);
  if (!failure) return QString::fromStdU16String(path.u16string());
  if (isThere(nativePath)) fail(3043, nativePath);
  return QFileInfo(nativePath).absoluteFilePath();
}

bool answers(const QString& nativePath) {
  const std::unique_ptr<const char, void (*)(const char*)> path(
      sqlite3_create_filename(nativePath.toUtf8().constData(), "", "", 0, nullptr),
      [](const char* name) { sqlite3_free_filename(name); });
  const OpenFile file(path.get());
  QByteArray part(1 << 16, '\0');
  for (qint64 at = 0;; at += part.size()) {
    const int code = file.read(part, at);
    if (code == SQLITE_IOERR_SHORT_READ) return true;  // the end
    if (code != SQLITE_OK) return false;
  }
}

void requireFile(const QString& nativePath) {
  const Found found = lookAt(nativePath);
  if (found == Found::Other) fail(3044, nativePath);
  if (found == Found::Nothing) throw missing(nativePath);
}

void requireNothing(const QString& nativePath) {
  if (isThere(nativePath)) fail(3204, nativePath);
  if (!isThere(QFileInfo(nativePath).path()) || isThere(nativePath + u"-journal"_s))
    throw missing(nativePath);
}

const char* fileSystem() {
  static const char* const name = [] {
    static sqlite3_vfs ours = *base();  // everything else is done by the base, for which it may be taken
    ours.zName = "jet";
    ours.pNext = nullptr;
    ours.xOpen = openFile;
    ours.xDelete = deleteFile;
    sqlite3_vfs_register(&ours, 0);
    return ours.zName;
  }();
  return name;
}

std::optional<Error> takeRefusal() {
  return std::exchange(refusal, std::nullopt);
}

}  // namespace jet
