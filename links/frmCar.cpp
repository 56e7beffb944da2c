#include "links/frmCar.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "links/form_short_list.h"
#include "master/registers/form_lookups.h"
#include "store/date_text.h"
#include "ui/forms/boxes.h"

using namespace Qt::StringLiterals;

namespace {
const QString carCaption = u"차량 정비 등록"_s;
}

frmCar::frmCar(FormContext& context, QWidget* parent)
    : Form(u"frmCar"_s, carCaption, context.session, parent), context_(context), log_(context.session) {
  body()->addWidget(buildHead());
  grid_ = addSpread("SpCar", log_.grid());
  grid_->setFillColumn(CarCol::Content);
  grid_->cellFinished = [this](int row, int col, const QString&, const QString& typed) {
    return cellFinished(row, col, typed);
  };
  grid_->keyPressed = [this](int row, int col, int pressed, Qt::KeyboardModifiers) {
    return key(row, col, pressed);
  };
  grid_->enterPressed = [this](int row, int col) { enterPressed(row, col); };
  grid_->cellLeaving = [this](int row, int, int toRow, int) { return mayLeave(row, toRow); };
  grid_->cellEntered = [this](int, int) { showHint(); };
  body()->addWidget(grid_, 1);
  pnl_ = new QLabel(this);
  pnl_->setObjectName(u"pnl"_s);
  pnl_->setProperty("role", u"value"_s);
  pnl_->setAlignment(Qt::AlignCenter);
  body()->addWidget(pnl_);
  guard([this] { enterAll(); });
}

QWidget* frmCar::buildHead() {
  QGroupBox* const group = addGroup({});
  auto* const row = new QHBoxLayout(group);
  const auto state = [&](const char* name, const QString& caption) {
    auto* const made = new QRadioButton(caption, group);
    made->setObjectName(QString::fromLatin1(name));
    row->addWidget(made);
    return made;
  };
  entering_ = state("OptEnter", u"입력상태(&I)"_s);
  asking_ = state("OptAsk", u"조회상태(&Q)"_s);
  row->addSpacing(18);
  const auto day = [&](const char* name, const QString& unit) {
    auto* const box = new DateBox(DateBox::Mask::YearMonthDay, group);
    box->setObjectName(QString::fromLatin1(name));
    box->setFixedWidth(12 * fontMetrics().horizontalAdvance(u'0') + 16);
    row->addWidget(box);
    row->addWidget(new QLabel(unit, group));
    return box;
  };
  from_ = day("TxtFrom", u"부터"_s);
  to_ = day("TxtTo", u"까지"_s);
  row->addSpacing(12);
  auto* const words = new QLabel(u"차량번호"_s, group);
  carNo_ = new QLineEdit(group);
  carNo_->setObjectName(u"TxtCarNo"_s);
  carNo_->setMaxLength(20);
  carNo_->setFixedWidth(12 * fontMetrics().horizontalAdvance(u'0') + 16);
  words->setBuddy(carNo_);
  row->addWidget(words);
  row->addWidget(carNo_);
  row->addStretch(1);
  QPushButton* const view = addButton("BtnView", u"조회(&V)"_s, [this] { ask(); });
  QPushButton* const leave =
      addButton("BtnExit", u"닫기(&X)"_s, [this] { (parentWidget() ? parentWidget() : this)->close(); });
  row->addWidget(view);
  row->addWidget(leave);

  connect(entering_, &QRadioButton::clicked, this, [this] {
    if (!command([this] { enterAll(); })) showState();
  });
  connect(asking_, &QRadioButton::clicked, this, [this] {
    if (!command([this] { ask(); })) showState();
  });
  setHelp(from_, u"조회할 첫 날을 입력합니다. 비우면 처음부터  달력조회 = F12"_s);
  setHelp(to_, u"조회할 마지막 날을 입력합니다. 비우면 끝까지  달력조회 = F12"_s);
  setHelp(carNo_, u"조회할 차량번호를 입력합니다. 비우면 모든 차량"_s);
  enterOrder({from_, to_, carNo_}, [this] { ask(); });
  attachDate(*this, context_.pickers, from_);
  attachDate(*this, context_.pickers, to_);
  return group;
}

/** The switch, the hint and the sum follow what the log shows. */
void frmCar::showState() {
  (log_.asks() ? asking_ : entering_)->setChecked(true);
  showHint();
  guard([this] { pnl_->setText(log_.summary()); });
}

void frmCar::showHint() {
  showHelp(log_.asks() ? u"차량정비 내용을 기간별/차량별로 조회합니다"_s
                       : u"차량정비내용을 입력. 자료삭제:Delete, 차량/정비부품조회:F12"_s);
}

void frmCar::toNewLine() {
  if (log_.asks()) return;
  grid_->setActiveCell(log_.grid().MaxRows(), CarCol::CarNo);
  grid_->setFocus();
}

void frmCar::enterAll() {
  if (!mayLeave(grid_->activeRow(), 0)) {
    showState();
    return grid_->setFocus();
  }
  log_.showAll();
  showState();
  toNewLine();
}

void frmCar::ask() {
  if (!mayLeave(grid_->activeRow(), 0)) {
    showState();
    return grid_->setFocus();
  }
  const bool shown = log_.showAsked({from_->dateText(), to_->dateText(), carNo_->text()});
  showState();
  if (!shown) {
    const auto isWrong = [this](const DateBox* day) {
      return !day->dateText().isEmpty() && checkedDate(day->dateText(), session().pc.clock).isEmpty();
    };
    return focus(isWrong(from_) ? from_ : isWrong(to_) ? to_ : carNo_);
  }
  if (log_.grid().MaxRows() == 0) {
    focus(from_);  // whose own help comes up with the focus
    return showHelp(u"조회된 정비내역이 없습니다"_s);
  }
  grid_->setActiveCell(1, CarCol::Day);
  grid_->setFocus();
}

bool frmCar::cellFinished(int row, int col, const QString& typed) {
  const CarCell end = log_.finishCell(row, col, typed);
  if (end == CarCell::Refused) return false;
  if (end == CarCell::Taken) {
    if (log_.isStored(row)) showState();
    return true;
  }
  grid_->cancelEdit();
  if (end == CarCell::Reread) {
    showState();
    grid_->setActiveCell(std::min(row, log_.grid().MaxRows()), col);
  }
  return false;
}

bool frmCar::key(int row, int col, int key) {
  if (key == Qt::Key_F12) {
    pickFor(row, col);
    return true;
  }
  if (grid_->isEditing()) return false;
  if (key == Qt::Key_Delete) {
    command([&] {
      if (log_.remove(row)) showState();
    });
    const int rows = log_.grid().MaxRows();
    if (rows > 0) grid_->setActiveCell(std::min(std::max(row, 1), rows), col);
    return true;
  }
  if (key == Qt::Key_Escape && log_.isBegun(row)) {
    log_.emptyNewLine(row);
    return true;
  }
  return false;
}

/** F12 by column: the calendar, the vehicles, the parts. What was picked counts as typed. */
void frmCar::pickFor(int row, int col) {
  if (col != CarCol::Day && col != CarCol::CarNo && col != CarCol::Content) return;
  grid_->cancelEdit();
  command([&] {
    QString picked;
    if (col == CarCol::Day) {
      picked = context_.pickers.pickDate(log_.grid().text(row, col)).value_or(QString());
    } else {
      ShortListDialog list(col == CarCol::CarNo ? vehicleList() : repairList(), session(), true, window());
      if (const auto cells = list.pick()) picked = cells->front();
    }
    activateWindow();
    grid_->setFocus();
    if (picked.isEmpty() || picked == log_.grid().text(row, col)) return;
    if (cellFinished(row, col, picked)) enterPressed(row, col);
  });
}

void frmCar::enterPressed(int row, int col) {
  if (log_.isStored(row)) {
    if (col < CarCol::Person) grid_->setActiveCell(row, col + 1);
    return;
  }
  // The driver of the vehicle stands there already.
  const bool lastCell =
      col >= CarCol::Person || (col == CarCol::Money && !log_.grid().text(row, CarCol::Person).isEmpty());
  if (!lastCell) {
    grid_->setActiveCell(row, col + 1);
    return;
  }
  storeLine(row);
}

void frmCar::storeLine(int row) {
  bool stored = false;
  guard([&] { stored = log_.store(row); });
  if (stored) {
    showState();
    toNewLine();
  } else if (const int col = log_.missing(row)) {
    grid_->setActiveCell(row, col);
  }
}

/** A line that was begun is stored on the way out of it, or the cursor stays where something is missing. */
bool frmCar::mayLeave(int row, int toRow) {
  if (row == toRow || !log_.isBegun(row)) return true;
  bool stored = false;
  guard([&] { stored = log_.store(row); });
  if (stored)
    showState();
  else if (const int col = log_.missing(row))
    grid_->setActiveCell(row, col);
  return stored;
}

/** Whoever leaves in the middle of a line may give it up. */
bool frmCar::mayClose() {
  const int row = log_.grid().MaxRows();
  if (!log_.isBegun(row)) return true;
  if (log_.missing(row) == 0) {
    bool stored = false;
    guard([&] { stored = log_.store(row); });
    if (stored) return true;
  }
  return session().prompts.MsgAsk(u"입력 중인 자료를 저장하지 않았습니다!\n저장하지 않고 버리시겠습니까?"_s,
                                  carCaption, false);
}
