// The repair log, its pick lists, the safety register and the labels, by keys on the real windows.
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "links/form_short_list.h"
#include "links/frmCar.h"
#include "links/frmDm.h"
#include "links/frmPrtSafe.h"
#include "tests/answers.h"
#include "tests/idle_context.h"
#include "tests/recorded_print.h"
#include "tests/shown_reports.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "tests/ui/modal.h"
#include "ui/grid/spread.h"

namespace {

struct SideJobs : testing::Test, tests::TestPc {
  tests::IdleContext idle{session};
  tests::ShownReports reports;

  SideJobs() {
    openBooks(QDate(2026, 3, 16));
    session.reports = &reports;
    for (const char* sql :
         {"Insert Into Response(Name) Values('김배달')", "Insert Into Response(Name) Values('박기사')",
          "Insert Into CaRes(CarNo, ResName) Values('1234','김배달')",
          "Insert Into CaRes(CarNo, ResName) Values('5678','박기사')",
          "Insert Into CaRepair(CarRepair) Values('엔진오일 교환')",
          "Insert Into CaRepair(CarRepair) Values('타이어 교체')",
          "Insert Into Car(RDate, RContent, RCarNo, RResName, RMoney) Values('2026-02-11', '브레이크 패드 "
          "교체', '1234', '김배달', 120000)"})
      session.dbBasic.Execute(QString::fromUtf8(sql));
  }
  QString answer(const QString& sql) { return session.dbBasic.OpenRecordset(sql)[0].toText(); }
  static Spread& gridOf(QWidget& form) { return *form.findChild<Spread*>(); }
};

TEST_F(SideJobs, ALineIsEnteredWithTheListsBehindF12) {
  frmCar form(idle.context);
  tests::show(form);
  Spread& grid = gridOf(form);
  EXPECT_EQ(form.findChild<QLabel*>("pnl")->text(), "건수  1건     금액  120,000원");
  EXPECT_TRUE(form.findChild<QRadioButton*>("OptEnter")->isChecked());
  EXPECT_EQ(grid.activeRow(), 2);
  EXPECT_EQ(grid.activeCol(), CarCol::CarNo);
  EXPECT_EQ(form.findChild<QLabel*>("PnlHelp")->text(),
            "차량정비내용을 입력. 자료삭제:Delete, 차량/정비부품조회:F12");
  tests::whenModal<QDialog>([](QDialog& list) {
    tests::grab(list, "frmCarRes-pick");
    tests::keys({Qt::Key_Down, Qt::Key_Return});
  });
  tests::key(Qt::Key_F12);
  tests::show(form);  // off the screen no window comes back to the front by itself
  EXPECT_EQ(grid.model().text(2, CarCol::CarNo), "5678");
  EXPECT_EQ(grid.model().text(2, CarCol::Person), "박기사") << "the vehicle brings its driver";
  EXPECT_EQ(grid.activeCol(), CarCol::Content);
  tests::whenModal<QDialog>([](QDialog&) { tests::key(Qt::Key_Return); });
  tests::key(Qt::Key_F12);
  tests::show(form);
  EXPECT_EQ(grid.model().text(2, CarCol::Content), "엔진오일 교환");
  tests::enter("65000");
  EXPECT_EQ(answer("Select RMoney From Car Where RCarNo = '5678' And RDate = '2026-03-16'"), "65000");
  EXPECT_EQ(grid.activeRow(), 3);
  EXPECT_EQ(grid.activeCol(), CarCol::CarNo);
  EXPECT_EQ(form.findChild<QLabel*>("pnl")->text(), "건수  2건     금액  185,000원");
  tests::grab(form, "frmCar");
}

TEST_F(SideJobs, AHalfLineIsHeldGivenUpOrAskedAbout) {
  frmCar form(idle.context);
  tests::show(form);
  Spread& grid = gridOf(form);
  tests::enter("1234");
  prompts.expect("정비내역/부품을 입력하십시오");
  tests::key(Qt::Key_Up);
  EXPECT_EQ(grid.activeRow(), 2) << "a line that was begun is not left half";
  prompts.expect("저장하지 않고 버리시겠습니까?", false);
  EXPECT_FALSE(form.close());
  prompts.expect("정비내역/부품을 입력하십시오");
  form.findChild<QPushButton*>("BtnView")->click();
  EXPECT_TRUE(form.findChild<QRadioButton*>("OptEnter")->isChecked());
  auto* const ask = form.findChild<QRadioButton*>("OptAsk");
  ask->setFocus();
  prompts.expect("정비내역/부품을 입력하십시오");
  ask->click();
  EXPECT_FALSE(ask->isChecked());
  EXPECT_EQ(grid.activeCol(), CarCol::Content);
  EXPECT_TRUE(grid.isAncestorOf(QApplication::focusWidget())) << "the hand is where something is missing";
  tests::key(Qt::Key_Escape);
  EXPECT_EQ(grid.model().text(2, CarCol::CarNo), QString());
  tests::key(Qt::Key_Up);
  EXPECT_EQ(grid.activeRow(), 1);
  EXPECT_TRUE(form.close());
  EXPECT_EQ(answer("Select Count(*) From Car"), "1");
}

TEST_F(SideJobs, TheLogIsLookedThroughByDaysAndCorrectedThere) {
  frmCar form(idle.context);
  tests::show(form);
  Spread& grid = gridOf(form);
  auto* const from = form.findChild<QLineEdit*>("TxtFrom");
  from->setFocus();
  from->setText("2026-02-01");
  tests::keys({Qt::Key_Return, Qt::Key_Return});
  tests::key(Qt::Key_Return);  // behind the last box the lines are looked for
  EXPECT_TRUE(form.findChild<QRadioButton*>("OptAsk")->isChecked());
  ASSERT_EQ(grid.model().MaxRows(), 1);
  EXPECT_EQ(form.findChild<QLabel*>("PnlHelp")->text(), "차량정비 내용을 기간별/차량별로 조회합니다");
  grid.setActiveCell(1, CarCol::Money);
  prompts.expect("선택된 자료의 변경사항을 저장하시겠습니까?");
  tests::enter("99000");
  EXPECT_EQ(form.findChild<QLabel*>("pnl")->text(), "건수  1건     금액  99,000원");
  prompts.expect("선택된 자료를 삭제하시겠습니까?");
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(grid.model().MaxRows(), 0);
  tests::key(Qt::Key_Delete);  // an empty grid
  form.findChild<QRadioButton*>("OptEnter")->click();
  EXPECT_EQ(grid.model().MaxRows(), 1);
  EXPECT_TRUE(grid.isAncestorOf(QApplication::focusWidget()));

  const auto refused = [&](const char* box, const char* typed, const char* told) {
    auto* const at = form.findChild<QLineEdit*>(QString::fromLatin1(box));
    at->setText(QString::fromUtf8(typed));
    prompts.expect(QString::fromUtf8(told));
    form.findChild<QPushButton*>("BtnView")->click();
    EXPECT_TRUE(at->hasFocus());
    at->clear();
    EXPECT_TRUE(form.findChild<QRadioButton*>("OptEnter")->isChecked());
    EXPECT_EQ(grid.model().MaxRows(), 1) << "what was shown stays";
  };
  refused("TxtTo", "2026-02-30", "날짜입력이 잘못되었습니다");
  refused("TxtCarNo", "'", "RCarNo");
  auto* const carNo = form.findChild<QLineEdit*>("TxtCarNo");
  carNo->setText("9999");
  carNo->setFocus();
  tests::key(Qt::Key_Return);
  EXPECT_EQ(grid.model().MaxRows(), 0);
  EXPECT_TRUE(from->hasFocus());
  EXPECT_EQ(form.findChild<QLabel*>("PnlHelp")->text(), "조회된 정비내역이 없습니다");
}

TEST_F(SideJobs, APickListIsKeptByKeysAndSavedOnTheWayOut) {
  frmCaRepairUnit form(idle.context);
  tests::show(form);
  Spread& grid = gridOf(form);
  EXPECT_EQ(grid.activeRow(), 3);
  tests::compose({"세"}, "세차");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(grid.model().text(3, 1), "세차");
  EXPECT_EQ(grid.activeRow(), 4);
  tests::grab(form, "frmCaRepairUnit");
  tests::enter("'94");
  auto* const save = form.findChild<QPushButton*>("BtnSave");
  save->setFocus();
  prompts.expect("CaRepair");
  save->click();
  EXPECT_TRUE(grid.isAncestorOf(QApplication::focusWidget())) << "to be mended there";
  grid.setActiveCell(4, 1);
  prompts.expect("선택된 사항을 지우시겠습니까?");
  tests::key(Qt::Key_Delete);
  prompts.expect("정비부품/내역을 저장하시겠습니까?");
  tests::key(Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(answer("Select Count(*) From CaRepair Where CarRepair = '세차'"), "1");

  frmCarRes cars(idle.context);
  tests::show(cars);
  tests::grab(cars, "frmCarRes");
  Spread& list = gridOf(cars);
  list.setActiveCell(1, 1);
  prompts.expect("선택된 사항을 지우시겠습니까?");
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(list.model().MaxRows(), 2);
  prompts.expect("차량/담당자 내용을 저장하시겠습니까?", false);
  tests::key(Qt::Key_Escape);
  EXPECT_FALSE(cars.isVisible());
  EXPECT_EQ(answer("Select Count(*) From CaRes"), "2") << "not saved";
}

TEST_F(SideJobs, TheSafetyRegisterSelectsItsDays) {
  frmPrtSafe form(idle.context);
  tests::show(form);
  tests::grab(form, "frmPrtSafe");
  auto* const from = form.findChild<QLineEdit*>("txtDate0");
  EXPECT_EQ(from->text(), "2026-03-01");
  form.findChild<QLineEdit*>("TxtMon")->setText("3");
  for (int step = 0; step < 3; ++step) tests::key(Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "BtnPrint");
  tests::key(Qt::Key_Return);
  ASSERT_EQ(reports.asked.size(), 1u);
  const pc::ReportRequest& request = reports.asked.front();
  EXPECT_EQ(request.file, "safenote.rpt");
  EXPECT_EQ(request.selection, "{Sale.SaleDate} >= '2026-03-01'  and {Sale.SaleDate} <= '2026-03-16'");
  EXPECT_EQ(request.formulas, (QStringList{"DDay= '2026/03/01 ~ 2026/03/16'", "DMon= '3'"}));
  EXPECT_EQ(request.liveFiles, QStringList{"C:\\RWGas\\Dbs\\2026Foundation.mdb"});

  from->setText("2026-02-30");
  prompts.expect("날짜입력이 잘못되었습니다!");
  form.findChild<QPushButton*>("BtnPrint")->click();
  EXPECT_TRUE(from->hasFocus());
  from->setText("2026-03-01");
  auto* const to = form.findChild<QLineEdit*>("txtDate1");
  to->setText("2026-03-32");
  prompts.expect("날짜입력이 잘못되었습니다!");
  form.findChild<QPushButton*>("BtnPrint")->click();
  EXPECT_TRUE(to->hasFocus()) << "the one that is none";
  to->setText("2026-03-16");
  from->setText("2019-01-01");
  prompts.expect("2019년의 자료 파일이 없습니다!");
  form.findChild<QPushButton*>("BtnPrint")->click();
  EXPECT_EQ(reports.asked.size(), 1u);
}

TEST_F(SideJobs, LabelsGoToTheChosenPrinter) {
  tests::RecordedPrinters printers;
  session.printers = &printers;
  pc.settings.SaveSetting("해온판매", "프린터설정", "DEVICENAME", "지로프린터");
  tests::insertRows(session.dbBasic, "Client(Name, PostCode, Address, VolumeYesNo)",
                    {"'달빛식당', '403-010', '인천 부평구 부평동 12', False",
                     "'한빛아파트 101동 305호', '403-011', '인천', True"});
  frmDm form(idle.context);
  tests::show(form);
  const auto text = [&](const char* name) {
    return form.findChild<QLabel*>(QString::fromLatin1(name))->text();
  };
  EXPECT_TRUE(form.findChild<QRadioButton*>("Opt1")->isChecked());
  EXPECT_EQ(text("LblTotal") + text("LblSel"), "1 명 /0 명");
  tests::key(Qt::Key_Space);
  EXPECT_EQ(text("LblSel"), "1 명");
  tests::grab(form, "frmDm");
  form.findChild<QPushButton*>("vaBtn1")->click();
  ASSERT_EQ(printers.jobs.size(), 1u);
  EXPECT_EQ(printers.jobs.front()->texts(1).last(), "달빛식당");
  form.findChild<QRadioButton*>("Opt3")->click();
  EXPECT_EQ(text("LblTotal") + text("LblSel"), "2 명 /0 명");
  form.findChild<QCheckBox*>("ChkAll")->click();
  EXPECT_EQ(text("LblSel"), "2 명");
  form.findChild<QPushButton*>("BtnPrt")->click();
  ASSERT_EQ(printers.jobs.size(), 2u);
  EXPECT_EQ(printers.jobs.back()->pages, 2);
  form.findChild<QPushButton*>("BtnSet")->click();
  EXPECT_EQ(idle.commands.asked, QStringList{"frmPrtChange"});
}

}  // namespace
