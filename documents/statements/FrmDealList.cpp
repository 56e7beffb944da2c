#include "documents/statements/FrmDealList.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>

#include "documents/form_parts.h"

namespace {

constexpr auto gridHelp = "  발행할 거래내역을 선택하세요. [선택:Space 또는 더블클릭]";

}  // namespace

FrmDealList::FrmDealList(FormContext& context, QWidget* parent)
    : DocumentForm("FrmDealList", "거래명세표", context, parent), desk_(context.session) {
  grid_ = addSpread("grdList", desk_.grid());
  grid_->setFillColumn(DealCol::Item);
  lay({tabs_, questionRow(), choiceRow()}, sumRow());
  connectGrid();
  setHelp(grid_->focusProxy(), gridHelp);  // the line box, which has the hand
  setHelp(client_, "  매출처를 선택하여 주십시요. [검색:Enter]");
  setBottomLine("[종료:Esc]  [거래처검색:Insert]");
  enterOrder({dates_->box(0), dates_->box(1)}, [this] {
    if (search()) focusGrid();
  });
  whenLeft(client_, [this] { clientLeft(); });
  onKey(Qt::Key_Escape, [this] { close(); });
  onKey(Qt::Key_Insert, [this] { focus(client_); });
  onKey(Qt::Key_Delete, [this] {
    if (grid_->hasFocus() && desk_.deleteTicked()) list();
  });
  connect(tabs_, &QTabBar::currentChanged, this, [this] { guard([this] { turnTab(); }); });
  connect(facility_, &QCheckBox::clicked, this, [this] { command([this] { search(); }); });
  connect(all_, &QCheckBox::clicked, this, [this](bool on) { desk_.ticks().setAll(on); });
  guard([this] { Open({}, {}); });
  dates_->box(0)->setFocus();
}

void FrmDealList::showPage(const QString& range) {
  guard([&] { Open(range.section(',', 0, 0), range.section(',', 1, 1)); });
}

void FrmDealList::Open(const QString& fromDate, const QString& toDate) {
  const QDate today = session().pc.clock.today();
  dates_->set(fromDate, toDate, today, today);
  showPrinter();
  openingKey_ = desk_.openingKey(QString::number(dates_->from().year()));
  search();
}

QWidget* FrmDealList::questionRow() {
  auto* const panel = addGroup({});
  auto* const row = panelRow(panel, 4, 5);
  dates_ = std::make_unique<DateRangeBoxes>(*this, panel, "  검색 시작일을 입력하세요.",
                                            "  검색 마지막일을 입력하세요.");
  dates_->addTo(row, "매출일자");
  row->addWidget(new QLabel("매출처", panel));
  client_ = new QLineEdit(panel);
  client_->setObjectName("txtinput");
  client_->setMinimumWidth(26 * fontMetrics().horizontalAdvance('0'));
  client_->installEventFilter(this);
  row->addWidget(client_);
  clientCode_ = new QLineEdit(panel);
  clientCode_->setObjectName("txtCCode");
  clientCode_->hide();
  connect(client_, &QLineEdit::returnPressed, this, [this] { guard([this] { chooseClient(); }); });
  // A name that is typed over is nobody's until it is looked up.
  connect(client_, &QLineEdit::textEdited, clientCode_, &QLineEdit::clear);
  row->addWidget(addButton("btnSearch", "검색(&F)", [this] { search(); }));
  row->addStretch(1);
  row->addWidget(addButton("btnSet", "여백설정(&S)", [this] { askMargin(); }));
  row->addWidget(addButton("btnPrinterSet", "프린터설정(&T)", [this] { askPrinter(); }));
  return panel;
}

QWidget* FrmDealList::choiceRow() {
  auto* const panel = addGroup({});
  auto* const row = panelRow(panel, 2, 12);
  const auto choice = [&](const char* name, const QString& caption) {
    auto* const made = new QRadioButton(caption, panel);
    made->setObjectName(name);
    row->addWidget(made);
    return made;
  };
  all_ = addCheck(panel, "ChkAll", "전체선택");
  facility_ = addCheck(panel, "sisul_option", "시설자재포함");
  form_ = addCheck(panel, "chkForm", "양식 출력");
  form_->setChecked(true);
  row->addSpacing(16);
  included_ = choice("OptGubun(2)", "부가세포함");
  onTop_ = choice("OptGubun(3)", "부과세별도");
  included_->setChecked(true);
  freeOfTax_ = addCheck(panel, "ChkVat", "면세");
  row->addStretch(1);
  auto* const hint = new QLabel("※ 블럭 설정 : 마우스 드래그", panel);
  hint->setObjectName("lblHint");
  row->addWidget(hint);
  return panel;
}

QWidget* FrmDealList::sumRow() {
  auto* const panel = new QWidget(this);
  auto* const row = panelRow(panel, 0, 6);
  row->addWidget(new QLabel("< 총   합   계 >", panel));
  row->addWidget(sum_ = figure(panel, "pnlSum", 18));
  row->addSpacing(10);
  caption_ = new QLabel(gridHelp, panel);
  caption_->setObjectName("pnlCaption");
  row->addWidget(caption_, 1);
  row->addWidget(buttonRow({addPreviewButton(), addPdfButton(), nullptr,
                            addButton("btnPrint", "발행(&P)", [this] { print(); }),
                            addButton("btnExit", "닫기(&X)", [this] { close(); })}));
  return panel;
}

void FrmDealList::connectGrid() {
  grid_->spacePressed = [this](int from, int to) {
    if (!isPendingTab()) to = from = grid_->activeRow();
    const bool on = !desk_.ticks().isTicked(grid_->activeRow());
    desk_.ticks().setBlock(from, to, on);
  };
  grid_->blockMarked = [this](int from, int to) {
    if (isPendingTab()) desk_.ticks().setBlock(from, to, true);
  };
  // The tick's own cell was turned by the click already.
  grid_->doubleClicked = [this](int row, int col) {
    if (col != DealCol::Tick) desk_.ticks().toggle(row);
  };
  grid_->editStarting = [this](int row, int) { return !desk_.grid().text(row, DealCol::Code).isEmpty(); };
  grid_->cellFinished = [this](int row, int col, const QString&, const QString& text) {
    return finishCell(row, col, text);
  };
}

bool FrmDealList::finishCell(int row, int col, const QString& text) {
  if (col == DealCol::Tick) {
    desk_.ticks().set(row, text == "1");
    return true;
  }
  if (text.isEmpty() || desk_.changeQuantity(row, text)) return true;
  grid_->cancelEdit();
  return false;
}

bool FrmDealList::eventFilter(QObject* watched, QEvent* event) {
  if (watched == client_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down) return focusNextPrevChild(key == Qt::Key_Down);
  }
  return DocumentForm::eventFilter(watched, event);
}

DealAsk FrmDealList::ask() const {
  return {.from = dates_->from(),
          .to = dates_->to(),
          .clientCode = client_->text().isEmpty() ? QString() : clientCode_->text(),
          .facility = facility_->isChecked(),
          .tab = isPendingTab() ? DealTab::Pending : DealTab::Issued};
}

bool FrmDealList::search() {
  const bool isUnknown = !client_->text().trimmed().isEmpty() && clientCode_->text().isEmpty();
  return dates_->take() && (!isUnknown || findClient()) && list();
}

bool FrmDealList::list() {
  const BusyPointer busy;
  all_->setChecked(false);
  const bool found = desk_.search(ask());
  sum_->setText(desk_.found().sumText());
  if (!found) focus(dates_->box(0));
  return found;
}

void FrmDealList::turnTab() {
  grid_->setActiveCell(1, DealCol::Date);
  search();
  // Where the question was not taken the list is still the other tab's.
  const QSignalBlocker still(tabs_);
  tabs_->setCurrentIndex(desk_.tab() == DealTab::Pending ? 0 : 1);
}

/** False after telling that the name in the box is nobody's, or when the operator leaves the choice. */
bool FrmDealList::findClient() {
  const QString text = client_->text().trimmed();
  const TraderFound found = context_.pickers.searchTrader(text);
  if (!found.any)
    session().prompts.MsgInfo(text.isEmpty() ? "등록된 거래처가 없습니다." : "검색된 거래처가 없습니다.");
  if (!found.trader) {
    focus(client_);
    return false;
  }
  clientCode_->setText(QString::number(found.trader->code));
  client_->setText(found.trader->name);
  return true;
}

void FrmDealList::chooseClient() {
  if (findClient() && search()) focusGrid();
}

void FrmDealList::clientLeft() {
  if (client_->text().isEmpty()) clientCode_->clear();
}

std::optional<DealPrint> FrmDealList::askPrint() {
  const auto method = context_.pickers.askPrintMethod({.title = "거래명세표 발행",
                                                       .prompt = "거래명세표 발행 방법을 선택하세요",
                                                       .inkjet = "잉크젯(레이저)(&L)",
                                                       .dot = "도트발행(&D)"});
  if (!method) return {};
  std::optional<Vat> vat;
  if (freeOfTax_->isChecked())
    vat = Vat::None;
  else if (included_->isChecked())
    vat = Vat::Included;
  else if (onTop_->isChecked())
    vat = Vat::OnTop;
  return DealPrint{layoutOf(*method), vat, form_->isChecked()};
}

std::optional<DocumentRun> FrmDealList::papers(bool issuing) {
  const auto how = askPrint();
  if (!how) return {};
  return issuing ? desk_.issue(*how) : desk_.papers(*how);
}

void FrmDealList::print() {
  const auto listAnew = [this] {
    list();
    form_->setEnabled(true);
  };
  if (!isPendingTab()) return issue(listAnew);
  QMenu menu(this);
  menu.setObjectName("mnuPrint");
  const QAction* const go = menu.addAction(" 명 세 표 출 력 ");
  menu.addSeparator();
  menu.addAction(" 취          소 ");
  if (menu.exec(QCursor::pos()) == go) issue(listAnew);
}
