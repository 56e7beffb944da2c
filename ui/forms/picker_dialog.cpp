#include "ui/forms/picker_dialog.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include "ui/forms/form_ini.h"
#include "ui/forms/guard.h"

using namespace Qt::StringLiterals;

PickerDialog::PickerDialog(const QString& name, const QString& caption, Session& session, SpreadModel& rows,
                           const char* gridName, QWidget* parent)
    : QDialog(parent), session_(session) {
  setObjectName(name);
  setWindowTitle(caption);
  auto* const whole = new QVBoxLayout(this);
  whole->setContentsMargins(6, 6, 6, 6);
  whole->setSpacing(5);
  head_ = new QVBoxLayout;
  whole->addLayout(head_);

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
  whole->addWidget(grid_, 1);

  auto* const foot = new QHBoxLayout;
  help_ = new QLabel(u"엔터 : 선택   Esc : 닫기"_s, this);
  help_->setObjectName(u"PnlHelp"_s);
  foot->addWidget(help_, 1);
  whole->addLayout(foot);
}

QLineEdit* PickerDialog::addFind(const char* name, const QString& label,
                                 std::function<void(const QString&)> find) {
  auto* const row = new QHBoxLayout;
  find_ = new QLineEdit(this);
  find_->setObjectName(QString::fromUtf8(name));
  find_->installEventFilter(this);
  auto* const words = new QLabel(label, this);
  words->setBuddy(find_);
  auto* const button = new QPushButton(u"찾기(&F)"_s, this);
  button->setObjectName(u"BtnFind"_s);
  button->setAutoDefault(false);
  search_ = std::move(find);
  connect(button, &QPushButton::clicked, this, [this] { guard([this] { search_(find_->text()); }); });
  row->addWidget(words);
  row->addWidget(find_, 1);
  row->addWidget(button);
  head_->addLayout(row);
  return find_;
}

void PickerDialog::showHelp(const QString& text) {
  help_->setText(text);
}

bool PickerDialog::guard(const std::function<void()>& work) {
  return guarded(session_.prompts, work);
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

void PickerDialog::keyPressEvent(QKeyEvent* event) {
  // Enter belongs to the find box and the list; a dialog's own default button would close it.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (auto* const button = qobject_cast<QPushButton*>(focusWidget())) button->click();
    return;
  }
  QDialog::keyPressEvent(event);
}

bool PickerDialog::eventFilter(QObject* watched, QEvent* event) {
  if (watched == find_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      guard([this] { search_(find_->text()); });
      return true;
    }
    if (key == Qt::Key_Down && grid_->model().DataRowCnt() > 0) {
      grid_->setFocus();
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

void PickerDialog::showEvent(QShowEvent* event) {
  const FormIni memory(session_.pc.paths);
  memory.LoadFormIni(*this);
  memory.LoadSpreadIni(*grid_, *this);
  QDialog::showEvent(event);
  if (grid_->model().DataRowCnt() > 0 || !find_)
    showFound();
  else
    find_->setFocus();
}

void PickerDialog::done(int result) {
  FormIni(session_.pc.paths).SaveFormIni(*this);
  QDialog::done(result);
}
