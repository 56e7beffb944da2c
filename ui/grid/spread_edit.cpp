// How a cell is edited: the line box, the combo's list, the check box; and the one road by which a text is offered.
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpressionValidator>

#include <algorithm>

#include "ui/grid/spread.h"

using namespace Qt::StringLiterals;

namespace {

/** More would not fit into the files' whole numbers, and no one would notice what became of it. */
constexpr int mostDigits = 12;

bool isAmount(CellKind kind) {
  return kind == CellKind::Integer || kind == CellKind::Number || kind == CellKind::Money;
}

/** A cell's text as it is edited and compared: amounts without separators. */
QString bareText(CellKind kind, QString text) {
  return isAmount(kind) ? text.remove(u',').trimmed() : text;
}

QString patternOf(CellKind kind) {
  QString whole = u"-?(,*[0-9]){0,%1},*"_s.arg(mostDigits);
  if (kind == CellKind::Integer) return whole;
  return isAmount(kind) ? whole + u"(\\.[0-9]*)?"_s : QString();
}

bool hasDigit(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar letter) { return letter >= u'0' && letter <= u'9'; });
}

QString maskOf(CellKind kind) {
  if (kind == CellKind::Date) return u"0000-00-00"_s;
  if (kind == CellKind::MonthDay) return u"00-00"_s;
  return {};
}

/** Amounts and dates: a text without a digit is none of them. */
bool needsDigits(CellKind kind) {
  return isAmount(kind) || !maskOf(kind).isEmpty();
}

}  // namespace

QString Spread::takenBy(CellKind kind, const QString& text) {
  if (!needsDigits(kind)) return text;
  QString taken;
  for (const QChar letter : kind == CellKind::Integer ? text.section(u'.', 0, 0) : text) {
    const bool digit = letter >= u'0' && letter <= u'9';
    const bool sign = isAmount(kind) && (letter == u'-' || letter == u',');
    const bool point = isAmount(kind) && letter == u'.';
    if (digit || sign || point) taken += letter;
  }
  // A whole date pasted into a cell of month and day.
  if (kind == CellKind::MonthDay && taken.size() == 8) taken.remove(0, 4);
  return taken;
}

bool Spread::canEdit() const {
  return activeRow_ > 0 && activeCol_ > 0 && activeRow_ <= model_.MaxRows() &&
         !model_.locked(activeRow_, activeCol_);
}

QString Spread::editingText() const {
  return isEditing() ? typedText() : QString();
}

QString Spread::typedText() const {
  const CellKind kind = model_.column(editCol_).kind;
  const QString text = line_->text().insert(line_->cursorPosition(), preedit_);
  const bool emptyMask = !line_->inputMask().isEmpty() && QString(text).remove(u'-').trimmed().isEmpty();
  return emptyMask ? QString() : bareText(kind, text);
}

bool Spread::beginEdit() {
  if (!canEdit()) return false;
  switch (model_.column(activeCol_).kind) {
    case CellKind::Combo:
      openList({});
      return true;
    case CellKind::CheckBox:
      toggleCheck();
      return true;
    default:
      return openEditor(true);
  }
}

bool Spread::openEditor(bool keepText) {
  if (isEditing()) return true;
  if (!canEdit() || opening_) return false;
  if (editStarting) {
    bool open = false;
    opening_ = true;  // the hook may run a nested loop; a second key must not open a second time
    const bool whole = run([&] { open = editStarting(activeRow_, activeCol_); });
    opening_ = false;
    if (!whole || !open || isEditing() || !canEdit()) return false;
  }
  const SpreadColumn& column = model_.column(activeCol_);
  showRow(activeRow_);
  editRow_ = activeRow_;
  editCol_ = activeCol_;
  line_->setReadOnly(false);
  line_->setMaxLength(column.maxLength > 0 ? column.maxLength : 32767);
  const QString pattern = patternOf(column.kind);
  line_->setValidator(
      pattern.isEmpty() ? nullptr : new QRegularExpressionValidator(QRegularExpression(pattern), line_));
  line_->setInputMask(maskOf(column.kind));
  line_->setAlignment(
      Qt::AlignVCenter |
      (isAmount(column.kind) || column.align == CellAlign::Right ? Qt::AlignRight : Qt::AlignLeft));
  clearable_ = keepText;
  line_->setText(keepText ? bareText(column.kind, model_.text(editRow_, editCol_)) : QString());
  if (!line_->inputMask().isEmpty()) line_->setCursorPosition(0);
  placeLine();
  line_->setFocus();
  viewport()->update();
  return true;
}

void Spread::closeEditor() {
  editRow_ = editCol_ = 0;
  preedit_.clear();
  line_->setInputMask({});
  delete line_->validator();
  line_->setValidator(nullptr);
  line_->setMaxLength(32767);
  line_->clear();
  placeLine();
  viewport()->update();
}

void Spread::cancelEdit() {
  if (isEditing()) closeEditor();
}

/** A syllable still being composed belongs to the text. */
void Spread::flushComposition() {
  if (preedit_.isEmpty()) return;
  if (line_->hasFocus()) QGuiApplication::inputMethod()->commit();
  if (preedit_.isEmpty()) return;
  QInputMethodEvent whole;
  whole.setCommitString(preedit_);
  QCoreApplication::sendEvent(line_, &whole);
}

/** Nothing was meant by the text: an editor that took nothing, or an amount or date without a digit. Only what was
 *  opened with its text is emptied on purpose. */
bool Spread::saysNothing(const QString& typed) const {
  if (typed.isEmpty()) return !clearable_;
  return needsDigits(model_.column(editCol_).kind) && !hasDigit(typed);
}

void Spread::leaveEdit() {
  closeList();
  if (!commitEdit()) cancelEdit();
}

bool Spread::commitEdit() {
  closeList();
  if (!isEditing()) return true;
  if (committing_) return false;
  flushComposition();
  const int row = editRow_, col = editCol_;
  const QString typed = typedText();
  if (saysNothing(typed) || typed == bareText(model_.column(col).kind, model_.text(row, col))) {
    closeEditor();
    return true;
  }
  const bool accepted = finish(row, col, typed);
  if (!isEditing()) return accepted;
  // Nobody can mend the text on a page that is no longer seen.
  if (accepted || !isVisible()) {
    closeEditor();
  } else {
    line_->setFocus();
    line_->selectAll();
  }
  return accepted;
}

bool Spread::finish(int row, int col, const QString& newText) {
  if (!cellFinished) {
    model_.setText(row, col, newText);
    return true;
  }
  const QString oldText = model_.text(row, col);
  bool accepted = false;
  committing_ = true;
  const bool whole = run([&] { accepted = cellFinished(row, col, oldText, newText); });
  committing_ = false;
  return whole && accepted;
}

/** An input method speaks to the cell: a resting one opens and the line box receives the whole event. */
bool Spread::lineInput(QInputMethodEvent* event) {
  const QString& composed = event->preeditString();
  const QString& written = event->commitString();
  const bool says = !composed.isEmpty() || !written.isEmpty();
  if (!isEditing() && !says) return false;
  if (!isEditing() && !canEdit()) return true;
  const CellKind kind = model_.column(isEditing() ? editCol_ : activeCol_).kind;
  if (kind == CellKind::Text) {
    if (!openEditor(false)) return true;
    preedit_ = composed;
    return false;
  }
  // Only a text is composed; of what is written any other cell takes what it can.
  if (!composed.isEmpty()) QGuiApplication::inputMethod()->reset();
  if (kind == CellKind::Combo) {
    if (says) openList(written + composed);
  } else if (kind == CellKind::CheckBox) {
    if (written == u' ') toggleCheck();
  } else if (const QString taken = takenBy(kind, written); !taken.isEmpty() && openEditor(false)) {
    line_->insert(taken);
  }
  return true;
}

void Spread::toggleCheck() {
  if (!canEdit()) return;
  const bool on = model_.text(activeRow_, activeCol_) == u'1';
  finish(activeRow_, activeCol_, on ? u"0"_s : u"1"_s);
}

// --- the combo's list ---------------------------------------------------------------------------------------

void Spread::openList(const QString& typed) {
  if (!canEdit()) return;
  if (editStarting) {
    bool open = false;
    if (!run([&] { open = editStarting(activeRow_, activeCol_); }) || !open || !canEdit()) return;
  }
  if (!list_) {
    list_ = new QListWidget(this);
    list_->setObjectName(u"SpreadList"_s);
    list_->setWindowFlags(Qt::Popup);
    list_->setFrameShape(QFrame::Box);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setAttribute(Qt::WA_InputMethodEnabled);
    list_->installEventFilter(this);
    connect(list_, &QListWidget::itemClicked, this, [this] { takeFromList(false); });
  }
  list_->setFont(font());
  list_->clear();
  list_->addItems(model_.column(activeCol_).combo);
  if (list_->count() == 0) return;
  const int now = model_.comboPosition(activeRow_, activeCol_);
  list_->setCurrentRow(now < 0 ? 0 : now);
  const auto matches =
      typed.isEmpty() ? QList<QListWidgetItem*>() : list_->findItems(typed, Qt::MatchStartsWith);
  if (!matches.isEmpty()) list_->setCurrentItem(matches.first());
  const QRect cell = cellRect(activeRow_, activeCol_);
  const int rows = std::min(list_->count(), 12);
  list_->resize(std::max(cell.width(), list_->sizeHintForColumn(0) + 24),
                rows * list_->sizeHintForRow(0) + 4);
  list_->move(viewport()->mapToGlobal(cell.bottomLeft()));
  list_->show();
  list_->setFocus();
}

void Spread::closeList() {
  if (!list_ || !list_->isVisible()) return;
  list_->hide();
  line_->setFocus();
}

void Spread::takeFromList(bool byEnter) {
  const int row = activeRow_, col = activeCol_;
  const QString chosen = list_->currentItem() ? list_->currentItem()->text() : QString();
  closeList();
  if (chosen != model_.text(row, col) && !finish(row, col, chosen)) return;
  if (!byEnter || row != activeRow_ || col != activeCol_) return;
  if (enterPressed)
    run([&] { enterPressed(row, col); });
  else
    moveToNextOpenCell();
}

bool Spread::listEvent(QEvent* event) {
  if (event->type() == QEvent::InputMethod) {
    // The list searches by keys alone; a Hangul syllable finds its entry too.
    auto* const spoken = static_cast<QInputMethodEvent*>(event);
    const auto found =
        list_->findItems(spoken->commitString() + spoken->preeditString(), Qt::MatchStartsWith);
    if (!found.isEmpty()) list_->setCurrentItem(found.first());
    return true;
  }
  if (event->type() != QEvent::KeyPress) return false;
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
      takeFromList(true);
      return true;
    case Qt::Key_Escape:
      closeList();
      return true;
    default:
      return false;
  }
}
