#include "backup/archive.h"

#include <archive.h>
#include <archive_entry.h>
#include <fcntl.h>
#include <locale.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <cerrno>
#include <memory>

#include "store/jet/error_texts.h"

using namespace Qt::StringLiterals;

namespace backup {

namespace {

constexpr auto listName = "haeon-backup.txt"_L1;
constexpr auto listHead = "haeon backup 1"_L1;
constexpr qint64 listLimit = 4 << 20;  // bytes; a longer one is nobody's
constexpr qint64 piece = 1 << 20;
const QString timeFormat = u"yyyy-MM-dd HH:mm:ss"_s;

[[noreturn]] void failReading(const QString& nativeZip, const QString& why) {
  throw jet::Error(notAnArchive,
                   nativeZip + u"\n올바른 백업 파일이 아닙니다. 잘렸거나 바뀐 파일입니다. ("_s + why + u')');
}

QByteArray listOf(const ArchiveFacts& facts) {
  QByteArray list = QByteArray(listHead.data()) + '\n';
  list += "made " + facts.made.toString(timeFormat).toUtf8() + '\n';
  list += "folder " + facts.folder.toUtf8() + '\n';
  list += "program " + facts.program.toUtf8() + '\n';
  for (const PackedFile& file : facts.files)
    list += "file " + file.sum + ' ' + QByteArray::number(file.size) + ' ' + file.name.toUtf8() + '\n';
  return list;
}

ArchiveFacts readList(const QByteArray& list, const QString& nativeZip) {
  const QList<QByteArray> lines = list.split('\n');
  if (lines.isEmpty() || lines.first() != listHead.data()) failReading(nativeZip, u"목록"_s);
  ArchiveFacts facts;
  for (const QByteArray& line : lines) {
    const QString rest = QString::fromUtf8(line.mid(line.indexOf(' ') + 1));
    if (line.startsWith("made ")) facts.made = QDateTime::fromString(rest, timeFormat);
    if (line.startsWith("folder ")) facts.folder = rest;
    if (line.startsWith("program ")) facts.program = rest;
    if (line.startsWith("file "))
      facts.files << PackedFile{rest.section(u' ', 2), rest.section(u' ', 1, 1).toLongLong(),
                                rest.section(u' ', 0, 0).toLatin1()};
  }
  return facts;
}

/** A name that stays within the folder it is unpacked into, on every PC. */
bool isPlainName(const QString& name) {
  if (name.isEmpty() || name.contains(u'\\') || name.contains(u':') || name.contains(QChar())) return false;
  const QStringList parts = name.split(u'/');
  return std::ranges::none_of(
      parts, [](const QString& part) { return part.isEmpty() || part == "."_L1 || part == ".."_L1; });
}

/** The library turns names by the locale, and they are Hangul whatever the PC's language is. */
class HangulNames {
 public:
  HangulNames() : utf8_(::newlocale(LC_CTYPE_MASK, "C.UTF-8", locale_t{})), before_(::uselocale(utf8_)) {}
  ~HangulNames() {
    ::uselocale(before_);
    if (utf8_) ::freelocale(utf8_);
  }
  HangulNames(const HangulNames&) = delete;
  HangulNames& operator=(const HangulNames&) = delete;

 private:
  locale_t utf8_, before_;
};

struct Closer {
  void operator()(archive* a) const {
    archive_free(a);  // a reader and a writer alike
  }
  void operator()(archive_entry* e) const { archive_entry_free(e); }
};
using Archive = std::unique_ptr<archive, Closer>;
using Entry = std::unique_ptr<archive_entry, Closer>;

/** A zip file being written; unlinked unless it was finished. */
class Zip {
 public:
  explicit Zip(const QString& path) : path_(path), file_(path), zip_(archive_write_new()) {
    if (!file_.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
      failWriting(path_, errno);
    archive_write_set_format_zip(zip_.get());
    archive_write_set_options(zip_.get(), "zip:hdrcharset=UTF-8");
    check(archive_write_open_fd(zip_.get(), file_.handle()));
  }
  ~Zip() {
    zip_.reset();
    if (!finished_) file_.remove();
  }
  void begin(const QString& name, qint64 size, const QDateTime& changed) {
    const Entry entry(archive_entry_new());
    archive_entry_set_pathname_utf8(entry.get(), name.toUtf8().constData());
    archive_entry_set_size(entry.get(), size);
    archive_entry_set_filetype(entry.get(), AE_IFREG);
    archive_entry_set_perm(entry.get(), 0600);
    archive_entry_set_mtime(entry.get(), changed.toSecsSinceEpoch(), 0);
    check(archive_write_header(zip_.get(), entry.get()));
  }
  void write(const QByteArray& bytes) {
    if (!bytes.isEmpty() && archive_write_data(zip_.get(), bytes.constData(), size_t(bytes.size())) < 0)
      fail();
  }
  void finish() {
    check(archive_write_finish_entry(zip_.get()));
    check(archive_write_close(zip_.get()));
    if (::fsync(file_.handle()) != 0) failWriting(path_, errno);
    finished_ = true;
  }

 private:
  void check(int result) {
    if (result < ARCHIVE_WARN) fail();
  }
  [[noreturn]] void fail() { failWriting(path_, archive_errno(zip_.get())); }

  const HangulNames names_;
  QString path_;
  QFile file_;
  Archive zip_;
  bool finished_ = false;
};

/** Walks the archive's entries; take is given every piece of a file's bytes, and an empty one at its end. */
void walk(const QString& nativeZip,
          const std::function<void(const QString& name, const QByteArray& bytes)>& take) {
  const HangulNames names;
  const Archive zip(archive_read_new());
  archive_read_support_format_zip_seekable(zip.get());
  const auto why = [&] { return QString::fromUtf8(archive_error_string(zip.get())); };
  if (archive_read_open_filename(zip.get(), QFile::encodeName(nativeZip).constData(), size_t(piece)) !=
      ARCHIVE_OK)
    failReading(nativeZip, why());
  for (archive_entry* entry = nullptr;;) {
    const int found = archive_read_next_header(zip.get(), &entry);
    if (found == ARCHIVE_EOF) return;
    if (found < ARCHIVE_WARN) failReading(nativeZip, why());
    const char* named = archive_entry_pathname_utf8(entry);
    const QString name = QString::fromUtf8(named ? named : "");
    if (archive_entry_filetype(entry) != AE_IFREG || !isPlainName(name)) failReading(nativeZip, name);
    QByteArray bytes(piece, '\0');
    for (;;) {
      const la_ssize_t got = archive_read_data(zip.get(), bytes.data(), size_t(piece));
      if (got < 0) failReading(nativeZip, why());
      take(name, bytes.first(got));
      if (got == 0) break;
    }
  }
}

}  // namespace

qint64 ArchiveFacts::bytes() const {
  qint64 sum = 0;
  for (const PackedFile& file : files) sum += file.size;
  return sum;
}

void failWriting(const QString& nativePath, int systemError) {
  const bool full = systemError == ENOSPC || systemError == EDQUOT || systemError == EFBIG;
  if (full) throw jet::Error(diskFull, nativePath + u"\n디스크 공간이 부족하여 쓸 수 없습니다."_s);
  throw jet::Error(cannotWrite,
                   nativePath + u"\n파일이나 폴더를 쓸 수 없습니다. 경로와 쓰기 권한을 확인하십시오."_s);
}

bool flushToDisk(const QString& nativePath) {
  const int file = ::open(QFile::encodeName(nativePath).constData(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return false;
  const bool done = ::fsync(file) == 0 || errno == EINVAL;
  ::close(file);
  return done;
}

ArchiveFacts pack(const QString& nativeFolder, const QStringList& names, ArchiveFacts facts,
                  const QString& nativeZip, const Tell& tell) {
  qint64 total = 0, done = 0;
  for (const QString& name : names) total += QFileInfo(nativeFolder + u'/' + name).size();
  Zip zip(nativeZip);
  for (const QString& name : names) {
    QFile file(nativeFolder + u'/' + name);
    if (!file.open(QIODevice::ReadOnly)) throw jet::errorOf(3043, name);
    PackedFile packed{name, file.size(), {}};
    zip.begin(name, packed.size, QFileInfo(file).lastModified());
    QCryptographicHash sum(QCryptographicHash::Sha256);
    qint64 read = 0;
    for (QByteArray bytes; !(bytes = file.read(piece)).isEmpty();) {
      zip.write(bytes);
      sum.addData(bytes);
      read += bytes.size();
      tellOrStop(tell, u"압축: "_s + name, done += bytes.size(), total);
    }
    if (read != packed.size) throw jet::errorOf(3043, name);
    packed.sum = sum.result().toHex();
    facts.files << packed;
  }
  const QByteArray list = listOf(facts);
  zip.begin(listName, list.size(), facts.made);
  zip.write(list);
  zip.finish();
  return facts;
}

ArchiveFacts verify(const QString& nativeZip, const Tell& tell, qint64 expected) {
  struct Found {
    QCryptographicHash sum{QCryptographicHash::Sha256};
    qint64 size = 0;
  };
  std::unique_ptr<Found> open;
  QHash<QString, PackedFile> found;
  QByteArray list;
  bool listed = false;
  qint64 done = 0;
  walk(nativeZip, [&](const QString& name, const QByteArray& bytes) {
    if (listed) failReading(nativeZip, name);  // the list is the last one
    if (name == listName) {
      list += bytes;
      listed = bytes.isEmpty();
      if (list.size() > listLimit) failReading(nativeZip, name);
      return;
    }
    if (!open) open = std::make_unique<Found>();
    open->sum.addData(bytes);
    open->size += bytes.size();
    tellOrStop(tell, u"확인: "_s + name, done += bytes.size(), expected);
    if (!bytes.isEmpty()) return;
    if (found.contains(name.toCaseFolded())) failReading(nativeZip, name);
    found.insert(name.toCaseFolded(), {name, open->size, open->sum.result().toHex()});
    open.reset();
  });
  if (!listed) failReading(nativeZip, u"목록 없음"_s);
  ArchiveFacts facts = readList(list, nativeZip);
  for (const PackedFile& file : facts.files) {
    const PackedFile there = found.take(file.name.toCaseFolded());
    if (there.name != file.name || there.size != file.size || there.sum != file.sum)
      failReading(nativeZip, file.name);
  }
  if (!found.isEmpty() || facts.files.isEmpty()) failReading(nativeZip, u"목록과 다름"_s);
  return facts;
}

void unpack(const QString& nativeZip, const ArchiveFacts& facts, const QString& nativeFolder,
            const Tell& tell) {
  QHash<QString, PackedFile> wanted;
  for (const PackedFile& file : facts.files) wanted.insert(file.name, file);
  const qint64 total = facts.bytes();
  qint64 done = 0;
  std::unique_ptr<QFile> open;
  std::unique_ptr<QCryptographicHash> sum;
  walk(nativeZip, [&](const QString& name, const QByteArray& bytes) {
    if (name == listName) return;
    if (!open) {
      if (!wanted.contains(name)) failReading(nativeZip, name);
      const QString path = nativeFolder + u'/' + name;
      if (!QDir().mkpath(QFileInfo(path).path())) failWriting(path, errno);
      open = std::make_unique<QFile>(path);
      sum = std::make_unique<QCryptographicHash>(QCryptographicHash::Sha256);
      if (!open->open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered,
                      QFile::ReadOwner | QFile::WriteOwner))
        failWriting(path, errno);
    }
    if (open->write(bytes) != bytes.size()) failWriting(open->fileName(), errno);
    sum->addData(bytes);
    tellOrStop(tell, u"풀기: "_s + name, done += bytes.size(), total);
    if (!bytes.isEmpty()) return;
    if (::fsync(open->handle()) != 0) failWriting(open->fileName(), errno);
    if (sum->result().toHex() != wanted.take(name).sum) failReading(nativeZip, name);
    open.reset();
  });
  if (!wanted.isEmpty()) failReading(nativeZip, wanted.begin().key());
}

void copyFile(const QString& nativeFrom, const QString& nativeTo, const QString& what, qint64 before,
              qint64 total, const Tell& tell) {
  QFile from(nativeFrom), to(nativeTo);
  if (!from.open(QIODevice::ReadOnly)) throw jet::errorOf(3043, nativeFrom);
  if (!QDir().mkpath(QFileInfo(nativeTo).path())) failWriting(nativeTo, errno);
  if (!to.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered,
               QFile::ReadOwner | QFile::WriteOwner))
    failWriting(nativeTo, errno);
  qint64 copied = 0;
  for (QByteArray bytes; !(bytes = from.read(piece)).isEmpty();) {
    if (to.write(bytes) != bytes.size()) failWriting(nativeTo, errno);
    copied += bytes.size();
    tellOrStop(tell, what, before + copied, total);
  }
  if (copied != from.size() || from.error() != QFileDevice::NoError) throw jet::errorOf(3043, nativeFrom);
  if (::fsync(to.handle()) != 0) failWriting(nativeTo, errno);
}

}  // namespace backup
