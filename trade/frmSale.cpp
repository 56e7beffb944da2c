#include "trade/frmSale.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "trade/form_last_lines.h"
#include "ui/forms/fields.h"
#include "ui/forms/style.h"
#include "ui/paper/grid_print.h"

namespace {

constexpr int mapLookMilliseconds = 200;
const QString saleKeys = "      Esc:전체보기  Delete,F4:삭제   F5:금일판매내역   F10:판매대장 출력";

bool isSaleEnter(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

frmSale::frmSale(FormContext& context, QWidget* parent)
    : Form("frmSale", "일반/체적/시설/자재 판매 등록", context.session, parent),
      context_(context),
      posting_(context.session),
      entry_(posting_, context.pickers, context.calls),
      map_(context.session) {
  buildPanel();
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName("TabSale");
  tabs_->setDocumentMode(true);
  body()->addWidget(tabs_, 1);
  buildSheet(SaleSheet::General, "일반판매");
  buildSheet(SaleSheet::Volume, "체적판매");
  buildSheet(SaleSheet::Material, "시설/자재판매");
  posting_.beforeFill = [this] {
    for (Spread* const grid : grids_) grid->cancelEdit();
  };
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int index) { sheetChosen(index); });
  buildKeys();
  setBottomLine(saleKeys);
  resize(sizeHint());
  date_->setDateText(posting_.date());
  guard([this] { fill(SaleSheet::General); });
}

QSize frmSale::sizeHint() const {
  // Every column shows, whatever the size of the text.
  return {grids_[0]->fullWidth() + 60, 34 * grids_[0]->fontMetrics().height() + 180};
}

void frmSale::showEvent(QShowEvent* event) {
  Form::showEvent(event);
  // Work begins on the empty row; a window that comes up gives the focus to its first box otherwise.
  QTimer::singleShot(0, this, [this] { grid()->setFocus(); });
}

void frmSale::buildPanel() {
  auto* const row = new QHBoxLayout;
  row->setSpacing(5);
  auto* const panel = new QWidget(this);
  panel->setObjectName("PnlClient");
  Fields fields(panel, 3);
  date_ = fields.date("txtDate", "일자(&D)", DateBox::Mask::MonthDay);
  tel_ = fields.value("LblTel", "전화번호");
  endDay_ = fields.value("LblEndDay", "최종거래일");
  address_ = fields.value("LblAddr", "주소", 0, 2);
  mapState_ = fields.value("LblMap", "약도");
  memo_ = fields.value("LblMemo", "메모", 0, 3);
  const auto roomFor = [this](QLabel* label, const char* widest) {
    label->setMinimumWidth(fontMetrics().horizontalAdvance(widest) + 18);
  };
  roomFor(tel_, "0000-0000-0000");
  roomFor(endDay_, "0000-00-00");
  row->addWidget(panel, 1);

  // What he owes is what the operator tells him on the telephone.
  auto* const owed = new QWidget(this);
  owed->setObjectName("PnlTrust");
  auto* const figures = new QVBoxLayout(owed);
  figures->setContentsMargins(8, 3, 8, 3);
  figures->setSpacing(0);
  gasTrust_ = bigFigure("LblGasTrust", "가스미수", owed);
  utilTrust_ = bigFigure("LblUtilTrust", "자재미수", owed);
  row->addWidget(owed);
  lastLines_ = new LastLines(this);
  row->addWidget(lastLines_);

  auto* const buttons = new QVBoxLayout;
  buttons->setSpacing(3);
  mapButton_ = addButton("BtnMap", "약도(&M)", [this] { startMap(); });
  buttons->addWidget(mapButton_);
  buttons->addWidget(
      addButton("CmdCIDList", "수신전화 목록", [this] { context_.commands.openForm("FrmSeeIDStanbyList"); }));
  buttons->addWidget(addButton("btnPrint", "인쇄(&P)", [this] { print(); }));
  buttons->addStretch(1);
  row->addLayout(buttons);
  body()->addLayout(row);

  setHelp(date_, "일자확인 후 엔터치세요!");
  date_->installEventFilter(this);
  mapTimer_ = new QTimer(this);
  mapTimer_->setInterval(mapLookMilliseconds);
  connect(mapTimer_, &QTimer::timeout, this, [this] { lookAtMap(); });
}

QLabel* frmSale::bigFigure(const char* name, const QString& caption, QWidget* panel) {
  auto* const words = new QLabel(caption, panel);
  words->setProperty("role", "faint");
  auto* const figure = new QLabel(panel);
  figure->setObjectName(name);
  figure->setFont(look::textFont(15, true));
  figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  figure->setMinimumWidth(QFontMetrics(figure->font()).horizontalAdvance("99,999,999"));
  panel->layout()->addWidget(words);
  panel->layout()->addWidget(figure);
  return figure;
}

void frmSale::buildSheet(SaleSheet sheet, const QString& caption) {
  const QByteArray name = "SpSale(" + QByteArray::number(int(sheet)) + ')';
  Spread* const grid = addSpread(name.constData(), posting_.grid(sheet));
  grids_[size_t(sheet)] = grid;
  grid->setFillColumn(SaleCol::Client);
  grid->setFrozenCols(SaleCol::Client);  // the day and whose line it is
  grid->cellFinished = [this, sheet](int row, int col, const QString&, const QString& typed) {
    return cellFinished(sheet, row, col, typed);
  };
  grid->cellEntered = [this](int, int col) {
    showHelp(SaleEntry::help(col));
    // Also when another window stood in front between the date and the grid.
    if (dateOpen_ && !date_->hasFocus()) QTimer::singleShot(0, this, [this] { leaveDate(); });
  };
  grid->rowEntered = [this](int row) {
    entry_.enteredRow(row);
    showPanel();
  };
  grid->cellLeaving = [this](int row, int, int toRow, int) { return mayLeave(row, toRow); };
  grid->keyPressed = [this](int row, int col, int key, Qt::KeyboardModifiers modifiers) {
    return gridKey(row, col, key, modifiers & ~Qt::KeypadModifier);
  };
  grid->doubleClicked = [this, grid](int row, int) {
    if (!fetchCall(row)) grid->beginEdit();
  };
  grid->enterPressed = [this, grid](int row, int col) {
    follow(entry_.enterKey(row, col, grid->model().text(row, col)));
  };
  tabs_->addTab(grid, caption);
}

void frmSale::buildKeys() {
  onKey(Qt::Key_Escape, [this] { fill(posting_.sheet()); });
  onKey(Qt::Key_F5, [this] { showToday(); });
  onKey(Qt::Key_F10, [this] { showLedger(); });
}

// --- the grid -----------------------------------------------------------------------------------------------

bool frmSale::gridKey(int row, int col, int key, Qt::KeyboardModifiers modifiers) {
  if (modifiers) return false;  // with one, none of these keys means what it means here
  const bool editing = grid()->isEditing();
  const QString typed = editing ? grid()->editingText() : grid()->model().text(row, col);
  if (key == Qt::Key_F4 || (key == Qt::Key_Delete && !editing)) {
    if (grid()->commitEdit()) removeRow(row);
    return true;
  }
  if (key == Qt::Key_F8) {
    if (grid()->commitEdit()) follow(entry_.onCredit(row));
    return true;
  }
  if (key == Qt::Key_F12) {
    follow(entry_.search(row, col, typed));
    return true;
  }
  if (key == Qt::Key_Down) entry_.makeRoomBelow(row);
  if ((isSaleEnter(key) || key == Qt::Key_F2) && fetchCall(row)) return true;
  if (!isSaleEnter(key)) return false;
  // The kind that a new line stands on is taken; elsewhere the list of kinds opens.
  if (col == SaleCol::Kind && !entry_.beginsAt(row)) return false;
  // While a cell is being edited Enter searches where there is a search; elsewhere it finishes the cell first.
  const bool searches = (col == SaleCol::Client && row == grid()->model().MaxRows()) ||
                        col == SaleCol::Item || col == SaleCol::Person;
  if (editing && !searches) return false;
  follow(entry_.enterKey(row, col, typed));
  return true;
}

bool frmSale::cellFinished(SaleSheet sheet, int row, int col, const QString& typed) {
  if (sheet != posting_.sheet()) {  // its rows are another sheet's by now
    grids_[size_t(sheet)]->cancelEdit();
    return false;
  }
  const SaleStep step = entry_.finishCell(row, col, typed);
  if (step.end == SaleStep::Refused) return false;
  // Who went to the date meanwhile stays there.
  follow(step, QApplication::focusWidget() != date_);
  return step.end == SaleStep::Done;
}

bool frmSale::mayLeave(int row, int toRow) {
  if (row == toRow) return true;
  const int missing = entry_.missingField(row);
  if (missing > 0) follow({SaleStep::Done, row, missing});
  return missing == 0;
}

/** The screen after a rule's step: the sheet, the cursor, the day, the customer. */
void frmSale::follow(const SaleStep& step, bool takeFocus) {
  if (tabs_->currentIndex() != int(posting_.sheet())) {
    const QSignalBlocker quiet(tabs_);
    tabs_->setCurrentIndex(int(posting_.sheet()));
  }
  if (step.end == SaleStep::PutBack) grid()->cancelEdit();
  if (step.row > 0 && (step.row != grid()->activeRow() || step.col != grid()->activeCol())) {
    grid()->cancelEdit();
    grid()->setActiveCell(step.row, step.col);
  }
  if (takeFocus) grid()->setFocus();
  date_->setDateText(posting_.date());
  showPanel();
}

void frmSale::fill(SaleSheet sheet) {
  posting_.FillSaleGrid(sheet, true);
  toBottomRow();
}

void frmSale::toBottomRow() {
  follow({SaleStep::Done, grid()->model().MaxRows(), SaleCol::Client});
}

void frmSale::sheetChosen(int index) {
  if (index == int(posting_.sheet())) return;
  if (grid()->commitEdit()) {
    guard([&] { fill(SaleSheet(index)); });
    return;
  }
  const QSignalBlocker quiet(tabs_);
  tabs_->setCurrentIndex(int(posting_.sheet()));
  grid()->setFocus();
}

void frmSale::showPanel() {
  guard([this] {
    const SaleClientPanel client = posting_.panel(grid()->activeRow());
    address_->setText(client.address);
    tel_->setText(client.tel);
    gasTrust_->setText(client.gasTrust);
    utilTrust_->setText(client.utilTrust);
    endDay_->setText(client.lastDate);
    memo_->setText(client.memo);
    mapState_->setText(client.map);
    lastLines_->show(posting_.lastLines(grid()->activeRow()));
  });
}

void frmSale::removeRow(int row) {
  if (posting_.deleteRow(row)) toBottomRow();
}

// --- the day ------------------------------------------------------------------------------------------------

bool frmSale::eventFilter(QObject* watched, QEvent* event) {
  if (watched == date_ && event->type() == QEvent::KeyPress &&
      isSaleEnter(static_cast<QKeyEvent*>(event)->key())) {
    grid()->setFocus();
    return true;
  }
  if (watched == date_ && event->type() == QEvent::FocusIn) dateOpen_ = true;
  if (watched == date_ && event->type() == QEvent::FocusOut) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    // Later, so that a box about a wrong day does not come up in the middle of the change of focus.
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
      QTimer::singleShot(0, this, [this] { leaveDate(); });
  }
  return Form::eventFilter(watched, event);
}

void frmSale::leaveDate() {
  if (!dateOpen_) return;
  guard([this] {
    dateOpen_ = date_->hasFocus();
    posting_.setDate(date_->dateText());
    posting_.FillSaleGrid(posting_.sheet(), true);
    const QWidget* const now = QApplication::focusWidget();
    follow({SaleStep::Done, grid()->model().MaxRows(), SaleCol::Client}, !now || isAncestorOf(now));
  });
}

// --- what is called from here -------------------------------------------------------------------------------

void frmSale::showPage(const QString& page) {
  tabs_->setCurrentIndex(int(page == "material" ? SaleSheet::Material : SaleSheet::General));
}

/** The cursor is on the empty customer cell, and no day is being typed. */
bool frmSale::canTakeCall() {
  // Behind a box or a search the cursor is not free, whatever cell it stands on.
  if (QApplication::activeModalWidget() || QApplication::activePopupWidget()) return false;
  Spread& cells = *grid();
  if (dateOpen_) return false;  // leaving it reads the sheet anew, and the call's row would be gone
  return entry_.canTakeCaller(
      cells.activeCol(),
      cells.isEditing() ? cells.editingText() : cells.model().text(cells.activeRow(), cells.activeCol()));
}

bool frmSale::TakeCallerNumber(const QString& number) {
  if (!canTakeCall()) return false;
  bool accepted = false;
  guard([&] {
    reveal();
    const std::optional<SaleStep> step = entry_.TakeCallerNumber(number);
    if (!step) return;
    // A call that nobody was chosen for goes to the list; one fetched from there has had its turn.
    accepted = number.isEmpty() || step->end == SaleStep::Done;
    follow(*step);
  });
  return accepted;
}

/** The oldest waiting call, when the operator opens the empty customer cell of the bottom row without typing. */
bool frmSale::fetchCall(int row) {
  return row == grid()->model().MaxRows() && TakeCallerNumber({});
}

/** In front of everything, out of the task bar and out of the corner of the main window. */
void frmSale::reveal() {
  for (QWidget* at = this; at; at = at->parentWidget())
    if (at->isMinimized()) at->setWindowState(at->windowState() & ~Qt::WindowMinimized);
  raise();
  window()->activateWindow();
}

void frmSale::showToday() {
  session().SaleDay = QString::number(session().pc.clock.today().year()) + u'-' + posting_.date();
  context_.commands.openForm("frmTodaySale:" + session().SaleDay);
}

void frmSale::showLedger() {
  session().SaleLedgerGas = posting_.sheet() != SaleSheet::Material;
  context_.commands.openForm("frmPrtSale");
}

void frmSale::print() {
  PrintGrid(session(), grid()->model(), "판매관리", this);
}

void frmSale::startMap() {
  if (!map_.start(posting_.panel(grid()->activeRow()).code)) return;
  mapButton_->setEnabled(false);
  mapTimer_->start();
}

void frmSale::lookAtMap() {
  MapHandshake::State state = MapHandshake::State::Done;
  guard([&] { state = map_.look(); });
  if (state == MapHandshake::State::Waiting) return;
  mapTimer_->stop();
  mapButton_->setEnabled(true);
  showPanel();
}
