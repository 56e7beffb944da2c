// Old books brought in through the window, and by the program on the command line.
#include "moving/FrmMoveIn.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>

#include "tests/answers.h"
#include "tests/moving/jet_writer.h"
#include "tests/support.h"
#include "tests/ui/grab.h"

namespace {

using namespace tests;

struct MoveInForm : testing::Test, TestPc {
  QTemporaryDir old;
  void SetUp() override {
    pc.clock.set(QDateTime(QDate(2026, 3, 16), QTime(9, 0)));
    session.AppTitle = "해온판매";
    session.DbPath = installedDataFolder();
    ASSERT_TRUE(pc.paths.makeFolder("C:\\RWGas"));
    JetWriter(3).write(old.path() + "/BASIC.MDB",
                       {{"Client", {{"Code", JetType::Long}, {"Name"}, {"별명"}}, {{1, "김가네", "x"}}}});
  }
  QString name() { return rowsOf(openData(session, "Basic.mdb"), "Select Name From Client"); }
};

TEST_F(MoveInForm, AFolderIsBroughtInAndTheReportShown) {
  moving::FrmMoveIn form(session, {});
  tests::show(form);
  prompts.expect("이전 자료가 있는 폴더를 고르십시오.");
  key(Qt::Key_Return);
  form.findChild<QLineEdit*>("txtFolder")->setText(folder.path());
  prompts.expect(
      "\n이 폴더에는 이전 형식의 Basic.mdb 가 없습니다.\n\n가져오지 않았습니다. 두 폴더 모두 그대로 "
      "있습니다.");
  key(Qt::Key_Return);
  EXPECT_FALSE(form.moved());
  tests::show(form);  // off-screen it does not come back to the front by itself after the bar
  form.findChild<QPushButton*>("btnBegin")->setFocus();
  form.findChild<QLineEdit*>("txtFolder")->setText(old.path());
  prompts.expect("이전 자료를 가져왔습니다.");
  key(Qt::Key_Return);
  EXPECT_TRUE(prompts.seen.last().startsWith(
      "이전 자료 가져오기|이전 자료를 가져왔습니다.\n보고서: C:\\RWGas\\가져오기-20260316-09"));
  EXPECT_TRUE(form.moved());
  EXPECT_EQ(name(), "김가네");
  EXPECT_TRUE(form.findChild<QPlainTextEdit*>("txtReport")->toPlainText().contains("별명 (값 1개)"));
  EXPECT_FALSE(form.findChild<QPushButton*>("btnBegin")->isEnabled());
  tests::grab(form, "FrmMoveIn");
}

TEST_F(MoveInForm, WorkThatIsThereIsPutAsideOnlyAfterAYes) {
  ASSERT_TRUE(prepareDataFolder(session));
  openData(session, "Basic.mdb").Execute("Insert Into Client(Name) Values('지금 손님')");
  moving::FrmMoveIn form(session, old.path());
  tests::show(form);
  prompts.expect(
      "C:\\RWGas\\Dbs\\ 에는 이미 입력한 자료가 있습니다.\n가져온 자료로 바꾸고, "
      "지금의 자료는 옆에 날짜를 붙인 폴더로 보관합니다. 계속하시겠습니까?",
      false);
  form.findChild<QPushButton*>("btnBegin")->click();
  EXPECT_EQ(name(), "지금 손님");
  prompts.expect("이미 입력한 자료가 있습니다.");
  prompts.expect("이전 자료를 가져왔습니다.");
  form.findChild<QPushButton*>("btnBegin")->click();
  EXPECT_EQ(name(), "김가네");
  QTemporaryDir ledger;  // goes to another folder: nothing to ask about
  JetWriter(3).write(ledger.path() + "/dbCharge.mdb", {{"Charge", {{"Code"}}, {{"1"}}}});
  moving::FrmMoveIn other(session, ledger.path());
  tests::show(other);
  prompts.expect("이전 자료를 가져왔습니다.");
  other.findChild<QPushButton*>("btnBegin")->click();
  EXPECT_EQ(name(), "김가네");
}

TEST_F(MoveInForm, TheProgramOnTheCommandLineReportsAndFailsSoftly) {
  QProcess importer;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("HAEON_PC", folder.path());
  importer.setProcessEnvironment(environment);
  const QString program = QApplication::applicationDirPath() + "/../haeon-import";
  importer.start(program, {folder.path()});
  ASSERT_TRUE(importer.waitForFinished(60000)) << program.toStdString();
  EXPECT_EQ(importer.exitCode(), 1);
  EXPECT_EQ(QString::fromUtf8(importer.readAllStandardError()),
            folder.path() +
                "\n이 폴더에는 이전 형식의 Basic.mdb 가 없습니다.\n가져오지 않았습니다. 두 폴더 모두 "
                "그대로 있습니다.\n");
  importer.start(program, {old.path(), old.path()});
  ASSERT_TRUE(importer.waitForFinished(60000));
  EXPECT_EQ(importer.exitCode(), 2);
  EXPECT_EQ(importer.readAllStandardError(), "usage: haeon-import [--window] [FOLDER]\n");
  importer.start(program, {old.path()});
  ASSERT_TRUE(importer.waitForFinished(60000));
  const QString steps = QString::fromUtf8(importer.readAllStandardError());
  EXPECT_EQ(importer.exitCode(), 0) << steps.toStdString();
  EXPECT_TRUE(steps.startsWith("읽는 중: BASIC.MDB (0%)\n자료 검사: ")) << steps.toStdString();
  EXPECT_TRUE(QString::fromUtf8(importer.readAllStandardOutput()).contains("Client  1줄"));
  EXPECT_EQ(name(), "김가네");
}

}  // namespace
