#include "ui/forms/picker_dialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "ui/forms/form_ini.h"
#include "ui/forms/keys.h"

using namespace Qt::StringLiterals;

PickerDialog::PickerDialog(const QString& name, const QString& caption, Session& session, SpreadModel& rows,
                           const char* gridName, QWidget* parent)
    : Dialog(name, caption, session.prompts, parent), session_(session) {
  layout()->setContentsMargins(6, 6, 6, 6);
  layout()->setSpacing(5);
  allowResize();
  rememberPlace(session.pc.paths);
  head_ = new QVBoxLayout;
  body()->addLayout(head_);

  grid_ = new Spread(rows, this);
  grid_->setObjectName(QString::fromUtf8(gridName));
  grid_->setFillColumn(rows.MaxCols());
  grid_->guard = [this](const std::function<void()>& work) { return guard(work); };
  grid_->doubleClicked = [this](int row, int) { take(row); };
  grid_->columnResized = [this](int col) { FormIni(session_.pc.paths).SaveSpreadIni(*this, *grid_, col); };
  grid_->keyPressed = [this](int row, int, int key, Qt::KeyboardModifiers) {
    if (key == Qt::Key_Up && row == 1 && find_) {
      find_->setFocus();
      find_->selectAll();
      return true;
    }
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    take(row);
    return true;
  };
  body()->addWidget(grid_, 1);
  help_ = new QLabel(u"엔터 : 선택   Esc : 닫기"_s, this);
  help_->setObjectName(u"PnlHelp"_s);
  foot()->addWidget(help_, 1);
}

QLineEdit* PickerDialog::addFind(const char* name, const QString& label,
                                 std::function<void(const QString&)> find) {
  auto* const row = new QHBoxLayout;
  find_ = new QLineEdit(this);
  find_->setObjectName(QString::fromUtf8(name));
  find_->installEventFilter(this);
  auto* const words = new QLabel(label, this);
  words->setBuddy(find_);
  search_ = std::move(find);
  row->addWidget(words);
  row->addWidget(find_, 1);
  row->addWidget(addButton("BtnFind", u"찾기(&F)"_s, [this] { search_(find_->text()); }));
  head_->addLayout(row);
  return find_;
}

void PickerDialog::showHelp(const QString& text) {
  help_->setText(text);
}

void PickerDialog::showLines(int lines) {
  resize(grid_->fullWidth() + 40, lines * fontMetrics().lineSpacing());
}

void PickerDialog::showFound() {
  if (grid_->model().DataRowCnt() > 0) {
    grid_->setActiveCell(1, grid_->activeCol());
    grid_->setFocus();
  } else if (find_) {
    find_->setFocus();
    find_->selectAll();
  }
}

int PickerDialog::pick() {
  chosen_ = 0;
  // By itself a window takes two thirds of a screen at most, which cuts columns off on a small one.
  if (!testAttribute(Qt::WA_Resized)) resize(sizeHint().boundedTo(screen()->availableSize()));
  exec();
  return chosen_;
}

void PickerDialog::take(int row) {
  bool may = row > 0 && row <= grid_->model().DataRowCnt();
  if (may && mayTake) may = guard([&] { may = mayTake(row); }) && may;
  if (!may) return;
  chosen_ = row;
  accept();
}

bool PickerDialog::eventFilter(QObject* watched, QEvent* event) {
  if (watched == find_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (isEnterKey(key)) {
      guard([this] { search_(find_->text()); });
      return true;
    }
    if (key == Qt::Key_Down && grid_->model().DataRowCnt() > 0) {
      grid_->setFocus();
      return true;
    }
  }
  return Dialog::eventFilter(watched, event);
}

void PickerDialog::showEvent(QShowEvent* event) {
  FormIni(session_.pc.paths).LoadSpreadIni(*grid_, *this);
  Dialog::showEvent(event);
  if (grid_->model().DataRowCnt() > 0 || !find_)
    showFound();
  else
    find_->setFocus();
}
