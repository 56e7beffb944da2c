// Disks that fill up and folders that turn read-only while a PC posts.
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
using namespace Qt::StringLiterals;

namespace {

constexpr int postings = 1500;  // far more than there is room for

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
  EXPECT_EQ(faultsOf(root), QStringList());
  OpenPc here(root);
  Lines stored = storedLines(here.session);
  // A line begun when there was no room for its figures stays a skeleton; it holds nothing.
  stored.removeIf([&](const auto& line) { return !told.lines.contains(line.key()) && line->number == 0; });
  EXPECT_EQ(differences(stored, told.lines, told.gone, told.open), QStringList());
}

qint64 bytesBelow(const QString& folder) {
  qint64 sum = 0;
  for (QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
    sum += (QFileInfo(it.next()).size() + 4095) / 4096 * 4096;
  return sum;
}

/** Who is not root may mount in a name space of his own, as the user that he is; processes begun here live in it. */
void enterOwnMounts() {
  const QByteArray user = QByteArray::number(geteuid()), group = QByteArray::number(getegid());
  if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return;
  for (const auto& [name, text] : {std::pair<const char*, QByteArray>{"setgroups", "deny"},
                                   {"uid_map", user + ' ' + user + " 1"},
                                   {"gid_map", group + ' ' + group + " 1"}})
    if (QFile file(u"/proc/self/"_s + name); file.open(QIODevice::WriteOnly)) file.write(text);
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
  Child child({"post", root, "7", QString::number(postings)});
  EXPECT_TRUE(child.finish(120000)) << "the program is alive at the end";
  const Told told = Told::of(child.lines());
  expectTold(told, {3026});
  EXPECT_GT(told.lines.size(), 5);
  ASSERT_TRUE(disk.resize(SmallDisk::roomy));
  expectWhole(root, told);
  std::printf("full disk: %d lines posted, then %d statements refused\n", int(told.lines.size()),
              int(told.failures.size()));

  Child after({"post", root, "8", "20"});
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
  OpenPc here(root);
  Builder(here).make(1, 2, 3);
  const BuildingRows before = buildingRows(here.session);
  int block = 2;
  for (const int kilobytes : {0, 16, 100, 300, 600}) {
    ASSERT_TRUE(disk.resize(bytesBelow(root) + (kilobytes << 10)));
    buildInVain(here, block++, 20, 50);
    EXPECT_EQ(buildingRows(here.session), before) << kilobytes << " kB free";
    EXPECT_EQ(Builder(here).list(), (QMap<int, int>{{1, 6}})) << kilobytes << " kB free";
    ASSERT_TRUE(disk.resize(SmallDisk::roomy));
    EXPECT_EQ(faultsOf(root), QStringList());
  }
  Builder(here).make(block, 20, 50);
  EXPECT_EQ(Builder(here).list(), (QMap<int, int>{{1, 6}, {block, 1000}}));
  std::printf("full disk: %d buildings of 1,000 households refused, nothing left of any\n", block - 2);
}

TEST(Disk, AFileThatMayNotGrowIsTold) {
  const QTemporaryDir folder;
  Pc here(folder.path());
  here.makeBooks();
  const qint64 limit = QFileInfo(here.pc.paths.native(here.session.DbPath + "2026Foundation.mdb")).size();
  here.close();
  Child child({"post-limited", QString::number(limit), folder.path(), "9", QString::number(postings)});
  EXPECT_TRUE(child.finish(120000));
  const Told told = Told::of(child.lines());
  expectTold(told, {3043});
  EXPECT_GT(told.lines.size(), 5);
  expectWhole(folder.path(), told);
}

TEST(Disk, AFolderThatTurnsReadOnlyIsToldAndTheWorkGoesOnWhenItIsBack) {
  const QTemporaryDir folder;
  Pc here(folder.path());
  here.makeBooks();
  here.close();
  if (geteuid() == 0) {
    const auto give = [](const QString& to) { return ::chown(to.toLocal8Bit().constData(), anyone, anyone); };
    ASSERT_EQ(give(folder.path()), 0);
    for (QDirIterator it(folder.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
         it.hasNext();)
      ASSERT_EQ(give(it.next()), 0);
  }
  const QByteArray path = here.pc.paths.native("C:\\RWGas\\Dbs").toLocal8Bit();
  Child child({"post-as-anyone", folder.path(), "10", "0"});
  ASSERT_TRUE(child.waitFor(word::line, 30000));
  ASSERT_EQ(::chmod(path.constData(), 0555), 0);
  EXPECT_TRUE(child.waitFor(word::told, 30000));
  ASSERT_EQ(::chmod(path.constData(), 0755), 0);
  EXPECT_TRUE(child.waitForAnother(word::line, 30000));
  child.kill();
  const Told told = Told::of(child.lines());
  expectTold(told, {3027, 3043, 3051});
  expectWhole(folder.path(), told);
}

}  // namespace
}  // namespace storm
