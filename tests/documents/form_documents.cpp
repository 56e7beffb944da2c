// The document forms on real windows: keys, mouse, boxes, where the hand goes next.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>

#include "documents/invoices/FrmNewAcount.h"
#include "documents/invoices/FrmTax.h"
#include "documents/pickers/FrmMsg.h"
#include "documents/pickers/FrmNewTrader.h"
#include "documents/pickers/FrmPost.h"
#include "documents/pickers/FrmTraderList.h"
#include "documents/statements/FrmDealList.h"
#include "papers/form_document_run.h"
#include "tests/documents/document_desk.h"
#include "tests/idle_context.h"
#include "tests/ui/grab.h"
#include "tests/ui/modal.h"

using namespace Qt::StringLiterals;

namespace {

/** Runs act in the menu that opens next. */
void whenMenu(std::function<void(QMenu&)> act) {
  auto* const look = new QTimer(qApp);
  QObject::connect(look, &QTimer::timeout, look, [look, act = std::move(act)] {
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) return;
    look->deleteLater();
    act(*menu);
  });
  look->start(1);
}

void chooseFirst(QMenu& menu) {
  QTest::keyClick(&menu, Qt::Key_Down);
  QTest::keyClick(&menu, Qt::Key_Return);
}

/** Searches and questions answered as the test says. */
struct DocumentPickers : tests::IdlePickers {
  TraderFound found;
  std::optional<PostCodeChoice> post;
  QStringList posts;  // the texts searched by
  std::optional<PrintMethodChoice> method = PrintMethodChoice{};
  PrintMethodQuestion asked;
  std::optional<QString> searchResponse() override { return "김배달"; }
  TraderFound searchTrader(const QString&) override { return found; }
  std::optional<PostCodeChoice> searchPost(const QString& text) override {
    posts << text;
    return post;
  }
  std::optional<PrintMethodChoice> askPrintMethod(const PrintMethodQuestion& question) override {
    asked = question;
    return method;
  }
};

struct DocumentForms : tests::DocumentDesk {
  DocumentForms() {
    for (int line = 0; line < 16; ++line)
      sale(u"2026-03-%1"_s.arg(20 + line / 2), 1 + line % 2, 34'500, line % 4 + 1);
  }
  QString pending() { return inYear("Select Count(*) From Sale Where DealList = 0"); }
  void found(int code, const char* name) {
    pickers.found = {.any = true, .trader = ClientChoice{code, name}};
  }

  DocumentPickers pickers;
  tests::IdleCommands commands;
  tests::IdleCalls calls;
  FormContext context{session, pickers, commands, calls};
};

/** One of the windows with a list. */
template <class Form>
struct OnForm : DocumentForms {
  Form form{context};
  Spread* const grid = part<Spread>("grdList");

  template <class W>
  W* part(const char* name) {
    return form.template findChild<W*>(name);
  }
  QString label(const char* name) { return part<QLabel>(name)->text(); }
  QString box(const char* name) { return part<QLineEdit>(name)->text(); }
  void press(const char* name) { QTest::mouseClick(part<QPushButton>(name), Qt::LeftButton); }
  void choose(const char* name) { part<QAbstractButton>(name)->click(); }
  void turnTo(int page) { part<QTabBar>("tabSection")->setCurrentIndex(page); }
  QString cell(int row, int col) { return grid->model().text(row, col); }
  int rows() { return grid->model().MaxRows(); }
  QPoint placeOf(int row, int col) { return grid->cellRect(row, col).center(); }
  void click(int row, int col) { QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, placeOf(row, col)); }
  void go(int row, int col) {
    grid->setFocus();
    grid->setActiveCell(row, col);
  }
};

struct DealForm : OnForm<FrmDealList> {
  DealForm() {
    form.Open("2026-03-01", "2026-03-31");
    tests::show(form);
  }
  void tickFirst() {
    go(1, DealCol::Item);
    tests::key(Qt::Key_Space);
  }
  QString tick(int row) { return cell(row, DealCol::Tick); }
  DateBox *const from = part<DateBox>("txtDate(0)"), *const to = part<DateBox>("txtDate(1)");
  QLineEdit* const client = part<QLineEdit>("txtinput");
};

TEST_F(DealForm, OpensOnTheRangeAndTellsThePrinter) {
  EXPECT_EQ(form.windowTitle(), "거래명세표 발행 - 현재 설정된 프린터 : 지로프린터");
  EXPECT_EQ(form.openingKey(), "2026-03-00");
  EXPECT_EQ(rows(), 16);
  EXPECT_EQ(label("pnlSum"), "1,380,000 ");  // 40 pieces at 34,500
  EXPECT_TRUE(part<QCheckBox>("chkForm")->isChecked());
  EXPECT_TRUE(part<QRadioButton>("OptGubun(2)")->isChecked());
  form.resize(form.sizeHint());
  tests::grab(form, "FrmDealList");
  form.Open({}, {});
  EXPECT_EQ(box("txtDate(0)"), "2026-03-31");
  EXPECT_EQ(label("pnlSum"), "");
}

TEST_F(DealForm, SpaceBlocksAndDoubleClicksTick) {
  tickFirst();
  EXPECT_EQ(tick(1), "1");
  tests::key(Qt::Key_Space);
  EXPECT_EQ(tick(1), "0");
  tests::key(Qt::Key_Down, Qt::ShiftModifier);
  tests::key(Qt::Key_Space);
  EXPECT_EQ(tick(1) + tick(2) + tick(3), "11");
  click(5, DealCol::Item);
  EXPECT_EQ(tick(5), "") << "a click chooses a row, nothing more";
  QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, placeOf(5, DealCol::Item));
  EXPECT_EQ(tick(5), "1");
  for (const char* const now : {"1", "0", "1"}) {
    click(6, DealCol::Tick);
    EXPECT_EQ(tick(6), now);
  }
  const QPoint begin = placeOf(8, DealCol::Item), end = placeOf(10, DealCol::Item);
  QTest::mousePress(grid->viewport(), Qt::LeftButton, Qt::NoModifier, begin);
  QMouseEvent drag(QEvent::MouseMove, end, grid->viewport()->mapToGlobal(end), Qt::NoButton, Qt::LeftButton,
                   Qt::NoModifier);
  QApplication::sendEvent(grid->viewport(), &drag);
  QTest::mouseRelease(grid->viewport(), Qt::LeftButton, Qt::NoModifier, end);
  EXPECT_EQ(tick(7) + tick(8) + tick(9) + tick(10) + tick(11), "111");
  choose("ChkAll");
  EXPECT_EQ(tick(16), "1");
  choose("ChkAll");
  EXPECT_EQ(tick(1), "0");
}

TEST_F(DealForm, TheCustomerIsChosenAndForgotten) {
  tests::key(Qt::Key_Insert);
  EXPECT_TRUE(client->hasFocus());
  pickers.found = {.any = false, .trader = {}};
  pc.prompts.expect("등록된 거래처가 없습니다.");
  tests::key(Qt::Key_Return);
  client->setText("없는집");
  pc.prompts.expect("검색된 거래처가 없습니다.");
  tests::key(Qt::Key_Return);
  found(2, "바다식당");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(box("txtCCode"), "2");
  EXPECT_EQ(rows(), 8);
  client->setFocus();
  client->clear();
  from->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(box("txtCCode"), "");
}

TEST_F(DealForm, ATypedNameIsLookedUpBeforeItsLinesAreAndTheArrowsLeaveTheBox) {
  tests::key(Qt::Key_Insert);
  found(2, "바다식당");
  tests::key(Qt::Key_Return);
  tests::key(Qt::Key_Insert);
  client->selectAll();
  tests::type("x");
  EXPECT_EQ(box("txtCCode"), "") << "it is no longer the customer chosen before";
  found(1, "한라식당");
  press("btnSearch");
  EXPECT_EQ(client->text(), "한라식당");
  EXPECT_EQ(cell(1, DealCol::ClientName), "한라식당");
  EXPECT_EQ(rows(), 8);
  client->setFocus();
  tests::key(Qt::Key_Delete);
  tests::key(Qt::Key_Up);
  EXPECT_TRUE(to->hasFocus());
  client->setFocus();
  tests::key(Qt::Key_Down);
  EXPECT_TRUE(part<QPushButton>("btnSearch")->hasFocus());
  tests::key(Qt::Key_Delete);  // lines are deleted from the list alone
}

TEST_F(DealForm, APrinterThatFailsInTheMiddleLeavesAllOfThemAmongTheIssued) {
  choose("ChkAll");
  printers.refusesFromPage = 3;
  whenMenu(chooseFirst);
  pc.prompts.expect("거래명세표를 모두 인쇄하지 못했습니다.\n발행한 내역에서 다시 인쇄하세요.");
  press("btnPrint");
  EXPECT_TRUE(printers.jobs.back()->abandoned);
  EXPECT_EQ(pending(), "0");
  turnTo(1);
  EXPECT_EQ(rows(), 16);
}

TEST_F(DealForm, WithoutItsPrinterNothingIsIssuedButThePapersAreLookedAtAndSaved) {
  setDocumentPrinter(session, "거래명세표", "없는 프린터");
  tickFirst();
  whenMenu(chooseFirst);
  pc.prompts.expect("없는 프린터");
  press("btnPrint");
  EXPECT_EQ(pending(), "16");
  press("btnPdf");
  ASSERT_EQ(printers.jobs.size(), 1u);
  EXPECT_EQ(printers.jobs[0]->title, "2026-03-31 한라식당 거래명세표");
  press("btnPreview");
  bool isShown = false;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->objectName() == "FrmPaperView") {
      tests::grab(*window, "FrmDealList-preview");
      isShown = window->close();
    }
  EXPECT_TRUE(isShown);
  EXPECT_EQ(pending(), "16") << "looked at";
}

TEST_F(DealForm, ADateThatIsNoneComesBackAndKeepsTheHand) {
  from->setFocus();
  from->setDateText("2026-13-01");
  pc.prompts.expect("잘못된 날짜 형식입니다.\n정확한 날짜 형식을 입력하세요.");
  tests::key(Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_EQ(from->text(), "2026-03-01");
  EXPECT_TRUE(from->hasFocus());
  from->setDateText("2026-03-31");
  to->setFocus();
  QApplication::processEvents();
  to->setDateText("2026-02-30");
  pc.prompts.expect("잘못된 날짜 형식입니다.\n정확한 날짜 형식을 입력하세요.");
  tests::key(Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_EQ(to->text(), "2026-03-31");
  EXPECT_TRUE(to->hasFocus()) << "nothing was listed to go to";
  to->setDateText("2026-03-30");
  pc.prompts.expect("검색일자 지정이 잘못되었습니다. 다시 입력하세요.");
  tests::key(Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_TRUE(from->hasFocus());
  client->setFocus();
  found(2, "바다식당");
  pc.prompts.expect("검색일자 지정이 잘못되었습니다. 다시 입력하세요.");
  tests::key(Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_TRUE(from->hasFocus());
}

TEST_F(DealForm, ATabIsTurnedOnlyWithItsList) {
  from->setFocus();
  from->setDateText("2026-13-01");
  pc.prompts.expect("잘못된 날짜 형식입니다.\n정확한 날짜 형식을 입력하세요.");
  turnTo(1);
  EXPECT_EQ(part<QTabBar>("tabSection")->currentIndex(), 0);
  EXPECT_EQ(rows(), 16);
  client->setFocus();
  tests::type("x");
  pickers.found = {.any = false, .trader = {}};
  pc.prompts.expect("검색된 거래처가 없습니다.");
  turnTo(1);
  EXPECT_EQ(part<QTabBar>("tabSection")->currentIndex(), 0);
  client->clear();
  turnTo(1);
  EXPECT_EQ(part<QTabBar>("tabSection")->currentIndex(), 1);
  EXPECT_EQ(cell(1, DealCol::Code), "");
}

TEST_F(DealForm, IssuedLinesChangeTheTabAndArePrintedAgainFromThere) {
  turnTo(1);
  EXPECT_EQ(cell(1, DealCol::Code), "");
  turnTo(0);
  tickFirst();
  pickers.method = PrintMethodChoice{false, 1};
  whenMenu([](QMenu& menu) {
    EXPECT_EQ(menu.actions().at(0)->text(), " 명 세 표 출 력 ");
    EXPECT_EQ(menu.actions().at(2)->text(), " 취          소 ");
    chooseFirst(menu);
  });
  press("btnPrint");
  EXPECT_EQ(pickers.asked.title, "거래명세표 발행");
  EXPECT_EQ(pickers.asked.inkjet, "잉크젯(레이저)(&L)");
  ASSERT_EQ(printers.jobs.size(), 1u);
  EXPECT_TRUE(printers.jobs[0]->ended);
  EXPECT_TRUE(printers.jobs[0]->texts().contains("C O D E"));
  EXPECT_EQ(pending(), "15");
  EXPECT_EQ(rows(), 15) << "it left the list";
  turnTo(1);
  EXPECT_EQ(cell(1, DealCol::ClientName), "한라식당");
  tests::show(form);  // the bar of the run was in front
  grid->setFocus();
  tests::key(Qt::Key_Space);
  printers.refusal = "용지가 없습니다.";
  pc.prompts.expect("용지가 없습니다.\n\n거래명세표를 모두 인쇄하지 못했습니다.");
  press("btnPrint");
  EXPECT_EQ(pending(), "15");
}

TEST_F(DealForm, LeavingTheQuestionIssuesNothing) {
  grid->setFocus();
  choose("ChkAll");
  whenMenu([](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_Escape); });
  press("btnPrint");
  pickers.method = {};
  whenMenu(chooseFirst);
  press("btnPrint");
  EXPECT_EQ(pending(), "16");
}

TEST_F(DealForm, AQuantityTheLedgerRefusesComesBack) {
  go(1, DealCol::Quantity);
  tests::type("7");
  pc.prompts.expect("거래내역을 수정하는 중 오류가 발생했습니다.");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(cell(1, DealCol::Quantity), "1");
  EXPECT_FALSE(grid->isEditing());
  pc.prompts.expect("삭제할 내역을 선택하세요.");
  tests::key(Qt::Key_Delete);
}

struct TaxForm : OnForm<FrmTax> {
  TaxForm() { tests::show(form); }
};

TEST_F(TaxForm, GathersTheMonthAndShowsItsSums) {
  EXPECT_EQ(form.windowTitle(), "세금계산서 발행 - 현재 설정된 프린터 : 지로프린터");
  EXPECT_EQ(box("txtDate(0)") + box("txtDate(1)"), "2026-03-012026-03-31");
  EXPECT_EQ(box("Txt일련번호1") + '-' + box("Txt일련번호2"), "2603-001");
  EXPECT_EQ(rows(), 2);
  EXPECT_EQ(label("pnlSum(2)"), "1,380,000");
  EXPECT_EQ(label("pnlCaption"), " 발행할 거래내역을 선택하세요. [선택:Space 또는 Click]");
  form.resize(form.sizeHint());
  tests::grab(form, "FrmTax");
  click(2, TaxCol::Client);
  choose("ChkVat");
  EXPECT_EQ(label("pnlSum(1)"), "");
  EXPECT_EQ(cell(1, TaxCol::Tick) + cell(2, TaxCol::Tick), "1") << "another choice of tax keeps the ticks";
  choose("OptVat(1)");
  EXPECT_FALSE(part<QCheckBox>("ChkVat")->isChecked());
  EXPECT_EQ(label("pnlSum(2)"), "1,518,000");
  choose("OptGubun(1)");
  EXPECT_EQ(rows(), 16);
  grid->setFocus();
  tests::key(Qt::Key_Delete);  // nothing is deleted but from the register
  EXPECT_EQ(rows(), 16);
}

TEST_F(TaxForm, WhatIsChosenBesideTheRegisterIsGatheredWhenThePendingComeBack) {
  turnTo(1);
  choose("OptGubun(1)");
  EXPECT_EQ(cell(1, TaxCol::TaxCode), "");
  turnTo(0);
  EXPECT_EQ(rows(), 16) << "each day's";
  EXPECT_EQ(cell(1, TaxCol::DealDate), "2026-03-20");
  go(1, TaxCol::IssueDate);
  tests::type("20260330");
  tests::key(Qt::Key_Return);
  turnTo(1);
  turnTo(0);
  EXPECT_EQ(cell(1, TaxCol::IssueDate), "2026-03-30") << "nothing else was chosen";
  auto* const from = part<DateBox>("txtDate(0)");
  from->setFocus();
  from->setDateText("2026-03-25");
  turnTo(1);
  turnTo(0);
  EXPECT_EQ(label("pnlSum(2)"), "586,500") << "17 pieces since the day that stands in the box";
  from->setDateText("2026-04-01");
  pc.prompts.expect("검색일자 지정이 잘못되었습니다. 다시 입력하세요.");
  choose("OptGubun(0)");
  EXPECT_TRUE(part<QRadioButton>("OptGubun(1)")->isChecked()) << "as what is listed";
}

TEST_F(TaxForm, F4IssuesWhatIsTickedAndLeavesTheRest) {
  grid->setFocus();
  click(1, TaxCol::Client);
  EXPECT_EQ(cell(1, TaxCol::Tick), "1");
  pickers.method = PrintMethodChoice{false, 1};
  tests::key(Qt::Key_F4);
  EXPECT_EQ(pickers.asked.prompt, "세금계산서 발행 방법을 선택하세요.");
  EXPECT_EQ(rows(), 1);
  EXPECT_EQ(box("Txt일련번호2"), "002");
  turnTo(1);
  EXPECT_EQ(cell(1, TaxCol::TaxCode), "2603001");
  tests::show(form);  // the bar of the run was in front
  go(1, TaxCol::Client);
  pc.prompts.expect("지정하신 세금계산서 내역을 삭제하시겠습니까?");
  tests::key(Qt::Key_Delete);
  EXPECT_EQ(cell(1, TaxCol::TaxCode), "");
  turnTo(0);
  EXPECT_EQ(rows(), 1) << "its lines do not come back";
}

TEST_F(TaxForm, WhatIsIssuedLeavesTheListWhateverStandsInTheDates) {
  const auto ask = [this](const char* from, const char* to) {
    part<DateBox>("txtDate(0)")->setDateText(from);
    part<DateBox>("txtDate(1)")->setDateText(to);
  };
  click(1, TaxCol::Client);
  ask("2026-04-01", "2026-03-31");
  pc.prompts.expect("검색일자 지정이 잘못되었습니다. 다시 입력하세요.");
  choose("Cmd인쇄");
  EXPECT_EQ(rows(), 1);
  EXPECT_EQ(box("Txt일련번호1") + box("Txt일련번호2"), "2603002");
  ask("2026-04-01", "2026-04-30");
  choose("Cmd모으기");
  EXPECT_EQ(box("Txt일련번호1") + box("Txt일련번호2"), "2604001") << "of the month that is gathered";
}

TEST_F(TaxForm, F5ChangesTheIssueDateAndEscLeavesTheDatesFirst) {
  go(1, TaxCol::Client);
  tests::key(Qt::Key_F5);
  ASSERT_TRUE(grid->isEditing());
  tests::key(Qt::Key_A, Qt::ControlModifier);
  tests::type("20260330");
  tests::key(Qt::Key_Return);
  EXPECT_EQ(cell(1, TaxCol::IssueDate), "2026-03-30");
  tests::key(Qt::Key_Insert);
  EXPECT_TRUE(part<QLineEdit>("txtDate(0)")->hasFocus());
  tests::key(Qt::Key_Escape);
  EXPECT_TRUE(form.isVisible());
  tests::key(Qt::Key_F1);
  EXPECT_EQ(commands.asked.back(), "FrmMargin:세금계산서");
  tests::key(Qt::Key_F2);
  EXPECT_EQ(commands.asked.back(), "FrmMargin:세금계산서") << "invoices are typed in the other mode";
  form.showPage("1");
  EXPECT_EQ(label("pnlCaption"), " F2키를 눌러 발행할 내역을 먼저 입력하세요.");
  EXPECT_FALSE(part<QPushButton>("Cmd모으기")->isEnabled());
  part<DateBox>("txtDate(1)")->setFocus();
  part<DateBox>("txtDate(1)")->setDateText("2026-03-30");
  tests::key(Qt::Key_F2);
  EXPECT_EQ(commands.asked.back(), "FrmNewAcount:2026-03-30,2026-03-30") << "a day still being typed counts";
}

struct AcountForm : OnForm<FrmNewAcount> {};

TEST_F(AcountForm, TypingAnInvoiceByKeys) {
  tests::show(form);
  EXPECT_TRUE(part<QLineEdit>("txtinput")->hasFocus());
  grid->setFocus();
  pc.prompts.expect("거래처를 먼저 선택하여 주십시요.");
  tests::type("a");
  EXPECT_TRUE(part<QLineEdit>("txtinput")->hasFocus());
  found(1, "한라식당");
  tests::key(Qt::Key_Return);
  EXPECT_TRUE(grid->isAncestorOf(QApplication::focusWidget()));
  for (const char* typed : {"gas", "20", "0", "2", "1000"}) {
    tests::type(typed);
    tests::key(Qt::Key_Return);
  }
  EXPECT_EQ(cell(1, AcountCol::Total), "2,200");
  EXPECT_EQ(label("pnlSum(1)"), "200");
  tests::key(Qt::Key_Return);
  tests::key(Qt::Key_Return);
  EXPECT_EQ(grid->activeRow(), 2);
  tests::grab(form, "FrmNewAcount");
  pc.prompts.expect("세금계산서 내역을 저장하시겠습니까?", true);
  pc.prompts.expect("[닫기]버튼을 누르시면 계산서를 발행하실 수 있습니다");
  press("btnQuit");
  EXPECT_FALSE(form.isVisible());
  FrmTax tax(context);
  auto* const list = tax.findChild<Spread*>("grdList");
  // The form empties what was left behind when it opens for typed invoices; what is typed while it is open stays.
  tax.showPage("1");
  tests::show(tax);
  EXPECT_EQ(list->model().text(1, TaxCol::TaxCode), "");
  clsPrintTax typed(session.dbTax, taxStation(QDate(2026, 3, 31)));
  typed.line = {.TaxCode = "2603001",
                .CCode = "1",
                .CName = "a",
                .TradeKum = 10,
                .SumKum = 10,
                .DealDate = "2026-03-31",
                .IssueDate = "2026-03-31",
                .Code = "000001"};
  ASSERT_TRUE(typed.Insert());
  pc.prompts.expect("입력한 계산서를 발행하지 않았습니다!", false);
  tax.showPage("0");
  EXPECT_FALSE(tax.findChild<QPushButton*>("Cmd모으기")->isEnabled()) << "still the typed ones";
  pc.prompts.expect("입력한 계산서를 발행하지 않았습니다!", false);
  EXPECT_FALSE(tax.close());
  pc.prompts.expect("입력한 계산서를 발행하지 않았습니다!", true);
  EXPECT_TRUE(tax.close());
  EXPECT_TRUE(typed.List().atEnd());
}

TEST_F(AcountForm, WhoeverAndWheneverStandsInTheBoxesIsWhatIsStored) {
  auto* const client = part<QLineEdit>("txtinput");
  auto* const day = part<DateBox>("txtDate(1)");
  const auto store = [this] { part<QPushButton>("btnSave")->click(); };  // as Alt+S, the focus stays
  tests::show(form);
  found(1, "한라식당");
  tests::key(Qt::Key_Return);
  tests::type("gas");
  tests::key(Qt::Key_Return);
  pc.prompts.expect("선택하신 내역을 삭제하시겠습니까?", false);
  tests::key(Qt::Key_Delete, Qt::KeypadModifier);

  client->setFocus();
  tests::type("sea");  // and not looked up
  go(1, AcountCol::Norm);
  pc.prompts.expect("거래처를 먼저 선택하여 주십시요.");
  tests::type("b");
  EXPECT_TRUE(client->hasFocus());
  grid->setFocus();
  pc.prompts.expect("거래처를 먼저 선택하여 주십시요.");
  store();
  EXPECT_TRUE(client->hasFocus());
  found(2, "바다식당");
  tests::key(Qt::Key_Return);

  day->setFocus();
  day->setDateText("2026-13-40");
  QFocusEvent toMenu(QEvent::FocusOut, Qt::PopupFocusReason);
  QApplication::sendEvent(day, &toMenu);
  QApplication::processEvents();
  EXPECT_EQ(day->dateText(), "2026-13-40") << "its own menu is no leaving";
  pc.prompts.expect("잘못된 날짜 형식입니다.\n정확한 날짜 형식을 입력하세요.");
  store();
  EXPECT_TRUE(day->hasFocus());
  EXPECT_EQ(day->dateText(), "2026-03-31");
  EXPECT_EQ(inTax("Select Count(*) From NewAcount"), "0");
  day->setDateText("2026-03-15");
  pc.prompts.expect("세금계산서 내역을 저장하시겠습니까?", true);
  pc.prompts.expect("[닫기]버튼을 누르시면 계산서를 발행하실 수 있습니다");
  tests::key(Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(inTax("Select CName & DealDate From NewAcount"), "바다식당2026-03-15");
}

TEST_F(DocumentForms, TheDialogsChooseAndLeave) {
  session.dbBasic.Execute("Insert Into Response(Name) Values('홍길동')");
  tests::whenModal([](QWidget& dialog) {
    tests::grab(dialog, "FrmMsg");
    dialog.findChild<QRadioButton*>("optPaper(2)")->click();
    QTest::mouseClick(dialog.findChild<QPushButton*>("btnDot"), Qt::LeftButton);
  });
  const auto method = FrmMsg(session, {"제목", "물음", "잉크젯", "도트"}, nullptr);
  ASSERT_TRUE(method);
  EXPECT_TRUE(method->dot);
  EXPECT_EQ(method->paper, 2);
  tests::whenModal([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  EXPECT_FALSE(FrmMsg(session, {}, nullptr));

  EXPECT_FALSE(FrmTraderList(session, pickers, "없는집", nullptr).any);
  EXPECT_EQ(FrmTraderList(session, pickers, "바다", nullptr).trader->name, "바다식당")
      << "one hit shows nothing";
  tests::whenModal([](QWidget& dialog) {
    tests::grab(dialog, "FrmTraderList");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  });
  EXPECT_EQ(FrmTraderList(session, pickers, "식당", nullptr).trader->name, "한라식당");
  tests::whenModal([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  const TraderFound left = FrmTraderList(session, pickers, "", nullptr);
  EXPECT_TRUE(left.any);
  EXPECT_FALSE(left.trader);

  tests::whenModal([&](QWidget& dialog) {
    tests::grab(dialog, "FrmNewTrader");
    dialog.findChild<QLineEdit*>("txtName")->setText("새 거래처");
    auto* const charge = dialog.findChild<QLineEdit*>("txtCharge");
    for (const char* typed : {"1", "홍길동", "없음"}) {
      charge->setFocus();
      charge->setText(typed);
      QTest::keyClick(charge, Qt::Key_Return);
      EXPECT_EQ(charge->text(), QString(typed) == "없음" ? "김배달" : "홍길동")
          << "by code, by name, from the list";
    }
    EXPECT_TRUE(dialog.findChild<QLineEdit*>("txtSerial")->hasFocus());
    auto* const address = dialog.findChild<QLineEdit*>("txtAddr1");
    const auto onAddress = [&](Qt::Key key, Qt::KeyboardModifiers held = {}) {
      address->setFocus();
      QTest::keyClick(address, key, held);
    };
    pickers.post = PostCodeChoice{"700-010", "대구 중구 동인동", ""};
    onAddress(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(pickers.posts, QStringList()) << "another key";
    onAddress(Qt::Key_PageDown);
    EXPECT_EQ(address->text(), "대구 중구 동인동");
    address->setText("대구 중구 동인동 1가");
    onAddress(Qt::Key_Return);
    EXPECT_EQ(pickers.posts, QStringList("")) << "it has its postcode";
    address->setText("역삼동");
    onAddress(Qt::Key_Return);
    EXPECT_EQ(pickers.posts, QStringList({"", "역삼동"})) << "the postcode was another place's";
    dialog.findChild<QLineEdit*>("txtSerial")->setText("123-45-67890");
    pc.prompts.expect("검증번호가 맞지 않습니다.");
    pc.prompts.expect("거래처를 등록하는 중 오류가 발생했습니다.");
    QTest::mouseClick(dialog.findChild<QPushButton*>("BtnSave"), Qt::LeftButton);
    EXPECT_TRUE(dialog.isVisible()) << "what was typed stays";
    pc.prompts.expect("저장하지 않고 버리시겠습니까?", true);
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  EXPECT_FALSE(FrmNewTrader(session, pickers, true).enter());
}

TEST_F(DocumentForms, APostcodeIsSearchedAndFoundInWhatIsLoaded) {
  const auto post = session.wsMain.OpenDatabase(session.DbPath + "dbPost.mdb");
  for (const char* row : {"'135080', '역삼동'", "'135081', '역삼1동'", "'700010', '동인동'"})
    post.Execute(u"Insert Into Post(SIDO, GUGUN, ZIPCODE, DONG) Values('서울', '강남', %1)"_s.arg(row));
  tests::whenModal([this](QWidget& dialog) {
    tests::grab(dialog, "FrmPost");
    auto* const grid = dialog.findChild<Spread*>("SpPost");
    auto* const box = dialog.findChild<QLineEdit*>("txtFind");
    const auto find = [&](const char* typed) {
      box->setText(typed);
      QTest::mouseClick(dialog.findChild<QPushButton*>("btnFind"), Qt::LeftButton);
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return grid->model().MaxRows() == 3; })) << "all of them to begin with";
    EXPECT_TRUE(box->hasFocus());
    find("");
    EXPECT_EQ(grid->model().MaxRows(), 3);
    find("동인동");
    EXPECT_EQ(grid->activeRow(), 3);
    EXPECT_EQ(grid->model().MaxRows(), 3) << "it is in the list";
    find("역삼");
    EXPECT_EQ(grid->model().MaxRows(), 2);
    pc.prompts.expect("'없는동' 가 없습니다.");
    find("없는동");
    find("135-081");
    EXPECT_EQ(grid->model().text(1, 2), "서울 강남 역삼1동") << "the file has it without its dash";
    find("70001");
    EXPECT_EQ(grid->model().text(1, 1), "700-010");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  });
  const auto chosen = FrmPost(session, {}, nullptr);
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->zipCode, "700-010");
}

}  // namespace
