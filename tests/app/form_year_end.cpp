// The commands around a year's end on the real main window: by the menu, by keys, with the forms that stand open.
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMdiArea>
#include <QPushButton>
#include <QTimer>

#include "app/FrmYearEnd.h"
#include "app/frmChangeYear.h"
#include "app/frmMain.h"
#include "tests/idle_context.h"
#include "tests/store/closing_desk.h"
#include "tests/ui/grab.h"
#include "tests/ui/modal.h"
#include "ui/grid/spread.h"

namespace {

struct YearEndForms : testing::Test, tests::ClosingDesk {
  tests::IdlePickers pickers;
  std::unique_ptr<frmMain> window = std::make_unique<frmMain>(session, pickers);

  YearEndForms() { tests::show(*window); }

  static QString shownIn(const QDialog& dialog, const char* label) {
    const auto* const found = dialog.findChild<QLabel*>(label);
    return found ? found->text() : QString();
  }
  qsizetype children() const { return window->findChild<QMdiArea*>()->subWindowList().size(); }
};

TEST_F(YearEndForms, AClosingIsReadAskedAndDone) {
  ASSERT_TRUE(window->run("MnuClient"));
  ASSERT_EQ(children(), 1);
  tests::whenModal<FrmYearEnd>([&](QDialog& dialog) {
    EXPECT_EQ(children(), 0) << "a form would go on with the old year's rows";
    EXPECT_TRUE(shownIn(dialog, "LblHead").contains("2027년 1월에 넘어갈 미수: 3명, 42,300원"));
    EXPECT_EQ(shownIn(dialog, "LblWarning"), "");
    const SpreadModel& lines = dialog.findChild<Spread*>()->model();
    EXPECT_EQ(lines.MaxRows(), 4);
    EXPECT_EQ(lines.text(1, 2), "한빛식당");
    EXPECT_EQ(lines.text(1, 5), "35,500");
    EXPECT_EQ(lines.text(3, 6), "더 낸 금액");
    tests::grab(dialog, "FrmYearEnd");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
  });
  pc.prompts.expect("넘기시겠습니까?");
  pc.prompts.expect("완료되었습니다");
  EXPECT_TRUE(window->run("MnuYearToYear"));
  EXPECT_EQ(rowsIn(2027, "Select Trust From Evaporation Where Mon = 1 And ClientCode = 1"), "35500");
}

TEST_F(YearEndForms, WorkThatWouldBeLostIsShownAndEnterLeaves) {
  closeWell();
  year(2027).Execute("Insert Into Sale(SaleDate, ClientCode, SaleGubun) Values('2027-01-04', 1, 1)");
  year(2027).Execute("Update Evaporation Set UseMuch = 16, Pay = 20000 Where Mon = 1 And ClientCode = 1");
  tests::whenModal<FrmYearEnd>([&](QDialog& dialog) {
    const QString warning = shownIn(dialog, "LblWarning");
    EXPECT_TRUE(warning.contains("판매 1건, 검침·수금 1건 (수금 20,000원)")) << warning.toStdString();
    tests::grab(dialog, "FrmYearEnd-lost");
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
  });
  EXPECT_TRUE(window->run("MnuYearToYear"));
  EXPECT_EQ(rowsIn(2027, "Select Count(SaleID) From Sale Where SaleDate >= '2027'"), "1");
}

TEST_F(YearEndForms, WhatDiffersIsShownAndCanBePutBack) {
  closeWell();
  year(2027).Execute("Insert Into Sale(SaleDate, ClientCode, SaleGubun) Values('2027-01-04', 1, 1)");
  run("Delete * From Evaporation Where Mon = 1 And ClientCode = 1");
  tests::whenModal<FrmYearEnd>([&](QDialog& dialog) {
    EXPECT_EQ(dialog.findChild<Spread*>()->model().text(1, 6), "1월 행이 없어 넘어가지 않음");
    tests::press(dialog, "BtnYes");
    tests::whenModal<FrmYearEnd>([&](QDialog& after) {
      EXPECT_TRUE(shownIn(after, "LblHead").contains("고객 4명 중 다른 고객: 1명"));
      EXPECT_TRUE(shownIn(after, "LblWarning").contains("2027Foundation-20261231-"));
      EXPECT_EQ(after.findChild<Spread*>()->model().text(1, 3), "35,500");
      tests::grab(after, "FrmYearEnd-differs");
      tests::press(after, "BtnYes");
    });
  });
  pc.prompts.expect("넘기시겠습니까?");
  pc.prompts.expect("마감하기 전의 자료로 되돌렸습니다.");
  EXPECT_TRUE(window->run("MnuYearToYear"));
  EXPECT_EQ(rowsIn(2027, "Select Count(SaleID) From Sale Where SaleDate >= '2027'"), "1");
}

TEST_F(YearEndForms, TheProgressWindowTellsItsText) {
  bool seen = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    QWidget* const bar = window->findChild<QWidget*>("frmNextYear");
    if (!bar || seen) return;
    seen = true;
    EXPECT_TRUE(
        bar->findChild<QLabel*>("SSPanel1")->text().startsWith("전년도의 체적검침 자료 재이월 중..."));
    EXPECT_TRUE(bar->findChild<QWidget*>("BarPcnt"));
    tests::grab(*bar, "frmNextYear");
  });
  watch.start(0);
  closeWell();
  pc.pc.clock.set(QDateTime(QDate(2027, 1, 8), QTime(9, 0)));
  set(1, 12, "Total = 30500");
  pc.prompts.expect("다시 이월하시겠습니까?");
  pc.prompts.expect("체적검침 재이월이 완료되었습니다.");
  EXPECT_TRUE(window->run("MnuReIwol"));
  EXPECT_TRUE(seen);
  EXPECT_FALSE(window->findChild<QWidget*>("frmNextYear")) << "it goes with the command";
  EXPECT_FALSE(QApplication::overrideCursor()) << "the pointer is no longer busy";
  EXPECT_EQ(rowsIn(2027, "Select Trust From Evaporation Where Mon = 1 And ClientCode = 1"), "30500");
}

TEST_F(YearEndForms, AnotherYearIsChosenAndTheClockGoesAlong) {
  closeWell();
  const auto choose = [](const QString& year, auto check) {
    tests::whenModal<frmChangeYear>([=](QDialog& dialog) {
      auto* const box = dialog.findChild<QComboBox*>("CmbYY");
      check(*box);
      box->setCurrentText(year);
      QTest::keyClick(box, Qt::Key_Return);
      dialog.reject();
    });
  };
  {
    choose("2027", [](QComboBox& box) {
      EXPECT_EQ(box.count(), 11);
      EXPECT_EQ(box.itemText(0), "2021");
      EXPECT_EQ(box.itemText(10), "2031");
      EXPECT_EQ(box.currentText(), "2026");
      tests::grab(*box.window(), "frmChangeYear");
    });
    pc.prompts.expect("작업년도가 변경되었습니다.");
    EXPECT_TRUE(window->run("mnu_changeYear"));
  }
  EXPECT_EQ(pc.pc.clock.today(), QDate(2027, 12, 31));
  EXPECT_EQ(field("Trust", owes, 1), "35500") << "dbYear is the chosen year's";
  EXPECT_EQ(session.WorkYear, "2026");
  ASSERT_TRUE(window->openForm("frmLPGSaleBrief:month"));
  EXPECT_EQ(window->findChild<QComboBox*>("CboYear")->currentText(), "2027") << "the year that is worked in";
  {
    choose("2030", [](QComboBox&) {});
    pc.prompts.expect("3024");
    EXPECT_TRUE(window->run("mnu_changeYear"));
  }
  EXPECT_EQ(pc.pc.clock.today(), QDate(2027, 12, 31)) << "a year without a file changes nothing";
  EXPECT_EQ(field("Trust", owes, 1), "35500");
  // Kept: the year of the start is the one that is closed.
  goesOn = false;
  close();
  EXPECT_EQ(shown->year, 2026);
}

TEST_F(YearEndForms, TheLastOfFebruaryIsADayInEveryYear) {
  closeWell();
  pc.pc.clock.set(QDateTime(QDate(2028, 2, 29), QTime(9, 0)));
  tests::whenModal<frmChangeYear>([](QDialog& dialog) {
    dialog.findChild<QComboBox*>("CmbYY")->setCurrentText("2027");
    dialog.findChild<QPushButton*>("BtnOk")->click();
  });
  pc.prompts.expect("작업년도가 변경되었습니다.");
  EXPECT_TRUE(window->run("mnu_changeYear"));
  EXPECT_EQ(pc.pc.clock.today(), QDate(2027, 2, 28));
}

}  // namespace
