#include "documents/statements/FrmDealList.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QVBoxLayout>

#include "documents/form_sections.h"
#include "papers/form_document_run.h"
#include "papers/paper_printer.h"

namespace {

constexpr auto kind = "거래명세표";
constexpr auto gridHelp = "  발행할 거래내역을 선택하세요. [선택:Space 또는 더블클릭]";

template <class Button>
Button* option(const char* name, const QString& caption, QHBoxLayout* row, QWidget* parent) {
  auto* const made = new Button(caption, parent);
  made->setObjectName(name);
  row->addWidget(made);
  return made;
}

}  // namespace

FrmDealList::FrmDealList(FormContext& context, QWidget* parent)
    : Form("FrmDealList", "거래명세표 발행", context.session, parent),
      context_(context),
      desk_(context.session) {
  tabs_ = sectionTabs(this);
  grid_ = addSpread("grdList", desk_.grid());
  grid_->setFillColumn(DealCol::Item);
  body()->addLayout(sectionHead({tabs_, questionRow(), choiceRow()}));
  body()->addWidget(grid_, 1);
  body()->addWidget(sumRow());
  connectGrid();
  setHelp(grid_, gridHelp);
  setHelp(client_, "  매출처를 선택하여 주십시요. [검색:Enter]");
  setBottomLine("[종료:Esc]  [거래처검색:Insert]");
  enterOrder({dates_->box(0), dates_->box(1)}, [this] {
    search();
    if (dates_->from() <= dates_->to()) focusGrid();
  });
  whenLeft(client_, [this] { clientLeft(); });
  onKey(Qt::Key_Escape, [this] { close(); });
  onKey(Qt::Key_Insert, [this] { focus(client_); });
  onKey(Qt::Key_Delete, [this] {
    if (desk_.deleteTicked()) search();
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
  auto* const row = new QHBoxLayout(panel);
  row->setContentsMargins(6, 4, 6, 4);
  row->setSpacing(5);
  dates_ = std::make_unique<DateRangeBoxes>(*this, panel, "  검색 시작일을 입력하세요.",
                                            "  검색 마지막일을 입력하세요.");
  row->addWidget(new QLabel("매출일자", panel));
  row->addWidget(dates_->box(0));
  row->addWidget(new QLabel("~", panel));
  row->addWidget(dates_->box(1));
  row->addSpacing(10);
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
  row->addWidget(addButton("btnSearch", "검색(&F)", [this] { search(); }));
  row->addStretch(1);
  row->addWidget(addButton("btnSet", "여백설정(&S)",
                           [this] { context_.commands.openForm(QString("FrmMargin:") + kind); }));
  row->addWidget(addButton("btnPrinterSet", "프린터설정(&T)", [this] {
    context_.commands.openForm(QString("FrmSetPrinter:") + kind);
    showPrinter();
  }));
  return panel;
}

QWidget* FrmDealList::choiceRow() {
  auto* const panel = addGroup({});
  auto* const row = new QHBoxLayout(panel);
  row->setContentsMargins(6, 2, 6, 2);
  row->setSpacing(12);
  all_ = option<QCheckBox>("ChkAll", "전체선택", row, panel);
  facility_ = option<QCheckBox>("sisul_option", "시설자재포함", row, panel);
  form_ = option<QCheckBox>("chkForm", "양식 출력", row, panel);
  form_->setChecked(true);
  row->addSpacing(16);
  included_ = option<QRadioButton>("OptGubun(2)", "부가세포함", row, panel);
  onTop_ = option<QRadioButton>("OptGubun(3)", "부과세별도", row, panel);
  freeOfTax_ = option<QCheckBox>("ChkVat", "면세", row, panel);
  included_->setChecked(true);
  row->addStretch(1);
  auto* const hint = new QLabel("※ 블럭 설정 : 마우스 드래그", panel);
  hint->setObjectName("lblHint");
  row->addWidget(hint);
  return panel;
}

QWidget* FrmDealList::sumRow() {
  auto* const panel = new QWidget(this);
  auto* const row = new QHBoxLayout(panel);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(new QLabel("< 총   합   계 >", panel));
  sum_ = new QLabel(panel);
  sum_->setObjectName("pnlSum");
  sum_->setProperty("role", "value");
  sum_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  sum_->setFixedWidth(18 * fontMetrics().horizontalAdvance('0'));
  row->addWidget(sum_);
  row->addSpacing(10);
  caption_ = new QLabel(gridHelp, panel);
  caption_->setObjectName("pnlCaption");
  row->addWidget(caption_, 1);
  row->addWidget(buttonRow({addButton("btnPreview", "미리보기(&W)", [this] { preview(); }),
                            addButton("btnPdf", "PDF저장(&D)", [this] { savePdf(); }), nullptr,
                            addButton("btnPrint", "발행(&P)", [this] { print(); }),
                            addButton("btnExit", "닫기(&X)", [this] { close(); })}));
  return panel;
}

void FrmDealList::connectGrid() {
  grid_->spacePressed = [this](int from, int to) {
    if (tab() == DealTab::Issued) to = from = grid_->activeRow();
    const bool on = !desk_.ticks().isTicked(grid_->activeRow());
    desk_.ticks().setBlock(from, to, on);
  };
  grid_->blockMarked = [this](int from, int to) {
    if (tab() == DealTab::Pending) desk_.ticks().setBlock(from, to, true);
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

DealTab FrmDealList::tab() const {
  return tabs_->currentIndex() == 0 ? DealTab::Pending : DealTab::Issued;
}

DealAsk FrmDealList::ask() const {
  return {.from = dates_->from(),
          .to = dates_->to(),
          .clientCode = client_->text().isEmpty() ? QString() : clientCode_->text(),
          .facility = facility_->isChecked(),
          .tab = tab()};
}

void FrmDealList::search() {
  if (!dates_->take()) return;
  const BusyPointer busy;
  all_->setChecked(false);
  const bool found = desk_.search(ask());
  sum_->setText(desk_.found().sumText());
  if (!found) focus(dates_->box(0));
}

void FrmDealList::turnTab() {
  grid_->setActiveCell(1, DealCol::Date);
  search();
}

void FrmDealList::chooseClient() {
  const QString text = client_->text().trimmed();
  const TraderFound found = context_.pickers.searchTrader(text);
  if (!found.any)
    session().prompts.MsgInfo(text.isEmpty() ? "등록된 거래처가 없습니다." : "검색된 거래처가 없습니다.");
  if (!found.trader) return focus(client_);
  clientCode_->setText(QString::number(found.trader->code));
  client_->setText(found.trader->name);
  search();
  focusGrid();
}

void FrmDealList::clientLeft() {
  if (client_->text().isEmpty()) clientCode_->clear();
}

QString FrmDealList::printer() const {
  return documentPrinterOrDefault(session(), kind);
}

void FrmDealList::showPrinter() {
  setWindowTitle("거래명세표 발행 - 현재 설정된 프린터 : " + printer());
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
  return DealPrint{DealDesk::layoutOf(*method), vat, form_->isChecked()};
}

void FrmDealList::print() {
  if (tab() == DealTab::Issued) return issue();
  QMenu menu(this);
  menu.setObjectName("mnuPrint");
  const QAction* const go = menu.addAction(" 명 세 표 출 력 ");
  menu.addSeparator();
  menu.addAction(" 취          소 ");
  if (menu.exec(QCursor::pos()) == go) issue();
}

/** The lines are marked before the paper comes: what then fails leaves them on the issued list, from where they are
 *  printed again. */
void FrmDealList::issue() {
  if (!desk_.mayPrint(printer())) return;
  const auto how = askPrint();
  if (!how) return;
  const DocumentRun run = desk_.issue(*how);
  QString failure;
  int done = run.documents;
  try {
    done = printRun(session(), this, run, printer());
  } catch (const pc::PrintError& error) {
    failure = error.text;
    done = 0;
  }
  search();
  form_->setEnabled(true);
  if (done < run.documents)
    session().prompts.MsgWarn((failure.isEmpty() ? QString() : failure + "\n\n") +
                                  "거래명세표를 모두 인쇄하지 못했습니다.\n발행한 내역에서 다시 인쇄하세요.",
                              kind);
}

void FrmDealList::preview() {
  if (!desk_.mayPrint(printer())) return;
  if (const auto how = askPrint())
    previewRun(session(), this, desk_.papers(*how), [this] { guard([this] { print(); }); });
}

void FrmDealList::savePdf() {
  if (!desk_.mayPrint(printer())) return;
  if (const auto how = askPrint()) saveRun(session(), this, desk_.papers(*how));
}
