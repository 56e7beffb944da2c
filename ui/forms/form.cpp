#include "ui/forms/form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QShortcut>
#include <QTabBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

#include "ui/forms/form_ini.h"
#include "ui/forms/guard.h"
#include "ui/forms/keys.h"
#include "ui/forms/push_button.h"
#include "ui/grid/grid_menu.h"

using namespace Qt::StringLiterals;

Form::Form(const QString& name, const QString& caption, Session& session, QWidget* parent)
    : QWidget(parent), session_(session) {
  setObjectName(name);
  setWindowTitle(caption);
  setFocusPolicy(Qt::NoFocus);
  auto* const whole = new QVBoxLayout(this);
  whole->setContentsMargins(6, 6, 6, 6);
  whole->setSpacing(5);
  body_ = new QVBoxLayout;
  body_->setSpacing(5);
  whole->addLayout(body_, 1);

  auto* const foot = new QHBoxLayout;
  foot->setSpacing(0);
  help_ = new QLabel(this);
  help_->setObjectName(u"PnlHelp"_s);
  foot->addWidget(help_, 1);
  bottom_ = new QLabel(this);
  bottom_->setObjectName(u"LblBottom"_s);
  bottom_->hide();
  foot->addWidget(bottom_);
  whole->addLayout(foot);
  onKey(Qt::ControlModifier, Qt::Key_F4, [this] { close(); });
}

// --- handlers -----------------------------------------------------------------------------------------------

bool Form::guard(const std::function<void()>& work) {
  return guarded(session_.prompts, work);
}

bool Form::trap(const QString& procedure, const std::function<void()>& work) {
  return guardedBy(work, [&](const jet::Error& error) {
    session_.prompts.noted(error);
    session_.prompts.MsgWarn(u"Error %1 (%2) in procedure %3 of Form %4"_s.arg(
        QString::number(error.number()), error.description(), procedure, objectName()));
  });
}

bool Form::commitEditors() {
  // A key that was on its way when a box came up still finds the shortcuts of the window behind it.
  const QWidget* const box = QApplication::activeModalWidget();
  if (box && box != window() && !box->isAncestorOf(this)) return false;
  const auto grids = findChildren<Spread*>();
  return std::all_of(grids.begin(), grids.end(), [](Spread* grid) { return grid->commitEdit(); });
}

bool Form::command(const std::function<void()>& work) {
  return commitEditors() && guard(work);
}

void Form::onKey(int key, std::function<void()> work) {
  onKey(Qt::NoModifier, key, std::move(work));
}

void Form::onKey(Qt::KeyboardModifiers modifiers, int key, std::function<void()> work) {
  keys_[int(modifiers) | key] = std::move(work);
}

void Form::keyPressEvent(QKeyEvent* event) {
  const int pressed = int(event->modifiers() & ~Qt::KeypadModifier) | event->key();
  const auto found = keys_.constFind(pressed);
  if (found == keys_.constEnd()) return QWidget::keyPressEvent(event);
  event->accept();
  const auto work = *found;  // the handler may close the form
  command(work);
}

void Form::whenLeft(QWidget* box, std::function<void()> work) {
  leaves_[box] = std::move(work);
  box->installEventFilter(this);
}

// --- the help line ------------------------------------------------------------------------------------------

void Form::setHelp(QWidget* control, const QString& text) {
  helps_[control] = text;
  control->installEventFilter(this);
}

void Form::showHelp(const QString& text) {
  help_->setText(text);
}

void Form::setBottomLine(const QString& text) {
  bottom_->setText(text);
  bottom_->setVisible(!text.isEmpty());
}

// --- the focus ----------------------------------------------------------------------------------------------

void Form::enterOrder(const QList<QWidget*>& controls, std::function<void()> atEnd) {
  order_ = EnterOrder(controls);
  atEnd_ = std::move(atEnd);
  for (QWidget* const control : order_.sources()) control->installEventFilter(this);
}

void Form::focusGrid() {
  for (Spread* const grid : findChildren<Spread*>()) {
    if (!grid->isVisible() || !grid->isEnabled() || grid->model().MaxRows() == 0) continue;
    return grid->setFocus();
  }
}

bool Form::enterFrom(QWidget* control) {
  const EnterOrder::Step step = order_.from(control, this);
  if (step == EnterOrder::Step::AtEnd && atEnd_) command(atEnd_);
  return step != EnterOrder::Step::None;
}

// --- the pages ----------------------------------------------------------------------------------------------

void Form::watchPages(QTabBar* pages) {
  pages_ = pages;
  pages->installEventFilter(this);
  const auto turns = [this](const QKeyCombination& keys, int step) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, step] { turnPage(step); });
  };
  turns(Qt::CTRL | Qt::Key_PageDown, 1);
  turns(Qt::CTRL | Qt::Key_PageUp, -1);
  turns(Qt::CTRL | Qt::Key_Tab, 1);
  turns(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, -1);
}

void Form::turnPage(int step) {
  if (!pages_->isEnabled() || !commitEditors()) return;
  const int count = pages_->count();
  for (int past = 1; past < count; ++past) {
    const int at = (pages_->currentIndex() + step * past + count * past) % count;
    if (!pages_->isTabEnabled(at) || !pages_->isTabVisible(at)) continue;
    pages_->setCurrentIndex(at);
    focusGrid();
    return;
  }
}

bool Form::eventFilter(QObject* watched, QEvent* event) {
  if (watched == pages_) {
    const QEvent::Type turns = event->type();
    if (turns == QEvent::MouseButtonPress || turns == QEvent::Wheel || turns == QEvent::Shortcut)
      return !commitEditors();  // a cell that was refused keeps its page
  }
  if (event->type() == QEvent::FocusIn) {
    const auto help = helps_.constFind(watched);
    if (help != helps_.constEnd()) showHelp(*help);
  } else if (event->type() == QEvent::FocusOut && leaves_.contains(watched)) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason &&
        reason != Qt::MenuBarFocusReason)
      // Later, so that a box about what was typed does not come up in the middle of the change of focus.
      QTimer::singleShot(0, this, [this, work = leaves_.value(watched)] {
        if (isVisible()) guard(work);
      });
  } else if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (isEnterKey(key) && watched->isWidgetType() && enterFrom(static_cast<QWidget*>(watched))) return true;
  }
  return QWidget::eventFilter(watched, event);
}

// --- building -----------------------------------------------------------------------------------------------

Spread* Form::addSpread(const char* name, SpreadModel& model, QWidget* parent) {
  auto* const grid = new Spread(model, parent ? parent : this);
  grid->setObjectName(QString::fromUtf8(name));
  grid->guard = [this](const std::function<void()>& work) { return guard(work); };
  grid->columnResized = [this, grid](int col) {
    FormIni(session_.pc.paths).SaveSpreadIni(*this, *grid, col);
  };
  grid->menuAsked = [this, grid](const QPoint& place) { showGridMenu(*this, *grid, place); };
  return grid;
}

QPushButton* Form::addButton(const char* name, const QString& caption, std::function<void()> work) {
  auto* const button = new PushButton(name, caption, this);
  button->setAutoDefault(true);
  connect(button, &QPushButton::clicked, this,
          [this, button = QPointer<QPushButton>(button), work = std::move(work)] {
            command(work);
            if (!button) return;
            // A button that its own work switches off passes the focus to its neighbour.
            const QWidget* const now = QApplication::focusWidget();
            if (now == button || (!button->isEnabled() && qobject_cast<const QPushButton*>(now))) focusGrid();
          });
  return button;
}

QGroupBox* Form::addGroup(const QString& title) {
  auto* const group = new QGroupBox(title, this);
  group->setProperty("plain", title.isEmpty());
  return group;
}

QSize Form::sizeHint() const {
  constexpr int besideGrid = 40, lines = 30;  // pixels; lines of text
  QSize hint = QWidget::sizeHint();
  for (const Spread* const grid : findChildren<Spread*>())
    hint = hint.expandedTo({grid->fullWidth() + besideGrid, lines * fontMetrics().lineSpacing()});
  return hint;
}

QWidget* Form::buttonRow(const QList<QPushButton*>& buttons) {
  auto* const row = new QWidget(this);
  auto* const line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(5);
  line->addStretch(1);
  for (QPushButton* const button : buttons) {
    if (button)
      line->addWidget(button);
    else
      line->addSpacing(16);
  }
  return row;
}

// --- its memory ---------------------------------------------------------------------------------------------

void Form::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (shown_ || event->spontaneous()) return;
  shown_ = true;
  if (auto* const pages = findChild<QTabBar*>()) watchPages(pages);
  const FormIni memory(session_.pc.paths);
  design_ = FormIni::placeOf(*this);
  memory.LoadFormIni(*this);
  for (Spread* const grid : findChildren<Spread*>()) memory.LoadSpreadIni(*grid, *this);
}

void Form::forgetMemory() {
  FormIni(session_.pc.paths).Reset(*this, design_);
  for (Spread* const grid : findChildren<Spread*>()) grid->resetMeasures();
}

void Form::closeEvent(QCloseEvent* event) {
  bool free = commitEditors();
  if (free) free = guard([&] { free = mayClose(); }) && free;
  if (!free) return event->ignore();
  FormIni(session_.pc.paths).SaveFormIni(*this);
  event->accept();
}

BusyPointer::BusyPointer() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
}
BusyPointer::~BusyPointer() {
  QApplication::restoreOverrideCursor();
}
