// The window of the report forms: questions, pages, the way to the lines behind a row and back, the picture.
#include "briefs/form_brief.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>

#include "tests/briefs/brief_desk.h"
#include "tests/idle_context.h"
#include "tests/ui/grab.h"
#include "trade/briefs/trade_briefs.h"

using namespace Qt::StringLiterals;

namespace {

using tests::part;

struct BriefWindow : testing::Test, tests::BriefDesk {
  BriefWindow() {
    for (int day = 1; day <= 20; ++day)
      sale({.day = qPrintable(u"2026-03-%1"_s.arg(day, 2, 10, QChar('0'))),
            .client = 1 + day % 2,
            .pieces = day % 4 + 1,
            .income = 40000 * day,
            .trust = day % 3 ? 0 : 25000,
            .person = day % 2 ? "한기사" : "두기사"});
    sale({.day = "2026-01-15", .income = 700000});
  }
  static Spread* gridOf(BriefForm& form) {
    for (Spread* const grid : form.findChildren<Spread*>())
      if (grid->isVisible()) return grid;
    return nullptr;
  }
  static int pageOf(BriefForm& form) { return form.findChild<QTabBar*>()->currentIndex(); }

  tests::IdleContext idle{session};
  tests::IdlePickers& pickers = idle.pickers;
  QStringList& opened = idle.commands.asked;
};

TEST_F(BriefWindow, EnterOpensWhatIsBehindALineAndEscComesBackToIt) {
  BriefForm form(idle.context, lpgSaleBrief());
  form.showPage("month");
  tests::show(form);
  EXPECT_EQ(part<QComboBox>(form, "CboYear")->currentText(), "2026");
  EXPECT_FALSE(part<QWidget>(form, "CboMonth")->isVisible());
  EXPECT_FALSE(part<QWidget>(form, "TxtDayFrom")->isVisible());
  tests::key(Qt::Key_F5);
  EXPECT_EQ(gridOf(form)->model().MaxRows(), 13);
  EXPECT_TRUE(gridOf(form)->isAncestorOf(QApplication::focusWidget())) << "where the hand works";
  form.resize(1200, 620);
  tests::grab(form, "frmLPGSaleBrief-month");
  QApplication::processEvents();
  EXPECT_LT(gridOf(form)->width(), gridOf(form)->fullWidth() + 60)
      << "the picture has what the columns leave";
  gridOf(form)->setActiveCell(3, 4);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(pageOf(form), 1);
  EXPECT_EQ(part<QComboBox>(form, "CboMonth")->currentText(), "03월");
  EXPECT_EQ(gridOf(form)->model().text(20, 1), "03-20");
  tests::grab(form, "frmLPGSaleBrief-day");
  gridOf(form)->setActiveCell(2, 1);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(opened.last(), "frmSaleBrief:lines?TxtDayFrom=2026-03-02&TxtDayTo=2026-03-02");
  tests::key(Qt::Key_Escape);
  EXPECT_EQ(pageOf(form), 0);
  EXPECT_EQ(gridOf(form)->activeRow(), 3);
  EXPECT_EQ(gridOf(form)->activeCol(), 4);
  gridOf(form)->setActiveCell(13, 1);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(pageOf(form), 0) << "behind the sum stands nothing";
  tests::key(Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible()) << "nothing is left to go back to";
}

TEST_F(BriefWindow, APageTurnedByHandForgetsTheWayBack) {
  BriefForm form(idle.context, lpgSaleBrief());
  tests::show(form);
  tests::key(Qt::Key_F5);
  gridOf(form)->setActiveCell(3, 1);
  tests::key(Qt::Key_Return);
  form.findChild<QTabBar*>()->setCurrentIndex(2);
  part<QLineEdit>(form, "TxtName")->setText("하나");
  tests::press(form, "OptGubun1");
  tests::key(Qt::Key_F5);
  EXPECT_EQ(gridOf(form)->model().text(1, 1), "김하나");
  gridOf(form)->setActiveCell(1, 1);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(opened.last(), "frmAClientSaleBrief:lines?TxtClient=1&TxtDayFrom=2026-03-01&TxtDayTo=2026-03-31");
  tests::grab(form, "frmLPGSaleBrief-client");
  tests::key(Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
}

TEST_F(BriefWindow, OpensOnTheLinesItIsAskedFor) {
  BriefForm form(idle.context, clientSaleBrief());
  form.showPage("lines?TxtClient=1&TxtDayFrom=2026-03-01&TxtDayTo=2026-03-31");
  tests::show(form);
  EXPECT_EQ(part<QLineEdit>(form, "TxtClient")->text(), "김하나");
  EXPECT_EQ(gridOf(form)->model().MaxRows(), 11);
  // Another customer, by search: Enter on what is not chosen yet.
  auto* const client = part<QLineEdit>(form, "TxtClient");
  client->setFocus();
  client->setText("한빛");
  client->setCursorPosition(0);
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(client->text(), "빛") << "a name that is being typed loses one letter";
  client->setText("한빛");
  pickers.client = ClientChoice{2, "한빛 101동 202호"};
  tests::key(Qt::Key_Return);
  EXPECT_EQ(pickers.asked, QStringList{"한빛"});
  EXPECT_EQ(client->text(), "한빛 101동 202호");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(tests::focused(), "TxtDayFrom");
  tests::keys({Qt::Key_Return, Qt::Key_Return});
  EXPECT_EQ(gridOf(form)->model().MaxRows(), 11) << "Enter in the last box asks";
  tests::grab(form, "frmAClientSaleBrief");
}

TEST_F(BriefWindow, AWrongDayIsToldAndTheCursorStandsInIt) {
  BriefForm form(idle.context, saleBrief());
  tests::show(form);
  part<QLineEdit>(form, "TxtDayTo")->setText("2026-02-30");
  pc.prompts.expect("날짜 입력이 올바르지 않습니다!");
  tests::key(Qt::Key_F5);
  EXPECT_EQ(tests::focused(), "TxtDayTo");
  EXPECT_FALSE(form.findChild<QPushButton*>("BtnPrt")) << "printed by F10 alone";
  tests::key(Qt::Key_F10);
  EXPECT_EQ(staged("Str01"), QStringList{""}) << "an empty grid is one blank row";
  EXPECT_EQ(reports.asked.back().file, "전체판매현황.rpt");
}

TEST_F(BriefWindow, APersonIsChosenBySearchAndTakenAway) {
  BriefForm form(idle.context, resSaleBrief());
  form.showPage("person");
  tests::show(form);
  auto* const person = part<QLineEdit>(form, "TxtResponse");
  person->setFocus();
  pickers.person = "두기사";
  tests::key(Qt::Key_F12);
  EXPECT_EQ(person->text(), "두기사");
  tests::key(Qt::Key_F5);
  EXPECT_EQ(gridOf(form)->model().MaxRows(), 11);
  person->setFocus();
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(person->text(), "");
  form.showPage("total");
  tests::key(Qt::Key_F5);
  form.resize(1200, 620);
  tests::grab(form, "frmResSaleBrief-total");
  gridOf(form)->setActiveCell(2, 1);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(pageOf(form), 1);
  EXPECT_EQ(person->text(), "한기사");
  tests::key(Qt::Key_Escape);
  EXPECT_EQ(pageOf(form), 2);
  EXPECT_EQ(gridOf(form)->activeRow(), 2);
}

TEST_F(BriefWindow, ThePictureIsHiddenForGoodAndGoesOnThePaperWhenTicked) {
  {
    BriefForm form(idle.context, lpgSaleBrief());
    tests::show(form);
    tests::key(Qt::Key_F5);
    auto* const pane = part<QWidget>(form, "ChartPane");
    ASSERT_TRUE(pane && pane->isVisible());
    tests::key(Qt::Key_F10);
    EXPECT_TRUE(reports.asked.back().picture.isEmpty());
    tests::press(form, "ChkChart");
    tests::key(Qt::Key_F10);
    const QImage chart = QImage::fromData(reports.asked.back().picture);
    EXPECT_GT(chart.width(), 1000);
    const auto dots = [&chart](QColor colour, int fromY) {
      int count = 0;
      for (int x = 0; x < chart.width(); x += 5)
        for (int y = fromY; y < chart.height(); y += 5) count += chart.pixelColor(x, y) == colour;
      return count;
    };
    EXPECT_GT(dots({0x2B, 0x5F, 0x9E}, 0), 100) << "bars in the program's colour";
    EXPECT_GT(dots({0xC7, 0x7A, 0x1B}, chart.height() * 9 / 10), 2) << "down to the legend, nothing cut";
    if (const QString folder = qEnvironmentVariable("HAEON_PICTURES"); !folder.isEmpty())
      chart.save(folder + "/chart.png");
    tests::key(Qt::Key_F8);
    EXPECT_FALSE(pane->isVisible());
    tests::key(Qt::Key_F10);
    EXPECT_TRUE(reports.asked.back().picture.isEmpty()) << "what is hidden is not printed";
  }
  BriefForm again(idle.context, lpgSaleBrief());
  tests::show(again);
  EXPECT_FALSE(part<QWidget>(again, "ChartPane")->isVisible());
  EXPECT_TRUE(part<QCheckBox>(again, "ChkChart")->isChecked());
  tests::press(again, "BtnChart");
  EXPECT_TRUE(part<QWidget>(again, "ChartPane")->isVisible());
}

TEST_F(BriefWindow, EveryReportOpensAsksAndPrintsByKeys) {
  run("Update Client Set GasInit = 90000, UtilInit = 4000 Where Code = 1");
  sale({.day = "2026-03-05", .kind = 5, .pieces = 2});
  sale({.day = "2026-03-06", .kind = 7, .pieces = 1, .income = 4000, .item = "밸브", .size = "15A"});
  for (const char* const item :
       {"LPG(LPGName, Size) Values('LPG', '20')", "LPG(LPGName, Size) Values('LPG', '50')",
        "Util(Name, Size) Values('밸브', '15A')", "Util(Name, Size) Values('밸브', '20A')"})
    run(u"Insert Into "_s + item);
  for (const auto brief :
       {lpgSaleBrief, resSaleBrief, resUtilBrief, trustBrief, utilTrustBrief, canLpgBrief, canCompanyBrief,
        canResBrief, utilClientBrief, saleBrief, holdBrief, utilHoldBrief}) {
    BriefForm form(idle.context, brief());
    SCOPED_TRACE(brief().form.toStdString());
    tests::show(form);
    for (int page = 0; page < int(brief().pages.size()); ++page) {
      form.findChild<QTabBar*>()->setCurrentIndex(page);
      tests::key(Qt::Key_F5);
      tests::show(form);  // off-screen nothing brings the window back in front after a bar
      ASSERT_TRUE(gridOf(form));
      EXPECT_GT(gridOf(form)->model().MaxRows(), 1) << page;
      tests::key(Qt::Key_F10);
      EXPECT_EQ(reports.asked.back().file, brief().pages[size_t(page)].report);
    }
    tests::key(Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
  }
}

TEST_F(BriefWindow, APaperBeforeAnythingIsReadNamesWhatIsAskedFor) {
  BriefForm form(idle.context, canLpgBrief());
  tests::show(form);
  tests::key(Qt::Key_F10);
  EXPECT_EQ(reports.asked.back().formulas, QStringList("조회기간= '3월 1일 - 3월 31일'"));
}

TEST_F(BriefWindow, ACustomerStillToBeSearchedIsWhereTheHandGoesOn) {
  BriefForm form(idle.context, clientSaleBrief());
  tests::show(form);
  part<QLineEdit>(form, "TxtDayTo")->setFocus();
  pc.prompts.expect("조회할 고객을 먼저 검색하십시오!");
  tests::key(Qt::Key_F5);
  EXPECT_EQ(tests::focused(), "TxtClient");
}

TEST_F(BriefWindow, ALedgerAsksForItsDaysAlone) {
  BriefForm form(idle.context, saleLedgerBrief());
  tests::show(form);
  form.resize(form.sizeHint());
  tests::grab(form, "frmPrtSale");
  tests::key(Qt::Key_F10);
  EXPECT_EQ(reports.asked.back().file, "salegas.rpt");
  EXPECT_TRUE(reports.asked.back().selection.contains("'2026-03-31'"));
  part<QLineEdit>(form, "TxtDayFrom")->setText("2026-04-01");
  pc.prompts.expect("늦습니다");
  tests::key(Qt::Key_F10);
  EXPECT_EQ(reports.asked.size(), 1u);
}

}  // namespace
