#include "trade/form_line.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "trade/form_last_lines.h"
#include "ui/forms/fields.h"
#include "ui/forms/keys.h"
#include "ui/forms/style.h"

LineForm::LineForm(const QString& name, const QString& caption, FormContext& context, LineBook& book,
                   LineEntry& entry, QWidget* parent)
    : Form(name, caption, context.session, parent),
      context_(context),
      lastLines_(new LastLines(this)),
      book_(book),
      entry_(entry) {
  onKey(Qt::Key_Escape, [this] { showAll(); });
}

QSize LineForm::sizeHint() const {
  // Every column shows, whatever the size of the text.
  return {grid()->fullWidth() + 60, 34 * grid()->fontMetrics().height() + 180};
}

void LineForm::showEvent(QShowEvent* event) {
  Form::showEvent(event);
  // Work begins on the empty row; a window that comes up gives the focus to its first box otherwise.
  QTimer::singleShot(0, this, [this] { grid()->setFocus(); });
}

// --- building ------------------------------------------------------------------------------------------------

void LineForm::addHead(int columns, const std::function<void(Fields&)>& partner, const QString& gasOwed,
                       const QString& utilOwed, const QList<QPushButton*>& buttons) {
  auto* const row = new QHBoxLayout;
  row->setSpacing(5);
  auto* const panel = new QWidget(this);
  panel->setObjectName("PnlClient");
  Fields fields(panel, columns);
  addDate(fields);
  partner(fields);
  row->addWidget(panel, 1);
  row->addWidget(owedPanel(gasOwed, utilOwed));
  row->addWidget(lastLines_);
  auto* const column = new QVBoxLayout;
  column->setSpacing(3);
  for (QPushButton* const button : buttons) column->addWidget(button);
  column->addStretch(1);
  row->addLayout(column);
  body()->addLayout(row);
}

void LineForm::keepRoom(QLabel* label, const QString& widest) {
  label->setMinimumWidth(label->fontMetrics().horizontalAdvance(widest) + 18);
}

void LineForm::addDate(Fields& fields) {
  date_ = fields.date("txtDate", "일자(&D)", DateBox::Mask::MonthDay);
  setHelp(date_, "일자확인 후 엔터치세요!");
  date_->installEventFilter(this);
}

/** Two big figures, one above the other: what is owed is what the operator tells on the telephone. */
QWidget* LineForm::owedPanel(const QString& gasCaption, const QString& utilCaption) {
  auto* const owed = new QWidget(this);
  owed->setObjectName("PnlTrust");
  auto* const figures = new QVBoxLayout(owed);
  figures->setContentsMargins(8, 3, 8, 3);
  figures->setSpacing(0);
  gasOwed_ = bigFigure("LblGasTrust", gasCaption, owed);
  utilOwed_ = bigFigure("LblUtilTrust", utilCaption, owed);
  return owed;
}

QLabel* LineForm::bigFigure(const char* name, const QString& caption, QWidget* panel) {
  auto* const words = new QLabel(caption, panel);
  words->setProperty("role", "faint");
  auto* const figure = new QLabel(panel);
  figure->setObjectName(name);
  figure->setFont(look::textFont(15, true));
  figure->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  figure->setMinimumWidth(QFontMetrics(figure->font()).horizontalAdvance("99,999,999"));
  panel->layout()->addWidget(words);
  panel->layout()->addWidget(figure);
  return figure;
}

void LineForm::showOwed(const QString& gas, const QString& util) {
  gasOwed_->setText(gas);
  utilOwed_->setText(util);
}

Spread* LineForm::addLines(const char* name, SpreadModel& model) {
  Spread* const grid = addSpread(name, model);
  grid->setFillColumn(LineCol::Partner);
  grid->setFrozenCols(LineCol::Partner);  // the day and whose line it is
  grid->cellFinished = [this, grid](int row, int col, const QString&, const QString& typed) {
    return cellFinished(grid, row, col, typed);
  };
  grid->cellEntered = [this](int, int col) {
    showHelp(entry_.help(col));
    // Also when another window stood in front between the date and the grid.
    if (dateOpen_ && !date_->hasFocus()) QTimer::singleShot(0, this, [this] { leaveDate(); });
  };
  grid->rowEntered = [this](int row) {
    entry_.enteredRow(row);
    showPanel();
  };
  grid->cellLeaving = [this](int row, int, int toRow, int) { return mayLeave(row, toRow); };
  grid->keyPressed = [this](int row, int col, int key, Qt::KeyboardModifiers modifiers) {
    return gridKey(row, col, key, modifiers);
  };
  grid->doubleClicked = [this, grid](int row, int) {
    if (!openedEmpty(row)) grid->beginEdit();
  };
  grid->enterPressed = [this, grid](int row, int col) {
    follow(entry_.enterKey(row, col, grid->model().text(row, col)));
  };
  return grid;
}

// --- the grid ------------------------------------------------------------------------------------------------

bool LineForm::gridKey(int row, int col, int key, Qt::KeyboardModifiers modifiers) {
  if (modifiers) return false;  // with one, none of these keys means what it means here
  const bool editing = grid()->isEditing();
  const QString typed = editing ? grid()->editingText() : grid()->model().text(row, col);
  if (key == Qt::Key_F4 || (key == Qt::Key_Delete && !editing)) {
    if (grid()->commitEdit()) removeRow(row);
    return true;
  }
  if (key == Qt::Key_F8) {
    if (grid()->commitEdit()) follow(entry_.onCredit(row));
    return true;
  }
  if (key == Qt::Key_F12) {
    follow(entry_.search(row, col, typed));
    return true;
  }
  if (key == Qt::Key_Down) entry_.makeRoomBelow(row);
  if ((isEnterKey(key) || key == Qt::Key_F2) && openedEmpty(row)) return true;
  if (!isEnterKey(key)) return false;
  // The kind that a new line stands on is taken; elsewhere the list of kinds opens.
  if (col == LineCol::Kind && !entry_.beginsAt(row)) return false;
  // While a cell is being edited Enter searches where there is a search; elsewhere it finishes the cell first.
  const bool searches = (col == LineCol::Partner && row == grid()->model().MaxRows()) ||
                        col == LineCol::Item || col == LineCol::Person;
  if (editing && !searches) return false;
  follow(entry_.enterKey(row, col, typed));
  return true;
}

bool LineForm::cellFinished(Spread* of, int row, int col, const QString& typed) {
  if (of != grid()) {  // its rows are another sheet's by now
    of->cancelEdit();
    return false;
  }
  const LineStep step = entry_.finishCell(row, col, typed);
  if (step.end == LineStep::Refused) return false;
  // Who went to the date meanwhile stays there.
  follow(step, QApplication::focusWidget() != date_);
  return step.end == LineStep::Done;
}

bool LineForm::mayLeave(int row, int toRow) {
  if (row == toRow) return true;
  const int missing = entry_.missingField(row);
  if (missing > 0) follow({LineStep::Done, row, missing});
  return missing == 0;
}

/** The screen after a rule's step: the sheet, the cursor, the day, the partner. */
void LineForm::follow(const LineStep& step, bool takeFocus) {
  sheetShown();
  if (step.end == LineStep::PutBack) grid()->cancelEdit();
  if (step.row > 0 && (step.row != grid()->activeRow() || step.col != grid()->activeCol())) {
    grid()->cancelEdit();
    grid()->setActiveCell(step.row, step.col);
  }
  if (takeFocus) grid()->setFocus();
  showDate();
  showPanel();
}

void LineForm::toBottomRow() {
  follow({LineStep::Done, grid()->model().MaxRows(), LineCol::Partner});
}

void LineForm::showPanel() {
  guard([this] {
    const int row = grid()->activeRow();
    showPartner(row);
    lastLines_->show(book_.lastLines(row));
  });
}

void LineForm::removeRow(int row) {
  if (book_.deleteRow(row)) toBottomRow();
}

// --- the day -------------------------------------------------------------------------------------------------

void LineForm::showDate() {
  date_->setDateText(book_.date());
}

bool LineForm::eventFilter(QObject* watched, QEvent* event) {
  if (watched == date_ && event->type() == QEvent::KeyPress &&
      isEnterKey(static_cast<QKeyEvent*>(event)->key())) {
    grid()->setFocus();
    return true;
  }
  if (watched == date_ && event->type() == QEvent::FocusIn) dateOpen_ = true;
  if (watched == date_ && event->type() == QEvent::FocusOut) {
    const auto reason = static_cast<QFocusEvent*>(event)->reason();
    // Later, so that a box about a wrong day does not come up in the middle of the change of focus.
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
      QTimer::singleShot(0, this, [this] { leaveDate(); });
  }
  return Form::eventFilter(watched, event);
}

bool LineForm::takeDate() {
  if (!dateOpen_) return false;
  book_.setDate(date_->dateText());
  dateOpen_ = false;  // the focus came back to it from a box about a wrong day
  return true;
}

void LineForm::leaveDate() {
  if (!dateOpen_) return;
  guard([this] {
    dateOpen_ = date_->hasFocus();
    book_.setDate(date_->dateText());
    dayTaken();
    const QWidget* const now = QApplication::focusWidget();
    follow({LineStep::Done, grid()->model().MaxRows(), LineCol::Partner}, !now || isAncestorOf(now));
  });
}
