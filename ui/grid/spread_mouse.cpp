// The grid's mouse: choosing and marking cells, drawing columns wider, double click, wheel.
#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

#include "ui/grid/spread.h"

namespace {
constexpr int grip = 4;  ///< pixels either side of a column's edge
constexpr double leastWidth = 1.5;
}  // namespace

/** The column whose right edge lies under the mouse; 0 for none. */
int Spread::resizeHandleAt(const QPoint& pos) const {
  if (pos.y() >= headerHeight_) return 0;
  const int still = stillColumns();
  const auto atEdgeOf = [&](int col) {
    return !model_.column(col).hidden && std::abs(pos.x() - cellRect(1, col).right() - 1) <= grip;
  };
  for (int col = still; col > 0; --col)
    if (atEdgeOf(col)) return col;
  if (pos.x() < edges_[size_t(still)]) return 0;  // what is scrolled under the still columns is out of reach
  for (int col = model_.MaxCols(); col > still; --col)
    if (atEdgeOf(col)) return col;
  return 0;
}

void Spread::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if ((resizing_ = resizeHandleAt(event->pos()))) {
    resizeStart_ = event->pos().x();
    resizeFrom_ = edges_[size_t(resizing_)] - edges_[size_t(resizing_ - 1)];
    return;
  }
  const int col = columnAt(event->pos().x());
  if (event->pos().y() < headerHeight_) {
    if (col > 0 && headerClicked && commitEdit()) run([&] { headerClicked(col); });
    return;
  }
  const int row = rowAt(event->pos().y());
  if (row == 0 || col == 0 || !moveTo(row, col, event->modifiers() & Qt::ShiftModifier)) return;
  setFocus(Qt::MouseFocusReason);
  marking_ = true;
  if (clicked) run([&] { clicked(row, col); });
  if (activeRow_ == row && activeCol_ == col && model_.column(col).kind == CellKind::CheckBox) toggleCheck();
}

void Spread::mouseMoveEvent(QMouseEvent* event) {
  if (resizing_ > 0) {
    const int digit = fontMetrics().horizontalAdvance(u'0');
    const int width = resizeFrom_ + event->pos().x() - resizeStart_;
    setColWidth(resizing_, std::max(leastWidth, double(width - 8) / digit));
    return;
  }
  if (event->buttons() == Qt::NoButton) {
    viewport()->setCursor(resizeHandleAt(event->pos()) ? Qt::SplitHCursor : Qt::ArrowCursor);
    return;
  }
  if (!marking_ || isEditing()) return;
  // Dragging marks a block from the pressed cell; the current cell is the one that was pressed.
  const int row = rowAt(event->pos().y()), col = columnAt(event->pos().x());
  if (row == 0 || col == 0 || (row == anchorRow_ && col == anchorCol_)) return;
  anchorRow_ = row;
  anchorCol_ = col;
  viewport()->update();
}

void Spread::mouseReleaseEvent(QMouseEvent*) {
  if (marking_ && blockMarked && anchorRow_ != activeRow_)
    run([&, rows = markedRows()] { blockMarked(rows.first, rows.second); });
  marking_ = false;
  if (resizing_ == 0) return;
  const int col = resizing_;
  resizing_ = 0;
  if (columnResized) run([&] { columnResized(col); });
}

void Spread::mouseDoubleClickEvent(QMouseEvent* event) {
  const int row = rowAt(event->pos().y()), col = columnAt(event->pos().x());
  if (event->button() != Qt::LeftButton || row == 0 || col == 0 || row != activeRow_ || col != activeCol_)
    return;
  if (doubleClicked)
    run([&] { doubleClicked(row, col); });
  else if (model_.column(col).kind != CellKind::CheckBox)
    beginEdit();
}

void Spread::contextMenuEvent(QContextMenuEvent* event) {
  if (!menuAsked) return event->ignore();
  const QPoint place = event->globalPos();
  run([&] { menuAsked(place); });
}

void Spread::wheelEvent(QWheelEvent* event) {
  QApplication::sendEvent(event->angleDelta().x() != 0 ? horizontalScrollBar() : verticalScrollBar(), event);
}
