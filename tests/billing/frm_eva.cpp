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

/** A test fills the book and opens the form. */
struct FrmEva : testing::Test, tests::MeterDesk {
  tests::IdlePickers pickers;
  EvaCommands commands;
  tests::IdleCalls calls;
  FormContext context{session, pickers, commands, calls};
  std::optional<frmEva> form;

  void open() {
    form.emplace(context);
    tests::show(*form);
    QApplication::processEvents();
  }
  template <class Control>
  Control* control(const char* name) {
    return form->findChild<Control*>(QString::fromUtf8(name));
  }
  Spread* grid() { return control<Spread>("SpEva"); }
  QString cell(int row, int col) { return form->readings().text(row, col); }
  QString at() { return u"%1,%2"_s.arg(grid()->activeRow()).arg(grid()->activeCol()); }
  QString label(const char* name) { return control<QLabel>(name)->text(); }
  QString day() { return control<QLineEdit>("TxtDay")->text(); }
  void click(const char* name) { control<QPushButton>(name)->click(); }
  void go(int row, int col) {
    grid()->setActiveCell(row, col);
    grid()->setFocus();
  }
  void choose(const char* name, int index) { control<QComboBox>(name)->setCurrentIndex(index); }
  void expectQuestion(bool yes = true) { pc.prompts.expect("선택된 자료를 수정하시겠습니까?", yes); }
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

TEST_F(FrmEva, AMonthOfReadingsIsOneNumberAndEnterAfterTheOther) {
  for (const char* name : {"가람식당", "나루분식", "다솜세탁"}) {
    const int code = customer(name, 1500);
    set(code, 2, u"UseGage = %1"_s.arg(code * 100));
  }
  set(1, 3, "Trust = 10000");
  open();
  EXPECT_EQ(form->windowTitle(), "체적검침 관리");
  EXPECT_EQ(control<QComboBox>("CboMon")->currentText(), "03");
  EXPECT_EQ(at() + ' ' + day(), "1,3 03/05");
  EXPECT_EQ(label("PnlHelp"), "현재달 이외의 검침량은 수정할 수 없습니다, 검침원 입력:F5");
  EXPECT_EQ(commands.status, " 상호/성명:가람식당   전화:053-1   주소:대구");
  EXPECT_EQ(label("PnlMan"), "체적단가 : 1,500원  검침원 : 미입력  수금원 : 미입력");

  enter("110.5");
  EXPECT_EQ(at(), "2,3");
  enter("200");
  enter("304");
  EXPECT_EQ(at(), "3,3");
  EXPECT_EQ(rows("Select UseGage, UseMuch, UsePay, Trust, Delay, Manage, Total, PrntDay From Evaporation "
                 "Where Mon = 3 Order By ClientCode"),
            "110.5|10.5|15750|10000|200|1000|26950|03/05;200|0|0|0|0|1000|1000|03/"
            "05;304|4|6000|0|0|1000|7000|03/05");
  EXPECT_EQ(rows("Select Trust From Evaporation Where Mon = 4 Order By ClientCode"), "26950;1000;7000");

  // Collections: money and Enter down the column, then the date, which goes on with the readings.
  go(1, EvaCol::Pay);
  enter("26950");
  EXPECT_EQ(at(), "2,10");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(at(), "3,10") << "Enter on an unchanged cell passes it over";
  go(1, EvaCol::TrustDay);
  enter("3/4");
  EXPECT_EQ(at() + ' ' + cell(1, EvaCol::TrustDay), "2,3 03/04");
  EXPECT_EQ(field("Total", 1, 3) + ' ' + field("Trust", 1, 4), "0 0");
  tests::grab(*form, "frmEva-individual");
}

TEST_F(FrmEva, EscNoAndRefusedMonthsKeepTheOldText) {
  customer("가람식당", 1500);
  customer("나루분식", 1500);
  open();
  tests::type("77");
  tests::key(Qt::Key_Escape);
  EXPECT_EQ(at() + ' ' + cell(1, EvaCol::UseGage), "1,3 0");
  expectQuestion(false);
  tests::enter("77");
  EXPECT_EQ(at() + ' ' + cell(1, EvaCol::UseGage), "1,3 0");
  EXPECT_FALSE(grid()->isEditing());

  choose("CboMon", 1);
  go(1, EvaCol::Pay);
  pc.prompts.expect("당월수금액에 대한 수정은 최근 1개월까지만 가능합니다");
  tests::enter("5");
  EXPECT_EQ(at() + ' ' + cell(1, EvaCol::Pay), "1,10 0");
  go(1, EvaCol::Total);
  tests::type("5");
  EXPECT_FALSE(grid()->isEditing()) << "the issued amount is locked";
  EXPECT_EQ(label("PnlHelp"), "발행금액 = 당월금액 + 미수금 + 연체료 + 안전관리비 - 당월수금");

  // An open cell that is refused keeps its month.
  go(1, EvaCol::TrustDay);
  tests::type("99");
  expectQuestion();
  pc.prompts.expect("날짜입력이 잘못되었습니다!");
  choose("CboMon", 2);
  EXPECT_EQ(control<QComboBox>("CboMon")->currentIndex(), 1);
}

TEST_F(FrmEva, MonthsOpeningEntryAndTheButtonOfNoReadings) {
  pc.pc.clock.set(QDate(2026, 12, 5).startOfDay());
  const int code = customer("가람식당", 1500);
  set(code, 10, "Total = 5000, UseGage = 50");
  open();
  auto* const noReading = control<QPushButton>("BtnNoEva");
  EXPECT_FALSE(noReading->isEnabled()) << "nothing comes after December";
  pc.prompts.expect("체적기초 입력시 주의사항!");
  choose("CboMon", 0);
  EXPECT_FALSE(noReading->isEnabled());
  go(1, EvaCol::Total);
  enter("9000");
  EXPECT_EQ(at(), "1,9");
  EXPECT_EQ(cell(1, EvaCol::Trust) + ' ' + cell(1, EvaCol::UseMuch), "9000 1");
  go(1, EvaCol::UseGage);
  tests::key(Qt::Key_F5);  // no box in the opening entry
  set(code, 10, "Total = 5000, UseGage = 50");

  choose("CboMon", 11);
  EXPECT_TRUE(noReading->isEnabled());
  pc.prompts.expect("11월 체적일반 고객의 검침을 미실시로 처리하시겠습니까?");
  pc.prompts.expect("11월의 체적검침을 미실시로 처리완료했습니다");
  click("BtnNoEva");
  EXPECT_EQ(cell(1, EvaCol::UseGage) + ' ' + cell(1, EvaCol::Trust), "50 5000");
  EXPECT_EQ(field("Trust", code, 12), "5000");
}

TEST_F(FrmEva, AMonthIsChosenByItsKeysWithoutATouchOnTheReadings) {
  customer("가람식당", 1500);
  open();
  auto* const months = control<QComboBox>("CboMon");
  months->setFocus();
  tests::type("02");
  EXPECT_EQ(months->currentText(), "02");
  EXPECT_FALSE(grid()->isEditing());
  tests::key(Qt::Key_Up);
  EXPECT_EQ(months->currentText() + ' ' + QString::number(form->readings().MaxRows()), "01 1");
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(grid()->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(FrmEva, BuildingsBlocksAndRooms) {
  // Two buildings of two blocks, three households each, read up to February.
  for (const char* dong : {"101", "102"})
    for (const char* building : {"한빛", "별빛"})
      for (const char* room : {"101", "9", "201"}) {
        const int code = customer(building, 2000, 1, building, dong, room);
        set(code, 2, u"UseGage = %1, Total = 10000"_s.arg(code * 100));
        set(code, 3, "Trust = 10000");
      }
  session.CheckKind = HouseStyle::Apartment;
  open();
  EXPECT_EQ(control<QTabBar>("TabEva")->currentIndex(), 1);
  EXPECT_EQ(form->readings().MaxRows(), 0) << "a building is chosen first";
  pc.prompts.expect("조회/입력할 건물을 선택하십시오");
  click("BtnRefresh");
  choose("CboBDName", 2);
  EXPECT_EQ(form->buildingEntry(), "한빛");
  click("BtnRefresh");
  EXPECT_EQ(form->readings().MaxRows(), 6);
  EXPECT_EQ(cell(1, EvaCol::Name) + ' ' + cell(2, EvaCol::Name), "101동 101호 101동 9호");
  QTest::mouseClick(control<QCheckBox>("chkOrdSEQ"), Qt::LeftButton, {}, {8, 8});
  EXPECT_EQ(cell(1, EvaCol::Name) + ' ' + cell(2, EvaCol::Name), "101동 9호 101동 101호")
      << "ordered anew at once";
  QTest::mouseClick(control<QCheckBox>("chkDongShow"), Qt::LeftButton, {}, {8, 8});
  EXPECT_EQ(form->readings().MaxRows(), 0);
  auto* const buildings = control<QComboBox>("CboBDName");
  EXPECT_EQ(buildings->currentIndex(), -1);
  EXPECT_EQ(buildings->itemText(4), "한빛 102");
  choose("CboBDName", 4);
  click("BtnRefresh");
  EXPECT_EQ(form->readings().MaxRows(), 3);
  go(1, EvaCol::UseGage);
  enter("805");
  EXPECT_EQ(cell(1, EvaCol::Total), "20950") << "5 at 2000 won, arrears, 1.5 of a hundred, 800";
  tests::grab(*form, "frmEva-apartment");

  const auto setting = [&](const char* key) {
    return pc.pc.settings.GetSetting("해온판매", "Config", QString::fromUtf8(key));
  };
  EXPECT_EQ(setting("체적검침정렬방식") + setting("체적검침동별보기"), "11");
  choose("CboMon", 2);
  EXPECT_EQ(form->readings().MaxRows(), 0) << "another month waits for its button";
  form->showPage("1");
  EXPECT_TRUE(buildings->isHidden());
  EXPECT_EQ(int(form->book()), 0);
}

TEST_F(FrmEva, ThePopupsCommandsWorkOnTheCursorsRow) {
  customer("가람식당", 1500);
  const int code = customer("나루분식", 1500);
  set(code, 2, "UseGage = 950");
  open();
  go(2, EvaCol::UseGage);
  enter("4");
  pc.prompts.expect("현재 커서가 있는 고객의 사용량을 직접 수정하시겠습니까?");
  pc.prompts.expectInput("변경할 사용량을 입력하세요.", "10");
  popup(1);
  EXPECT_EQ(cell(2, EvaCol::PrevUseGage) + ' ' + cell(2, EvaCol::Total), "-6 16000");
  set(code, 3, "Trust = 10000");
  click("BtnRefresh");
  pc.prompts.expect("미수금및 연체료를 재계산 하시겠습니까?");
  popup(2);
  EXPECT_EQ(cell(2, EvaCol::Total), "26200");
  pc.prompts.expect("당월 사용량을 클리어 하시겠습니까?");
  pc.prompts.expect("2건의 자료를 수정하였습니다.");
  popup(3);
  EXPECT_EQ(cell(2, EvaCol::UseMuch) + ' ' + cell(2, EvaCol::PrevUseGage), "0 950");
  popup(4);
  pc.prompts.expect("주의사항");
  choose("CboMon", 0);
  grid()->menuAsked({});
  EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_F(FrmEva, PeopleTickAndDaysAreStoredFromTheGrid) {
  const int code = customer("가람식당", 1500);
  customer("나루분식", 1500);
  set(code, 3, "Pay = 5000, Total = 0, PrntDay = '03/02'");
  open();
  EXPECT_EQ(day(), "03/05") << "loading takes nobody's day";
  pc.prompts.expectInput("검침담당", "홍길동");
  tests::key(Qt::Key_F5);
  EXPECT_EQ(label("PnlMan"), "체적단가 : 1,500원  검침원 : 홍길동  수금원 : 미입력");
  go(1, EvaCol::PayDelayed);
  tests::key(Qt::Key_Space);
  EXPECT_EQ(cell(1, EvaCol::PayDelayed) + ' ' + field("paydelayed", code, 3), "1 -1");
  go(2, EvaCol::PayDelayed);
  pc.prompts.expect("납기후에 수금한 경우 다음달에 연체료를 청구하기 위한 선택사항 입니다.");
  tests::key(Qt::Key_Space);
  EXPECT_EQ(cell(2, EvaCol::PayDelayed), "0");
  go(2, EvaCol::Prnt);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(at(), "2,12");
  go(1, EvaCol::UseGage);
  EXPECT_EQ(day(), "03/02 ");

  auto* const dayBox = control<QLineEdit>("TxtDay");
  dayBox->setFocus();
  EXPECT_EQ(label("PnlHelp"), "검침일자를 입력/수정합니다");
  EXPECT_EQ(label("PnlMan"), "") << "leaving the grid clears its panels";
  dayBox->selectAll();
  tests::enter("3.9");
  QApplication::processEvents();
  EXPECT_EQ(day(), "03/09");
  EXPECT_EQ(label("PnlMan"), "체적단가 : 1,500원  검침원 : 홍길동  수금원 : 미입력");
  pc.prompts.expectInput("검침담당", "홍길동");
  tests::key(Qt::Key_F5);
  EXPECT_EQ(day(), "03/09") << "a name leaves the day that was typed";
  enter("4");
  EXPECT_EQ(field("PrntDay", code, 3), "03/09");

  go(1, EvaCol::PayDelayed);
  run("Drop Table Evaporation");
  pc.prompts.expect(") in procedure SpEva_ButtonClicked of Form frmEva");
  tests::key(Qt::Key_Space);
  form->close();
  EXPECT_EQ(commands.status, "");
}

TEST_F(FrmEva, WhatStandsOutIsCountedAndOneKeyGoesToTheNext) {
  for (const char* name : {"가람식당", "나루분식", "다솔집", "라온집"}) customer(name, 1500);
  for (int code = 1; code <= 4; ++code) {
    set(code, 1, "UseGage = 90, UseMuch = 10");
    set(code, 2, "UseGage = 100, UseMuch = 10");
  }
  open();
  EXPECT_EQ(label("PnlMarks"), "□ 미검침 4");
  EXPECT_EQ(label("PnlUse"), "전월 사용 : 10   예상 : 10 (최근 석 달 평균)   이번 : □ 미검침");
  enter("131");
  enter("109");
  enter("95");
  EXPECT_EQ(label("PnlMarks"), "□ 미검침 1   ◀ 역회전 1   ▲ 많음 1");
  tests::grab(*form, "frmEva-marks");
  EXPECT_EQ(at(), "4,3");
  tests::key(Qt::Key_F8);
  EXPECT_EQ(at(), "1,3");
  tests::key(Qt::Key_F8);
  EXPECT_EQ(at(), "3,3") << "the good one is passed";
  tests::key(Qt::Key_F8, Qt::ShiftModifier);
  EXPECT_EQ(at(), "1,3");
  tests::key(Qt::Key_F8);
  expectQuestion();
  tests::type("108");
  tests::key(Qt::Key_F8);
  EXPECT_EQ(at(), "4,3") << "the open cell is taken, and the way goes on from it";
  EXPECT_EQ(cell(3, EvaCol::UseMuch) + ' ' + cell(3, EvaCol::Judgement), "8 ");
  control<QComboBox>("CboMon")->setFocus();
  tests::key(Qt::Key_F8);
  EXPECT_EQ(at(), "1,3") << "from every control";
  EXPECT_TRUE(grid()->isAncestorOf(QApplication::focusWidget()));
  pc.prompts.expect("엑셀로 자료를 내보내기 하시겠습니까?");
  QStringList opened;
  pc.pc.process.setStarter([&](const QString&, const QStringList& files, const QString&) {
    opened << files;
    return true;
  });
  click("BtnExcel");
  EXPECT_EQ(opened.size(), 1);
  pc.prompts.expect("주의사항");
  choose("CboMon", 0);
  EXPECT_EQ(label("PnlMarks") + label("PnlUse"), "");
}

TEST_F(FrmEva, EachGiroButtonOpensItsForm) {
  basic("Delete * From User");
  pc.prompts.expect("연체료 및 안전관리비에 대한 기본설정이 되어 있지 않습니다!");
  open();
  EXPECT_EQ(session.rates.of(HouseStyle::Individual).rate, 0);
  for (const char* name : {"BtnOCR", "BtnOCR4", "BtnMicr", "BtnJiro", "BtnOrgJiro", "BtnA4"}) click(name);
  EXPECT_EQ(commands.asked, QStringList({"frmPrtJiroOCR:continuous", "frmPrtJiroOCR:a4", "frmPrtMicr",
                                         "frmPrtJiro", "frmPrtJiroOrg", "frmPrtJiroOrgA4"}));
}

}  // namespace
