#include "master/frmClient.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "ui/grid_print.h"

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
  buildPage(HouseStyle::Plain, "일반/식당", "SpClient");
  buildPage(HouseStyle::Apartment, "아파트", "SpAptClient");
  buildPage(HouseStyle::MultiFamily, "다가구", "SpManyClient");

  QList<QWidget*> order;
  for (const Page& page : pages_) order << page.boxes->order();
  enterOrder(order << save_);
  // Asked before the kit's Enter: a box may look something up instead of passing the focus on.
  for (QWidget* const box : order) box->installEventFilter(this);

  onKey(Qt::Key_F10, [this] { print(); });
  onKey(Qt::Key_F12, [this] { search(); });
  mapTimer_->setInterval(mapLookMilliseconds);
  mapTimer_->setSingleShot(true);
  connect(mapTimer_, &QTimer::timeout, this, [this] { lookAtMap(); });
  connect(tabs_, &QTabWidget::currentChanged, this, [this](int index) { guard([&] { openPage(index); }); });
  guard([this] { openPage(0); });
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
  cancel_ = addButton("BtnCancel", "취소(&Q)", [this] { cancel(); });
  delete_ = addButton("BtnDel", "삭제(&D)", [this] {
    session().prompts.MsgInfo(deleteHelp, "고객 관리자");
    page().grid->setFocus();
  });
  image_ = addButton("BtnImage", "약도(&M)", [this] { startMap(); });
  apartment_ =
      addButton("BtnAptClient", "아파트 자동 등록", [this] { context_.commands.openForm("frmHouseStyle"); });
  apartment_->setEnabled(context_.commands.hasForm("frmHouseStyle"));
  exit_ = addButton("BtnExit", "닫기(&X)", [this] { (parentWidget() ? parentWidget() : this)->close(); });
  buttons_ = buttonRow({apartment_, image_, nullptr, new_, save_, cancel_, delete_, nullptr, exit_});
}

void frmClient::buildPage(HouseStyle style, const QString& caption, const char* gridName) {
  Page& page = pages_.at(size_t(style));
  page.sheet = new QWidget;
  auto* const rows = new QVBoxLayout(page.sheet);
  rows->setContentsMargins(0, 5, 0, 0);
  rows->setSpacing(5);
  page.grid = addSpread(gridName, clients_.list(style), page.sheet);
  page.grid->setFillColumn(style == HouseStyle::Plain ? 5 : 1);
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
  page.grid->keyPressed = [this](int, int, int key, Qt::KeyboardModifiers) {
    if (key != Qt::Key_Delete) return false;
    remove();
    return true;
  };
}

// --- what is shown ------------------------------------------------------------------------------------------

void frmClient::openPage(int index) {
  clients_.loadPage(HouseStyle(index));
  pages_[size_t(index)].sheet->layout()->addWidget(buttons_);
  ClientEntry none;
  none.houseStyle = HouseStyle(index);
  show(none);
}

void frmClient::show(const ClientEntry& entry) {
  page().boxes->show(entry);
  showState();
}

void frmClient::showState() {
  const bool fresh = clients_.isNew();
  new_->setEnabled(!fresh);
  cancel_->setEnabled(fresh);
  delete_->setEnabled(!fresh);
  image_->setEnabled(!fresh && !mapTimer_->isActive());
  page().grid->setEnabled(!fresh);  // a click on the list would throw the typed boxes away
  setBottomLine(clients_.bottomLine());
}

void frmClient::rowEntered(int row) {
  if (!showing_) show(clients_.selectRow(row));
}

void frmClient::focusBox(ClientBox box) {
  if (box == ClientBox::New) return new_->setFocus();
  if (box == ClientBox::List) return page().grid->setFocus();
  if (QWidget* const control = page().boxes->at(box)) focus(control);
}

// --- the buttons --------------------------------------------------------------------------------------------

void frmClient::newClient() {
  show(clients_.beginNew());
  focus(page().boxes->first());
}

void frmClient::save() {
  const ClientSaved saved = clients_.save(page().boxes->entry());
  if (saved.done) {
    const QScopedValueRollback<bool> moving(showing_, true);
    page().grid->setActiveCell(clients_.rowOf(clients_.code()), 1);
    show(clients_.select(clients_.code()));
  }
  focusBox(saved.focus);
}

void frmClient::cancel() {
  show(clients_.cancel());
  page().grid->setFocus();
}

void frmClient::remove() {
  if (!clients_.removeChosen()) return;
  show(clients_.selectRow(page().grid->activeRow()));
}

void frmClient::search() {
  QWidget* const box = focusWidget();
  if (!box || page().boxes->f12(box) || box->objectName() != "TxtUName") return;
  const auto chosen = context_.pickers.searchClient({}, ClientSearchMode::All);
  if (!chosen) return focus(box);
  const ClientEntry client = clients_.select(chosen->code);
  if (tabs_->currentIndex() != int(client.houseStyle)) {
    tabs_->setCurrentIndex(int(client.houseStyle));  // reads that page's list
    clients_.select(chosen->code);
  }
  const QScopedValueRollback<bool> moving(showing_, true);
  page().grid->setActiveCell(clients_.rowOf(chosen->code), 1);
  show(client);
  focus(page().boxes->first());
}

void frmClient::print() {
  const QString title = tabs_->tabText(tabs_->currentIndex()) + " 고객 현황";
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
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && page().boxes->enter(box)) return true;
  }
  if (box && event->type() == QEvent::FocusIn && page().boxes->redirectFocus(box)) return true;
  return Form::eventFilter(watched, event);
}
