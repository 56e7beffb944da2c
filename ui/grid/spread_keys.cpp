// The grid's keyboard: what a key does while a cell rests and while it is edited.
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>

#include "ui/grid/spread.h"

#include "ui/forms/keys.h"

namespace {

bool isFunctionKey(int key) {
  return key >= Qt::Key_F1 && key <= Qt::Key_F35;
}

/** Held down with a key they make a command of it; Shift may still be held from the letter before. */
bool isCommand(const QKeyEvent& event) {
  return event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

bool isTyping(const QKeyEvent& event) {
  return !isCommand(event) && !event.text().isEmpty() && event.text().at(0).isPrint();
}

}  // namespace

bool Spread::eventFilter(QObject* watched, QEvent* event) {
  if (watched == list_) return listEvent(event);
  if (watched != line_) return QAbstractScrollArea::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::KeyPress:
      if (lineKey(static_cast<QKeyEvent*>(event))) return true;
      if (isEditing()) return false;  // what the line box leaves goes on to the form by itself
      // Nobody here wants it: the form's own keys are next, and the resting line box must not see it.
      event->ignore();
      return true;
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
      leaveEditLater();
      return false;
    }
    default:
      return false;
  }
}

/** Later, so that a box about the refused text does not come up in the middle of a change of focus or page. */
void Spread::leaveEditLater() {
  if (!isEditing()) return;
  QTimer::singleShot(0, this, [this] {
    if (isEditing() && !line_->hasFocus()) commitEdit();
  });
}

void Spread::hideEvent(QHideEvent* event) {
  QAbstractScrollArea::hideEvent(event);
  if (event->spontaneous()) return;
  if (list_) list_->hide();
  leaveEditLater();
}

/** What the line box leaves comes by here on its way to the form. */
void Spread::keyPressEvent(QKeyEvent* event) {
  event->ignore();
}

/** True: done, the line box does not see it. */
bool Spread::lineKey(QKeyEvent* event) {
  const int key = event->key();
  // Enter is meant with whatever else is held down; any other key with a modifier is another key.
  const bool plain = isEnterKey(key) || !(event->modifiers() & ~Qt::KeypadModifier);
  const bool hooked = plain && (!isEditing() ? !isTyping(*event) : isEnterKey(key) || isFunctionKey(key));
  if (hooked && keyPressed && activeRow_ > 0) {
    bool done = false;
    const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeypadModifier;
    if (!run([&] { done = keyPressed(activeRow_, activeCol_, key, held); }) || done) return true;
  }
  if (isEnterKey(key)) {
    enter();
    return true;
  }
  if ((key == Qt::Key_Tab || key == Qt::Key_Backtab) && !isCommand(*event)) {
    tab(key == Qt::Key_Tab ? 1 : -1);
    return true;
  }
  if (event->matches(QKeySequence::Paste)) {
    paste();
    return true;
  }
  if (!isEditing()) return restingKey(event);
  if (key == Qt::Key_Escape) {
    cancelEdit();
    return true;
  }
  const bool vertical =
      key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown;
  return vertical && !isCommand(*event) && movingKey(event);
}

/** Into the open cell, or in place of a resting cell's text; of several cells the first one. */
void Spread::paste() {
  if (activeRow_ == 0) return;
  const CellKind kind = model_.column(activeCol_).kind;
  if (kind == CellKind::Combo || kind == CellKind::CheckBox) return;
  const QString taken =
      takenBy(kind, QApplication::clipboard()->text().section(u'\n', 0, 0).section(u'\t', 0, 0));
  if (!taken.isEmpty() && openEditor(false)) line_->insert(taken);
}

bool Spread::restingKey(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    copy();
    return true;
  }
  if (movingKey(event)) return true;
  if (activeRow_ == 0) return false;
  const CellKind kind = model_.column(activeCol_).kind;
  if (event->key() == Qt::Key_F2 && !isCommand(*event)) return kind != CellKind::CheckBox && beginEdit();
  if (!isTyping(*event)) return false;
  if (event->key() == Qt::Key_Space && spacePressed) {
    run([&, rows = markedRows()] { spacePressed(rows.first, rows.second); });
    return true;
  }
  switch (kind) {
    case CellKind::CheckBox:
      if (event->key() == Qt::Key_Space) toggleCheck();
      return true;
    case CellKind::Combo:
      openList(event->text());
      return true;
    default:
      // The typed character replaces the text: the opened line box receives this very key.
      return takenBy(kind, event->text()).isEmpty() || !openEditor(false);
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
      if (control) return false;  // the form turns its pages by it
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

/** To the neighbouring cell, over the row's end to the next row, and out of the grid at its ends. A list, whose columns
 *  are all locked, is left at once: there is nothing to type in the next cell. */
void Spread::tab(int step) {
  bool list = true;
  for (int col = 1; col <= model_.MaxCols(); ++col) list = list && model_.column(col).locked;
  if (list) {
    focusNextPrevChild(step > 0);
    return;
  }
  const int next = neighbour(activeCol_, step);
  if (next > 0) {
    moveTo(activeRow_, next);
  } else if (activeRow_ + step >= 1 && activeRow_ + step <= model_.MaxRows()) {
    moveTo(activeRow_ + step, neighbour(step > 0 ? 0 : model_.MaxCols() + 1, step));
  } else if (commitEdit()) {
    focusNextPrevChild(step > 0);
  }
}
