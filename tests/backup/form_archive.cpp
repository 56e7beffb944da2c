// The data compressor's windows, and the compressor itself as a process.
#include "backup/FrmArchive.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
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
  /** Boxes with their figures as "#", and what was made as "@". */
  QString told(qsizetype first, qsizetype count) const {
    return prompts.seen.mid(first, count)
        .join("\n--\n")
        .replace(QRegularExpression("[0-9]+"), "#")
        .replace("#.# kB", "#")
        .replace("C:\\RWGas\\BackUp\\해온판매-#-#.zip", "@");
  }
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
  const QString question =
      "데이터 내려받기|아래 백업으로 되돌리면 그 뒤에 입력한 자료는 보이지 않게 됩니다.\n\n@\n백업한 때: "
      "#-#-# "
      "#:#:#\n파일 #개, #\n되돌릴 폴더: C:\\RWGas\\Dbs\\\n\n지금의 자료는 지우지 않고 옆에 날짜를 붙인 "
      "폴더로 보관합니다. 되돌리시겠습니까?\n--\n";
  EXPECT_EQ(
      told(0, 4),
      "데이터 백업|백업을 마쳤습니다. 모든 자료 파일을 검사하고 백업 파일을 다시 읽어 확인하였습니다.\n\n@ "
      "(#)\n파일 #개, #\n--\n" +
          question + question +
          "데이터 내려받기|자료를 되돌렸습니다. 모든 자료 파일을 검사하였습니다.\n\n되돌린 백업: #-#-# "
          "#:#:#\n되돌리기 전의 자료: C:\\RWGas\\Dbs-이전-#-#");
  EXPECT_TRUE(prompts.seen.first().contains(" (" + grid->model().text(1, 2) + ")\n파일 5개, "))
      << prompts.seen.first().toStdString();
  prompts.expect("되돌리시겠습니까?", false);
  part<QPushButton>(form, "btnRestore")->click();
  EXPECT_TRUE(form.restored()) << "a refusal afterwards undoes nothing";
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
  EXPECT_EQ(
      told,
      "자료 파일을 쓰는 프로그램이 끝나기를 기다리고 있습니다.\n사용 중인 파일: Basic.mdb\n이 PC와 다른 PC의 "
      "해온판매를 끝내 주십시오.\n[중지]를 누르면 그만둡니다.");
  EXPECT_EQ(prompts.seen, QStringList{"데이터 백업|작업을 중지했습니다. 자료는 그대로 있습니다."});
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
  EXPECT_EQ(told(1, 3),
            "데이터 백업|서버 폴더나 서버 명령이 설정되어 있지 않습니다.\n[설정]에서 정한 뒤 다시 "
            "하십시오.\n--\n데이터 백업|서버 명령이 끝나지 않았거나 실패했습니다.\nfalse %#\n\n--\n데이터 "
            "백업|서버로 보내지 못했습니다. 이 PC의 백업은 만들어졌습니다.\n@ (#)");
  EXPECT_EQ(shelf().size(), 1);
  EXPECT_EQ(name(), "김가네");
}

TEST_F(ArchiveForm, ServerSupportFolderAndSettingsHaveAButtonEach) {
  pc.settings.SaveSetting("Backup", "설정", "서버폴더", "Z:\\백업");
  QDir().mkpath(folder.path() + "/z");
  QStringList opened;
  pc.process.setStarter([&](const QString&, const QStringList& arguments, const QString&) {
    opened << arguments.join(' ');
    return opened.size() < 3;
  });
  writeFile(pc.paths.native(session.DbPath + "other.mdb"), "another program's");
  backup::FrmArchive form(pc, prompts);
  tests::show(form);
  const auto press = [&](const char* button) { part<QPushButton>(form, button)->click(); };
  EXPECT_EQ(part<QLabel>(form, "pnlShelf")->text(), "C:\\RWGas\\BackUp\\   (최근 10개를 보관)");
  EXPECT_EQ(part<QPushButton>(form, "btnServer")->toolTip(), "");
  prompts.expect("\n서버 폴더: Z:\\백업\\\n이 프로그램의 자료가 아닌 파일도 그대로 담았습니다: other.mdb");
  press("btnServer");
  auto* grid = part<Spread>(form, "SpArchive");
  EXPECT_TRUE(prompts.seen.last().contains("\n파일 6개, ")) << prompts.seen.last().toStdString();
  ASSERT_EQ(grid->model().MaxRows(), 2);
  EXPECT_EQ(grid->model().text(1, 3) + grid->model().text(2, 3), "이 PC서버");
  EXPECT_EQ(grid->model().text(2, 4), "Z:\\백업\\" + shelf().first());
  for (const char* restore : {"btnRestore", ""}) {
    prompts.expect("되돌릴 폴더: C:\\RWGas\\Dbs\\\n", false);
    *restore ? press(restore) : grid->doubleClicked(2, 1);
  }
  EXPECT_FALSE(form.restored());
  prompts.expect("백업을 마쳤습니다.");
  press("btnSupport");
  EXPECT_EQ(shelf().filter("-AS-").size(), 1);
  EXPECT_EQ(grid->model().MaxRows(), 2) << "it stands in no list of what can be put back";
  EXPECT_FALSE(prompts.seen.last().contains("서버")) << prompts.seen.last().toStdString();
  // Who comes to restore stands on the newest, wherever it lies.
  const QString later = "Z:\\백업\\해온판매-20270101-090000.zip";
  writeFile(pc.paths.native(later), "PK");
  prompts.expect("되돌리시겠습니까?", false);
  press("btnRestore");
  ASSERT_EQ(grid->model().MaxRows(), 3);
  EXPECT_EQ(grid->model().text(1, 1) + grid->model().text(1, 3), "2027-01-01 09:00:00서버");
  EXPECT_EQ(grid->model().text(1, 2), "2 바이트");
  EXPECT_EQ(grid->model().text(1, 4) + grid->model().text(2, 3) + grid->model().text(3, 3),
            later + "이 PC서버");
  form.beginWithRestore();
  prompts.expect("해온판매-20270101-090000.zip\n올바른 백업 파일이 아닙니다.");
  press("btnRestore");
  press("btnFolder");
  EXPECT_EQ(opened, QStringList(2, pc.paths.native("C:\\RWGas\\BackUp\\")));
  prompts.expect("폴더를 여는 프로그램이 없습니다.\n");
  press("btnFolder");
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, [&] {
    auto* const box = dynamic_cast<backup::FrmArchiveSettings*>(QApplication::activeModalWidget());
    if (!box) return;
    look.stop();
    part<QSpinBox>(*box, "numKeep")->setValue(3);
    part<QLineEdit>(*box, "txtServer")->clear();
    part<QPushButton>(*box, "btnSave")->click();
  });
  look.start(10);
  press("btnSettings");
  EXPECT_EQ(part<QLabel>(form, "pnlShelf")->text(), "C:\\RWGas\\BackUp\\   (최근 3개를 보관)");
  EXPECT_EQ(part<QPushButton>(form, "btnServer")->toolTip(),
            "[설정]에서 서버 폴더나 서버 명령을 먼저 정하십시오.");
  EXPECT_EQ(grid->model().MaxRows(), 1);
  QFile file(pc.paths.native(session.DbPath + "dbTax.mdb"));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  file.seek(4096);
  file.write(QByteArray(4096, '\xff'));
  file.close();
  prompts.expect("자료 파일이 손상되어 백업을 마치지 않았습니다: dbTax.mdb\n");
  press("btnBackUp");
  EXPECT_TRUE(prompts.seen.last().endsWith(
      "\n전에 만든 백업은 그대로 있습니다. [A/S용 백업]은 손상된 파일도 담습니다."));
  prompts.expect("\n손상된 자료 파일이 있습니다: dbTax.mdb");
  press("btnSupport");
}

TEST_F(ArchiveForm, SettingsAreCheckedBeforeTheyAreSaved) {
  backup::FrmArchiveSettings form(pc, prompts);
  tests::show(form);
  tests::grab(form, "FrmArchiveSettings");
  EXPECT_EQ(part<QLineEdit>(form, "txtFolder")->text(), "C:\\RWGas\\BackUp\\");
  EXPECT_EQ(part<QSpinBox>(form, "numKeep")->value(), 10);
  EXPECT_TRUE(part<QCheckBox>(form, "chkRemind")->isChecked());
  auto* save = part<QPushButton>(form, "btnSave");
  part<QLineEdit>(form, "txtFolder")->setText(" ");
  save->setFocus();
  prompts.expect("백업 폴더를 입력하십시오.");
  save->click();
  EXPECT_EQ(form.focusWidget(), part<QLineEdit>(form, "txtFolder"));
  part<QLineEdit>(form, "txtFolder")->setText("D:\\보관");
  part<QLineEdit>(form, "txtCommand")->setText("scp a b");
  prompts.expect("%1 이 있어야 합니다.");
  save->click();
  EXPECT_EQ(form.focusWidget(), part<QLineEdit>(form, "txtCommand"));
  part<QLineEdit>(form, "txtCommand")->clear();
  part<QSpinBox>(form, "numKeep")->setValue(4);
  part<QCheckBox>(form, "chkRemind")->setChecked(false);
  save->click();
  EXPECT_EQ(backup::readSettings(pc), (backup::Settings{"D:\\보관\\", 4, {}, {}, false}));
  EXPECT_EQ(form.result(), QDialog::Accepted);
  EXPECT_EQ(told(0, 2),
            "백업 설정|백업 폴더를 입력하십시오.\n--\n백업 설정|서버 명령에는 백업 파일의 자리 %# "
            "이 있어야 합니다.");
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
