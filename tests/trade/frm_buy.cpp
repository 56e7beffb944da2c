// The purchase screen by keys, with the real searches.
#include "trade/frmBuy.h"

#include <QLabel>
#include <QTest>

#include "tests/trade/buy_desk.h"
#include "tests/trade/key_screen.h"
#include "ui/forms/boxes.h"

namespace {

struct FrmBuy : tests::KeyScreen<tests::BuyDesk, frmBuy> {
  FrmBuy() {
    run("Update LPG Set LPGPurchase = 21000");
    open();
    grid()->setFocus();
  }
  Spread* grid() { return form->findChild<Spread*>("SpBuy"); }
  QString label(const char* name) { return form->findChild<QLabel*>(name)->text(); }
  QString place() {
    return QString::number(grid()->activeRow()) + ':' + QString::number(grid()->activeCol());
  }
  /** Types, enters and is where the hand goes next; a cell of a stored line asks before. */
  void step(const QString& typed, const char* then) {
    tests::enter(typed);
    EXPECT_EQ(place(), then);
  }
  void change(const QString& typed, const char* then) {
    pc.prompts.expect("선택된 자료를 변경하시겠습니까?");
    step(typed, then);
  }
};

TEST_F(FrmBuy, APurchaseByKeys) {
  EXPECT_EQ(place(), "1:2");
  EXPECT_EQ(form->windowTitle(), "구매등록");
  step("111-2222", "1:3");  // the station's telephone
  EXPECT_EQ(label("LblAddr"), "(100-200) 강변로 7");
  EXPECT_EQ(label("LblGasTrust"), "200,000");
  step("", "1:4");    // the kind that stands there
  step("20", "1:5");  // the size
  change("10", "1:8");
  step("", "1:9");
  change("110000", "1:11");
  EXPECT_EQ(label("LblGasTrust"), "300,000") << "100,000 more on credit";
  EXPECT_EQ(stock(), "1200|100|10|30|60");
  EXPECT_EQ(line(), "한강|1|LPG|20|10|21000|0|110000|100000|");
  tests::grab(*form, "frmBuy");

  pc.prompts.expect("선택한 자료를 삭제하시겠습니까?");
  tests::key(Qt::Key_F4);
  EXPECT_EQ(line(), "");
  EXPECT_EQ(owed(), "200000|7000;0|0");
  EXPECT_EQ(stock(), "1000|100|10|40|50");
}

TEST_F(FrmBuy, EscShowsAllAndF10TheLedger) {
  run("Insert Into Buy(BuyDate, BuyCompany, PurchaseGubun, BuyName, BuyThing) Values('2026-01-02', '낙동', "
      "1, 'LPG', '20')");
  step("111-2222", "1:3");
  EXPECT_EQ(grid()->model().MaxRows(), 1);
  tests::key(Qt::Key_Escape);
  EXPECT_EQ(place(), "2:2");
  EXPECT_EQ(label("LblTel"), "");
  tests::key(Qt::Key_Up);
  EXPECT_EQ(label("LblTel"), "051-333-4444");
  tests::key(Qt::Key_F10);
  EXPECT_EQ(commands.asked, QStringList({"frmPrtBuy"}));
  tests::key(Qt::Key_F4, Qt::ControlModifier);
  EXPECT_EQ(rows("Select Count(*) From Buy"), "1") << "with another key held it is no deletion";
}

TEST_F(FrmBuy, ATypedDayIsTheNextLines) {
  form->findChild<DateBox*>("txtDate")->setFocus();
  tests::enter("0301");
  QApplication::processEvents();  // the day is taken once the focus has gone
  step("111-2222", "1:3");
  EXPECT_EQ(grid()->model().text(1, LineCol::Date), "03-01");
}

TEST_F(FrmBuy, TheMenusPageDecidesTheKindOfNewLines) {
  form->showPage("material");
  step("111-2222", "1:3");
  EXPECT_EQ(grid()->model().text(1, LineCol::Kind), "자재");
}

}  // namespace
