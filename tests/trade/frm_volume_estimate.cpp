// The forecast's and the cylinder book's windows by keys.
#include "trade/frmVolumeEstimate.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QTest>
#include <QTimer>

#include "tests/briefs/brief_desk.h"
#include "tests/trade/sale_desk.h"
#include "tests/ui/grab.h"
#include "trade/frmResCAN.h"
#include "ui/forms/FrmProgress.h"

using namespace Qt::StringLiterals;

namespace {

using tests::part;

struct EstimateScreen : testing::Test, tests::SaleDesk {
  tests::IdleCommands commands;
  FormContext context{pc.session, pickers, commands, calls};
  tests::ShownReports reports;
  std::optional<frmVolumeEstimate> form;

  EstimateScreen() {
    pc.session.reports = &reports;
    for (const char* const day : {"2026-02-01", "2026-02-17", "2026-02-09"})
      sold(u"'%1', 1, 1, False"_s.arg(day));
    form.emplace(context);
    tests::show(*form);
  }
  Spread* grid() { return part<Spread>(*form, "SpEstimate"); }
  void press(const char* name) { tests::press(*form, name); }
  QString box(const char* name) { return part<QComboBox>(*form, name)->currentText(); }
};
struct FrmVolumeEstimate : EstimateScreen {};
struct FrmResCan : EstimateScreen {};

TEST_F(FrmVolumeEstimate, FindsReservesAndFiltersOneDay) {
  EXPECT_EQ(part<QLineEdit>(*form, "TxtYear")->text(), "2026");
  pc.prompts.expect("배달 예상을 추출할 고객을 구분하세요");
  press("BtnFind");
  EXPECT_EQ(tests::focused(), "SSOption1(0)");
  press("SSOption1(0)");
  press("BtnFind");
  EXPECT_EQ(box("CboMonS") + box("CboDayS"), "0305") << "today";
  ASSERT_EQ(grid()->model().MaxRows(), 1);
  EXPECT_EQ(grid()->model().text(1, ForecastCol::Expected), "02-25");
  EXPECT_TRUE(grid()->hasFocus());
  tests::grab(*form, "frmVolumeEstimate");

  grid()->setActiveCell(1, ForecastCol::Reserved);
  tests::enter("03-07");
  EXPECT_EQ(rows("Select EstimateDate From Client Where Code = 1"), "03-07");
  part<QComboBox>(*form, "CboMonS")->setCurrentText("3");
  auto* const day = part<QComboBox>(*form, "CboDayS");
  day->setCurrentText("7");
  day->setFocus();
  tests::key(Qt::Key_Return);
  EXPECT_EQ(box("CboMonS") + box("CboDayS"), "0307");
  EXPECT_EQ(grid()->model().MaxRows(), 1) << "the reserved day";
  tests::key(Qt::Key_F10);
  EXPECT_EQ(reports.asked.back().file, "VolumeEstimate.rpt");
  EXPECT_EQ(tests::stagedRows(pc.session, "Str01, Str05, Str12, Str13, Lng01"),
            QStringList({"산골식당|02-17|02-25|8|1", "||||"}))
      << "and the closing row";
}

TEST_F(FrmVolumeEstimate, ADayMustBeNamed) {
  press("SSOption1(2)");
  pc.prompts.expect("배달예상일자를 입력하십시오");
  press("BtnEstimatedClient");
  EXPECT_TRUE(part<QComboBox>(*form, "CboMonS")->hasFocus());
  part<QLineEdit>(*form, "TxtYear")->setText("2019");
  pc.prompts.expect("2019년의 배달자료가 없습니다!");
  press("BtnFind");
  EXPECT_EQ(tests::focused(), "TxtYear");
}

TEST_F(FrmVolumeEstimate, LongWorkShowsHowFarItIsAndStopsWhereItIsToldTo) {
  constexpr int customers = 600;
  const QScopedValueRollback eachStep(FrmProgress::drawEvery, 0);
  pc.session.wsMain.Together([&] {
    for (int client = 4; client < 4 + customers; ++client) {
      const QString code = QString::number(client);
      run("Insert Into Client(Code, Name, VolumeYesNo) Values(" + code + ", '고객', False)");
      run("Insert Into Sale(SaleDate, ClientCode, SaleGubun, Gubun) Values('2026-02-01', " + code +
          ", 1, False)");
    }
  });
  press("SSOption1(2)");
  bool seen = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, &*form, [&] {
    auto* const bar = form->findChild<QProgressBar*>("ProgressBar");
    if (!bar || bar->value() <= 0 || seen) return;
    seen = true;
    press("BtnStop");
  });
  watch.start(0);
  press("BtnFind");
  EXPECT_TRUE(seen) << "a bar with a way to stop";
  EXPECT_FALSE(form->findChild<QWidget*>("FrmProgress"));
  const int reached = grid()->model().MaxRows();
  EXPECT_GT(reached, 0);
  EXPECT_LT(reached, customers);
  EXPECT_EQ(part<QLabel>(*form, "PnlHelp")->text(),
            u" 중지하였습니다. 고객 %1 / %2 까지만 추출되었습니다"_s.arg(reached).arg(customers + 1));
  watch.stop();
  press("BtnFind");
  EXPECT_EQ(grid()->model().MaxRows(), customers + 1) << "the next search is whole";
}

TEST_F(FrmResCan, PersonAndItemComeFromTheirSearches) {
  frmResCAN form(context);
  tests::show(form);
  const auto text = [&](const char* name) { return part<QLineEdit>(form, name)->text(); };
  tests::press(form, "BtnNew");
  ASSERT_TRUE(part<QLineEdit>(form, "TxtResName")->hasFocus());
  tests::type("x");
  EXPECT_EQ(text("TxtResName"), "") << "only by search";
  pickers.persons.push_back("홍길동");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(text("TxtResName"), "홍길동");
  pickers.items.push_back(ItemChoice{"LPG", "20", 0, 0});
  ASSERT_TRUE(part<QLineEdit>(form, "TxtLPGName")->hasFocus());
  tests::key(Qt::Key_F12);
  EXPECT_EQ(text("TxtLPGName") + text("TxtCANSize"), "LPG20");
  tests::enter("3");
  tests::type("12");
  EXPECT_EQ(text("TxtCANTotal"), "15");
  tests::press(form, "BtnSave");
  EXPECT_EQ(form.grid()->model().text(1, 1), "홍길동");
  EXPECT_EQ(form.grid()->model().text(1, 6), "15");
  tests::grab(form, "frmResCAN");
  tests::key(Qt::Key_F10);
  EXPECT_EQ(reports.asked.back().file, "담당자별보유용기현황.rpt");
  EXPECT_EQ(tests::stagedRows(pc.session, "Str01, Str03, Lng02, Lng03, Lng04"),
            QStringList("홍길동|20|3|12|15"));
  part<QLineEdit>(form, "TxtResName")->setFocus();
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(text("TxtResName"), "");
  tests::press(form, "BtnCancel");
}

}  // namespace
