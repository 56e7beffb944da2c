// The purchase screen by keys, with the real searches.
#include "trade/frmBuy.h"

#include <QLabel>
#include <QTest>

#include "tests/trade/buy_desk.h"
#include "tests/trade/key_screen.h"
#include "ui/forms/boxes.h"

namespace {

struct BuyScreen : tests::KeyScreen<tests::BuyDesk, frmBuy> {
  BuyScreen() {
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

TEST(FrmBuy, APurchaseByKeys) {
  BuyScreen screen;
  EXPECT_EQ(screen.place(), "1:2");
  EXPECT_EQ(screen.form->windowTitle(), "구매등록");
  screen.step("111-2222", "1:3");  // the station's telephone
  EXPECT_EQ(screen.label("LblAddr"), "(100-200) 강변로 7");
  EXPECT_EQ(screen.label("LblGasTrust"), "200,000");
  screen.step("", "1:4");    // the kind that stands there
  screen.step("20", "1:5");  // the size
  screen.change("10", "1:8");
  screen.step("", "1:9");
  screen.change("110000", "1:11");
  EXPECT_EQ(screen.label("LblGasTrust"), "300,000") << "100,000 more on credit";
  EXPECT_EQ(screen.stock(), "1200|100|10|30|60");
  EXPECT_EQ(screen.line(), "한강|1|LPG|20|10|21000|0|110000|100000|");
  tests::grab(*screen.form, "frmBuy");

  screen.pc.prompts.expect("선택한 자료를 삭제하시겠습니까?");
  tests::key(Qt::Key_F4);
  EXPECT_EQ(screen.line(), "");
  EXPECT_EQ(screen.owed(), "200000|7000;0|0");
  EXPECT_EQ(screen.stock(), "1000|100|10|40|50");
}

TEST(FrmBuy, EscShowsAllAndF10TheLedger) {
  BuyScreen screen;
  screen.run(
      "Insert Into Buy(BuyDate, BuyCompany, PurchaseGubun, BuyName, BuyThing) "
      "Values('2026-01-02', '낙동', 1, 'LPG', '20')");
  screen.step("111-2222", "1:3");
  EXPECT_EQ(screen.grid()->model().MaxRows(), 1);
  tests::key(Qt::Key_Escape);
  EXPECT_EQ(screen.place(), "2:2");
  EXPECT_EQ(screen.label("LblTel"), "");
  tests::key(Qt::Key_Up);
  EXPECT_EQ(screen.label("LblTel"), "051-333-4444");
  tests::key(Qt::Key_F10);
  EXPECT_EQ(screen.commands.asked, QStringList({"frmPrtBuy"}));
  tests::key(Qt::Key_F4, Qt::ControlModifier);
  EXPECT_EQ(screen.rows("Select Count(*) From Buy"), "1") << "with another key held it is no deletion";
}

TEST(FrmBuy, ATypedDayIsTheNextLines) {
  BuyScreen screen;
  screen.form->findChild<DateBox*>("txtDate")->setFocus();
  tests::enter("0301");
  QApplication::processEvents();  // the day is taken once the focus has gone
  screen.step("111-2222", "1:3");
  EXPECT_EQ(screen.grid()->model().text(1, LineCol::Date), "03-01");
}

TEST(FrmBuy, TheMenusPageDecidesTheKindOfNewLines) {
  BuyScreen screen;
  screen.form->showPage("material");
  screen.step("111-2222", "1:3");
  EXPECT_EQ(screen.grid()->model().text(1, LineCol::Kind), "자재");
}

}  // namespace
