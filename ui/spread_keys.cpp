// The grid's keyboard: what a key does while a cell rests and while it is edited.
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>

#include "ui/spread.h"

namespace {

bool isEnterKey(int key) {
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}
bool isFunctionKey(int key) {
  return key >= Qt::Key_F1 && key <= Qt::Key_F35;
}

bool isTyping(const QKeyEvent& event) {
  const auto modifiers =
      event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier);
  return !modifiers && !event.text().isEmpty() && event.text().at(0).isPrint();
}

}  // namespace

bool Spread::eventFilter(QObject* watched, QEvent* event) {
  if (watched == list_) return listEvent(event);
  if (watched != line_) return QAbstractScrollArea::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::KeyPress: {
      auto* const key = static_cast<QKeyEvent*>(event);
      if (lineKey(key)) return true;
      if (isEditing() && !isFunctionKey(key->key())) return false;
      // Nobody here wants it: the form's own keys are next, and the line box must not see it.
      QCoreApplication::sendEvent(parentWidget() ? parentWidget() : this, event);
      event->accept();
      return true;
    }
    case QEvent::InputMethod:
      return lineInput(static_cast<QInputMethodEvent*>(event));
    case QEvent::FocusIn:
      viewport()->update();
      if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) enterCell();
      return false;
    case QEvent::FocusOut: {
      viewport()->update();
      const auto reason = static_cast<QFocusEvent*>(event)->reason();
      if (reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason ||
          reason == Qt::MenuBarFocusReason)
        return false;
      if (left) run(left);
      // Later, so that a box about the refused text does not come up in the middle of the change of focus.
      if (isEditing())
        QTimer::singleShot(0, this, [this] {
          if (isEditing() && !line_->hasFocus()) commitEdit();
        });
      return false;
    }
    default:
      return false;
  }
}

void Spread::keyPressEvent(QKeyEvent* event) {
  QCoreApplication::sendEvent(line_, event);
  event->accept();
}

void Spread::inputMethodEvent(QInputMethodEvent* event) {
  QCoreApplication::sendEvent(line_, event);
}

/** True: done, the line box does not see it. */
bool Spread::lineKey(QKeyEvent* event) {
  const int key = event->key();
  const bool hooked = !isEditing() ? !isTyping(*event) : isEnterKey(key) || isFunctionKey(key);
  if (hooked && keyPressed && activeRow_ > 0) {
    bool done = false;
    if (!run([&] { done = keyPressed(activeRow_, activeCol_, key, event->modifiers()); }) || done)
      return true;
  }
  if (isEnterKey(key)) {
    enter();
    return true;
  }
  if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
    tab(key == Qt::Key_Tab ? 1 : -1);
    return true;
  }
  if (!isEditing()) return restingKey(event);
  if (key == Qt::Key_Escape) {
    cancelEdit();
    return true;
  }
  const bool vertical =
      key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
  return vertical && movingKey(event);
}

bool Spread::restingKey(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    copy();
    return true;
  }
  if (event->matches(QKeySequence::Paste)) {
    if (openEditor(false)) line_->paste();
    return true;
  }
  if (movingKey(event)) return true;
  if (event->key() == Qt::Key_F2) return beginEdit();
  if (!isTyping(*event) || activeRow_ == 0) return false;
  switch (model_.column(activeCol_).kind) {
    case CellKind::CheckBox:
      if (event->key() == Qt::Key_Space) toggleCheck();
      return true;
    case CellKind::Combo:
      openList(event->text());
      return true;
    default:
      // The typed character replaces the text: the opened line box receives this very key.
      return !openEditor(false);
  }
}

bool Spread::movingKey(QKeyEvent* event) {
  const bool extend = event->modifiers() & Qt::ShiftModifier;
  const bool control = event->modifiers() & Qt::ControlModifier;
  const int key = event->key();
  const int page = rowsOnPage();
  if (activeRow_ == 0) return false;
  const bool combo = model_.column(activeCol_).kind == CellKind::Combo && !isEditing();
  switch (key) {
    case Qt::Key_Up:
      moveTo(activeRow_ - 1, activeCol_, extend);
      return true;
    case Qt::Key_Down:
      // Below the last row there is nothing to go to: there the key opens a combo, as Alt with it does anywhere.
      if (combo && (event->modifiers() & Qt::AltModifier || activeRow_ == model_.MaxRows()))
        openList({});
      else
        moveTo(activeRow_ + 1, activeCol_, extend);
      return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      moveTo(activeRow_ + (key == Qt::Key_PageDown ? page : -page), activeCol_, extend);
      return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
      if (const int col = neighbour(activeCol_, key == Qt::Key_Right ? 1 : -1))
        moveTo(activeRow_, col, extend);
      return true;
    case Qt::Key_Home:
      moveTo(control ? 1 : activeRow_, neighbour(0, 1), extend);
      return true;
    case Qt::Key_End:
      moveTo(control ? model_.MaxRows() : activeRow_, neighbour(model_.MaxCols() + 1, -1), extend);
      return true;
    default:
      return false;
  }
}

void Spread::enter() {
  if (activeRow_ == 0) return;
  if (isEditing()) {
    const int row = activeRow_, col = activeCol_;
    if (!commitEdit() || row != activeRow_ || col != activeCol_) return;
  } else if (model_.column(activeCol_).kind == CellKind::Combo && canEdit()) {
    openList({});
    return;
  }
  if (enterPressed)
    run([this] { enterPressed(activeRow_, activeCol_); });
  else
    moveToNextOpenCell();
}

/** To the neighbouring cell, over the row's end to the next row, and out of the grid at its ends. */
void Spread::tab(int step) {
  const int next = neighbour(activeCol_, step);
  if (next > 0) {
    moveTo(activeRow_, next);
  } else if (activeRow_ + step >= 1 && activeRow_ + step <= model_.MaxRows()) {
    moveTo(activeRow_ + step, neighbour(step > 0 ? 0 : model_.MaxCols() + 1, step));
  } else if (commitEdit()) {
    focusNextPrevChild(step > 0);
  }
}
