#include "ui/grid/spread.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>

#include <algorithm>

#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

Spread::Spread(SpreadModel& model, QWidget* parent)
    : QAbstractScrollArea(parent), model_(model), line_(new QLineEdit(viewport())) {
  setObjectName(u"Spread"_s);
  setFrameShape(QFrame::StyledPanel);
  setFocusPolicy(Qt::StrongFocus);
  setFocusProxy(line_);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  viewport()->setMouseTracking(true);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  line_->setObjectName(u"SpreadLine"_s);
  line_->setFrame(false);
  line_->setContextMenuPolicy(Qt::NoContextMenu);
  line_->setStyleSheet(u"border: none; padding: 0 2px; min-height: 0; background: #FFFFFF;"_s);
  line_->setAcceptDrops(false);  // a resting cell is not written by a slip of the mouse
  line_->installEventFilter(this);
  connect(line_, &QLineEdit::textEdited, this, [this](const QString& text) {
    if (isEditing() && !text.isEmpty() && model_.column(editCol_).kind == CellKind::Text) clearable_ = true;
  });

  // The model may be gone before this widget, or the widget before the model: neither asks the other at the end.
  model_.setObserver([self = QPointer<Spread>(this)](SpreadModel::What what, int row, int col) {
    if (self) self->told(what, row, col);
  });
  told(SpreadModel::What::Reset, 0, 0);
}

Spread::~Spread() {
  line_->removeEventFilter(this);
  if (list_) list_->removeEventFilter(this);
}

bool Spread::run(const std::function<void()>& work) const {
  if (guard) return guard(work);
  work();
  return true;
}

void Spread::told(SpreadModel::What what, int row, int col) {
  using What = SpreadModel::What;
  const int rows = model_.MaxRows();
  const int change = rows - knownRows_;
  knownRows_ = rows;
  if (what == What::Cells) {
    // A rule that writes into the open cell by itself takes it from the hand.
    if (isEditing() && !committing_ && row == editRow_ && col == editCol_) closeEditor();
    if (row == 0)
      viewport()->update();
    else
      viewport()->update(QRect(0, cellRect(row, 1).top(), viewport()->width(), rowPixels_));
    return;
  }
  closeList();
  if (what == What::Dropped) return cancelEdit();
  if (what == What::RowsInserted || what == What::RowsRemoved) {
    const auto moved = [&](int at) {
      if (at < row) return at;
      if (change < 0 && at < row - change) return 0;
      return at + change;
    };
    if (isEditing() && (editRow_ = moved(editRow_)) == 0) closeEditor();
    if (const int now = moved(activeRow_)) {
      activeRow_ = now;
    } else {
      entered_ = false;
    }
    anchorRow_ = activeRow_;
  } else if (isEditing()) {
    closeEditor();
  }
  if (what == What::Reset) {
    entered_ = false;
    if (int(widths_.size()) != model_.MaxCols()) widths_.assign(size_t(model_.MaxCols()), 0.0);
  }
  activeRow_ = std::clamp(activeRow_, std::min(1, rows), rows);
  activeCol_ = std::clamp(activeCol_, std::min(1, model_.MaxCols()), model_.MaxCols());
  anchorRow_ = activeRow_;
  anchorCol_ = activeCol_;
  if (what == What::RowsInserted || what == What::RowsRemoved)
    measureRows();
  else
    measure();
}

// --- measures -----------------------------------------------------------------------------------------------

void Spread::measure() {
  const QFontMetrics metrics(font());
  const int needed = metrics.height() + 6;
  rowPixels_ = std::max(needed, rowPoints_ * logicalDpiY() / 72);
  headerRow_ = metrics.height() + 8;
  bool groups = false;
  const int cols = model_.MaxCols();
  for (int col = 1; col <= cols; ++col) groups = groups || !model_.column(col).group.isEmpty();
  headerHeight_ = groups ? 2 * headerRow_ : headerRow_;

  const int digit = metrics.horizontalAdvance(u'0');
  edges_.assign(size_t(cols) + 1, 0);
  for (int col = 1; col <= cols; ++col) {
    const int width = model_.column(col).hidden ? 0 : int(colWidth(col) * digit) + 8;
    edges_[size_t(col)] = edges_[size_t(col - 1)] + width;
  }
  needed_ = edges_.back();
  const int spare = viewport()->width() - needed_;
  if (fillColumn_ > 0 && fillColumn_ <= cols && !model_.column(fillColumn_).hidden && spare > 0)
    for (int col = fillColumn_; col <= cols; ++col) edges_[size_t(col)] += spare;

  horizontalScrollBar()->setRange(0, std::max(0, edges_.back() - viewport()->width()));
  horizontalScrollBar()->setPageStep(viewport()->width());
  horizontalScrollBar()->setSingleStep(4 * digit);
  measureRows();
}

void Spread::measureRows() {
  verticalScrollBar()->setRange(0, std::max(0, model_.MaxRows() - rowsOnPage()));
  verticalScrollBar()->setPageStep(rowsOnPage());
  placeLine();
  viewport()->update();
}

double Spread::colWidth(int col) const {
  const double own = size_t(col) <= widths_.size() ? widths_[size_t(col - 1)] : 0;
  return own > 0 ? own : model_.column(col).width;
}

void Spread::setColWidth(int col, double width) {
  if (col < 1 || size_t(col) > widths_.size()) return;
  widths_[size_t(col - 1)] = width;
  measure();
}

void Spread::resetMeasures() {
  std::fill(widths_.begin(), widths_.end(), 0.0);
  rowPoints_ = 0;
  setFontSize(QApplication::font().pointSize());
}

int Spread::fontSize() const {
  return font().pointSize();
}

void Spread::setFontSize(int points) {
  QFont changed = font();
  changed.setPointSize(points);
  setFont(changed);
  measure();
}

void Spread::setRowHeight(int points) {
  rowPoints_ = points;
  measure();
}

void Spread::setFillColumn(int col) {
  fillColumn_ = col;
  measure();
}

void Spread::setFrozenCols(int count) {
  frozenCols_ = count;
  measure();
}

/** How many stand still at the present width. */
int Spread::stillColumns() const {
  const int count = std::min(frozenCols_, model_.MaxCols());
  return edges_[size_t(count)] * 2 <= viewport()->width() ? count : 0;
}

int Spread::fullWidth() const {
  return needed_ + 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
}

int Spread::rowsOnPage() const {
  return std::max(1, (viewport()->height() - headerHeight_) / rowPixels_);
}

int Spread::topRow() const {
  return verticalScrollBar()->value() + 1;
}

QSize Spread::sizeHint() const {
  const int widest = 1000 * logicalDpiX() / 96;
  return {std::min(fullWidth(), widest), headerHeight_ + 12 * rowPixels_};
}

QRect Spread::cellRect(int row, int col) const {
  if (col < 1 || col > model_.MaxCols()) return {};
  const int scrolled = col > stillColumns() ? horizontalScrollBar()->value() : 0;
  const int left = edges_[size_t(col - 1)] - scrolled;
  const int top = headerHeight_ + (row - topRow()) * rowPixels_;
  return {left, top, edges_[size_t(col)] - edges_[size_t(col - 1)], rowPixels_};
}

int Spread::columnAt(int x) const {
  const int inside = x < edges_[size_t(stillColumns())] ? x : x + horizontalScrollBar()->value();
  for (int col = 1; col <= model_.MaxCols(); ++col)
    if (inside >= edges_[size_t(col - 1)] && inside < edges_[size_t(col)]) return col;
  return 0;
}

int Spread::rowAt(int y) const {
  if (y < headerHeight_) return 0;
  const int row = topRow() + (y - headerHeight_) / rowPixels_;
  return row <= model_.MaxRows() ? row : 0;
}

/** The line box: on the cell while it is edited, a speck in its corner while it rests (it keeps the keyboard). */
void Spread::placeLine() {
  if (isEditing()) {
    QRect place = cellRect(editRow_, editCol_).adjusted(2, 2, -3, -3);
    const int edge = edges_[size_t(stillColumns())];
    if (editCol_ > stillColumns() && place.left() < edge) place.setLeft(edge);
    if (place.top() < headerHeight_ || place.width() <= 0) place = QRect(0, -rowPixels_, 1, 1);
    line_->setGeometry(place);
    return;
  }
  const QRect cell = cellRect(activeRow_, activeCol_);
  line_->setGeometry(QRect(cell.topLeft(), QSize(1, 1)));
  line_->setReadOnly(!canEdit());
}

// --- the current cell ---------------------------------------------------------------------------------------

bool Spread::setActiveCell(int row, int col) {
  if (isEditing() && !committing_ && !commitEdit()) return false;
  if (row < 1 || col < 1 || row > model_.MaxRows() || col > model_.MaxCols()) return false;
  const bool sameRow = row == activeRow_ && entered_;
  if (sameRow && col == activeCol_) {
    anchorRow_ = row;
    anchorCol_ = col;
    showRow(row);
    return true;
  }
  activeRow_ = anchorRow_ = row;
  activeCol_ = anchorCol_ = col;
  showRow(row);
  if (col > stillColumns()) {
    const QRect cell = cellRect(row, col);
    const int before = cell.left() - edges_[size_t(stillColumns())];
    QScrollBar* const bar = horizontalScrollBar();
    if (before < 0)
      bar->setValue(bar->value() + before);
    else if (cell.right() > viewport()->width())
      bar->setValue(bar->value() + std::min(before, cell.right() - viewport()->width() + 1));
  }
  placeLine();
  viewport()->update();
  entered_ = true;
  if (!sameRow && rowEntered) run([&] { rowEntered(row); });
  enterCell();
  return true;
}

void Spread::enterCell() {
  if (cellEntered && activeRow_ > 0 && activeCol_ > 0) run([&] { cellEntered(activeRow_, activeCol_); });
}

/** The operator's own move: the form may hold him back. */
bool Spread::moveTo(int row, int col, bool extend) {
  if (isEditing() && !commitEdit()) return false;
  row = std::clamp(row, 1, std::max(1, model_.MaxRows()));
  if (row == activeRow_ && col == activeCol_) return setActiveCell(row, col);
  bool free = true;
  if (cellLeaving && activeRow_ > 0)
    free = run([&] { free = cellLeaving(activeRow_, activeCol_, row, col); }) && free;
  if (!free) return false;
  const int anchorRow = anchorRow_, anchorCol = anchorCol_;
  if (!setActiveCell(row, col)) return false;
  if (extend) {
    anchorRow_ = anchorRow;
    anchorCol_ = anchorCol;
    viewport()->update();
  }
  return true;
}

std::pair<int, int> Spread::markedRows() const {
  return std::minmax({activeRow_, anchorRow_});
}

void Spread::showRow(int row) {
  const int top = topRow();
  if (row < top)
    verticalScrollBar()->setValue(row - 1);
  else if (row >= top + rowsOnPage())
    verticalScrollBar()->setValue(row - rowsOnPage());
}

/** The next shown column in a direction; 0 when there is none. */
int Spread::neighbour(int col, int step) const {
  for (int at = col + step; at >= 1 && at <= model_.MaxCols(); at += step)
    if (!model_.column(at).hidden) return at;
  return 0;
}

bool Spread::moveToNextOpenCell() {
  for (int row = activeRow_, col = activeCol_; row <= model_.MaxRows(); ++row, col = 0) {
    while ((col = neighbour(col, 1)) > 0)
      if (!model_.locked(row, col)) return moveTo(row, col);
  }
  return false;
}

void Spread::copy() const {
  if (activeRow_ == 0) return;
  QString text;
  const auto [top, bottom] = std::minmax(activeRow_, anchorRow_);
  const auto [left, right] = std::minmax(activeCol_, anchorCol_);
  for (int row = top; row <= bottom; ++row) {
    QStringList cells;
    for (int col = left; col <= right; ++col)
      if (!model_.column(col).hidden) cells << model_.text(row, col);
    text += cells.join(u'\t');
    if (row < bottom) text += u'\n';
  }
  QApplication::clipboard()->setText(text);
}

// --- the widget's own events --------------------------------------------------------------------------------

void Spread::resizeEvent(QResizeEvent*) {
  measure();
}

void Spread::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() == QEvent::FontChange) {
    line_->setFont(font());
    measure();
  }
  if (event->type() == QEvent::EnabledChange) viewport()->update();
}

void Spread::scrollContentsBy(int, int) {
  placeLine();
  viewport()->update();
}
