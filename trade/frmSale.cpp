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

#include "ui/fields.h"
#include "ui/grid_print.h"

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
  // An editor must not stand open on rows that are about to be replaced.
  posting_.beforeFill = [this](SaleSheet sheet) { grids_[size_t(sheet)]->cancelEdit(); };
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
  Fields fields(panel, 4);
  date_ = fields.date("txtDate", "일자", DateBox::Mask::MonthDay);
  address_ = fields.value("LblAddr", "주소", 0, 2);
  tel_ = fields.value("LblTel", "전화번호");
  gasTrust_ = fields.value("LblGasTrust", "가스미수");
  utilTrust_ = fields.value("LblUtilTrust", "자재미수");
  endDay_ = fields.value("LblEndDay", "최종거래일");
  mapState_ = fields.value("LblMap", "약도");
  memo_ = fields.value("LblMemo", "메모", 0, 4);
  for (QLabel* const money : {gasTrust_, utilTrust_}) money->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  row->addWidget(panel, 1);

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

void frmSale::buildSheet(SaleSheet sheet, const QString& caption) {
  const QByteArray name = "SpSale(" + QByteArray::number(int(sheet)) + ')';
  Spread* const grid = addSpread(name.constData(), posting_.grid(sheet));
  grids_[size_t(sheet)] = grid;
  grid->setFillColumn(SaleCol::Client);
  grid->setFrozenCols(SaleCol::Client);  // the day and whose line it is
  grid->cellFinished = [this](int row, int col, const QString&, const QString& typed) {
    return cellFinished(row, col, typed);
  };
  grid->cellEntered = [this](int, int col) { showHelp(SaleEntry::help(col)); };
  grid->rowEntered = [this](int) { showPanel(); };
  grid->cellLeaving = [this](int row, int, int toRow, int) { return mayLeave(row, toRow); };
  grid->keyPressed = [this](int row, int col, int key, Qt::KeyboardModifiers) {
    return gridKey(row, col, key);
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

bool frmSale::gridKey(int row, int col, int key) {
  const bool editing = grid()->isEditing();
  const QString typed = editing ? grid()->editingText() : grid()->model().text(row, col);
  if (key == Qt::Key_F4 || (key == Qt::Key_Delete && !editing)) {
    if (grid()->commitEdit()) removeRow(row);
    return true;
  }
  if (key == Qt::Key_F12) {
    follow(entry_.search(row, col, typed));
    return true;
  }
  if (key == Qt::Key_Down) entry_.makeRoomBelow(row);
  if ((isSaleEnter(key) || key == Qt::Key_F2) && fetchCall(row)) return true;
  if (!isSaleEnter(key) || col == SaleCol::Kind) return false;
  // While a cell is being edited Enter searches where there is a search; elsewhere it finishes the cell first.
  const bool searches = (col == SaleCol::Client && row == grid()->model().MaxRows()) ||
                        col == SaleCol::Item || col == SaleCol::Person;
  if (editing && !searches) return false;
  follow(entry_.enterKey(row, col, typed));
  return true;
}

/** The oldest waiting call, when the operator opens the empty customer cell of the bottom row without typing. */
bool frmSale::fetchCall(int row) {
  return row == grid()->model().MaxRows() && TakeCallerNumber({});
}

bool frmSale::cellFinished(int row, int col, const QString& typed) {
  const SaleStep step = entry_.finishCell(row, col, typed);
  if (step.end == SaleStep::Refused) return false;
  if (step.end == SaleStep::PutBack) grid()->cancelEdit();
  follow(step);
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
  if (watched == date_ && event->type() == QEvent::FocusOut) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    // Later, so that a box about a wrong day does not come up in the middle of the change of focus.
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
      QTimer::singleShot(0, this, [this] { leaveDate(); });
  }
  return Form::eventFilter(watched, event);
}

void frmSale::leaveDate() {
  guard([this] {
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

bool frmSale::TakeCallerNumber(const QString& number) {
  // Behind a box or a search the cursor is not free, whatever cell it stands on.
  if (QApplication::activeModalWidget() || QApplication::activePopupWidget()) return false;
  const Spread& cells = *grid();
  const QString text = cells.isEditing()
                           ? cells.editingText()
                           : posting_.grid(posting_.sheet()).text(cells.activeRow(), cells.activeCol());
  if (!entry_.canTakeCaller(cells.activeCol(), text)) return false;
  bool accepted = false;
  guard([&] {
    raise();
    window()->activateWindow();
    const std::optional<SaleStep> step = entry_.TakeCallerNumber(number);
    accepted = step.has_value();
    if (accepted) follow(*step);
  });
  return accepted;
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
