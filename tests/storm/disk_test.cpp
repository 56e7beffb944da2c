// Disks that fill up and folders that turn read-only while a PC posts.
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "store/jet/error.h"
#include "tests/storm/builder.h"
#include "tests/storm/child.h"
#include "tests/storm/pcs.h"
#include "tests/storm/poster.h"

namespace storm {
namespace {

using namespace Qt::StringLiterals;

constexpr int postings = 1500;  // far more than there is room for

bool isKorean(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c.script() == QChar::Script_Hangul; });
}

/** Every failure was one of these and was told in words. */
void expectTold(const Told& told, const QList<int>& numbers) {
  EXPECT_FALSE(told.failures.isEmpty());
  for (qsizetype i = 0; i < told.failures.size(); ++i) {
    EXPECT_TRUE(numbers.contains(told.failures.at(i)))
        << told.failures.at(i) << told.failureTexts.at(i).toStdString();
    EXPECT_TRUE(isKorean(told.failureTexts.at(i))) << told.failureTexts.at(i).toStdString();
  }
}

void expectWhole(const QString& root, const Told& told) {
  EXPECT_EQ(faultsOf(root).join(u'\n').toStdString(), "");
  Pc here(root);
  here.open();
  Lines stored = storedLines(here.session);
  // A line begun when there was no room for its figures stays a skeleton; it holds nothing.
  stored.removeIf([&](const auto& line) { return !told.lines.contains(line.key()) && line->number == 0; });
  EXPECT_EQ(differences(stored, told.lines, told.gone, told.open).join(u'\n').toStdString(), "");
}

qint64 bytesBelow(const QString& folder) {
  qint64 sum = 0;
  for (QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
    sum += (QFileInfo(it.next()).size() + 4095) / 4096 * 4096;
  return sum;
}

void writeAll(const char* path, const QByteArray& text) {
  QFile file(QString::fromLatin1(path));
  if (file.open(QIODevice::WriteOnly)) file.write(text);
}

/** Who is not root may mount in a name space of his own, as the user that he is; processes begun here live in it. */
void enterOwnMounts() {
  const QByteArray user = QByteArray::number(geteuid()), group = QByteArray::number(getegid());
  if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return;
  writeAll("/proc/self/setgroups", "deny");
  writeAll("/proc/self/uid_map", user + ' ' + user + " 1");
  writeAll("/proc/self/gid_map", group + ' ' + group + " 1");
}

/** A small file system of its own; gone with the test. */
struct SmallDisk {
  static constexpr qint64 roomy = 64 << 20;
  QTemporaryDir folder;
  bool mounted = false;

  /** Roomy, with books on it. */
  bool begin() {
    if (geteuid() != 0) enterOwnMounts();
    if (!resize(roomy)) return false;
    Pc(folder.path()).makeBooks();
    return true;
  }
  bool resize(qint64 bytes) {
    const QByteArray size = "size=" + QByteArray::number(bytes);
    mounted = ::mount("none", folder.path().toLocal8Bit().constData(), "tmpfs", mounted ? MS_REMOUNT : 0,
                      size.constData()) == 0;
    return mounted;
  }
  ~SmallDisk() {
    if (mounted) ::umount(folder.path().toLocal8Bit().constData());
  }
};

TEST(Disk, AFullDiskIsToldAndWhatWasPostedBeforeStays) {
  SmallDisk disk;
  ASSERT_TRUE(disk.begin()) << "a small file system needs root or user name spaces";
  const QString root = disk.folder.path();
  ASSERT_TRUE(disk.resize(bytesBelow(root) + (40 << 10)));
  Child child({u"--pc"_s, u"post"_s, root, u"7"_s, QString::number(postings)});
  EXPECT_TRUE(child.finish(120000)) << "the program is alive at the end";
  const Told told = Told::of(child.lines());
  expectTold(told, {3026});
  EXPECT_GT(told.lines.size(), 5);
  ASSERT_TRUE(disk.resize(SmallDisk::roomy));
  expectWhole(root, told);
  std::printf("full disk: %d lines posted, then %d statements refused\n", int(told.lines.size()),
              int(told.failures.size()));

  Child after({u"--pc"_s, u"post"_s, root, u"8"_s, u"20"_s});
  EXPECT_TRUE(after.finish(120000));
  EXPECT_TRUE(Told::of(after.lines()).failures.isEmpty()) << "with room again the work goes on";
}

/** Registers a block where there is no room for it; the failure was told in words. */
void buildInVain(Pc& here, int block, int floors, int width) {
  try {
    Builder(here).make(block, floors, width);
    ADD_FAILURE() << "there was room for block " << block;
  } catch (const jet::Error& error) {
    EXPECT_TRUE(error.number() == 3026 || error.number() == 3043) << error.number();
    EXPECT_TRUE(isKorean(error.description())) << error.description().toStdString();
  }
}

TEST(Disk, ABuildingThatDoesNotFitLeavesNothingAndIsMadeWhenThereIsRoom) {
  SmallDisk disk;
  ASSERT_TRUE(disk.begin()) << "a small file system needs root or user name spaces";
  const QString root = disk.folder.path();
  Pc here(root);
  here.open();
  Builder(here).make(1, 2, 3);
  const BuildingRows before = buildingRows(here.session);
  int block = 2, refused = 0;
  for (const int kilobytes : {0, 16, 100, 300, 600}) {
    ASSERT_TRUE(disk.resize(bytesBelow(root) + (kilobytes << 10)));
    buildInVain(here, block++, 20, 50);
    EXPECT_EQ(buildingRows(here.session), before) << kilobytes << " kB free";
    EXPECT_EQ(Builder(here).list(), (QMap<int, int>{{1, 6}})) << kilobytes << " kB free";
    ASSERT_TRUE(disk.resize(SmallDisk::roomy));
    EXPECT_EQ(faultsOf(root).join(u'\n').toStdString(), "");
    ++refused;
  }
  Builder(here).make(block, 20, 50);
  EXPECT_EQ(Builder(here).list(), (QMap<int, int>{{1, 6}, {block, 1000}}));
  std::printf("full disk: %d buildings of 1,000 households refused, nothing left of any\n", refused);
}

TEST(Disk, AFileThatMayNotGrowIsTold) {
  const QTemporaryDir folder;
  Pc here(folder.path());
  here.makeBooks();
  const qint64 limit = QFileInfo(here.pc.paths.native(here.session.DbPath + u"2026Foundation.mdb"_s)).size();
  here.close();
  Child child({u"--pc"_s, u"post-limited"_s, QString::number(limit), folder.path(), u"9"_s,
               QString::number(postings)});
  EXPECT_TRUE(child.finish(120000));
  const Told told = Told::of(child.lines());
  expectTold(told, {3043});
  EXPECT_GT(told.lines.size(), 5);
  expectWhole(folder.path(), told);
}

TEST(Disk, AFolderThatTurnsReadOnlyIsToldAndTheWorkGoesOnWhenItIsBack) {
  const QTemporaryDir folder;
  Pc(folder.path()).makeBooks();
  const QString data = Pc(folder.path()).pc.paths.native(u"C:\\RWGas\\Dbs"_s);
  if (geteuid() == 0) {
    for (QDirIterator it(folder.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
         it.hasNext();)
      ASSERT_EQ(::chown(it.next().toLocal8Bit().constData(), anyone, anyone), 0);
    ASSERT_EQ(::chown(folder.path().toLocal8Bit().constData(), anyone, anyone), 0);
  }
  const QByteArray path = data.toLocal8Bit();
  Child child({u"--pc"_s, u"post-as-anyone"_s, folder.path(), u"10"_s, u"0"_s});
  ASSERT_TRUE(child.waitFor(QLatin1String(word::line), 30000));
  ASSERT_EQ(::chmod(path.constData(), 0555), 0);
  EXPECT_TRUE(child.waitFor(QLatin1String(word::told), 30000));
  ASSERT_EQ(::chmod(path.constData(), 0755), 0);
  EXPECT_TRUE(child.waitForAnother(QLatin1String(word::line), 30000));
  child.kill();
  const Told told = Told::of(child.lines());
  expectTold(told, {3027, 3043, 3051});
  expectWhole(folder.path(), told);
}

}  // namespace
}  // namespace storm
