#include "master/customers/frmClient.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

#include "ui/forms/choose.h"
#include "ui/forms/keys.h"
#include "ui/paper/grid_print.h"

namespace {

constexpr int mapLookMilliseconds = 300;
constexpr auto deleteHelp = "고객자료의 삭제는 키보드의 Delete키로 합니다";

}  // namespace

frmClient::frmClient(FormContext& context, QWidget* parent)
    : Form("frmClient", "고객 등록", context.session, parent),
      context_(context),
      clients_(context.session),
      map_(context.session),
      tabs_(new QTabWidget(this)),
      mapTimer_(new QTimer(this)) {
  tabs_->setObjectName("TabClient");
  tabs_->setDocumentMode(true);
  body()->addWidget(tabs_, 1);
  buildButtons();
  buildPage(HouseStyle::Individual, "일반/식당(&1)", "SpClient");
  buildPage(HouseStyle::Apartment, "아파트(&2)", "SpAptClient");
  buildPage(HouseStyle::MultiHousehold, "다가구(&3)", "SpManyClient");

  QList<QWidget*> order;
  for (const Page& page : pages_) order << page.boxes->order();
  enterOrder(order << save_);
  // Asked before the kit's Enter: a box may look something up instead of passing the focus on.
  for (QWidget* const box : order) box->installEventFilter(this);

  onKey(Qt::Key_F10, [this] { print(); });
  onKey(Qt::Key_F12, [this] { search(); });
  onKey(Qt::Key_Escape, [this] {
    if (mayDrop()) backToList();
  });
  mapTimer_->setInterval(mapLookMilliseconds);
  mapTimer_->setSingleShot(true);
  connect(mapTimer_, &QTimer::timeout, this, [this] { lookAtMap(); });
  onChoice(
      *this, tabs_, [this] { return int(front_); }, [this](int index) { turnTo(index); });
  guard([this] { openPage(0); });
  if (page().grid->model().MaxRows() > 0)
    page().grid->setFocus();
  else
    new_->setFocus();
}

// The pages go after the rules that they show.
frmClient::~frmClient() {
  tabs_->disconnect(this);
}

// --- building -----------------------------------------------------------------------------------------------

void frmClient::buildButtons() {
  new_ = addButton("BtnNew", "신규(&N)", [this] { newClient(); });
  save_ = addButton("BtnSave", "저장(&S)", [this] { save(); });
  cancel_ = addButton("BtnCancel", "취소(&Q)", [this] { backToList(); });
  delete_ = addButton("BtnDel", "삭제(&D)", [this] {
    session().prompts.MsgInfo(deleteHelp, "고객 관리자");
    page().grid->setFocus();
  });
  image_ = addButton("BtnImage", "약도(&M)", [this] { startMap(); });
  apartment_ = addButton("BtnAptClient", "아파트 자동 등록(&T)",
                         [this] { context_.commands.openForm("frmHouseStyle"); });
  apartment_->setEnabled(context_.commands.hasForm("frmHouseStyle"));
  exit_ = addButton("BtnExit", "닫기(&X)", [this] { (parentWidget() ? parentWidget() : this)->close(); });
  auto* const map = addButton("BtnPreView", "약도 인쇄(&P)", [this] {
    if (map_.handOver(clients_.code())) context_.commands.openForm("FrmPreView:customer");
  });
  map->setEnabled(context_.commands.hasForm("FrmPreView"));
  buttons_ = buttonRow({apartment_, image_, map, nullptr, new_, save_, cancel_, delete_, nullptr, exit_});
}

void frmClient::buildPage(HouseStyle style, const QString& caption, const char* gridName) {
  Page& page = pages_.at(size_t(style));
  page.sheet = new QWidget;
  auto* const rows = new QVBoxLayout(page.sheet);
  rows->setContentsMargins(0, 5, 0, 0);
  rows->setSpacing(5);
  page.grid = addSpread(gridName, clients_.list(style), page.sheet);
  page.grid->setFillColumn(style == HouseStyle::Individual ? 5 : 1);
  rows->addWidget(page.grid, 1);
  QGroupBox* const panel = addGroup({});
  page.boxes = std::make_unique<ClientBoxes>(*this, context_.pickers, panel, style, ClientBoxes::Set::Full);
  rows->addWidget(panel);
  tabs_->addTab(page.sheet, caption);

  page.grid->rowEntered = [this](int row) { rowEntered(row); };
  page.grid->cellEntered = [this](int row, int) {
    showHelp(deleteHelp);
    if (clients_.code() == 0) rowEntered(row);  // the list took the focus and nobody is chosen yet
  };
  page.grid->enterPressed = [this](int, int) { focus(this->page().boxes->first()); };
  page.grid->doubleClicked = [this](int, int) { focus(this->page().boxes->first()); };
  page.grid->cellLeaving = [this](int row, int, int toRow, int) { return row == toRow || mayDrop(); };
  page.grid->keyPressed = [this](int, int, int key, Qt::KeyboardModifiers modifiers) {
    if (key != Qt::Key_Delete || modifiers) return false;
    remove();
    return true;
  };
}

// --- what is shown ------------------------------------------------------------------------------------------

void frmClient::openPage(int index) {
  front_ = size_t(index);
  clients_.loadPage(HouseStyle(index));
  pages_[size_t(index)].sheet->layout()->addWidget(buttons_);
  ClientEntry none;
  none.houseStyle = HouseStyle(index);
  show(none);
}

void frmClient::turnTo(int index) {
  if (!mayDrop()) return;
  openPage(index);
  page().grid->setFocus();
}

bool frmClient::mayDrop() {
  if (page().boxes->entry() == page().shown) return true;
  return session().prompts.MsgAsk("입력한 내용을 저장하지 않았습니다!\n저장하지 않고 버리시겠습니까?",
                                  "고객 관리자", false);
}

void frmClient::show(const ClientEntry& entry) {
  page().boxes->show(entry);
  page().shown = page().boxes->entry();
  showState();
}

void frmClient::showState() {
  const bool fresh = clients_.isNew();
  new_->setEnabled(!fresh);
  cancel_->setEnabled(fresh || clients_.code() != 0);
  delete_->setEnabled(!fresh);
  image_->setEnabled(!fresh && !mapTimer_->isActive());
  page().grid->setEnabled(!fresh);  // a click on the list would throw the typed boxes away
  setBottomLine(clients_.bottomLine());
}

void frmClient::rowEntered(int row) {
  if (showing_) return;
  const qint64 listed = page().grid->model().text(row, ClientRegister::CodeCol).toLongLong();
  show(clients_.selectRow(row));
  if (listed != 0 && clients_.code() != listed)
    showHelp("다른 PC나 화면에서 삭제된 고객입니다. Esc를 누르면 목록을 다시 읽습니다");
}

void frmClient::focusBox(ClientBox box) {
  if (box == ClientBox::New) return new_->setFocus();
  if (box == ClientBox::List) return page().grid->setFocus();
  if (QWidget* const control = page().boxes->at(box)) focus(control);
}

// --- the buttons --------------------------------------------------------------------------------------------

void frmClient::newClient() {
  if (!mayDrop()) return;
  show(clients_.beginNew());
  focus(page().boxes->first());
}

void frmClient::save() {
  const QScopedValueRollback<bool> moving(showing_, true);
  const bool wasNew = clients_.isNew();
  ClientSaved saved;
  if (!guard([&] { saved = clients_.save(page().boxes->entry(), page().shown); })) {
    return page().boxes->focusApostrophe();
  }
  if (saved.done) {
    page().grid->setActiveCell(clients_.rowOf(clients_.code()), 1);
    show(clients_.select(clients_.code()));
  } else if (clients_.isNew() && !wasNew) {
    // The customer is gone; what was typed stays as a new entry, and counts as typed.
    page().shown = ClientEntry();
    page().shown.houseStyle = clients_.page();
    showState();
  }
  focusBox(saved.focus);
}

void frmClient::backToList() {
  const QScopedValueRollback<bool> moving(showing_, true);
  const int before = page().grid->activeRow();
  clients_.cancel();
  clients_.reload();
  const int kept = clients_.rowOf(clients_.code());
  const int row = kept > 0 ? kept : std::min(before, page().grid->model().MaxRows());
  page().grid->setActiveCell(row, 1);
  show(clients_.selectRow(row));
  page().grid->setFocus();
}

void frmClient::remove() {
  const QScopedValueRollback<bool> moving(showing_, true);
  const qint64 code = clients_.code();
  if (!clients_.removeChosen()) return;
  const int kept = clients_.rowOf(code);
  if (kept > 0) page().grid->setActiveCell(kept, 1);
  show(clients_.selectRow(kept > 0 ? kept : page().grid->activeRow()));
}

void frmClient::search() {
  QWidget* const box = focusWidget();
  if (!box || page().boxes->f12(box) || box->objectName() != "TxtUName") return;
  if (!mayDrop()) return;
  const auto chosen = context_.pickers.searchClient({}, ClientSearchMode::All);
  if (!chosen) return focus(box);
  page().shown = page().boxes->entry();
  const ClientEntry client = clients_.select(chosen->code);
  if (tabs_->currentIndex() != int(client.houseStyle)) {
    tabs_->setCurrentIndex(int(client.houseStyle));  // reads that page's list
    clients_.select(chosen->code);
  } else if (clients_.rowOf(chosen->code) == 0) {
    clients_.reload();  // registered since the list was read, perhaps from the search itself
  }
  const QScopedValueRollback<bool> moving(showing_, true);
  page().grid->setActiveCell(clients_.rowOf(chosen->code), 1);
  show(client);
  focus(page().boxes->first());
}

void frmClient::print() {
  const QString title = tabs_->tabText(tabs_->currentIndex()).section(u'(', 0, 0) + " 고객 현황";
  PrintGrid(session(), page().grid->model(), title, this);
}

// --- the map ------------------------------------------------------------------------------------------------

void frmClient::startMap() {
  if (!map_.start(clients_.code())) return;
  mapTimer_->start();
  showState();
}

void frmClient::lookAtMap() {
  guard([this] {
    if (map_.look() == MapHandshake::State::Waiting) mapTimer_->start();
    showState();
  });
}

// --- keys ---------------------------------------------------------------------------------------------------

bool frmClient::eventFilter(QObject* watched, QEvent* event) {
  auto* const box = qobject_cast<QWidget*>(watched);
  if (box && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (isEnterKey(key) && page().boxes->enter(box)) return true;
  }
  return Form::eventFilter(watched, event);
}
