// A backup and its way back by keys on the real window: the program ends, the data compressor does its work beside it.
#include <QDir>

#include "backup/archive.h"
#include "samples/entrance.h"
#include "tests/day/sample_folder.h"

namespace {

struct BackupDay : testing::Test, tests::SampleFolder {
  const QString data = "C:\\RWGas\\Dbs";

  QString native(const QString& written) const { return pc::Paths(root.path()).native(written); }
  QStringList archives() const {
    return QDir(native("C:\\RWGas\\BackUp")).entryList({"해온판매-*.zip"}, QDir::Files);
  }
};

/** From the menu to the companion, which asks when the program has ended. */
void toCompanion(samples::Stage& stage, const QString& entry, const QString& question) {
  stage.startProgram();
  samples::signIn(stage);
  stage.keys({"alt+b", entry});
  stage.awaitWindow(question);
  stage.keys({"Return"});
  EXPECT_EQ(stage.awaitEnd(), 0);
  stage.goOnWithCompanion();
  stage.awaitWindow("데이터 압축");
}

TEST_F(BackupDay, TheBooksGoToAnArchiveAndComeBackByKeys) {
  {
    samples::Stage stage(options());
    toCompanion(stage, "b", "데이터 백업(하드)");
    stage.keys({"space"});
    stage.awaitWindow("데이터 백업");
    ASSERT_EQ(archives().size(), 1);
    EXPECT_NO_THROW(backup::verify(native("C:\\RWGas\\BackUp") + u'/' + archives().first(), {}));
    stage.keys({"Return"});
    stage.awaitWindow("데이터 압축");  // the screen goes with the stage, and the companion with the screen
  }
  samples::Stage stage(options());
  const QString sums = "Select Count(*), Sum(GasInit) From Client";
  const QString before = stage.query("Basic.mdb", sums).join(u' ');
  stage.query("Basic.mdb", "Update Client Set GasInit = 0");
  toCompanion(stage, "d", "데이터 내려받기");
  stage.keys({"Return"});  // the cursor is on the newest
  stage.awaitWindow("데이터 내려받기");
  EXPECT_NE(stage.query("Basic.mdb", sums).join(u' '), before);
  stage.keys({"Left", "Return"});  // it stands on no
  stage.awaitFile(native(data) + "/Basic.mdb");
  stage.awaitRow("Basic.mdb", sums, before);
  stage.await("the books that were there, under a dated name", [&] {  // named after the change of places
    return QDir(native("C:\\RWGas")).entryList({"Dbs-이전-*"}, QDir::Dirs).size() == 1;
  });
}

}  // namespace
