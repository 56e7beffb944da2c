#include "documents/invoices/FrmNewAcount.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "documents/form_date_boxes.h"
#include "store/text_width.h"
#include "ui/forms/keys.h"
#include "ui/grid/spread.h"

FrmNewAcount::FrmNewAcount(FormContext& context, QWidget* parent)
    : Dialog("FrmNewAcount", "세금계산서 등록", context.session.prompts, parent),
      context_(context),
      invoices_(context.session.dbTax, taxStation(context.session.pc.clock.today())),
      entry_(context.session, invoices_) {
  body()->addWidget(headPanel());
  grid_ = new Spread(entry_.grid(), this);
  grid_->setObjectName("grdList");
  grid_->setFillColumn(AcountCol::Name);
  grid_->guard = [this](const std::function<void()>& work) { return guard(work); };
  connectGrid();
  body()->addWidget(grid_, 1);
  body()->addWidget(sumPanel());
  help_ = addText({}, "PnlHelp");
  addText("[종료:Esc]   [거래처검색:Insert]   [삭제:F4]", "PnlKeys");
  addButton("btnSave", "저장(&S)", [this] { save(); });
  addButton("btnDelete", "삭제(&D)", [this] { deleteLine(); });
  addLeave("btnQuit", "닫기(&Q)");
  const QString today = context.session.pc.clock.dateText();
  showPage(today + ',' + today);
  allowResize({grid_->fullWidth() + 40, 26 * fontMetrics().height()});
  rememberPlace(context.session.pc.paths);
  sums_.show(entry_.sums());
  client_->setFocus();
}

void FrmNewAcount::showPage(const QString& dates) {
  issueDate_ = dates.section(',', 0, 0);
  dealDate_ = dates.section(',', 1, 1);
  issue_->setDateText(issueDate_);
  deal_->setDateText(dealDate_);
  entry_.setDates(issueDate_, dealDate_);
}

QWidget* FrmNewAcount::headPanel() {
  auto* const panel = new QWidget(this);
  Fields fields(panel, 3);
  issue_ = fields.date("txtDate(0)", "작성일자");
  deal_ = fields.date("txtDate(1)", "거래일자");
  client_ = fields.text("txtinput", "매출처", 30);
  help(issue_, "작성일자를 입력하세요.");
  help(deal_, "거래일자를 입력하세요.");
  help(client_, "매출처명을 선택하여 주십시요.  [검색:Enter]");
  // A name that is typed over is nobody's until it is looked up.
  connect(client_, &QLineEdit::textEdited, this, [this] { entry_.forgetClient(); });
  for (QWidget* each : {static_cast<QWidget*>(issue_), static_cast<QWidget*>(deal_)})
    each->installEventFilter(this);
  return panel;
}

QWidget* FrmNewAcount::sumPanel() {
  auto* const panel = new QWidget(this);
  auto* const row = panelRow(panel, 0, 6);
  row->addStretch(1);
  sums_.addTo(row, panel);
  return panel;
}

void FrmNewAcount::connectGrid() {
  static const QHash<int, QString> helps{
      {AcountCol::Name, "상품명을 입력하세요.  [검색:Enter]"},
      {AcountCol::Kinds, "품종을 입력하세요. 품종을 입력하면 수량과 단가를 입력할 수 없습니다."},
      {AcountCol::Quantity, "수량을 입력하세요."},
      {AcountCol::Supply, "공급가액을 입력하세요[VAT별도]"},
      {AcountCol::Total, "합계액을 입력하세요[VAT포함]"}};
  grid_->cellEntered = [this](int, int col) { help_->setText(helps.value(col)); };
  grid_->editStarting = [this](int row, int col) {
    if (!entry_.hasClient()) takeDates();
    if (entry_.mayEdit(row, col)) return true;
    if (!entry_.hasClient()) client_->setFocus();
    return false;
  };
  grid_->cellFinished = [this](int row, int col, const QString&, const QString& text) {
    const bool taken = entry_.finishCell(row, col, text);
    sums_.show(entry_.sums());
    return taken;
  };
  grid_->enterPressed = [this](int row, int col) {
    if (col == AcountCol::Name && entry_.grid().text(row, col).isEmpty()) return searchItem(row);
    const auto [toRow, toCol] = entry_.nextCell(row, col);
    grid_->setActiveCell(toRow, toCol);
  };
}

void FrmNewAcount::help(QWidget* box, const QString& text) {
  helps_[box] = text;
  box->installEventFilter(this);
}

bool FrmNewAcount::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn && helps_.contains(watched)) help_->setText(helps_.value(watched));
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (isEnterKey(key)) {
      if (watched == client_) {
        guard([this] { chooseClient(); });
        return true;
      }
      if (watched == issue_ || watched == deal_) {
        focusNextChild();
        return true;
      }
    }
  }
  if (event->type() == QEvent::FocusOut && (watched == issue_ || watched == deal_)) {
    // Not for a message over the box or its own menu.
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
      QMetaObject::invokeMethod(
          this,
          [this] {
            if (isVisible()) guard([this] { takeDates(); });
          },
          Qt::QueuedConnection);
  }
  return Dialog::eventFilter(watched, event);
}

/** What was typed becomes the dates, also in a box that is not left yet. False after telling that one is none. */
bool FrmNewAcount::takeDates() {
  const auto take = [this](DateBox* box, QString& taken) {
    if (box->dateText() == taken) return true;
    const QString date = documentDate(context_.session, box->dateText());
    if (!date.isEmpty()) taken = date;
    box->setDateText(taken);
    if (date.isEmpty()) box->setFocus();
    return !date.isEmpty();
  };
  const bool taken = take(issue_, issueDate_) && take(deal_, dealDate_);
  entry_.setDates(issueDate_, dealDate_);
  return taken;
}

void FrmNewAcount::chooseClient() {
  const QString text = client_->text().trimmed();
  const TraderFound found = context_.pickers.searchTrader(text);
  if (!found.any) {
    if (!text.isEmpty()) {
      prompts().MsgInfo("검색한 매출처가 없습니다.");
    } else if (prompts().MsgAsk("등록되어 있는 매출처가 없습니다.\n매출처를 등록하시겠습니까?",
                                "매출처 검색")) {
      context_.pickers.registerTrader(true);
    }
  }
  if (!found.trader) {
    client_->setFocus();
    client_->selectAll();
    return;
  }
  client_->setText(found.trader->name);
  entry_.setClient(QString::number(found.trader->code), found.trader->name);
  grid_->setActiveCell(1, AcountCol::Name);
  grid_->setFocus();
}

void FrmNewAcount::searchItem(int row) {
  if (!entry_.mayEdit(row, AcountCol::Name)) return client_->setFocus();
  const auto item = context_.pickers.searchSize("1", TradeSide::Sale);
  if (!item) return;
  entry_.takeItem(row, item->name, item->size, item->price);
  sums_.show(entry_.sums());
  grid_->setActiveCell(row, AcountCol::Quantity);
}

/** False after telling what is missing; the focus is there then. */
bool FrmNewAcount::store() {
  if (!takeDates()) return false;
  const bool stored = entry_.save();
  if (!entry_.hasClient()) client_->setFocus();
  return stored;
}

void FrmNewAcount::save() {
  if (!grid_->commitEdit() || !entry_.isUnsaved() || !store()) return;
  sums_.show(entry_.sums());
  grid_->setActiveCell(1, AcountCol::Name);
  client_->setFocus();
  client_->selectAll();
}

void FrmNewAcount::deleteLine() {
  if (!grid_->commitEdit()) return;
  entry_.deleteLine(grid_->activeRow());
  sums_.show(entry_.sums());
}

bool FrmNewAcount::mayLeave() {
  if (!grid_->commitEdit()) return false;
  if (!entry_.isUnsaved()) return true;
  if (!prompts().MsgAsk("세금계산서 내역을 저장하시겠습니까?", "세금계산서 내역 저장")) return true;
  bool saved = false;
  return guard([&] { saved = store(); }) && saved;
}

void FrmNewAcount::keyPressEvent(QKeyEvent* event) {
  if (!(event->modifiers() & ~Qt::KeypadModifier)) {
    if (event->key() == Qt::Key_Insert) {
      client_->setFocus();
      return client_->selectAll();
    }
    if (event->key() == Qt::Key_F4 || (event->key() == Qt::Key_Delete && grid_->hasFocus())) {
      guard([this] { deleteLine(); });
      return;
    }
  }
  Dialog::keyPressEvent(event);
}
