// A PC that loses its power while it packs the books or puts them back: the books are always there, whole.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include "backup/data_folder_alone.h"
#include "backup/make_backup.h"
#include "store/folder_swap.h"
#include "tests/storm/child.h"
#include "tests/storm/pcs.h"
#include "tests/storm/poster.h"

namespace storm {
namespace {

using namespace Qt::StringLiterals;
using Contents = QMap<QString, QByteArray>;

/** The books below a folder, file by file; not the marks of who is in. */
Contents contentsOf(const QString& folder) {
  Contents all;
  for (QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); it.hasNext();) {
    QFile file(it.next());
    const QString name = QDir(folder).relativeFilePath(file.fileName());
    if (!name.endsWith(u".ldb"_s) && file.open(QIODevice::ReadOnly)) all[name] = file.readAll();
  }
  return all;
}

struct BackupKill : testing::Test {
  QTemporaryDir folder;
  QRandomGenerator random{20260316};
  Pc here{folder.path()};
  const QString data = here.pc.paths.native(u"C:\\RWGas\\Dbs"_s), above = QFileInfo(data).path();
  const QString shelf = above + u"/BackUp"_s;

  void SetUp() override {
    here.makeBooks();
    postLines(here, 5, 60);
    here.close();
  }
  void kill(const QString& work, int latest) {
    Child child({u"--pc"_s, work, folder.path()});
    ASSERT_TRUE(child.waitFor(QLatin1String(word::ready), 30000));
    QThread::usleep(random.bounded(latest * 1000));
    child.kill();
    EXPECT_EQ(Told::of(child.lines()).failureTexts.join(u'\n').toStdString(), "");
  }
  QStringList archives() const { return QDir(shelf).entryList({u"해온판매-*.zip"_s}, QDir::Files); }
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
    kill(u"pack"_s, 400);
    EXPECT_EQ(contentsOf(data), books) << "round " << round;
    EXPECT_LE(archives().size(), 3) << "two are kept, and a third may just have come";
    for (const QString& name : archives()) {
      EXPECT_NO_THROW(backup::verify(shelf + u'/' + name, {})) << name.toStdString();
      ++whole;
    }
    caught += QFileInfo::exists(shelf + u"/.packing"_s);
  }
  EXPECT_GT(caught, 0);
  EXPECT_GT(whole, 0);
  pack(u"after.zip"_s);
  EXPECT_FALSE(QFileInfo::exists(shelf + u"/.packing"_s)) << "what a killed run left goes with the next";
  std::printf("backups: killed %d times, %d of them while packing; %d archives looked at, all whole\n",
              rounds, caught, whole);
}

TEST_F(BackupKill, PuttingBackLeavesTheOldBooksOrTheNewOnesAndLosesNeither) {
  const int rounds = measure(12, 400);
  pack(u"one.zip"_s);
  const Contents one = contentsOf(data);
  here.open();
  here.session.dbBasic.Execute(u"Update Client Set Memo = 'two'"_s);
  here.close();
  pack(u"two.zip"_s);
  const Contents two = contentsOf(data);
  ASSERT_NE(one, two);
  int caught = 0, swapped = 0;
  for (int round = 0; round < rounds && !HasFailure(); ++round) {
    kill(u"put-back"_s, 400);
    caught += QFileInfo::exists(data + u"-준비중"_s);
    finishSwap(here.pc.paths, here.session.DbPath);
    const Contents books = contentsOf(data);
    EXPECT_TRUE(books == one || books == two) << "round " << round;
    for (const QString& kept : QDir(above).entryList({u"Dbs-이전-*"_s}, QDir::Dirs)) {
      const Contents old = contentsOf(above + u'/' + kept);
      EXPECT_TRUE(old == one || old == two) << kept.toStdString();
      QDir(above + u'/' + kept).removeRecursively();
      ++swapped;
    }
    // Beside the place there is rubbish that is marked so, or books.
    if (QFileInfo::exists(data + u"-준비중"_s) && !QFileInfo::exists(data + u"-준비중/.unfinished"_s)) {
      const Contents other = contentsOf(data + u"-준비중"_s);
      EXPECT_TRUE(other == one || other == two) << "round " << round;
    }
  }
  EXPECT_EQ(faultsOf(folder.path()).join(u'\n').toStdString(), "");
  EXPECT_GT(caught, 0);
  EXPECT_GT(swapped, 0);
  std::printf(
      "restores: killed %d times, %d of them while unpacking; %d times the books had changed places\n",
      rounds, caught, swapped);
}

}  // namespace
}  // namespace storm
