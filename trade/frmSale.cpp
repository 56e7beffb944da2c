#include "trade/frmSale.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "trade/form_last_lines.h"
#include "ui/forms/fields.h"
#include "ui/paper/grid_print.h"

namespace {

constexpr int mapLookMilliseconds = 200;

}  // namespace

frmSale::frmSale(FormContext& context, QWidget* parent)
    : LineForm("frmSale", "일반/체적/시설/자재 판매 등록", context, book_, entry_, parent),
      book_(context.session),
      entry_(book_, context.pickers, context.calls),
      map_(context.session) {
  buildPanel();
  tabs_ = new QTabWidget(this);
  tabs_->setObjectName("TabSale");
  tabs_->setDocumentMode(true);
  body()->addWidget(tabs_, 1);
  buildSheet(SaleSheet::General, "일반판매");
  buildSheet(SaleSheet::Volume, "체적판매");
  buildSheet(SaleSheet::Material, "시설/자재판매");
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int index) { sheetChosen(index); });
  onKey(Qt::Key_F5, [this] { showToday(); });
  onKey(Qt::Key_F10, [this] { showLedger(); });
  setBottomLine("      Esc:전체보기  Delete,F4:삭제   F5:금일판매내역   F10:판매대장 출력");
  resize(sizeHint());
  showDate();
  guard([this] { fill(SaleSheet::General); });
}

void frmSale::buildPanel() {
  mapButton_ = addButton("BtnMap", "약도(&M)", [this] { startMap(); });
  addHead(
      3,
      [this](Fields& fields) {
        tel_ = fields.value("LblTel", "전화번호");
        endDay_ = fields.value("LblEndDay", "최종거래일");
        address_ = fields.value("LblAddr", "주소", 0, 2);
        mapState_ = fields.value("LblMap", "약도");
        memo_ = fields.value("LblMemo", "메모", 0, 3);
        keepRoom(tel_, "0000-0000-0000");
        keepRoom(endDay_, "0000-00-00");
      },
      "가스미수", "자재미수",
      {mapButton_,
       addButton("CmdCIDList", "수신전화 목록", [this] { context_.commands.openForm("FrmSeeIDStanbyList"); }),
       addButton("btnPrint", "인쇄(&P)", [this] { print(); })});

  mapTimer_ = new QTimer(this);
  mapTimer_->setInterval(mapLookMilliseconds);
  connect(mapTimer_, &QTimer::timeout, this, [this] { lookAtMap(); });
}

void frmSale::buildSheet(SaleSheet sheet, const QString& caption) {
  const QByteArray name = "SpSale(" + QByteArray::number(int(sheet)) + ')';
  Spread* const grid = addLines(name.constData(), book_.sheetGrid(sheet));
  grids_[size_t(sheet)] = grid;
  tabs_->addTab(grid, caption);
}

// --- the sheets ---------------------------------------------------------------------------------------------

void frmSale::fill(SaleSheet sheet) {
  book_.FillSaleGrid(sheet, true);
  toBottomRow();
}

void frmSale::dayTaken() {
  book_.FillSaleGrid(book_.sheet(), true);
}

void frmSale::sheetShown() {
  if (tabs_->currentIndex() == int(book_.sheet())) return;
  const QSignalBlocker quiet(tabs_);
  tabs_->setCurrentIndex(int(book_.sheet()));
}

void frmSale::sheetChosen(int index) {
  if (index == int(book_.sheet())) return;
  if (grid()->commitEdit()) {
    guard([&] {
      takeDate();
      fill(SaleSheet(index));
    });
    return;
  }
  sheetShown();
  grid()->setFocus();
}

void frmSale::showPartner(int row) {
  const SaleClientPanel client = book_.panel(row);
  address_->setText(client.address);
  tel_->setText(client.tel);
  showOwed(client.gasTrust, client.utilTrust);
  endDay_->setText(client.lastDate);
  memo_->setText(client.memo);
  mapState_->setText(client.map);
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
  if (isDateOpen()) return false;  // leaving it reads the sheet anew, and the call's row would be gone
  return entry_.canTakeCaller(
      cells.activeCol(),
      cells.isEditing() ? cells.editingText() : cells.model().text(cells.activeRow(), cells.activeCol()));
}

bool frmSale::TakeCallerNumber(const QString& number) {
  if (!canTakeCall()) return false;
  bool accepted = false;
  guard([&] {
    reveal();
    const std::optional<LineStep> step = entry_.TakeCallerNumber(number);
    if (!step) return;
    // A call that nobody was chosen for goes to the list; one fetched from there has had its turn.
    accepted = number.isEmpty() || step->end == LineStep::Done;
    follow(*step);
  });
  return accepted;
}

/** The oldest waiting call, when the operator opens the empty customer cell of the bottom row without typing. */
bool frmSale::openedEmpty(int row) {
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
  if (takeDate()) {
    showAll();
    if (book_.date().isEmpty()) return;  // a wrong one has been told
  }
  session().SaleDay = QString::number(session().pc.clock.today().year()) + u'-' + book_.date();
  context_.commands.openForm("frmTodaySale:" + session().SaleDay);
}

void frmSale::showLedger() {
  session().SaleLedgerGas = book_.sheet() != SaleSheet::Material;
  context_.commands.openForm("frmPrtSale");
}

void frmSale::print() {
  PrintGrid(session(), grid()->model(), "판매관리", this);
}

void frmSale::startMap() {
  if (!map_.start(book_.panel(grid()->activeRow()).code)) return;
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
