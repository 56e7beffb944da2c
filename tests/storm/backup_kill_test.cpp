// A PC that loses its power while it packs the books or puts them back: the books are always there, whole.
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include "backup/data_folder_alone.h"
#include "backup/make_backup.h"
#include "store/folder_swap.h"
#include "tests/files.h"
#include "tests/storm/child.h"
#include "tests/storm/pcs.h"
#include "tests/storm/poster.h"

namespace storm {
namespace {
using Contents = QMap<QString, QByteArray>;

/** The books below a folder, file by file; not the marks of who is in. */
Contents contentsOf(const QString& folder) {
  Contents all = tests::contentsOf(folder);
  all.removeIf([](const auto& file) { return file.key().endsWith(".ldb"); });
  return all;
}

struct BackupKill : testing::Test {
  QTemporaryDir folder;
  QRandomGenerator random{20260316};
  Pc here{folder.path()};
  const QString data = here.pc.paths.native("C:\\RWGas\\Dbs"), above = QFileInfo(data).path();
  const QString shelf = above + "/BackUp";

  void SetUp() override {
    here.makeBooks();
    postLines(here, 5, 60);
    here.close();
  }
  void kill(const QString& work, int latest) {
    Child child({work, folder.path()});
    ASSERT_TRUE(child.waitFor(word::ready, 30000));
    QThread::usleep(random.bounded(latest * 1000));
    child.kill();
    EXPECT_EQ(Told::of(child.lines()).failureTexts, QStringList());
  }
  QStringList archives() const { return QDir(shelf).entryList({"해온판매-*.zip"}, QDir::Files); }
  QString pack(const QString& as) {
    auto held = std::make_unique<backup::DataFolderAlone>(here.pc.paths, here.session.DbPath);
    EXPECT_TRUE(held->take().isEmpty());
    const auto done = backup::makeBackup(here.pc, here.session.DbPath, backup::readSettings(here.pc),
                                         backup::Series::Books, std::move(held), {});
    EXPECT_TRUE(QFile::rename(here.pc.paths.native(done.archive), shelf + u'/' + as));
    return shelf + u'/' + as;
  }
};

TEST_F(BackupKill, PackingLeavesTheBooksAloneAndEveryArchiveThatHasItsNameIsWhole) {
  const int rounds = measure(12, 400);
  const Contents books = contentsOf(data);
  int whole = 0, caught = 0;
  for (int round = 0; round < rounds && !HasFailure(); ++round) {
    kill("pack", 400);
    EXPECT_EQ(contentsOf(data), books) << "round " << round;
    EXPECT_LE(archives().size(), 3) << "two are kept, and a third may just have come";
    for (const QString& name : archives()) {
      EXPECT_NO_THROW(backup::verify(shelf + u'/' + name, {})) << name.toStdString();
      ++whole;
    }
    caught += QFileInfo::exists(shelf + "/.packing");
  }
  EXPECT_GT(caught, 0);
  EXPECT_GT(whole, 0);
  pack("after.zip");
  EXPECT_FALSE(QFileInfo::exists(shelf + "/.packing")) << "what a killed run left goes with the next";
  std::printf("backups: killed %d times, %d of them while packing; %d archives looked at, all whole\n",
              rounds, caught, whole);
}

TEST_F(BackupKill, PuttingBackLeavesTheOldBooksOrTheNewOnesAndLosesNeither) {
  const int rounds = measure(12, 400);
  pack("one.zip");
  const Contents one = contentsOf(data);
  here.open();
  here.session.dbBasic.Execute("Update Client Set Memo = 'two'");
  here.close();
  pack("two.zip");
  const Contents two = contentsOf(data);
  ASSERT_NE(one, two);
  int caught = 0, swapped = 0;
  for (int round = 0; round < rounds && !HasFailure(); ++round) {
    kill("put-back", 400);
    caught += QFileInfo::exists(data + "-준비중");
    finishSwap(here.pc.paths, here.session.DbPath);
    const Contents books = contentsOf(data);
    EXPECT_TRUE(books == one || books == two) << "round " << round;
    for (const QString& kept : QDir(above).entryList({"Dbs-이전-*"}, QDir::Dirs)) {
      const Contents old = contentsOf(above + u'/' + kept);
      EXPECT_TRUE(old == one || old == two) << kept.toStdString();
      QDir(above + u'/' + kept).removeRecursively();
      ++swapped;
    }
    // Beside the place there is rubbish that is marked so, or books.
    if (QFileInfo::exists(data + "-준비중") && !QFileInfo::exists(data + "-준비중/.unfinished")) {
      const Contents other = contentsOf(data + "-준비중");
      EXPECT_TRUE(other == one || other == two) << "round " << round;
    }
  }
  EXPECT_EQ(faultsOf(folder.path()), QStringList());
  EXPECT_GT(caught, 0);
  EXPECT_GT(swapped, 0);
  std::printf(
      "restores: killed %d times, %d of them while unpacking; %d times the books had changed places\n",
      rounds, caught, swapped);
}

}  // namespace
}  // namespace storm
