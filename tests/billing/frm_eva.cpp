// The reading screen played by keys on the real form.
#include "billing/frmEva.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTimer>

#include "tests/billing/meter_desk.h"
#include "tests/idle_context.h"
#include "tests/ui/grab.h"

using namespace Qt::StringLiterals;

namespace {

/** The status line is remembered. */
struct EvaCommands : tests::IdleCommands {
  QString status;
  void showStatus(const QString& text) override { status = text; }
};

struct Screen {
  tests::MeterDesk& desk;
  tests::IdlePickers pickers;
  EvaCommands commands;
  tests::IdleCalls calls;
  FormContext context{desk.session, pickers, commands, calls};
  frmEva form{context};

  explicit Screen(tests::MeterDesk& of) : desk(of) {
    tests::show(form);
    QApplication::processEvents();
  }
  template <class Control>
  Control* control(const char* name) {
    return form.findChild<Control*>(QString::fromUtf8(name));
  }
  Spread* grid() { return control<Spread>("SpEva"); }
  QString cell(int row, int col) { return form.readings().text(row, col); }
  QString at() { return u"%1,%2"_s.arg(grid()->activeRow()).arg(grid()->activeCol()); }
  QString label(const char* name) { return control<QLabel>(name)->text(); }
  QString day() { return control<QLineEdit>("TxtDay")->text(); }
  void click(const char* name) { control<QPushButton>(name)->click(); }
  void go(int row, int col) {
    grid()->setActiveCell(row, col);
    grid()->setFocus();
  }
  void choose(const char* name, int index) { control<QComboBox>(name)->setCurrentIndex(index); }
  void expectQuestion(bool yes = true) { desk.pc.prompts.expect("선택된 자료를 수정하시겠습니까?", yes); }
  /** A text typed into the current cell, Enter, and Yes to the question. */
  void enter(const char* text) {
    expectQuestion();
    tests::enter(text);
  }
  /** The popup of the right button: so many steps down, then Enter. */
  void popup(int steps) {
    bool came = false;
    QTimer::singleShot(0, [&] {
      QWidget* const menu = QApplication::activePopupWidget();
      if (!menu) return;
      came = true;
      for (int step = 0; step < steps; ++step) QTest::keyClick(menu, Qt::Key_Down);
      QTest::keyClick(menu, Qt::Key_Return);
    });
    grid()->menuAsked(grid()->mapToGlobal(QPoint(50, 60)));
    EXPECT_TRUE(came);
  }
};

/** Two buildings of two blocks, three households each, read up to February. */
void fillEstate(tests::MeterDesk& desk) {
  for (const char* dong : {"101", "102"})
    for (const char* building : {"한빛", "별빛"})
      for (const char* room : {"101", "9", "201"}) {
        const int code =
            desk.customer(u"%1 %2동 %3호"_s.arg(building, dong, room), 2000, 1, building, dong, room);
        desk.set(code, 2, u"UseGage = %1, Total = 10000"_s.arg(code * 100));
        desk.set(code, 3, "Trust = 10000");
      }
}

TEST(FrmEva, AMonthOfReadingsIsOneNumberAndEnterAfterTheOther) {
  tests::MeterDesk desk;
  for (const char* name : {"가람식당", "나루분식", "다솜세탁"}) {
    const int code = desk.customer(name, 1500);
    desk.set(code, 2, u"UseGage = %1"_s.arg(code * 100));
  }
  desk.set(1, 3, "Trust = 10000");
  Screen screen(desk);
  EXPECT_EQ(screen.form.windowTitle(), "체적검침 관리");
  EXPECT_EQ(screen.control<QComboBox>("CboMon")->currentText(), "03");
  EXPECT_EQ(screen.at() + ' ' + screen.day(), "1,3 03/05");
  EXPECT_EQ(screen.label("PnlHelp"), "현재달 이외의 검침량은 수정할 수 없습니다, 검침원 입력:F5");
  EXPECT_EQ(screen.commands.status, " 상호/성명:가람식당   전화:053-1   주소:대구");
  EXPECT_EQ(screen.label("PnlMan"), "체적단가 : 1,500원  검침원 : 미입력  수금원 : 미입력");

  screen.enter("110.5");
  EXPECT_EQ(screen.at(), "2,3");
  screen.enter("200");
  screen.enter("304");
  EXPECT_EQ(screen.at(), "3,3");
  EXPECT_EQ(
      desk.rows("Select UseGage, UseMuch, UsePay, Trust, Delay, Manage, Total, PrntDay From Evaporation "
                "Where Mon = 3 Order By ClientCode"),
      "110.5|10.5|15750|10000|200|1000|26950|03/05;200|0|0|0|0|1000|1000|03/05;"
      "304|4|6000|0|0|1000|7000|03/05");
  EXPECT_EQ(desk.rows("Select Trust From Evaporation Where Mon = 4 Order By ClientCode"), "26950;1000;7000");

  // Collections: money and Enter down the column, then the date, which goes on with the readings.
  screen.go(1, EvaCol::Pay);
  screen.enter("26950");
  EXPECT_EQ(screen.at(), "2,10");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(screen.at(), "3,10") << "Enter on an unchanged cell passes it over";
  screen.go(1, EvaCol::TrustDay);
  screen.enter("3/4");
  EXPECT_EQ(screen.at() + ' ' + screen.cell(1, EvaCol::TrustDay), "2,3 03/04");
  EXPECT_EQ(desk.field("Total", 1, 3) + ' ' + desk.field("Trust", 1, 4), "0 0");
  tests::grab(screen.form, "frmEva-individual");
}

TEST(FrmEva, EscNoAndRefusedMonthsKeepTheOldText) {
  tests::MeterDesk desk;
  desk.customer("가람식당", 1500);
  desk.customer("나루분식", 1500);
  Screen screen(desk);
  tests::type("77");
  tests::key(Qt::Key_Escape);
  EXPECT_EQ(screen.at() + ' ' + screen.cell(1, EvaCol::UseGage), "1,3 0");
  screen.expectQuestion(false);
  tests::enter("77");
  EXPECT_EQ(screen.at() + ' ' + screen.cell(1, EvaCol::UseGage), "1,3 0");
  EXPECT_FALSE(screen.grid()->isEditing());

  screen.choose("CboMon", 1);
  screen.go(1, EvaCol::Pay);
  desk.pc.prompts.expect("당월수금액에 대한 수정은 최근 1개월까지만 가능합니다");
  tests::enter("5");
  EXPECT_EQ(screen.at() + ' ' + screen.cell(1, EvaCol::Pay), "1,10 0");
  screen.go(1, EvaCol::Total);
  tests::type("5");
  EXPECT_FALSE(screen.grid()->isEditing()) << "the issued amount is locked";
  EXPECT_EQ(screen.label("PnlHelp"), "발행금액 = 당월금액 + 미수금 + 연체료 + 안전관리비 - 당월수금");

  // An open cell that is refused keeps its month.
  screen.go(1, EvaCol::TrustDay);
  tests::type("99");
  screen.expectQuestion();
  desk.pc.prompts.expect("날짜입력이 잘못되었습니다!");
  screen.choose("CboMon", 2);
  EXPECT_EQ(screen.control<QComboBox>("CboMon")->currentIndex(), 1);
}

TEST(FrmEva, MonthsOpeningEntryAndTheButtonOfNoReadings) {
  tests::MeterDesk desk({2026, 12, 5});
  const int code = desk.customer("가람식당", 1500);
  desk.set(code, 10, "Total = 5000, UseGage = 50");
  Screen screen(desk);
  auto* const noReading = screen.control<QPushButton>("BtnNoEva");
  EXPECT_FALSE(noReading->isEnabled()) << "nothing comes after December";
  desk.pc.prompts.expect("체적기초 입력시 주의사항!");
  screen.choose("CboMon", 0);
  EXPECT_FALSE(noReading->isEnabled());
  screen.go(1, EvaCol::Total);
  screen.enter("9000");
  EXPECT_EQ(screen.at(), "1,9");
  EXPECT_EQ(screen.cell(1, EvaCol::Trust) + ' ' + screen.cell(1, EvaCol::UseMuch), "9000 1");
  screen.go(1, EvaCol::UseGage);
  tests::key(Qt::Key_F5);  // no box in the opening entry
  desk.set(code, 10, "Total = 5000, UseGage = 50");

  screen.choose("CboMon", 11);
  EXPECT_TRUE(noReading->isEnabled());
  desk.pc.prompts.expect("11월 체적일반 고객의 검침을 미실시로 처리하시겠습니까?");
  desk.pc.prompts.expect("11월의 체적검침을 미실시로 처리완료했습니다");
  screen.click("BtnNoEva");
  EXPECT_EQ(screen.cell(1, EvaCol::UseGage) + ' ' + screen.cell(1, EvaCol::Trust), "50 5000");
  EXPECT_EQ(desk.field("Trust", code, 12), "5000");
}

TEST(FrmEva, BuildingsBlocksAndRooms) {
  tests::MeterDesk desk;
  fillEstate(desk);
  desk.session.CheckKind = HouseStyle::Apartment;
  Screen screen(desk);
  EXPECT_EQ(screen.control<QTabBar>("TabEva")->currentIndex(), 1);
  EXPECT_EQ(screen.form.readings().MaxRows(), 0) << "a building is chosen first";
  desk.pc.prompts.expect("조회/입력할 건물을 선택하십시오");
  screen.click("BtnRefresh");
  screen.choose("CboBDName", 2);
  EXPECT_EQ(screen.form.buildingEntry(), "한빛");
  screen.click("BtnRefresh");
  EXPECT_EQ(screen.form.readings().MaxRows(), 6);
  EXPECT_EQ(screen.cell(1, EvaCol::Name) + ' ' + screen.cell(2, EvaCol::Name), "101동 101호 101동 9호");
  QTest::mouseClick(screen.control<QCheckBox>("chkOrdSEQ"), Qt::LeftButton, {}, {8, 8});
  EXPECT_EQ(screen.cell(1, EvaCol::Name) + ' ' + screen.cell(2, EvaCol::Name), "101동 9호 101동 101호")
      << "ordered anew at once";
  QTest::mouseClick(screen.control<QCheckBox>("chkDongShow"), Qt::LeftButton, {}, {8, 8});
  EXPECT_EQ(screen.form.readings().MaxRows(), 0);
  auto* const buildings = screen.control<QComboBox>("CboBDName");
  EXPECT_EQ(buildings->currentIndex(), -1);
  EXPECT_EQ(buildings->itemText(4), "한빛 102");
  screen.choose("CboBDName", 4);
  screen.click("BtnRefresh");
  EXPECT_EQ(screen.form.readings().MaxRows(), 3);
  screen.go(1, EvaCol::UseGage);
  screen.enter("805");
  EXPECT_EQ(screen.cell(1, EvaCol::Total), "20950") << "5 at 2000 won, arrears, 1.5 of a hundred, 800";
  tests::grab(screen.form, "frmEva-apartment");

  const auto setting = [&](const char* key) {
    return desk.pc.pc.settings.GetSetting("해온판매", "Config", QString::fromUtf8(key));
  };
  EXPECT_EQ(setting("체적검침정렬방식") + setting("체적검침동별보기"), "11");
  screen.choose("CboMon", 2);
  EXPECT_EQ(screen.form.readings().MaxRows(), 0) << "another month waits for its button";
  screen.form.showPage("1");
  EXPECT_TRUE(buildings->isHidden());
  EXPECT_EQ(int(screen.form.book()), 0);
}

TEST(FrmEva, ThePopupsCommandsWorkOnTheCursorsRow) {
  tests::MeterDesk desk;
  desk.customer("가람식당", 1500);
  const int code = desk.customer("나루분식", 1500);
  desk.set(code, 2, "UseGage = 950");
  Screen screen(desk);
  screen.go(2, EvaCol::UseGage);
  screen.enter("4");
  desk.pc.prompts.expect("현재 커서가 있는 고객의 사용량을 직접 수정하시겠습니까?");
  desk.pc.prompts.expectInput("변경할 사용량을 입력하세요.", "10");
  screen.popup(1);
  EXPECT_EQ(screen.cell(2, EvaCol::PrevUseGage) + ' ' + screen.cell(2, EvaCol::Total), "-6 16000");
  desk.set(code, 3, "Trust = 10000");
  screen.click("BtnRefresh");
  desk.pc.prompts.expect("미수금및 연체료를 재계산 하시겠습니까?");
  screen.popup(2);
  EXPECT_EQ(screen.cell(2, EvaCol::Total), "26200");
  desk.pc.prompts.expect("당월 사용량을 클리어 하시겠습니까?");
  desk.pc.prompts.expect("2건의 자료를 수정하였습니다.");
  screen.popup(3);
  EXPECT_EQ(screen.cell(2, EvaCol::UseMuch) + ' ' + screen.cell(2, EvaCol::PrevUseGage), "0 950");
  screen.popup(4);
  desk.pc.prompts.expect("주의사항");
  screen.choose("CboMon", 0);
  screen.grid()->menuAsked({});
  EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST(FrmEva, PeopleTickAndDaysAreStoredFromTheGrid) {
  tests::MeterDesk desk;
  const int code = desk.customer("가람식당", 1500);
  desk.customer("나루분식", 1500);
  desk.set(code, 3, "Pay = 5000, Total = 0, PrntDay = '03/02'");
  Screen screen(desk);
  EXPECT_EQ(screen.day(), "03/05") << "loading takes nobody's day";
  desk.pc.prompts.expectInput("검침담당", "홍길동");
  tests::key(Qt::Key_F5);
  EXPECT_EQ(screen.label("PnlMan"), "체적단가 : 1,500원  검침원 : 홍길동  수금원 : 미입력");
  screen.go(1, EvaCol::PayDelayed);
  tests::key(Qt::Key_Space);
  EXPECT_EQ(screen.cell(1, EvaCol::PayDelayed) + ' ' + desk.field("paydelayed", code, 3), "1 -1");
  screen.go(2, EvaCol::PayDelayed);
  desk.pc.prompts.expect("납기후에 수금한 경우 다음달에 연체료를 청구하기 위한 선택사항 입니다.");
  tests::key(Qt::Key_Space);
  EXPECT_EQ(screen.cell(2, EvaCol::PayDelayed), "0");
  screen.go(2, EvaCol::Prnt);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(screen.at(), "2,12");
  screen.go(1, EvaCol::UseGage);
  EXPECT_EQ(screen.day(), "03/02 ");

  auto* const day = screen.control<QLineEdit>("TxtDay");
  day->setFocus();
  EXPECT_EQ(screen.label("PnlHelp"), "검침일자를 입력/수정합니다");
  EXPECT_EQ(screen.label("PnlMan"), "") << "leaving the grid clears its panels";
  day->selectAll();
  tests::enter("3.9");
  QApplication::processEvents();
  EXPECT_EQ(screen.day(), "03/09");
  EXPECT_EQ(screen.label("PnlMan"), "체적단가 : 1,500원  검침원 : 홍길동  수금원 : 미입력");
  screen.enter("4");
  EXPECT_EQ(desk.field("PrntDay", code, 3), "03/09");

  screen.go(1, EvaCol::PayDelayed);
  desk.run("Drop Table Evaporation");
  desk.pc.prompts.expect(") in procedure SpEva_ButtonClicked of Form frmEva");
  tests::key(Qt::Key_Space);
  screen.form.close();
  EXPECT_EQ(screen.commands.status, "");
}

TEST(FrmEva, WhatStandsOutIsCountedAndOneKeyGoesToTheNext) {
  tests::MeterDesk desk;
  for (const char* name : {"가람식당", "나루분식", "다솔집", "라온집"}) desk.customer(name, 1500);
  for (int code = 1; code <= 4; ++code) {
    desk.set(code, 1, "UseGage = 90, UseMuch = 10");
    desk.set(code, 2, "UseGage = 100, UseMuch = 10");
  }
  Screen screen(desk);
  EXPECT_EQ(screen.label("PnlMarks"), "□ 미검침 4");
  EXPECT_EQ(screen.label("PnlUse"), "전월 사용 : 10   예상 : 10 (최근 석 달 평균)   이번 : □ 미검침");
  screen.enter("131");
  screen.enter("109");
  screen.enter("95");
  EXPECT_EQ(screen.label("PnlMarks"), "□ 미검침 1   ◀ 역회전 1   ▲ 많음 1");
  tests::grab(screen.form, "frmEva-marks");
  EXPECT_EQ(screen.at(), "4,3");
  tests::key(Qt::Key_F8);
  EXPECT_EQ(screen.at(), "1,3");
  tests::key(Qt::Key_F8);
  EXPECT_EQ(screen.at(), "3,3") << "the good one is passed";
  tests::key(Qt::Key_F8, Qt::ShiftModifier);
  EXPECT_EQ(screen.at(), "1,3");
  tests::key(Qt::Key_F8);
  screen.expectQuestion();
  tests::type("108");
  tests::key(Qt::Key_F8);
  EXPECT_EQ(screen.at(), "4,3") << "the open cell is taken, and the way goes on from it";
  EXPECT_EQ(screen.cell(3, EvaCol::UseMuch) + ' ' + screen.cell(3, EvaCol::Judgement), "8 ");
  screen.control<QComboBox>("CboMon")->setFocus();
  tests::key(Qt::Key_F8);
  EXPECT_EQ(screen.at(), "1,3") << "from every control";
  EXPECT_TRUE(screen.grid()->isAncestorOf(QApplication::focusWidget()));
  desk.pc.prompts.expect("엑셀로 자료를 내보내기 하시겠습니까?");
  QStringList opened;
  desk.pc.pc.process.setStarter([&](const QString&, const QStringList& files, const QString&) {
    opened << files;
    return true;
  });
  screen.click("BtnExcel");
  EXPECT_EQ(opened.size(), 1);
  desk.pc.prompts.expect("주의사항");
  screen.choose("CboMon", 0);
  EXPECT_EQ(screen.label("PnlMarks") + screen.label("PnlUse"), "");
}

TEST(FrmEva, EachGiroButtonOpensItsForm) {
  tests::MeterDesk desk;
  desk.basic("Delete * From User");
  desk.pc.prompts.expect("연체료 및 안전관리비에 대한 기본설정이 되어 있지 않습니다!");
  Screen screen(desk);
  EXPECT_EQ(desk.session.rates.of(HouseStyle::Individual).rate, 0);
  for (const char* name : {"BtnOCR", "BtnOCR4", "BtnMicr", "BtnJiro", "BtnOrgJiro", "BtnA4"})
    screen.click(name);
  EXPECT_EQ(screen.commands.asked, QStringList({"frmPrtJiroOCR:continuous", "frmPrtJiroOCR:a4", "frmPrtMicr",
                                                "frmPrtJiro", "frmPrtJiroOrg", "frmPrtJiroOrgA4"}));
}

}  // namespace
