#include "documents/invoices/FrmTax.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QVBoxLayout>

#include <utility>

#include "documents/invoices/tax_bulk.h"
#include "ui/grid/excel_export.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto kind = "세금계산서";
constexpr auto listHelp = " 발행할 거래내역을 선택하세요. [선택:Space 또는 Click]";
constexpr auto emptyHelp = " F2키를 눌러 발행할 내역을 먼저 입력하세요.";
constexpr auto keysFirst = "[종료:Esc]  [일자변경:Insert]  [여백설정:F1]  [신규등록:F2]  [수정:F5]";
constexpr auto keysAfterEntry =
    "[종료:Esc]  [일자변경:Insert]  [여백설정:F1]  [신규등록:F2]  [부분발행:F4]  [수정:Sapce]";

/** Radio buttons of one choice, which a panel of their own keeps together; name(0), name(1), ... */
template <size_t Count>
QWidget* choiceOf(QRadioButton* (&buttons)[Count], const char* name, const char* const (&captions)[Count],
                  QWidget* parent) {
  auto* const panel = new QWidget(parent);
  auto* const row = panelRow(panel, 0, 8);
  for (size_t place = 0; place < Count; ++place) {
    buttons[place] = new QRadioButton(captions[place], panel);
    buttons[place]->setObjectName(u"%1(%2)"_s.arg(name).arg(place));
    row->addWidget(buttons[place]);
  }
  return panel;
}

}  // namespace

FrmTax::FrmTax(FormContext& context, QWidget* parent)
    : DocumentForm("FrmTax", kind, context, parent), desk_(context.session) {
  grid_ = addSpread("grdList", desk_.grid());
  grid_->setFillColumn(TaxCol::Item);
  lay({tabs_, questionRow(), choiceRow()}, sumRow());
  setBottomLine(keysFirst);
  enterOrder({dates_->box(0), dates_->box(1)}, [this] {
    focusGrid();
    gather();
  });
  connectGrid();
  connectKeys();
  guard([this] { Open(0, {}, {}); });
  grid_->setFocus();
}

void FrmTax::showPage(const QString& mode) {
  const bool isJustMade = std::exchange(isJustMade_, false);  // and has gathered
  // What was typed on the open form and is not issued yet stays.
  if (mode == "1" ? isTyped() : isJustMade) return;
  guard([&] {
    if (mayDropTyped()) Open(mode == "1" ? 1 : 0, {}, {});
  });
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

/** What is gathered is gathered anew, what was typed would be lost. */
bool FrmTax::mayDropTyped() {
  return !isTyped() || !desk_.hasPrepared() ||
         session().prompts.MsgAsk("입력한 계산서를 발행하지 않았습니다!\n발행하지 않고 버리시겠습니까?", kind,
                                  false);
}

bool FrmTax::mayClose() {
  bool stays = false;
  guard([&] {
    stays = !mayDropTyped();
    if (!stays) desk_.empty();
  });
  return !stays;
}

QWidget* FrmTax::questionRow() {
  auto* const panel = addGroup({});
  panel->setObjectName("pnlDate");
  auto* const row = panelRow(panel, 4, 5);
  dates_ = std::make_unique<DateRangeBoxes>(*this, panel, " 집계 시작일자를 입력하세요.",
                                            " 집계 마지막일자를 입력하세요.");
  dates_->addTo(row, "집계일자");
  row->addWidget(choiceOf(gathering_, "OptGubun", {"월별", "일자별", "기간별"}, panel));
  for (int place = 0; place < 3; ++place)
    connect(gathering_[place], &QRadioButton::clicked, this, [this, place] {
      command([&] {
        if (gather()) gatheredAs_ = place;
      });
      gathering_[gatheredAs_]->setChecked(true);
    });
  gathering_[0]->setChecked(true);
  row->addWidget(gatherButton_ = addButton("Cmd모으기", "집계(&G)", [this] { gather(); }));
  row->addStretch(1);
  row->addWidget(new QLabel("일련번호", panel));
  for (auto [box, name, digits] :
       {std::tuple{&serialMonth_, "Txt일련번호1", 4}, {&serialNumber_, "Txt일련번호2", 5}}) {
    *box = new QLineEdit(panel);
    (*box)->setObjectName(name);
    (*box)->setMaxLength(digits);
    (*box)->setFixedWidth((digits + 2) * fontMetrics().horizontalAdvance('0') + 12);
    row->addWidget(*box);
  }
  row->insertWidget(row->indexOf(serialNumber_), new QLabel("-", panel));
  row->addSpacing(10);
  auto* const setPrinter = addButton("btnPrinter", "프린터(&P)", [this] { askPrinter(); });
  // Alt+P issues: two buttons of one letter would only pass the focus to and fro.
  setPrinter->setShortcut(QKeySequence("Alt+I"));
  setPrinter->setToolTip("Alt+I");
  row->addWidget(setPrinter);
  return panel;
}

QWidget* FrmTax::choiceRow() {
  auto* const panel = addGroup({});
  auto* const row = panelRow(panel, 2, 14);
  all_ = addCheck(panel, "Chk선택", "전체 선택");
  form_ = addCheck(panel, "chkForm", "양식 출력");
  form_->setChecked(true);
  row->addWidget(choiceOf(vat_, "OptVat", {"Vat포함", "Vat별도", "Vat없음"}, panel));
  vat_[0]->setChecked(true);
  freeOfTax_ = addCheck(panel, "ChkVat", "면세적용");
  for (QRadioButton* each : vat_)
    connect(each, &QRadioButton::toggled, this, [this](bool on) {
      if (!on) return;
      freeOfTax_->setChecked(vat() == Vat::None);
      const QSet<QString> ticked = desk_.ticks().codes();
      guard([this] { list(); });
      desk_.ticks().tick(ticked);
    });
  connect(freeOfTax_, &QCheckBox::clicked, this, [this](bool on) { vat_[on ? 2 : 0]->setChecked(true); });
  connect(all_, &QCheckBox::clicked, this, [this](bool on) { desk_.ticks().setAll(on); });
  QRadioButton* words[2];
  row->addWidget(choiceOf(words, "", {"영수", "청구"}, panel));
  receipt_ = words[0];
  charge_ = words[1];
  receipt_->setObjectName("Opt영수");
  charge_->setObjectName("Opt청구");
  charge_->setChecked(true);
  row->addStretch(1);
  return panel;
}

QWidget* FrmTax::sumRow() {
  auto* const panel = new QWidget(this);
  auto* const rows = new QVBoxLayout(panel);
  rows->setContentsMargins(0, 0, 0, 0);
  auto* const sums = new QWidget(panel);
  auto* const row = panelRow(sums, 0, 8);
  caption_ = new QLabel(sums);
  caption_->setObjectName("pnlCaption");
  row->addWidget(caption_, 1);
  sums_.addTo(row, sums);
  rows->addWidget(sums);
  rows->addWidget(buttonRow({addPreviewButton(), addPdfButton(),
                             addButton("btnExcel", "홈택스 엑셀(&E)", [this] { exportIssued(); }), nullptr,
                             addButton("Cmd인쇄", "발행(&P)", [this] { print(); }),
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
    if (col != TaxCol::Tick && (col != TaxCol::IssueDate || !isPendingTab())) desk_.ticks().toggle(row);
  };
  grid_->editStarting = [this](int row, int col) {
    return !desk_.grid().text(row, TaxCol::TaxCode).isEmpty() && (col != TaxCol::IssueDate || isPendingTab());
  };
  grid_->cellFinished = [this](int row, int col, const QString&, const QString& text) {
    return finishCell(row, col, text);
  };
  connect(tabs_, &QTabBar::currentChanged, this, [this] { guard([this] { turnTab(); }); });
}

void FrmTax::connectKeys() {
  onKey(Qt::Key_Escape, [this] {
    if (dates_->box(0)->hasFocus() || dates_->box(1)->hasFocus()) return focusGrid();
    close();
  });
  onKey(Qt::Key_Insert, [this] { focus(dates_->box(0)); });
  onKey(Qt::Key_F1, [this] { askMargin(); });
  onKey(Qt::Key_F2, [this] { typeInvoice(); });
  // A part of the list: what is not ticked stays as it stands.
  onKey(Qt::Key_F4, [this] {
    if (isPendingTab()) issue([this] { list(); });
  });
  onKey(Qt::Key_F5, [this] {
    if (!isPendingTab() || grid_->activeRow() == 0) return;
    grid_->setFocus();
    if (grid_->setActiveCell(grid_->activeRow(), TaxCol::IssueDate)) grid_->beginEdit();
  });
  onKey(Qt::Key_Delete, [this] {
    if (!isPendingTab() && grid_->hasFocus()) deleteIssued();
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

Vat FrmTax::vat() const {
  return vat_[2]->isChecked() ? Vat::None : vat_[1]->isChecked() ? Vat::OnTop : Vat::Included;
}

TaxAsk FrmTax::ask() const {
  std::optional<TaxGathering> gathering;
  for (int place = 0; place < 3; ++place)
    if (!isTyped() && gathering_[place]->isChecked()) gathering = TaxGathering(place);
  return {.from = dates_->from(),
          .to = dates_->to(),
          .gathering = gathering,
          .vat = vat(),
          .tab = isPendingTab() ? TaxTab::Pending : TaxTab::Issued};
}

/** False after telling what of the question is wrong; the focus is there then. */
bool FrmTax::gather() {
  if (!dates_->take()) return false;
  const BusyPointer busy;
  if (!desk_.gather(ask())) {
    focus(dates_->box(0));
    return false;
  }
  // The number offered is one of the month that is asked for.
  if (const QString next = desk_.nextSerial(dates_->to()); serialMonth_->text() != next.left(4))
    showSerial(next);
  showSums();
  return true;
}

void FrmTax::list() {
  desk_.list(ask());
  showSums();
}

/** Days or kind that were chosen beside the register are gathered when what is pending comes back. */
void FrmTax::turnTab() {
  dates_->take();  // one that is none has come back
  list();
  if (isPendingTab() && !isTyped() && !desk_.isGatheredFor(ask())) gather();
}

void FrmTax::showSums() {
  all_->setChecked(false);
  sums_.show(desk_.sheet().sums());
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

std::optional<TaxPaperChoice> FrmTax::askPaper() {
  const auto method = context_.pickers.askPrintMethod({.title = "세금계산서 발행",
                                                       .prompt = "세금계산서 발행 방법을 선택하세요.",
                                                       .inkjet = "잉크젯(레이저) 발행",
                                                       .dot = "도트프린터 발행"});
  if (!method) return {};
  return TaxPaperChoice{layoutOf(*method), form_->isChecked(), vat() == Vat::None, receipt_->isChecked()};
}

std::optional<DocumentRun> FrmTax::papers(bool issuing) {
  const auto choice = askPaper();
  if (!choice) return {};
  if (!issuing) return desk_.papers(ask(), serial(), *choice);
  QString next = serial();
  DocumentRun run = desk_.issue(ask(), next, *choice);
  showSerial(next);
  return run;
}

void FrmTax::print() {
  issue([this] {
    // What was issued leaves the list also where nothing can be gathered.
    if (!isPendingTab() || !gather()) list();
  });
}

void FrmTax::exportIssued() {
  if (isPendingTab()) {
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
  if (!isTyped() || !dates_->take()) return;
  context_.commands.openForm("FrmNewAcount:" + dates_->to().toString(Qt::ISODate) + ',' +
                             dates_->to().toString(Qt::ISODate));
  setBottomLine(keysAfterEntry);
  tabs_->setCurrentIndex(0);
  list();
}
