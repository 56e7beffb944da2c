// The sale screen played by keys on the real form.
#include "trade/frmSale.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include "tests/trade/sale_desk.h"
#include "tests/ui/grab.h"
#include "trade/frmTodaySale.h"

using namespace Qt::StringLiterals;

namespace {

struct FrmSale : testing::Test, tests::SaleDesk {
  tests::IdleCommands commands;
  FormContext context{pc.session, pickers, commands, calls};
  frmSale form{context};
  QLineEdit* const date = form.findChild<QLineEdit*>("txtDate");

  FrmSale() {
    tests::show(form);
    grid()->setFocus();
  }

  QTabWidget* tabs() { return form.findChild<QTabWidget*>("TabSale"); }
  Spread* grid() { return static_cast<Spread*>(tabs()->currentWidget()); }
  QString label(const char* name) { return form.findChild<QLabel*>(name)->text(); }
  QString cell(int row, int col) { return grid()->model().text(row, col); }
  /** "row,col" of the cursor. */
  QString at() { return QString::number(grid()->activeRow()) + u',' + QString::number(grid()->activeCol()); }
  void press(Qt::Key key) { tests::key(key); }
  void type(const char* text) { tests::type(text); }
  /** Enter takes the kind of a new line; another one is so many steps down the list that the Down key opens. */
  void chooseKind(int stepsDown) {
    if (stepsDown == 0) return press(Qt::Key_Return);
    press(cell(grid()->activeRow(), LineCol::Key).isEmpty() ? Qt::Key_Down : Qt::Key_Return);
    auto* const list = grid()->findChild<QListWidget*>("SpreadList");
    ASSERT_TRUE(list && list->isVisible());
    for (int step = 0; step < stepsDown; ++step) QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
  }
  void customer(const char* typed, int code, const QString& name) {
    pickers.clients.push_back(ClientChoice{code, name});
    tests::enter(typed);
  }
  void item(const QString& size, double price) {
    pickers.items.push_back(ItemChoice{"LPG", size, price, 0});
    press(Qt::Key_Return);
  }
  /** One piece of size 20 at 40,000 won for 산골식당. */
  void delivery() {
    customer("1", Plain, "산골식당");
    chooseKind(0);
    item("20", 40000);
  }
  void change(const char* typed) {
    asked();
    tests::enter(typed);
  }
  void typeDay(const char* typed) {
    date->setFocus();
    date->selectAll();
    QTest::keyClicks(date, typed);
  }
  void asked() { pc.prompts.expect("선택된 자료를 변경하시겠습니까?"); }
};

TEST_F(FrmSale, ADeliveryACollectionAndALoanAreTypedChangedAndDeleted) {
  EXPECT_EQ(form.windowTitle(), "일반/체적/시설/자재 판매 등록");
  EXPECT_EQ(at(), "1,2");
  EXPECT_EQ(label("PnlHelp"), "전화, 번지, 상호로 고객을 검색하세요");
  customer("4567", Plain, "산골식당");
  EXPECT_EQ(pickers.asked.last(), "client 4567 2 0");
  EXPECT_EQ(at(), "1,3");
  EXPECT_EQ(label("LblTel"), "053-123-4567");
  chooseKind(0);
  EXPECT_EQ(at(), "1,4");
  item("20", 40000);
  EXPECT_EQ(at(), "1,8");
  press(Qt::Key_Return);
  EXPECT_EQ(at(), "1,9") << "Enter on an unchanged cell goes on by one";
  change("30000");
  EXPECT_EQ(at(), "1,11");
  EXPECT_EQ(label("LblGasTrust"), "110,000");
  pickers.persons = {u"홍길동"_s};
  press(Qt::Key_Return);
  EXPECT_EQ(at(), "2,2");
  EXPECT_EQ(label("LblTel"), "") << "the next row has no customer yet";

  customer("4567", Plain, "산골식당");
  EXPECT_EQ(at(), "2,3");
  chooseKind(1);
  EXPECT_EQ(at(), "2,9");
  EXPECT_EQ(cell(2, LineCol::Amount), "110000");
  change("10000");
  EXPECT_EQ(label("LblGasTrust"), "100,000");
  EXPECT_EQ(label("LblEndDay"), "2026-03-05");

  press(Qt::Key_Escape);
  EXPECT_EQ(at(), "3,2");
  customer("4567", Plain, "산골식당");
  chooseKind(2);
  item("20", 0);
  EXPECT_EQ(stock(), "980|100|11|40|49") << "an empty back for the full one, then an empty lent";
  grid()->setActiveCell(3, LineCol::Number);
  change("3");
  EXPECT_EQ(stock(), "980|100|13|38|49");
  pc.prompts.expect("선택한 자료를 삭제하시겠습니까?", false);
  press(Qt::Key_Delete);
  pc.prompts.expect("자료삭제");
  press(Qt::Key_F4);
  EXPECT_EQ(stock(), "980|100|10|41|49");
  EXPECT_EQ(at(), "3,2");
  EXPECT_EQ(rows("Select SaleGubun, SaleName, SaleNum, Income, Trust, Response From Sale Order By SaleID"),
            "1|LPG|1|30000|10000|홍길동;4|가스수금|0|10000|100000|");
}

TEST_F(FrmSale, RefusedTextsPutTheCellBackAndKeepTheCursor) {
  delivery();
  asked();
  pc.prompts.expect("실제금액보다 크게 입력할 수 없습니다!");
  tests::enter("50000");
  EXPECT_EQ(at() + ' ' + cell(1, LineCol::Amount), "1,8 40000");
  EXPECT_FALSE(grid()->isEditing());

  grid()->setActiveCell(1, LineCol::Kind);
  pc.prompts.expect("구분은 변경할 수 없습니다.");
  chooseKind(1);
  EXPECT_EQ(at() + ' ' + cell(1, LineCol::Kind), "1,3 가스");

  grid()->setActiveCell(1, LineCol::Number);
  type("7");
  press(Qt::Key_Escape);
  EXPECT_EQ(cell(1, LineCol::Number), "1") << "Esc takes the typed text back first";
  EXPECT_EQ(cell(1, LineCol::Partner), "산골식당");

  grid()->setActiveCell(1, LineCol::Partner);
  asked();
  type("x");
  press(Qt::Key_Tab);
  EXPECT_EQ(cell(1, LineCol::Partner), "");
  pc.prompts.expect("고객명을 검색하세요");
  grid()->setActiveCell(1, LineCol::Person);
  press(Qt::Key_Down);
  EXPECT_EQ(at(), "1,2") << "a row that misses something is not left";
}

TEST_F(FrmSale, AnOpenCellThatIsRefusedKeepsItsSheet) {
  delivery();
  pc.prompts.expect("선택된 자료를 변경하시겠습니까?", false);
  type("1");
  tabs()->setCurrentIndex(2);
  EXPECT_EQ(tabs()->currentIndex(), 0);
  asked();
  type("39000");
  tabs()->setCurrentIndex(2);
  EXPECT_EQ(tabs()->currentIndex(), 2);
  EXPECT_EQ(rows("Select DC, Income From Sale"), "1000|39000");
  EXPECT_EQ(grid()->model().column(LineCol::Kind).combo, QStringList({"자판", "자수"}));
  form.showPage("gas");
  EXPECT_EQ(tabs()->currentIndex(), 0);
}

TEST_F(FrmSale, DaysAreCheckedAndReloadTheSheet) {
  sold("'2026-03-02', 1, 1, False, 'LPG', '20'");
  EXPECT_EQ(date->text(), "03-05");
  const auto setDay = [&](const char* typed) {
    typeDay(typed);
    QTest::keyClick(date, Qt::Key_Return);
    QCoreApplication::processEvents();
  };
  setDay("0302");
  EXPECT_EQ(cell(1, LineCol::Date), "03-02");
  EXPECT_EQ(at(), "2,2");
  pc.prompts.expect("날짜 입력이 올바르지 않습니다!");
  setDay("0231");
  EXPECT_EQ(QString(date->text()).remove('-').trimmed(), "");
  EXPECT_EQ(grid()->model().MaxRows(), 1);
  customer("1", Plain, "산골식당");
  pc.prompts.expect("날짜를 입력하세요");
  chooseKind(0);
  EXPECT_EQ(rows("Select Count(*) From Sale"), "1") << "no line without a day";
  EXPECT_EQ(at(), "2,1");
}

TEST_F(FrmSale, ACustomerOfAnotherSheetLeavesNoCellOpenOnTheOldOne) {
  sold("'2026-03-05', 3, 1, True, 'LPG', '20', 1");
  Spread* const old = grid();
  customer("bd", Metered, "별빛 3동");
  EXPECT_EQ(tabs()->currentIndex(), 1);
  EXPECT_EQ(at(), "2,3");
  EXPECT_FALSE(old->isEditing());
  QCoreApplication::processEvents();
  EXPECT_EQ(cell(1, LineCol::Partner) + cell(2, LineCol::Partner), "별빛 3동별빛 3동");
  // A cell of the hidden sheet is finished after all: it has no row on this one.
  old->setActiveCell(1, LineCol::Number);
  old->beginEdit();
  old->findChild<QLineEdit*>("SpreadLine")->setText("7");
  EXPECT_FALSE(old->commitEdit());
  EXPECT_FALSE(old->isEditing());
  EXPECT_EQ(cell(1, LineCol::Number) + cell(2, LineCol::Number), "1");
  EXPECT_TRUE(form.close());
}

TEST_F(FrmSale, ACallLandsOnlyInAnEmptyCustomerCell) {
  type("9");
  EXPECT_FALSE(form.TakeCallerNumber("0533456789")) << "the cell is being typed in";
  press(Qt::Key_Escape);
  pickers.clients = {ClientChoice{3, "별빛 3동"}};
  EXPECT_TRUE(form.TakeCallerNumber("0533456789"));
  EXPECT_EQ(tabs()->currentIndex(), 1);
  EXPECT_EQ(at() + ' ' + cell(1, LineCol::Partner), "1,3 별빛 3동");
  EXPECT_FALSE(form.TakeCallerNumber("0531234567"));

  press(Qt::Key_Escape);
  calls.numbers = {"0531234567"};
  press(Qt::Key_Return);
  EXPECT_EQ(tabs()->currentIndex(), 0) << "Enter on the empty cell fetches the waiting call";
  EXPECT_EQ(at() + ' ' + cell(1, LineCol::Partner), "1,3 산골식당");
  press(Qt::Key_Escape);
  EXPECT_FALSE(form.TakeCallerNumber("0539998888")) << "nobody was chosen: the list keeps the call";
  EXPECT_EQ(cell(1, LineCol::Partner), "");
}

TEST_F(FrmSale, ACallIsNotDroppedOnTheDateNorBehindABox) {
  date->setFocus();
  EXPECT_FALSE(form.TakeCallerNumber("0531234567")) << "leaving the date would read the sheet anew";
  QTest::keyClick(date, Qt::Key_Return);
  QCoreApplication::processEvents();
  QDialog box;
  box.setModal(true);
  tests::show(box);
  EXPECT_FALSE(form.TakeCallerNumber("0531234567"));
  box.close();
  EXPECT_TRUE(form.TakeCallerNumber("0531234567"));
}

TEST(FrmSaleInAWindow, ACallBringsTheScreenOutOfTheCornerItWasPutIn) {
  tests::SaleDesk desk;
  tests::IdleCommands commands;
  FormContext context{desk.pc.session, desk.pickers, commands, desk.calls};
  QMainWindow window;
  auto* const area = new QMdiArea;
  window.setCentralWidget(area);
  auto* const form = new frmSale(context);
  QMdiSubWindow* const frame = area->addSubWindow(form);
  tests::show(window);
  form->show();
  form->findChild<QTabWidget*>("TabSale")->currentWidget()->setFocus();
  frame->showMinimized();
  window.showMinimized();
  QCoreApplication::processEvents();
  ASSERT_TRUE(frame->isMinimized() && window.isMinimized());
  EXPECT_TRUE(form->TakeCallerNumber("0531234567"));
  EXPECT_FALSE(frame->isMinimized() || window.isMinimized());
  EXPECT_TRUE(form->isVisible());
}

TEST_F(FrmSale, KeysAndButtonsKeepTheHandOnTheGrid) {
  QTest::mouseClick(date, Qt::LeftButton, {}, date->rect().center() + QPoint(12, 0));
  EXPECT_TRUE(date->hasFocus());
  QTest::keyClicks(date, "0314");
  EXPECT_EQ(date->text(), "03-14");
  QTest::keyClick(date, Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(pc.session.SaleDay, "");
  press(Qt::Key_F5);
  EXPECT_EQ(pc.session.SaleDay, "2026-03-14");

  tests::key(Qt::Key_D, Qt::AltModifier);
  EXPECT_TRUE(date->hasFocus()) << "a key reaches the date from the grid";
  grid()->setFocus();
  QCoreApplication::processEvents();
  form.findChild<QPushButton*>("CmdCIDList")->click();
  EXPECT_TRUE(grid()->isAncestorOf(QApplication::focusWidget()));
  auto* const map = form.findChild<QPushButton*>("BtnMap");
  map->setFocus();
  pc.prompts.expect("약도를 출력할 고객을 먼저 선택하십시오");
  tests::key(Qt::Key_Space);
  EXPECT_TRUE(grid()->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(FrmSale, ADayTypedBeforeAnotherWindowCameIsTakenWhenTheGridIsGoneTo) {
  QCoreApplication::processEvents();
  date->setFocus();
  QTest::keyClicks(date, "0302");
  QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  QCoreApplication::sendEvent(date, &away);
  EXPECT_FALSE(form.TakeCallerNumber("0531234567"));
  date->removeEventFilter(&form);  // the way from one window to a cell of the other does not pass the date
  grid()->setFocus();
  date->installEventFilter(&form);
  QCoreApplication::processEvents();
  press(Qt::Key_F5);
  EXPECT_EQ(pc.session.SaleDay, "2026-03-02");
  EXPECT_TRUE(form.TakeCallerNumber("0531234567"));
}

TEST_F(FrmSale, ADayStillBeingTypedCountsForAnotherSheetAndForTheDaysFigures) {
  sold("'2026-03-02', 1, 7, False, '밸브', '15A'");
  sold("'2026-03-03', 1, 7, False, '밸브', '15A'");
  typeDay("0302");
  tabs()->setCurrentIndex(2);
  QCoreApplication::processEvents();
  EXPECT_EQ(date->text() + ' ' + cell(1, LineCol::Date), "03-02 03-02");
  typeDay("0303");
  press(Qt::Key_F5);
  QCoreApplication::processEvents();
  EXPECT_EQ(pc.session.SaleDay + ' ' + cell(1, LineCol::Date), "2026-03-03 03-03");
  EXPECT_EQ(at(), "2,2");
  typeDay("0231");
  pc.prompts.expect("날짜 입력이 올바르지 않습니다!");
  press(Qt::Key_F5);
  QCoreApplication::processEvents();
  EXPECT_EQ(commands.asked, QStringList("frmTodaySale:2026-03-03")) << "told once, nothing opened";
}

TEST_F(FrmSale, AnOpenCellIsTakenOnTheWayToTheDate) {
  delivery();
  QCoreApplication::processEvents();
  tests::show(form);
  grid()->setFocus();
  asked();
  type("39000");
  QTest::mouseClick(date, Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(rows("Select Income From Sale"), "39000");
  EXPECT_TRUE(date->hasFocus()) << "the click was meant for the date";
}

TEST_F(FrmSale, OnlyThePlainDeleteKeyDeletes) {
  delivery();
  for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
    tests::key(Qt::Key_Delete, modifier);
    if (modifier != Qt::ControlModifier) tests::key(Qt::Key_F4, modifier);  // which closes the window
  }
  EXPECT_EQ(rows("Select Count(*) From Sale"), "1");
  pc.prompts.expect("산골식당   LPG / 20   1개   40,000원\n선택한 자료를 삭제하시겠습니까?");
  tests::key(Qt::Key_Delete, Qt::KeypadModifier);
  EXPECT_EQ(rows("Select Count(*) From Sale"), "0");
}

TEST_F(FrmSale, HangulComposedIntoTheRestingCellArrivesWhole) {
  tests::compose({"ㅅ", "사", "산"}, "산");
  QInputMethodEvent next("골", {});
  QCoreApplication::sendEvent(QApplication::focusWidget(), &next);
  press(Qt::Key_Return);
  EXPECT_EQ(pickers.asked.value(0), "client 산골 2 0");
  EXPECT_FALSE(grid()->isEditing());
  EXPECT_EQ(at() + cell(1, LineCol::Partner), "1,2") << "nobody chosen: the cell is empty again";
}

TEST_F(FrmSale, TheDaysFiguresOpenForTheScreensDay) {
  press(Qt::Key_F5);
  EXPECT_EQ(pc.session.SaleDay, "2026-03-05");
  tabs()->setCurrentIndex(2);
  press(Qt::Key_F10);
  EXPECT_FALSE(pc.session.SaleLedgerGas);
  tabs()->setCurrentIndex(1);
  press(Qt::Key_F10);
  EXPECT_TRUE(pc.session.SaleLedgerGas) << "what the meter measures is gas";
  EXPECT_EQ(commands.asked, QStringList({"frmTodaySale:2026-03-05", "frmPrtSale", "frmPrtSale"}));
  sold("'2026-03-05', 1, 1, False, 'LPG', '20', 2, 0, 0, 5000, 700");
  frmTodaySale today(context);
  EXPECT_EQ(today.findChild<QLabel*>("LblTitle")->text(), "03/05일의 판매현황");
  EXPECT_EQ(today.findChild<Spread*>("SpToday")->model().text(1, 5), "700");
}

TEST_F(FrmSale, FortyLinesAreOnScreen) {
  for (int line = 0; line < 40; ++line)
    sold(u"'2026-03-05', %1, %2, False, '%3', '%4', %5, 43000, %6, %7, %8, '홍길동'"_s.arg(
        QString::number(1 + line % 2), QString::number(1 + line % 6), line % 6 == 3 ? "가스수금" : "LPG",
        line % 6 == 3 ? "0" : "20", QString::number(1 + line % 3), QString::number(line % 5 * 500),
        QString::number(43000 * (line % 3)), QString::number(line % 4 * 21500)));
  press(Qt::Key_Escape);
  EXPECT_EQ(at(), "41,2");
  EXPECT_GE(grid()->rowsOnPage(), 20);
  grid()->setActiveCell(39, LineCol::Amount);
  EXPECT_EQ(label("LblAddr"), "(706-010) 대구 수성구 1");
  tests::grab(form, "frmSale");
  press(Qt::Key_F5);
  frmTodaySale today(context);
  tests::show(today);
  tests::grab(today, "frmTodaySale");
}

}  // namespace
