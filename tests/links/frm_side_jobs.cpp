// The repair log, its pick lists, the safety register and the labels, by keys on the real windows.
#include <gtest/gtest.h>

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
#include "tests/idle_context.h"
#include "tests/recorded_print.h"
#include "tests/shown_reports.h"
#include "tests/support.h"
#include "tests/ui/grab.h"
#include "tests/ui/modal.h"
#include "ui/grid/spread.h"

using namespace Qt::StringLiterals;

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
          "Insert Into Car(RDate, RContent, RCarNo, RResName, RMoney) "
          "Values('2026-02-11', '브레이크 패드 교체', '1234', '김배달', 120000)"})
      session.dbBasic.Execute(QString::fromUtf8(sql));
  }
  QString answer(const QString& sql) { return session.dbBasic.OpenRecordset(sql)[0].toText(); }
  static Spread& gridOf(QWidget& form) { return *form.findChild<Spread*>(); }
};

TEST_F(SideJobs, ALineIsEnteredWithTheListsBehindF12) {
  frmCar form(idle.context);
  tests::show(form);
  Spread& grid = gridOf(form);
  EXPECT_EQ(form.findChild<QLabel*>(u"pnl"_s)->text(), u"건수  1건     금액  120,000원"_s);
  EXPECT_TRUE(form.findChild<QRadioButton*>(u"OptEnter"_s)->isChecked());
  EXPECT_EQ(grid.activeRow(), 2);
  EXPECT_EQ(grid.activeCol(), CarCol::CarNo);
  EXPECT_EQ(form.findChild<QLabel*>(u"PnlHelp"_s)->text(),
            u"차량정비내용을 입력. 자료삭제:Delete, 차량/정비부품조회:F12"_s);
  tests::whenModal<QDialog>([](QDialog& list) {
    tests::grab(list, u"frmCarRes-pick"_s);
    tests::key(Qt::Key_Down);
    tests::key(Qt::Key_Return);
  });
  tests::key(Qt::Key_F12);
  tests::show(form);  // off the screen no window comes back to the front by itself
  EXPECT_EQ(grid.model().text(2, CarCol::CarNo), u"5678"_s);
  EXPECT_EQ(grid.model().text(2, CarCol::Person), u"박기사"_s) << "the vehicle brings its driver";
  EXPECT_EQ(grid.activeCol(), CarCol::Content);
  tests::whenModal<QDialog>([](QDialog&) { tests::key(Qt::Key_Return); });
  tests::key(Qt::Key_F12);
  tests::show(form);
  EXPECT_EQ(grid.model().text(2, CarCol::Content), u"엔진오일 교환"_s);
  tests::enter(u"65000"_s);
  EXPECT_EQ(answer(u"Select RMoney From Car Where RCarNo = '5678' And RDate = '2026-03-16'"_s), u"65000"_s);
  EXPECT_EQ(grid.activeRow(), 3);
  EXPECT_EQ(grid.activeCol(), CarCol::CarNo);
  EXPECT_EQ(form.findChild<QLabel*>(u"pnl"_s)->text(), u"건수  2건     금액  185,000원"_s);
  tests::grab(form, u"frmCar"_s);
}

TEST_F(SideJobs, AHalfLineIsHeldGivenUpOrAskedAbout) {
  frmCar form(idle.context);
  tests::show(form);
  Spread& grid = gridOf(form);
  tests::enter(u"1234"_s);
  prompts.expect(u"정비내역/부품을 입력하십시오"_s);
  tests::key(Qt::Key_Up);
  EXPECT_EQ(grid.activeRow(), 2) << "a line that was begun is not left half";
  prompts.expect(u"저장하지 않고 버리시겠습니까?"_s, false);
  EXPECT_FALSE(form.close());
  prompts.expect(u"정비내역/부품을 입력하십시오"_s);
  form.findChild<QPushButton*>(u"BtnView"_s)->click();
  EXPECT_TRUE(form.findChild<QRadioButton*>(u"OptEnter"_s)->isChecked());
  grid.setFocus();
  tests::key(Qt::Key_Escape);
  EXPECT_EQ(grid.model().text(2, CarCol::CarNo), QString());
  tests::key(Qt::Key_Up);
  EXPECT_EQ(grid.activeRow(), 1);
  EXPECT_TRUE(form.close());
  EXPECT_EQ(answer(u"Select Count(*) From Car"_s), u"1"_s);
}

TEST_F(SideJobs, TheLogIsLookedThroughByDaysAndCorrectedThere) {
  frmCar form(idle.context);
  tests::show(form);
  Spread& grid = gridOf(form);
  auto* const from = form.findChild<QLineEdit*>(u"TxtFrom"_s);
  from->setFocus();
  from->setText(u"2026-02-01"_s);
  tests::key(Qt::Key_Return);
  tests::key(Qt::Key_Return);
  tests::key(Qt::Key_Return);  // behind the last box the lines are looked for
  EXPECT_TRUE(form.findChild<QRadioButton*>(u"OptAsk"_s)->isChecked());
  ASSERT_EQ(grid.model().MaxRows(), 1);
  EXPECT_EQ(form.findChild<QLabel*>(u"PnlHelp"_s)->text(), u"차량정비 내용을 기간별/차량별로 조회합니다"_s);
  grid.setActiveCell(1, CarCol::Money);
  prompts.expect(u"선택된 자료의 변경사항을 저장하시겠습니까?"_s);
  tests::enter(u"99000"_s);
  EXPECT_EQ(form.findChild<QLabel*>(u"pnl"_s)->text(), u"건수  1건     금액  99,000원"_s);
  prompts.expect(u"선택된 자료를 삭제하시겠습니까?"_s);
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(grid.model().MaxRows(), 0);
  tests::key(Qt::Key_Delete);  // an empty grid
  form.findChild<QRadioButton*>(u"OptEnter"_s)->click();
  EXPECT_EQ(grid.model().MaxRows(), 1);
  EXPECT_TRUE(grid.isAncestorOf(QApplication::focusWidget()));
}

TEST_F(SideJobs, APickListIsKeptByKeysAndSavedOnTheWayOut) {
  frmCaRepairUnit form(idle.context);
  tests::show(form);
  Spread& grid = gridOf(form);
  EXPECT_EQ(grid.activeRow(), 3);
  tests::compose({u"세"_s}, u"세차"_s);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(grid.model().text(3, 1), u"세차"_s);
  EXPECT_EQ(grid.activeRow(), 4);
  tests::grab(form, u"frmCaRepairUnit"_s);
  prompts.expect(u"정비부품/내역을 저장하시겠습니까?"_s);
  tests::key(Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(answer(u"Select Count(*) From CaRepair Where CarRepair = '세차'"_s), u"1"_s);

  frmCarRes cars(idle.context);
  tests::show(cars);
  tests::grab(cars, u"frmCarRes"_s);
  Spread& list = gridOf(cars);
  list.setActiveCell(1, 1);
  prompts.expect(u"선택된 사항을 지우시겠습니까?"_s);
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(list.model().MaxRows(), 2);
  prompts.expect(u"차량/담당자 내용을 저장하시겠습니까?"_s, false);
  tests::key(Qt::Key_Escape);
  EXPECT_FALSE(cars.isVisible());
  EXPECT_EQ(answer(u"Select Count(*) From CaRes"_s), u"2"_s) << "not saved";
}

TEST_F(SideJobs, TheSafetyRegisterSelectsItsDays) {
  frmPrtSafe form(idle.context);
  tests::show(form);
  tests::grab(form, u"frmPrtSafe"_s);
  auto* const from = form.findChild<QLineEdit*>(u"txtDate0"_s);
  EXPECT_EQ(from->text(), u"2026-03-01"_s);
  form.findChild<QLineEdit*>(u"TxtMon"_s)->setText(u"3"_s);
  for (int step = 0; step < 3; ++step) tests::key(Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), u"BtnPrint"_s);
  tests::key(Qt::Key_Return);
  ASSERT_EQ(reports.asked.size(), 1u);
  const pc::ReportRequest& request = reports.asked.front();
  EXPECT_EQ(request.file, u"safenote.rpt"_s);
  EXPECT_EQ(request.selection, u"{Sale.SaleDate} >= '2026-03-01'  and {Sale.SaleDate} <= '2026-03-16'"_s);
  EXPECT_EQ(request.formulas, (QStringList{u"DDay= '2026/03/01 ~ 2026/03/16'"_s, u"DMon= '3'"_s}));
  EXPECT_EQ(request.liveFiles, QStringList{u"C:\\RWGas\\Dbs\\2026Foundation.mdb"_s});

  from->setText(u"2026-02-30"_s);
  prompts.expect(u"날짜입력이 잘못되었습니다!"_s);
  form.findChild<QPushButton*>(u"BtnPrint"_s)->click();
  EXPECT_TRUE(from->hasFocus());
  from->setText(u"2019-01-01"_s);
  prompts.expect(u"2019년의 자료 파일이 없습니다!"_s);
  form.findChild<QPushButton*>(u"BtnPrint"_s)->click();
  EXPECT_EQ(reports.asked.size(), 1u);
}

TEST_F(SideJobs, LabelsGoToTheChosenPrinter) {
  tests::RecordedPrinters printers;
  session.printers = &printers;
  pc.settings.SaveSetting(u"해온판매"_s, u"프린터설정"_s, u"DEVICENAME"_s, u"지로프린터"_s);
  for (const char* client : {"'달빛식당', '403-010', '인천 부평구 부평동 12', False",
                             "'한빛아파트 101동 305호', '403-011', '인천', True"})
    session.dbBasic.Execute(u"Insert Into Client(Name, PostCode, Address, VolumeYesNo) Values("_s +
                            QString::fromUtf8(client) + u")"_s);
  frmDm form(idle.context);
  tests::show(form);
  const auto text = [&](const char* name) {
    return form.findChild<QLabel*>(QString::fromLatin1(name))->text();
  };
  EXPECT_EQ(text("LblTotal") + text("LblSel"), u"1 명 /0 명"_s);
  tests::key(Qt::Key_Space);
  EXPECT_EQ(text("LblSel"), u"1 명"_s);
  tests::grab(form, u"frmDm"_s);
  form.findChild<QPushButton*>(u"vaBtn1"_s)->click();
  ASSERT_EQ(printers.jobs.size(), 1u);
  EXPECT_EQ(printers.jobs.front()->texts(1).last(), u"달빛식당"_s);
  form.findChild<QRadioButton*>(u"Opt3"_s)->click();
  EXPECT_EQ(text("LblTotal") + text("LblSel"), u"2 명 /0 명"_s);
  form.findChild<QCheckBox*>(u"ChkAll"_s)->click();
  EXPECT_EQ(text("LblSel"), u"2 명"_s);
  form.findChild<QPushButton*>(u"BtnPrt"_s)->click();
  ASSERT_EQ(printers.jobs.size(), 2u);
  EXPECT_EQ(printers.jobs.back()->pages, 2);
  form.findChild<QPushButton*>(u"BtnSet"_s)->click();
  EXPECT_EQ(idle.commands.asked, QStringList{u"frmPrtChange"_s});
}

}  // namespace
