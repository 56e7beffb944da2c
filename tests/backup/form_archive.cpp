// The data compressor's windows, and the compressor itself as a process.
#include "backup/FrmArchive.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

#include "backup/FrmArchiveSettings.h"
#include "store/data_access.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "ui/grid/spread.h"

namespace {

using namespace tests;
using namespace Qt::StringLiterals;

struct ArchiveForm : testing::Test, TestPc {
  void SetUp() override {
    pc.clock.set(QDateTime(QDate(2026, 3, 16), QTime(9, 0)));
    session.DbPath = installedDataFolder();
    ASSERT_TRUE(prepareDataFolder(session));
    rename(u"김가네"_s);
  }
  void rename(const QString& name) {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    const jet::Database basic = workspace.OpenDatabase(session.DbPath + u"Basic.mdb"_s);
    basic.Execute(u"Delete * From Client"_s);
    basic.Execute(u"Insert Into Client(Code, Name) Values(1, '"_s + plainText(name) + u"')"_s);
  }
  QString name() const {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    return workspace.OpenDatabase(session.DbPath + u"Basic.mdb"_s)
        .OpenRecordset(u"Select Name From Client"_s)[0]
        .toText();
  }
  QStringList shelf() const {
    return QDir(pc.paths.native(u"C:\\RWGas\\BackUp"_s)).entryList({u"*.zip"_s}, QDir::Files, QDir::Name);
  }
  template <class Part>
  static Part* part(const QWidget& of, const char* name) {
    auto* found = of.findChild<Part*>(QString::fromLatin1(name));
    EXPECT_TRUE(found) << name;
    return found;
  }
};

TEST_F(ArchiveForm, ABackupIsMadeListedAndPutBackByKeys) {
  backup::FrmArchive form(pc, prompts);
  tests::show(form);
  EXPECT_FALSE(part<QPushButton>(form, "btnRestore")->isEnabled());
  EXPECT_FALSE(part<QPushButton>(form, "btnServer")->isEnabled()) << "no server is set";
  EXPECT_EQ(part<QLabel>(form, "pnlData")->text(), "C:\\RWGas\\Dbs\\");
  prompts.expect(u"백업을 마쳤습니다."_s);
  key(Qt::Key_Space);  // the focus is on the first button
  ASSERT_EQ(shelf().size(), 1);
  auto* grid = part<Spread>(form, "SpArchive");
  EXPECT_TRUE(grid->model().text(1, 1).startsWith(u"2026-03-16 09:"_s));
  EXPECT_EQ(grid->model().text(1, 3), "이 PC");
  tests::grab(form, "FrmArchive");
  rename(u"박가네"_s);
  // Off-screen a window does not come back to the front by itself after the bar.
  const auto comeBack = [&] {
    tests::show(form);
    form.beginWithRestore();
  };
  comeBack();
  prompts.expect(u"되돌리시겠습니까?"_s, false);
  key(Qt::Key_Return);
  EXPECT_EQ(name(), "박가네");
  comeBack();
  prompts.expect(u"되돌리시겠습니까?"_s);
  prompts.expect(u"자료를 되돌렸습니다."_s);
  key(Qt::Key_Return);
  EXPECT_EQ(name(), "김가네");
  EXPECT_TRUE(form.restored());
  EXPECT_TRUE(prompts.seen.last().contains(u"C:\\RWGas\\Dbs-이전-20260316-09"_s));
}

TEST_F(ArchiveForm, WhoHasTheFilesOpenIsAwaitedWithAWayOut) {
  auto workspace = std::make_unique<jet::Workspace>(openWorkspace(session, session.DbPath));
  auto open = std::make_unique<jet::Database>(workspace->OpenDatabase(session.DbPath + u"Basic.mdb"_s));
  backup::Compressor compressor(pc, prompts);
  QString told;
  QTimer look;
  look.setInterval(10);
  bool leaves = false;
  QObject::connect(&look, &QTimer::timeout, [&] {
    QWidget* const box = QApplication::activeModalWidget();
    if (!box || !box->findChild<QLabel*>(u"LblNote"_s)) return;
    const QString note = box->findChild<QLabel*>(u"LblNote"_s)->text();
    if (!note.contains(u"Basic.mdb"_s)) return;
    told = note;
    tests::grab(*box, "FrmProgress-waiting");
    if (leaves) {
      open.reset();
      workspace.reset();
    } else {
      box->findChild<QPushButton*>(u"BtnStop"_s)->click();
    }
  });
  look.start();
  prompts.expect(u"작업을 중지했습니다."_s);
  EXPECT_FALSE(compressor.backUp(backup::Series::Books, false, false));
  EXPECT_TRUE(told.contains(u"끝나기를 기다리고 있습니다."_s)) << told.toStdString();
  leaves = true;
  EXPECT_TRUE(compressor.backUp(backup::Series::Books, false, true))
      << "once the other has left it goes on by itself";
  EXPECT_EQ(shelf().size(), 1);
}

TEST_F(ArchiveForm, AWrongArchiveAndAServerThatIsNotThereAreTold) {
  backup::Compressor compressor(pc, prompts);
  QFile wrong(pc.paths.native(u"C:\\RWGas"_s) + u"/wrong.zip"_s);
  ASSERT_TRUE(wrong.open(QIODevice::WriteOnly));
  wrong.write("PK");
  wrong.close();
  prompts.expect(u"올바른 백업 파일이 아닙니다."_s);
  EXPECT_FALSE(compressor.restore(u"C:\\RWGas\\wrong.zip"_s));
  prompts.expect(u"서버 폴더나 서버 명령이 설정되어 있지 않습니다."_s);
  EXPECT_FALSE(compressor.backUp(backup::Series::Books, true, false));
  pc.settings.SaveSetting("Backup", "설정", "서버명령", "false %1");
  prompts.expect(u"서버 명령이 끝나지 않았거나 실패했습니다."_s);
  prompts.expect(u"서버로 보내지 못했습니다. 이 PC의 백업은 만들어졌습니다."_s);
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
  prompts.expect(u"백업 폴더를 입력하십시오."_s);
  save->click();
  part<QLineEdit>(form, "txtFolder")->setText(u"D:\\보관"_s);
  part<QLineEdit>(form, "txtCommand")->setText(u"scp a b"_s);
  prompts.expect(u"%1 이 있어야 합니다."_s);
  save->click();
  part<QLineEdit>(form, "txtCommand")->clear();
  part<QSpinBox>(form, "numKeep")->setValue(4);
  part<QCheckBox>(form, "chkRemind")->setChecked(false);
  save->click();
  EXPECT_EQ(backup::readSettings(pc), (backup::Settings{u"D:\\보관\\"_s, 4, {}, {}, false}));
  EXPECT_EQ(form.result(), QDialog::Accepted);
}

TEST_F(ArchiveForm, TheProgramItselfBacksUpWithoutAWord) {
  QProcess compressor;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(u"HAEON_PC"_s, folder.path());
  environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
  environment.insert(u"HAEON_CLOCK"_s, u"2026-03-16 12:30:00"_s);
  compressor.setProcessEnvironment(environment);
  const QString program = QApplication::applicationDirPath() + u"/../데이터압축.EXE"_s;
  compressor.start(program, {u"HDDAUTO"_s});
  ASSERT_TRUE(compressor.waitForFinished(60000)) << program.toStdString();
  EXPECT_EQ(compressor.exitCode(), 0) << compressor.readAllStandardError().toStdString();
  ASSERT_EQ(shelf().size(), 1);
  EXPECT_TRUE(shelf().first().startsWith(u"해온판매-20260316-123"_s));
  compressor.start(program, {u"NONSENSE"_s});
  ASSERT_TRUE(compressor.waitForFinished(60000));
  EXPECT_EQ(compressor.exitCode(), 2);
}

}  // namespace
