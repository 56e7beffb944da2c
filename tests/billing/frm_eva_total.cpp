// The totals of the meter book on the real window, and their paper.
#include "billing/eva_total.h"
#include "briefs/form_brief.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>

#include "tests/billing/meter_desk.h"
#include "tests/idle_context.h"
#include "tests/ui/grab.h"
#include "ui/paper/printers.h"
#include "ui/paper/report_viewer.h"

using namespace Qt::StringLiterals;

namespace {

using tests::part, tests::press;

struct EvaTotalForm : testing::Test, tests::MeterDesk {
  EvaTotalForm() : MeterDesk(QDate(2026, 5, 20)) {
    session.RptPath = "C:\\RWGas\\RPT\\";
    session.reports = &viewer;
    session.printers = &printers;
    const int kim = customer("김하나 식당", 1000);
    set(kim, 4, "Total = 12000");
    set(kim, 5,
        "Trust = 12000, UsePay = 34560, Delay = 240, Manage = 1000, Pay = 12000, TrustDay = '05/08', Total = "
        "35800");
    session.wsMain.Together([this] { block(); });
  }
  void block() {
    for (int each = 0; each < 60; ++each) {
      const int code =
          customer("입주자" + QString::number(each), 2160, 1, each < 40 ? "한빛아파트" : "새봄아파트",
                   QString::number(101 + each / 20), QString::number(each % 20 / 4 * 100 + each % 4 + 101));
      set(code, 4, "Total = 40000");
      set(code, 5,
          u"Trust = 40000, UsePay = %1, Delay = 800, Manage = 800, Pay = %2, TrustDay = '%3'"_s
              .arg(2160 * (10 + each % 9))
              .arg(each % 3 == 0 ? 40000 : 0)
              .arg(each % 3 == 0 ? "05/12" : ""));
    }
  }
  QString label(const BriefForm& form, const char* name) { return part<QLabel>(form, name)->text(); }

  ReportViewer viewer{session};
  PcPrinters printers{pc.pc};
  tests::IdleContext idle{session};
};

TEST_F(EvaTotalForm, OpensOnTheBookOfTheMenuAndShowsItsSums) {
  session.CheckKind = HouseStyle::Individual;
  BriefForm form(idle.context, evaTotalBrief());
  tests::show(form);
  EXPECT_EQ(part<QTabBar>(form, "TabEvaTotal")->currentIndex(), 0);
  EXPECT_FALSE(part<QComboBox>(form, "CboGubun")->isVisible());
  EXPECT_EQ(part<QComboBox>(form, "CboMonFrom")->currentText(), "05월");
  press(form, "BtnRefresh");
  EXPECT_EQ(label(form, "PnlPeriod"), "05월");
  EXPECT_EQ(label(form, "PnlPrev"), "12,000");
  EXPECT_EQ(label(form, "PnlIncome"), "12,000");
  EXPECT_EQ(label(form, "PnlRemain"), "35,800");

  form.showPage("2");
  EXPECT_TRUE(part<QComboBox>(form, "CboGubun")->isVisible());
  EXPECT_EQ(label(form, "PnlRemain"), "0") << "another book begins empty";
  part<QComboBox>(form, "CboGubun")->setFocus();
  for (int step = 0; step < 5; ++step) tests::key(Qt::Key_Return);  // building, block, room, from, to
  EXPECT_EQ(label(form, "PnlPrev"), "2,400,000") << "Enter in the last box asks";
  form.resize(form.sizeHint());
  tests::grab(form, "frmEvaTotal");
  form.showPage("3");
  pc.prompts.expect("기간내의 검침자료가 없습니다!");
  press(form, "BtnRefresh");
}

TEST_F(EvaTotalForm, CollectionDaysAreAskedForWhenTickedAndTheTickStays) {
  session.CheckKind = HouseStyle::Apartment;
  {
    BriefForm form(idle.context, evaTotalBrief());
    tests::show(form);
    EXPECT_FALSE(part<QWidget>(form, "TxtDayFrom")->isVisible());
    press(form, "chkSuKum");
    EXPECT_TRUE(part<QWidget>(form, "TxtDayFrom")->isVisible());
    EXPECT_FALSE(part<QWidget>(form, "CboMonFrom")->isVisible());
    press(form, "BtnRefresh");
    EXPECT_EQ(label(form, "PnlPeriod"), "05/01 ~ 05/20");
    EXPECT_EQ(label(form, "PnlIncome"), "800,000") << "twenty times 40,000";
    tests::grab(form, "frmEvaTotal-collections");
  }
  BriefForm again(idle.context, evaTotalBrief());
  EXPECT_TRUE(part<QCheckBox>(again, "chkSuKum")->isChecked());
}

TEST_F(EvaTotalForm, F10ShowsThePaper) {
  session.CheckKind = HouseStyle::Apartment;
  const QString pictures = qEnvironmentVariable("HAEON_PICTURES");
  const QString file = pictures.isEmpty() ? pc.folder.filePath("total.pdf") : pictures + "/total.pdf";
  printers.askFile = [&](const QString&) { return file; };
  BriefForm form(idle.context, evaTotalBrief());
  tests::show(form);
  press(form, "BtnRefresh");
  tests::key(Qt::Key_F10);
  ASSERT_TRUE(viewer.window());
  EXPECT_EQ(viewer.window()->windowTitle(), "체적검침조회");
  press(*viewer.window(), "BtnPdf");
  EXPECT_GT(QFileInfo(file).size(), 1000);
  delete viewer.window();
}

}  // namespace
