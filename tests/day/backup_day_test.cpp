// A backup and its way back by keys on the real window: the program ends, the data compressor does its work beside it.
#include <gtest/gtest.h>

#include <QDir>

#include "backup/archive.h"
#include "samples/entrance.h"
#include "tests/day/sample_folder.h"

namespace {

using namespace Qt::StringLiterals;

struct BackupDay : testing::Test, tests::SampleFolder {
  const QString data = u"C:\\RWGas\\Dbs"_s;

  QString native(const QString& written) const { return pc::Paths(root.path()).native(written); }
  QStringList archives() const {
    return QDir(native(u"C:\\RWGas\\BackUp"_s)).entryList({u"해온판매-*.zip"_s}, QDir::Files);
  }
};

/** From the menu to the companion, which asks when the program has ended. */
void toCompanion(samples::Stage& stage, const QString& entry, const QString& question) {
  stage.startProgram();
  samples::signIn(stage);
  stage.keys({u"alt+b"_s, entry});
  stage.awaitWindow(question);
  stage.keys({u"Return"_s});
  EXPECT_EQ(stage.awaitEnd(), 0);
  stage.goOnWithCompanion();
  stage.awaitWindow(u"데이터 압축"_s);
}

TEST_F(BackupDay, TheBooksGoToAnArchiveAndComeBackByKeys) {
  {
    samples::Stage stage(options());
    toCompanion(stage, u"b"_s, u"데이터 백업(하드)"_s);
    stage.keys({u"space"_s});
    stage.awaitWindow(u"데이터 백업"_s);
    ASSERT_EQ(archives().size(), 1);
    EXPECT_NO_THROW(backup::verify(native(u"C:\\RWGas\\BackUp"_s) + u'/' + archives().first(), {}));
    stage.keys({u"Return"_s});
    stage.awaitWindow(u"데이터 압축"_s);  // the screen goes with the stage, and the companion with the screen
  }
  samples::Stage stage(options());
  const QString sums = u"Select Count(*), Sum(GasInit) From Client"_s;
  const QString before = stage.query(u"Basic.mdb"_s, sums).join(u' ');
  stage.query(u"Basic.mdb"_s, u"Update Client Set GasInit = 0"_s);
  toCompanion(stage, u"d"_s, u"데이터 내려받기"_s);
  stage.keys({u"Return"_s});  // the cursor is on the newest
  stage.awaitWindow(u"데이터 내려받기"_s);
  EXPECT_NE(stage.query(u"Basic.mdb"_s, sums).join(u' '), before);
  stage.keys({u"Left"_s, u"Return"_s});  // it stands on no
  stage.awaitFile(native(data) + u"/Basic.mdb"_s);
  stage.awaitRow(u"Basic.mdb"_s, sums, before);
  stage.await(u"the books that were there, under a dated name"_s, [&] {  // named after the change of places
    return QDir(native(u"C:\\RWGas"_s)).entryList({u"Dbs-이전-*"_s}, QDir::Dirs).size() == 1;
  });
}

}  // namespace
