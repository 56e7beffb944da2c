// The data compressor's windows, and the compressor itself as a process.
#include "backup/FrmArchive.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

#include "backup/FrmArchiveSettings.h"
#include "store/data_access.h"
#include "tests/answers.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "ui/grid/spread.h"

namespace {

using namespace tests;

struct ArchiveForm : testing::Test, TestPc {
  void SetUp() override {
    pc.clock.set(QDateTime(QDate(2026, 3, 16), QTime(9, 0)));
    session.DbPath = installedDataFolder();
    ASSERT_TRUE(prepareDataFolder(session));
    rename("김가네");
  }
  void rename(const QString& name) {
    const jet::Database basic = openData(session, "Basic.mdb");
    basic.Execute("Delete * From Client");
    basic.Execute("Insert Into Client(Code, Name) Values(1, '" + plainText(name) + "')");
  }
  QString name() const { return rowsOf(openData(session, "Basic.mdb"), "Select Name From Client"); }
  QStringList shelf() const {
    return QDir(pc.paths.native("C:\\RWGas\\BackUp")).entryList({"*.zip"}, QDir::Files, QDir::Name);
  }
};

TEST_F(ArchiveForm, ABackupIsMadeListedAndPutBackByKeys) {
  backup::FrmArchive form(pc, prompts);
  tests::show(form);
  EXPECT_FALSE(part<QPushButton>(form, "btnRestore")->isEnabled());
  EXPECT_FALSE(part<QPushButton>(form, "btnServer")->isEnabled()) << "no server is set";
  EXPECT_EQ(part<QLabel>(form, "pnlData")->text(), "C:\\RWGas\\Dbs\\");
  prompts.expect("백업을 마쳤습니다.");
  key(Qt::Key_Space);  // the focus is on the first button
  ASSERT_EQ(shelf().size(), 1);
  auto* grid = part<Spread>(form, "SpArchive");
  EXPECT_TRUE(grid->model().text(1, 1).startsWith("2026-03-16 09:"));
  EXPECT_EQ(grid->model().text(1, 3), "이 PC");
  tests::grab(form, "FrmArchive");
  rename("박가네");
  // Off-screen a window does not come back to the front by itself after the bar.
  const auto comeBack = [&] {
    tests::show(form);
    form.beginWithRestore();
  };
  comeBack();
  prompts.expect("되돌리시겠습니까?", false);
  key(Qt::Key_Return);
  EXPECT_EQ(name(), "박가네");
  comeBack();
  prompts.expect("되돌리시겠습니까?");
  prompts.expect("자료를 되돌렸습니다.");
  key(Qt::Key_Return);
  EXPECT_EQ(name(), "김가네");
  EXPECT_TRUE(form.restored());
  EXPECT_TRUE(prompts.seen.last().contains("C:\\RWGas\\Dbs-이전-20260316-09"));
}

TEST_F(ArchiveForm, WhoHasTheFilesOpenIsAwaitedWithAWayOut) {
  auto workspace = std::make_unique<jet::Workspace>(openWorkspace(session, session.DbPath));
  auto open = std::make_unique<jet::Database>(workspace->OpenDatabase(session.DbPath + "Basic.mdb"));
  backup::Compressor compressor(pc, prompts);
  QString told;
  QTimer look;
  look.setInterval(10);
  bool leaves = false;
  QObject::connect(&look, &QTimer::timeout, [&] {
    QWidget* const box = QApplication::activeModalWidget();
    if (!box || !box->findChild<QLabel*>("LblNote")) return;
    const QString note = box->findChild<QLabel*>("LblNote")->text();
    if (!note.contains("Basic.mdb")) return;
    told = note;
    tests::grab(*box, "FrmProgress-waiting");
    if (leaves) {
      open.reset();
      workspace.reset();
    } else {
      box->findChild<QPushButton*>("BtnStop")->click();
    }
  });
  look.start();
  prompts.expect("작업을 중지했습니다.");
  EXPECT_FALSE(compressor.backUp(backup::Series::Books, false, false));
  EXPECT_TRUE(told.contains("끝나기를 기다리고 있습니다.")) << told.toStdString();
  leaves = true;
  EXPECT_TRUE(compressor.backUp(backup::Series::Books, false, true))
      << "once the other has left it goes on by itself";
  EXPECT_EQ(shelf().size(), 1);
}

TEST_F(ArchiveForm, AWrongArchiveAndAServerThatIsNotThereAreTold) {
  backup::Compressor compressor(pc, prompts);
  writeFile(pc.paths.native("C:\\RWGas\\wrong.zip"), "PK");
  prompts.expect("올바른 백업 파일이 아닙니다.");
  EXPECT_FALSE(compressor.restore("C:\\RWGas\\wrong.zip"));
  prompts.expect("서버 폴더나 서버 명령이 설정되어 있지 않습니다.");
  EXPECT_FALSE(compressor.backUp(backup::Series::Books, true, false));
  pc.settings.SaveSetting("Backup", "설정", "서버명령", "false %1");
  prompts.expect("서버 명령이 끝나지 않았거나 실패했습니다.");
  prompts.expect("서버로 보내지 못했습니다. 이 PC의 백업은 만들어졌습니다.");
  EXPECT_FALSE(compressor.backUp(backup::Series::Books, true, false));
  EXPECT_EQ(shelf().size(), 1);
  EXPECT_EQ(name(), "김가네");
}

TEST_F(ArchiveForm, SettingsAreCheckedBeforeTheyAreSaved) {
  backup::FrmArchiveSettings form(pc, prompts);
  tests::show(form);
  tests::grab(form, "FrmArchiveSettings");
  auto* save = part<QPushButton>(form, "btnSave");
  part<QLineEdit>(form, "txtFolder")->clear();
  prompts.expect("백업 폴더를 입력하십시오.");
  save->click();
  part<QLineEdit>(form, "txtFolder")->setText("D:\\보관");
  part<QLineEdit>(form, "txtCommand")->setText("scp a b");
  prompts.expect("%1 이 있어야 합니다.");
  save->click();
  part<QLineEdit>(form, "txtCommand")->clear();
  part<QSpinBox>(form, "numKeep")->setValue(4);
  part<QCheckBox>(form, "chkRemind")->setChecked(false);
  save->click();
  EXPECT_EQ(backup::readSettings(pc), (backup::Settings{"D:\\보관\\", 4, {}, {}, false}));
  EXPECT_EQ(form.result(), QDialog::Accepted);
}

TEST_F(ArchiveForm, TheProgramItselfBacksUpWithoutAWord) {
  QProcess compressor;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("HAEON_PC", folder.path());
  environment.insert("QT_QPA_PLATFORM", "offscreen");
  environment.insert("HAEON_CLOCK", "2026-03-16 12:30:00");
  compressor.setProcessEnvironment(environment);
  const QString program = QApplication::applicationDirPath() + "/../데이터압축.EXE";
  compressor.start(program, {"HDDAUTO"});
  ASSERT_TRUE(compressor.waitForFinished(60000)) << program.toStdString();
  EXPECT_EQ(compressor.exitCode(), 0) << compressor.readAllStandardError().toStdString();
  ASSERT_EQ(shelf().size(), 1);
  EXPECT_TRUE(shelf().first().startsWith("해온판매-20260316-123"));
  compressor.start(program, {"NONSENSE"});
  ASSERT_TRUE(compressor.waitForFinished(60000));
  EXPECT_EQ(compressor.exitCode(), 2);
}

}  // namespace
