// Old books brought in through the window, and by the program on the command line.
#include "moving/FrmMoveIn.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>

#include "tests/moving/jet_writer.h"
#include "tests/support.h"
#include "tests/ui/grab.h"

namespace {

using namespace tests;

struct MoveInForm : testing::Test, TestPc {
  QTemporaryDir old;
  void SetUp() override {
    pc.clock.set(QDateTime(QDate(2026, 3, 16), QTime(9, 0)));
    session.AppTitle = u"해온판매"_s;
    session.DbPath = installedDataFolder();
    ASSERT_TRUE(pc.paths.makeFolder(u"C:\\RWGas"_s));
    JetWriter(3).write(
        old.path() + u"/BASIC.MDB"_s,
        {{u"Client"_s, {{u"Code"_s, JetType::Long}, {u"Name"_s}, {u"별명"_s}}, {{1, u"김가네"_s, u"x"_s}}}});
  }
  QString name() {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    return workspace.OpenDatabase(session.DbPath + u"Basic.mdb"_s)
        .OpenRecordset(u"Select Name From Client"_s)[0]
        .toText();
  }
};

TEST_F(MoveInForm, AFolderIsBroughtInAndTheReportShown) {
  moving::FrmMoveIn form(session, {});
  tests::show(form);
  prompts.expect(u"이전 자료가 있는 폴더를 고르십시오."_s);
  key(Qt::Key_Return);
  form.findChild<QLineEdit*>(u"txtFolder"_s)->setText(folder.path());
  prompts.expect(u"이전 형식의 Basic.mdb 가 없습니다."_s);
  key(Qt::Key_Return);
  EXPECT_FALSE(form.moved());
  tests::show(form);  // off-screen it does not come back to the front by itself after the bar
  form.findChild<QPushButton*>(u"btnBegin"_s)->setFocus();
  form.findChild<QLineEdit*>(u"txtFolder"_s)->setText(old.path());
  prompts.expect(u"이전 자료를 가져왔습니다."_s);
  key(Qt::Key_Return);
  EXPECT_TRUE(form.moved());
  EXPECT_EQ(name(), "김가네");
  EXPECT_TRUE(form.findChild<QPlainTextEdit*>(u"txtReport"_s)->toPlainText().contains(u"별명 (값 1개)"_s));
  EXPECT_FALSE(form.findChild<QPushButton*>(u"btnBegin"_s)->isEnabled());
  tests::grab(form, "FrmMoveIn");
}

TEST_F(MoveInForm, WorkThatIsThereIsPutAsideOnlyAfterAYes) {
  ASSERT_TRUE(prepareDataFolder(session));
  {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    workspace.OpenDatabase(session.DbPath + u"Basic.mdb"_s)
        .Execute(u"Insert Into Client(Name) Values('지금 손님')"_s);
  }
  moving::FrmMoveIn form(session, old.path());
  tests::show(form);
  prompts.expect(u"이미 입력한 자료가 있습니다."_s, false);
  form.findChild<QPushButton*>(u"btnBegin"_s)->click();
  EXPECT_EQ(name(), "지금 손님");
  prompts.expect(u"이미 입력한 자료가 있습니다."_s);
  prompts.expect(u"이전 자료를 가져왔습니다."_s);
  form.findChild<QPushButton*>(u"btnBegin"_s)->click();
  EXPECT_EQ(name(), "김가네");
}

TEST_F(MoveInForm, TheProgramOnTheCommandLineReportsAndFailsSoftly) {
  QProcess importer;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"HAEON_PC"_s, folder.path());
  importer.setProcessEnvironment(environment);
  const QString program = QApplication::applicationDirPath() + u"/../haeon-import"_s;
  importer.start(program, {folder.path()});
  ASSERT_TRUE(importer.waitForFinished(60000)) << program.toStdString();
  EXPECT_EQ(importer.exitCode(), 1);
  EXPECT_TRUE(QString::fromUtf8(importer.readAllStandardError()).contains(u"그대로 있습니다."_s));
  importer.start(program, {old.path()});
  ASSERT_TRUE(importer.waitForFinished(60000));
  EXPECT_EQ(importer.exitCode(), 0) << importer.readAllStandardError().toStdString();
  EXPECT_TRUE(QString::fromUtf8(importer.readAllStandardOutput()).contains(u"Client  1줄"_s));
  EXPECT_EQ(name(), "김가네");
}

}  // namespace
