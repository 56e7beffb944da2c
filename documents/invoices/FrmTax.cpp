#include "documents/invoices/FrmTax.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QVBoxLayout>

#include "documents/form_sections.h"
#include "documents/invoices/tax_bulk.h"
#include "papers/form_document_run.h"
#include "papers/paper_printer.h"
#include "ui/grid/excel_export.h"

namespace {

constexpr auto kind = "세금계산서";
constexpr auto listHelp = " 발행할 거래내역을 선택하세요. [선택:Space 또는 Click]";
constexpr auto emptyHelp = " F2키를 눌러 발행할 내역을 먼저 입력하세요.";
constexpr auto keysFirst = "[종료:Esc]  [일자변경:Insert]  [여백설정:F1]  [신규등록:F2]  [수정:F5]";
constexpr auto keysAfterEntry =
    "[종료:Esc]  [일자변경:Insert]  [여백설정:F1]  [신규등록:F2]  [부분발행:F4]  [수정:Sapce]";

QWidget* tightRow(QWidget* parent, QHBoxLayout*& row) {
  auto* const box = new QWidget(parent);
  row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(8);
  return box;
}

}  // namespace

FrmTax::FrmTax(FormContext& context, QWidget* parent)
    : Form("FrmTax", "세금계산서 발행", context.session, parent), context_(context), desk_(context.session) {
  tabs_ = sectionTabs(this);
  grid_ = addSpread("grdList", desk_.grid());
  grid_->setFillColumn(TaxCol::Item);
  body()->addLayout(sectionHead({tabs_, questionRow(), choiceRow()}));
  body()->addWidget(grid_, 1);
  body()->addWidget(sumRow());
  setBottomLine(keysFirst);
  enterOrder({dates_->box(0), dates_->box(1)}, [this] {
    closeDates();
    gather();
  });
  connectGrid();
  connectKeys();
  guard([this] { Open(0, {}, {}); });
  grid_->setFocus();
}

void FrmTax::showPage(const QString& mode) {
  // What was typed on the open form and is not issued yet stays.
  if (isTyped() && mode == "1") return;
  guard([&] { Open(mode == "1" ? 1 : 0, {}, {}); });
}

void FrmTax::Open(int mode, const QString& fromDate, const QString& toDate) {
  const QDate today = session().pc.clock.today();
  mode_ = mode;
  dates_->set(fromDate, toDate, isTyped() ? today : QDate(today.year(), today.month(), 1), today);
  showPrinter();
  showSerial(desk_.nextSerial(dates_->to()));
  for (QRadioButton* each : gathering_) each->setEnabled(!isTyped());
  gatherButton_->setEnabled(!isTyped());
  desk_.empty();
  gather();
}

bool FrmTax::mayClose() {
  return guard([this] { desk_.empty(); }) || true;
}

QWidget* FrmTax::questionRow() {
  datePanel_ = addGroup({});
  datePanel_->setObjectName("pnlDate");
  auto* const row = new QHBoxLayout(datePanel_);
  row->setContentsMargins(6, 4, 6, 4);
  row->setSpacing(5);
  dates_ = std::make_unique<DateRangeBoxes>(*this, datePanel_, " 집계 시작일자를 입력하세요.",
                                            " 집계 마지막일자를 입력하세요.");
  row->addWidget(new QLabel("집계일자", datePanel_));
  row->addWidget(dates_->box(0));
  row->addWidget(new QLabel("~", datePanel_));
  row->addWidget(dates_->box(1));
  row->addSpacing(10);
  int place = 0;
  for (const char* caption : {"월별", "일자별", "기간별"}) {
    auto* const made = new QRadioButton(caption, datePanel_);
    made->setObjectName(QString("OptGubun(%1)").arg(place));
    connect(made, &QRadioButton::clicked, this, [this] { command([this] { gather(); }); });
    row->addWidget(made);
    gathering_[place++] = made;
  }
  gathering_[0]->setChecked(true);
  row->addWidget(gatherButton_ = addButton("Cmd모으기", "집계(&G)", [this] { gather(); }));
  row->addStretch(1);
  row->addWidget(new QLabel("일련번호", datePanel_));
  for (auto [box, name, digits] :
       {std::tuple{&serialMonth_, "Txt일련번호1", 4}, {&serialNumber_, "Txt일련번호2", 5}}) {
    *box = new QLineEdit(datePanel_);
    (*box)->setObjectName(name);
    (*box)->setMaxLength(digits);
    (*box)->setInputMask({});
    (*box)->setFixedWidth((digits + 2) * fontMetrics().horizontalAdvance('0') + 12);
    row->addWidget(*box);
  }
  row->insertWidget(row->indexOf(serialNumber_), new QLabel("-", datePanel_));
  row->addSpacing(10);
  auto* const setPrinter = addButton("btnPrinter", "프린터(&P)", [this] {
    context_.commands.openForm(QString("FrmSetPrinter:") + kind);
    showPrinter();
  });
  // Alt+P issues: two buttons of one letter would only pass the focus to and fro.
  setPrinter->setShortcut(QKeySequence("Alt+I"));
  setPrinter->setToolTip("Alt+I");
  row->addWidget(setPrinter);
  return datePanel_;
}

QWidget* FrmTax::choiceRow() {
  auto* const panel = addGroup({});
  auto* const row = new QHBoxLayout(panel);
  row->setContentsMargins(6, 2, 6, 2);
  row->setSpacing(14);
  const auto check = [&](const char* name, const QString& caption) {
    auto* const made = new QCheckBox(caption, panel);
    made->setObjectName(name);
    row->addWidget(made);
    return made;
  };
  all_ = check("Chk선택", "전체 선택");
  form_ = check("chkForm", "양식 출력");
  form_->setChecked(true);
  QHBoxLayout* vats = nullptr;
  row->addWidget(tightRow(panel, vats));
  int place = 0;
  for (const char* caption : {"Vat포함", "Vat별도", "Vat없음"}) {
    auto* const made = new QRadioButton(caption, panel);
    made->setObjectName(QString("OptVat(%1)").arg(place));
    connect(made, &QRadioButton::toggled, this, [this](bool on) {
      if (!on) return;
      freeOfTax_->setChecked(vat() == Vat::None);
      guard([this] { list(); });
    });
    vats->addWidget(made);
    vat_[place++] = made;
  }
  freeOfTax_ = check("ChkVat", "면세적용");
  {
    const QSignalBlocker quiet(vat_[0]);
    vat_[0]->setChecked(true);
  }
  connect(freeOfTax_, &QCheckBox::clicked, this, [this](bool on) { vat_[on ? 2 : 0]->setChecked(true); });
  connect(all_, &QCheckBox::clicked, this, [this](bool on) { desk_.ticks().setAll(on); });
  QHBoxLayout* words = nullptr;
  row->addWidget(tightRow(panel, words));
  for (auto [button, name, caption] :
       {std::tuple{&receipt_, "Opt영수", "영수"}, {&charge_, "Opt청구", "청구"}}) {
    *button = new QRadioButton(caption, panel);
    (*button)->setObjectName(name);
    words->addWidget(*button);
  }
  charge_->setChecked(true);
  row->addStretch(1);
  return panel;
}

QWidget* FrmTax::sumRow() {
  auto* const panel = new QWidget(this);
  auto* const rows = new QVBoxLayout(panel);
  rows->setContentsMargins(0, 0, 0, 0);
  QHBoxLayout* row = nullptr;
  rows->addWidget(tightRow(panel, row));
  caption_ = new QLabel(panel);
  caption_->setObjectName("pnlCaption");
  row->addWidget(caption_, 1);
  int place = 0;
  for (const char* caption : {"공급가액", "부가세", "합계액"}) {
    row->addWidget(new QLabel(caption, panel));
    auto* const shown = new QLabel(panel);
    shown->setObjectName(QString("pnlSum(%1)").arg(place));
    shown->setProperty("role", "value");
    shown->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    shown->setFixedWidth(17 * fontMetrics().horizontalAdvance('0'));
    row->addWidget(shown);
    sums_[place++] = shown;
  }
  rows->addWidget(buttonRow({addButton("btnPreview", "미리보기(&W)", [this] { preview(); }),
                             addButton("btnPdf", "PDF저장(&D)", [this] { savePdf(); }),
                             addButton("btnExcel", "홈택스 엑셀(&E)", [this] { exportIssued(); }), nullptr,
                             addButton("Cmd인쇄", "발행(&P)", [this] { issue(true); }),
                             addButton("Cmd닫기", "닫기(&X)", [this] { close(); })}));
  return panel;
}

void FrmTax::connectGrid() {
  grid_->spacePressed = [this](int from, int to) {
    const bool on = !desk_.ticks().isTicked(grid_->activeRow());
    desk_.ticks().setBlock(from, to, on);
  };
  // The tick's own cell is turned by the grid itself; a date of issue is clicked to be changed.
  grid_->clicked = [this](int row, int col) {
    if (col != TaxCol::Tick && (col != TaxCol::IssueDate || tab() == TaxTab::Issued))
      desk_.ticks().toggle(row);
  };
  grid_->editStarting = [this](int row, int col) {
    return !desk_.grid().text(row, TaxCol::TaxCode).isEmpty() &&
           (col != TaxCol::IssueDate || tab() == TaxTab::Pending);
  };
  grid_->cellFinished = [this](int row, int col, const QString&, const QString& text) {
    return finishCell(row, col, text);
  };
  connect(tabs_, &QTabBar::currentChanged, this, [this] { guard([this] { list(); }); });
}

void FrmTax::connectKeys() {
  onKey(Qt::Key_Escape, [this] {
    if (dates_->box(0)->hasFocus() || dates_->box(1)->hasFocus()) return closeDates();
    close();
  });
  onKey(Qt::Key_Insert, [this] { openDates(); });
  onKey(Qt::Key_F1, [this] { context_.commands.openForm(QString("FrmMargin:") + kind); });
  onKey(Qt::Key_F2, [this] { typeInvoice(); });
  onKey(Qt::Key_F4, [this] {
    if (tab() == TaxTab::Pending) issue(false);
  });
  onKey(Qt::Key_F5, [this] {
    if (tab() != TaxTab::Pending || grid_->activeRow() == 0) return;
    grid_->setFocus();
    if (grid_->setActiveCell(grid_->activeRow(), TaxCol::IssueDate)) grid_->beginEdit();
  });
  onKey(Qt::Key_Delete, [this] {
    if (tab() == TaxTab::Issued) deleteIssued();
  });
}

bool FrmTax::finishCell(int row, int col, const QString& text) {
  if (col == TaxCol::Tick) {
    desk_.ticks().set(row, text == "1");
    return true;
  }
  if (desk_.setIssueDate(row, text)) return true;
  grid_->cancelEdit();
  return false;
}

TaxTab FrmTax::tab() const {
  return tabs_->currentIndex() == 0 ? TaxTab::Pending : TaxTab::Issued;
}

Vat FrmTax::vat() const {
  return vat_[2]->isChecked() ? Vat::None : vat_[1]->isChecked() ? Vat::OnTop : Vat::Included;
}

TaxAsk FrmTax::ask() const {
  std::optional<TaxGathering> gathering;
  for (int place = 0; place < 3; ++place)
    if (!isTyped() && gathering_[place]->isChecked()) gathering = TaxGathering(place);
  return {.from = dates_->from(), .to = dates_->to(), .gathering = gathering, .vat = vat(), .tab = tab()};
}

void FrmTax::gather() {
  if (!dates_->take()) return;
  const BusyPointer busy;
  if (!desk_.gather(ask())) return focus(dates_->box(0));
  showSums();
}

void FrmTax::list() {
  desk_.list(ask());
  showSums();
}

void FrmTax::showSums() {
  all_->setChecked(false);
  const VatSplit& sums = desk_.sheet().sums();
  int place = 0;
  for (const qint64 won : {sums.supply, sums.tax, sums.total}) sums_[place++]->setText(wonOrBlank(won));
  caption_->setText(desk_.sheet().isEmpty() ? emptyHelp : listHelp);
}

void FrmTax::showSerial(const QString& serial) {
  serialMonth_->setText(serial.left(4));
  serialNumber_->setText(serial.mid(4));
}

/** What stands in the two boxes, as long as it is a number; else the register's next one. */
QString FrmTax::serial() const {
  const QString month = serialMonth_->text().trimmed(), number = serialNumber_->text().trimmed();
  bool first = false, second = false;
  month.toUInt(&first);
  number.toUInt(&second);
  return first && second && month.size() == 4 && number.size() >= 3 ? month + number
                                                                    : desk_.nextSerial(dates_->to());
}

QString FrmTax::printer() const {
  return documentPrinterOrDefault(session(), kind);
}

void FrmTax::showPrinter() {
  setWindowTitle("세금계산서 발행 - 현재 설정된 프린터 : " + printer());
}

std::optional<TaxPaperChoice> FrmTax::askPaper() {
  const auto method = context_.pickers.askPrintMethod({.title = "세금계산서 발행",
                                                       .prompt = "세금계산서 발행 방법을 선택하세요.",
                                                       .inkjet = "잉크젯(레이저) 발행",
                                                       .dot = "도트프린터 발행"});
  if (!method) return {};
  return TaxPaperChoice{TaxDesk::layoutOf(*method), form_->isChecked(), vat() == Vat::None,
                        receipt_->isChecked()};
}

/** The lines and the number are taken before the paper comes: what then fails stands in the register and is printed
 *  from there. */
void FrmTax::issue(bool gatherAgain) {
  if (!desk_.mayPrint(printer())) return;
  const auto choice = askPaper();
  if (!choice) return;
  QString next = serial(), failure;
  const DocumentRun run = desk_.issue(ask(), next, *choice);
  showSerial(next);
  int done = run.documents;
  try {
    done = printRun(session(), this, run, printer());
  } catch (const pc::PrintError& error) {
    failure = error.text;
    done = 0;
  }
  if (gatherAgain && tab() == TaxTab::Pending)
    gather();
  else
    list();
  if (done < run.documents)
    session().prompts.MsgWarn((failure.isEmpty() ? QString() : failure + "\n\n") +
                                  "세금계산서를 모두 인쇄하지 못했습니다.\n발행한 내역에서 다시 인쇄하세요.",
                              kind);
}

void FrmTax::preview() {
  if (!desk_.mayPrint(printer())) return;
  if (const auto choice = askPaper())
    previewRun(session(), this, desk_.papers(ask(), serial(), *choice),
               [this] { guard([this] { issue(true); }); });
}

void FrmTax::savePdf() {
  if (!desk_.mayPrint(printer())) return;
  if (const auto choice = askPaper()) saveRun(session(), this, desk_.papers(ask(), serial(), *choice));
}

void FrmTax::exportIssued() {
  if (tab() == TaxTab::Pending) {
    session().prompts.MsgInfo("발행한 내역에서 엑셀로 보낼 수 있습니다.", kind);
    return;
  }
  SpreadModel sheet;
  desk_.fillBulk(sheet, receipt_->isChecked());
  ExportToExcelFile(session(), sheet, kind);
}

void FrmTax::deleteIssued() {
  const int row = grid_->activeRow();
  if (row == 0 || !desk_.deleteIssued(row)) return;
  list();
  showSerial(desk_.nextSerial(dates_->to()));
}

void FrmTax::typeInvoice() {
  if (!isTyped()) return;
  context_.commands.openForm("FrmNewAcount:" + dates_->to().toString(Qt::ISODate) + ',' +
                             dates_->to().toString(Qt::ISODate));
  setBottomLine(keysAfterEntry);
  tabs_->setCurrentIndex(0);
  list();
}

void FrmTax::openDates() {
  focus(dates_->box(0));
}

void FrmTax::closeDates() {
  focusGrid();
}
