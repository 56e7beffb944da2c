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

struct SaleScreen : tests::SaleDesk {
  tests::IdleCommands commands;
  FormContext context{pc.session, pickers, commands, calls};
  frmSale form{context};

  SaleScreen() {
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
  void asked() { pc.prompts.expect("선택된 자료를 변경하시겠습니까?"); }
};

TEST(FrmSale, ADeliveryACollectionAndALoanAreTypedChangedAndDeleted) {
  SaleScreen sale;
  EXPECT_EQ(sale.form.windowTitle(), "일반/체적/시설/자재 판매 등록");
  EXPECT_EQ(sale.at(), "1,2");
  EXPECT_EQ(sale.label("PnlHelp"), "전화, 번지, 상호로 고객을 검색하세요");
  sale.customer("4567", SaleScreen::Plain, "산골식당");
  EXPECT_EQ(sale.pickers.asked.last(), "client 4567 2 0");
  EXPECT_EQ(sale.at(), "1,3");
  EXPECT_EQ(sale.label("LblTel"), "053-123-4567");
  sale.chooseKind(0);
  EXPECT_EQ(sale.at(), "1,4");
  sale.item("20", 40000);
  EXPECT_EQ(sale.at(), "1,8");
  sale.press(Qt::Key_Return);
  EXPECT_EQ(sale.at(), "1,9") << "Enter on an unchanged cell goes on by one";
  sale.asked();
  tests::enter("30000");
  EXPECT_EQ(sale.at(), "1,11");
  EXPECT_EQ(sale.label("LblGasTrust"), "110,000");
  sale.pickers.persons = {u"홍길동"_s};
  sale.press(Qt::Key_Return);
  EXPECT_EQ(sale.at(), "2,2");
  EXPECT_EQ(sale.label("LblTel"), "") << "the next row has no customer yet";

  sale.customer("4567", SaleScreen::Plain, "산골식당");
  EXPECT_EQ(sale.at(), "2,3");
  sale.chooseKind(1);
  EXPECT_EQ(sale.at(), "2,9");
  EXPECT_EQ(sale.cell(2, LineCol::Amount), "110000");
  sale.asked();
  tests::enter("10000");
  EXPECT_EQ(sale.label("LblGasTrust"), "100,000");
  EXPECT_EQ(sale.label("LblEndDay"), "2026-03-05");

  sale.press(Qt::Key_Escape);
  EXPECT_EQ(sale.at(), "3,2");
  sale.customer("4567", SaleScreen::Plain, "산골식당");
  sale.chooseKind(2);
  sale.item("20", 0);
  EXPECT_EQ(sale.stock(), "980|100|11|40|49") << "an empty back for the full one, then an empty lent";
  sale.grid()->setActiveCell(3, LineCol::Number);
  sale.asked();
  tests::enter("3");
  EXPECT_EQ(sale.stock(), "980|100|13|38|49");
  sale.pc.prompts.expect("선택한 자료를 삭제하시겠습니까?", false);
  sale.press(Qt::Key_Delete);
  sale.pc.prompts.expect("자료삭제");
  sale.press(Qt::Key_F4);
  EXPECT_EQ(sale.stock(), "980|100|10|41|49");
  EXPECT_EQ(sale.at(), "3,2");
  EXPECT_EQ(
      sale.rows("Select SaleGubun, SaleName, SaleNum, Income, Trust, Response From Sale Order By SaleID"),
      "1|LPG|1|30000|10000|홍길동;4|가스수금|0|10000|100000|");
}

TEST(FrmSale, RefusedTextsPutTheCellBackAndKeepTheCursor) {
  SaleScreen sale;
  sale.customer("1", SaleScreen::Plain, "산골식당");
  sale.chooseKind(0);
  sale.item("20", 40000);
  sale.asked();
  sale.pc.prompts.expect("실제금액보다 크게 입력할 수 없습니다!");
  tests::enter("50000");
  EXPECT_EQ(sale.at() + ' ' + sale.cell(1, LineCol::Amount), "1,8 40000");
  EXPECT_FALSE(sale.grid()->isEditing());

  sale.grid()->setActiveCell(1, LineCol::Kind);
  sale.pc.prompts.expect("구분은 변경할 수 없습니다.");
  sale.chooseKind(1);
  EXPECT_EQ(sale.at() + ' ' + sale.cell(1, LineCol::Kind), "1,3 가스");

  sale.grid()->setActiveCell(1, LineCol::Number);
  sale.type("7");
  sale.press(Qt::Key_Escape);
  EXPECT_EQ(sale.cell(1, LineCol::Number), "1") << "Esc takes the typed text back first";
  EXPECT_EQ(sale.cell(1, LineCol::Partner), "산골식당");

  sale.grid()->setActiveCell(1, LineCol::Partner);
  sale.asked();
  sale.type("x");
  sale.press(Qt::Key_Tab);
  EXPECT_EQ(sale.cell(1, LineCol::Partner), "");
  sale.pc.prompts.expect("고객명을 검색하세요");
  sale.grid()->setActiveCell(1, LineCol::Person);
  sale.press(Qt::Key_Down);
  EXPECT_EQ(sale.at(), "1,2") << "a row that misses something is not left";
}

TEST(FrmSale, AnOpenCellThatIsRefusedKeepsItsSheet) {
  SaleScreen sale;
  sale.customer("1", SaleScreen::Plain, "산골식당");
  sale.chooseKind(0);
  sale.item("20", 40000);
  sale.pc.prompts.expect("선택된 자료를 변경하시겠습니까?", false);
  sale.type("1");
  sale.tabs()->setCurrentIndex(2);
  EXPECT_EQ(sale.tabs()->currentIndex(), 0);
  sale.asked();
  sale.type("39000");
  sale.tabs()->setCurrentIndex(2);
  EXPECT_EQ(sale.tabs()->currentIndex(), 2);
  EXPECT_EQ(sale.rows("Select DC, Income From Sale"), "1000|39000");
  EXPECT_EQ(sale.grid()->model().column(LineCol::Kind).combo, QStringList({"자판", "자수"}));
  sale.form.showPage("gas");
  EXPECT_EQ(sale.tabs()->currentIndex(), 0);
}

TEST(FrmSale, DaysAreCheckedAndReloadTheSheet) {
  SaleScreen sale;
  sale.sold("'2026-03-02', 1, 1, False, 'LPG', '20'");
  auto* const date = sale.form.findChild<QLineEdit*>("txtDate");
  EXPECT_EQ(date->text(), "03-05");
  const auto setDay = [&](const char* typed) {
    date->setFocus();
    date->selectAll();
    QTest::keyClicks(date, typed);
    QTest::keyClick(date, Qt::Key_Return);
    QCoreApplication::processEvents();
  };
  setDay("0302");
  EXPECT_EQ(sale.cell(1, LineCol::Date), "03-02");
  EXPECT_EQ(sale.at(), "2,2");
  sale.pc.prompts.expect("날짜 입력이 올바르지 않습니다!");
  setDay("0231");
  EXPECT_EQ(QString(date->text()).remove('-').trimmed(), "");
  EXPECT_EQ(sale.grid()->model().MaxRows(), 1);
  sale.customer("1", SaleScreen::Plain, "산골식당");
  sale.pc.prompts.expect("날짜를 입력하세요");
  sale.chooseKind(0);
  EXPECT_EQ(sale.rows("Select Count(*) From Sale"), "1") << "no line without a day";
  EXPECT_EQ(sale.at(), "2,1");
}

TEST(FrmSale, ACustomerOfAnotherSheetLeavesNoCellOpenOnTheOldOne) {
  SaleScreen sale;
  sale.sold("'2026-03-05', 3, 1, True, 'LPG', '20', 1");
  Spread* const old = sale.grid();
  sale.customer("bd", SaleScreen::Metered, "별빛 3동");
  EXPECT_EQ(sale.tabs()->currentIndex(), 1);
  EXPECT_EQ(sale.at(), "2,3");
  EXPECT_FALSE(old->isEditing());
  QCoreApplication::processEvents();
  EXPECT_EQ(sale.cell(1, LineCol::Partner) + sale.cell(2, LineCol::Partner), "별빛 3동별빛 3동");
  // A cell of the hidden sheet is finished after all: it has no row on this one.
  old->setActiveCell(1, LineCol::Number);
  old->beginEdit();
  old->findChild<QLineEdit*>("SpreadLine")->setText("7");
  EXPECT_FALSE(old->commitEdit());
  EXPECT_FALSE(old->isEditing());
  EXPECT_EQ(sale.cell(1, LineCol::Number) + sale.cell(2, LineCol::Number), "1");
  EXPECT_TRUE(sale.form.close());
}

TEST(FrmSale, ACallLandsOnlyInAnEmptyCustomerCell) {
  SaleScreen sale;
  sale.type("9");
  EXPECT_FALSE(sale.form.TakeCallerNumber("0533456789")) << "the cell is being typed in";
  sale.press(Qt::Key_Escape);
  sale.pickers.clients = {ClientChoice{3, "별빛 3동"}};
  EXPECT_TRUE(sale.form.TakeCallerNumber("0533456789"));
  EXPECT_EQ(sale.tabs()->currentIndex(), 1);
  EXPECT_EQ(sale.at() + ' ' + sale.cell(1, LineCol::Partner), "1,3 별빛 3동");
  EXPECT_FALSE(sale.form.TakeCallerNumber("0531234567"));

  sale.press(Qt::Key_Escape);
  sale.calls.numbers = {"0531234567"};
  sale.press(Qt::Key_Return);
  EXPECT_EQ(sale.tabs()->currentIndex(), 0) << "Enter on the empty cell fetches the waiting call";
  EXPECT_EQ(sale.at() + ' ' + sale.cell(1, LineCol::Partner), "1,3 산골식당");
  sale.press(Qt::Key_Escape);
  EXPECT_FALSE(sale.form.TakeCallerNumber("0539998888")) << "nobody was chosen: the list keeps the call";
  EXPECT_EQ(sale.cell(1, LineCol::Partner), "");
}

TEST(FrmSale, ACallIsNotDroppedOnTheDateNorBehindABox) {
  SaleScreen sale;
  auto* const date = sale.form.findChild<QLineEdit*>("txtDate");
  date->setFocus();
  EXPECT_FALSE(sale.form.TakeCallerNumber("0531234567")) << "leaving the date would read the sheet anew";
  QTest::keyClick(date, Qt::Key_Return);
  QCoreApplication::processEvents();
  QDialog box;
  box.setModal(true);
  tests::show(box);
  EXPECT_FALSE(sale.form.TakeCallerNumber("0531234567"));
  box.close();
  EXPECT_TRUE(sale.form.TakeCallerNumber("0531234567"));
}

TEST(FrmSale, ACallBringsTheScreenOutOfTheCornerItWasPutIn) {
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

TEST(FrmSale, KeysAndButtonsKeepTheHandOnTheGrid) {
  SaleScreen sale;
  auto* const date = sale.form.findChild<QLineEdit*>("txtDate");
  QTest::mouseClick(date, Qt::LeftButton, {}, date->rect().center() + QPoint(12, 0));
  EXPECT_TRUE(date->hasFocus());
  QTest::keyClicks(date, "0314");
  EXPECT_EQ(date->text(), "03-14");
  QTest::keyClick(date, Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(sale.pc.session.SaleDay, "");
  sale.press(Qt::Key_F5);
  EXPECT_EQ(sale.pc.session.SaleDay, "2026-03-14");

  tests::key(Qt::Key_D, Qt::AltModifier);
  EXPECT_TRUE(date->hasFocus()) << "a key reaches the date from the grid";
  sale.grid()->setFocus();
  QCoreApplication::processEvents();
  sale.form.findChild<QPushButton*>("CmdCIDList")->click();
  EXPECT_TRUE(sale.grid()->isAncestorOf(QApplication::focusWidget()));
  auto* const map = sale.form.findChild<QPushButton*>("BtnMap");
  map->setFocus();
  sale.pc.prompts.expect("약도를 출력할 고객을 먼저 선택하십시오");
  tests::key(Qt::Key_Space);
  EXPECT_TRUE(sale.grid()->isAncestorOf(QApplication::focusWidget()));
}

TEST(FrmSale, ADayTypedBeforeAnotherWindowCameIsTakenWhenTheGridIsGoneTo) {
  SaleScreen sale;
  QCoreApplication::processEvents();
  auto* const date = sale.form.findChild<QLineEdit*>("txtDate");
  date->setFocus();
  QTest::keyClicks(date, "0302");
  QFocusEvent away(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  QCoreApplication::sendEvent(date, &away);
  EXPECT_FALSE(sale.form.TakeCallerNumber("0531234567"));
  date->removeEventFilter(
      &sale.form);  // the way from one window to a cell of the other does not pass the date
  sale.grid()->setFocus();
  date->installEventFilter(&sale.form);
  QCoreApplication::processEvents();
  sale.press(Qt::Key_F5);
  EXPECT_EQ(sale.pc.session.SaleDay, "2026-03-02");
  EXPECT_TRUE(sale.form.TakeCallerNumber("0531234567"));
}

TEST(FrmSale, AnOpenCellIsTakenOnTheWayToTheDate) {
  SaleScreen sale;
  sale.customer("1", SaleScreen::Plain, "산골식당");
  sale.chooseKind(0);
  sale.item("20", 40000);
  auto* const date = sale.form.findChild<QLineEdit*>("txtDate");
  QCoreApplication::processEvents();
  tests::show(sale.form);
  sale.grid()->setFocus();
  sale.asked();
  sale.type("39000");
  QTest::mouseClick(date, Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_EQ(sale.rows("Select Income From Sale"), "39000");
  EXPECT_TRUE(date->hasFocus()) << "the click was meant for the date";
}

TEST(FrmSale, OnlyThePlainDeleteKeyDeletes) {
  SaleScreen sale;
  sale.customer("1", SaleScreen::Plain, "산골식당");
  sale.chooseKind(0);
  sale.item("20", 40000);
  for (const auto modifier : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
    tests::key(Qt::Key_Delete, modifier);
    if (modifier != Qt::ControlModifier) tests::key(Qt::Key_F4, modifier);  // which closes the window
  }
  EXPECT_EQ(sale.rows("Select Count(*) From Sale"), "1");
  sale.pc.prompts.expect("산골식당   LPG / 20   1개   40,000원");
  tests::key(Qt::Key_Delete, Qt::KeypadModifier);
  EXPECT_EQ(sale.rows("Select Count(*) From Sale"), "0");
}

TEST(FrmSale, HangulComposedIntoTheRestingCellArrivesWhole) {
  SaleScreen sale;
  tests::compose({"ㅅ", "사", "산"}, "산");
  QInputMethodEvent next("골", {});
  QCoreApplication::sendEvent(QApplication::focusWidget(), &next);
  sale.press(Qt::Key_Return);
  EXPECT_EQ(sale.pickers.asked.value(0), "client 산골 2 0");
  EXPECT_FALSE(sale.grid()->isEditing());
  EXPECT_EQ(sale.at() + sale.cell(1, LineCol::Partner), "1,2") << "nobody chosen: the cell is empty again";
}

TEST(FrmSale, TheDaysFiguresOpenForTheScreensDay) {
  SaleScreen sale;
  sale.press(Qt::Key_F5);
  EXPECT_EQ(sale.pc.session.SaleDay, "2026-03-05");
  sale.tabs()->setCurrentIndex(2);
  sale.press(Qt::Key_F10);
  EXPECT_FALSE(sale.pc.session.SaleLedgerGas);
  EXPECT_EQ(sale.commands.asked, QStringList({"frmTodaySale:2026-03-05", "frmPrtSale"}));
  sale.sold("'2026-03-05', 1, 1, False, 'LPG', '20', 2, 0, 0, 5000, 700");
  frmTodaySale today(sale.context);
  EXPECT_EQ(today.findChild<QLabel*>("LblTitle")->text(), "03/05일의 판매현황");
  EXPECT_EQ(today.findChild<Spread*>("SpToday")->model().text(1, 5), "700");
}

TEST(FrmSale, FortyLinesAreOnScreen) {
  SaleScreen sale;
  for (int line = 0; line < 40; ++line)
    sale.sold(u"'2026-03-05', %1, %2, False, '%3', '%4', %5, 43000, %6, %7, %8, '홍길동'"_s.arg(
        QString::number(1 + line % 2), QString::number(1 + line % 6), line % 6 == 3 ? "가스수금" : "LPG",
        line % 6 == 3 ? "0" : "20", QString::number(1 + line % 3), QString::number(line % 5 * 500),
        QString::number(43000 * (line % 3)), QString::number(line % 4 * 21500)));
  sale.press(Qt::Key_Escape);
  EXPECT_EQ(sale.at(), "41,2");
  EXPECT_GE(sale.grid()->rowsOnPage(), 20);
  sale.grid()->setActiveCell(39, LineCol::Amount);
  EXPECT_EQ(sale.label("LblAddr"), "(706-010) 대구 수성구 1");
  tests::grab(sale.form, "frmSale");
  sale.press(Qt::Key_F5);
  frmTodaySale today(sale.context);
  tests::show(today);
  tests::grab(today, "frmTodaySale");
}

}  // namespace
