// How the grid looks: two header rows when columns form groups, stripes, the current row and cell, amounts with
// separators to the right.
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOption>

#include <algorithm>

#include "ui/forms/style.h"
#include "ui/grid/spread.h"

namespace {

/** Separators into a plain number's text; anything else stays as it is. */
QString shownAmount(const QString& text) {
  const qsizetype sign = text.startsWith(u'-') ? 1 : 0;
  qsizetype end = text.indexOf(u'.');
  if (end < 0) end = text.size();
  for (qsizetype at = sign; at < end; ++at)
    if (!text[at].isDigit()) return text;
  QString shown = text;
  for (qsizetype at = end - 3; at > sign; at -= 3) shown.insert(at, u',');
  return shown;
}

bool isRight(const SpreadColumn& column) {
  return column.align == CellAlign::Right || column.kind == CellKind::Integer ||
         column.kind == CellKind::Number || column.kind == CellKind::Money;
}

}  // namespace

void Spread::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.setFont(font());
  painter.fillRect(event->rect(), isEnabled() ? look::desk : look::disabledPaper);
  // Only what is scrolled needs a part of its own: a group's caption goes over the edge unbroken.
  const int still = horizontalScrollBar()->value() > 0 ? stillColumns() : 0, edge = edges_[size_t(still)];
  paintColumns(painter, event->rect(), still + 1, model_.MaxCols());
  if (still > 0) {
    paintColumns(painter, event->rect(), 1, still);
    painter.setPen(look::line);
    painter.drawLine(edge - 1, 0, edge - 1, cellRect(model_.MaxRows(), 1).bottom());
  }
  if (model_.MaxRows() == 0 && line_->hasFocus()) {  // there is no cell that would show it
    painter.setPen(QPen(look::accent, 2));
    painter.drawRect(viewport()->rect().adjusted(1, 1, -1, -1));
  }
}

/** Rows, current cell and header of some columns; what is not theirs is left alone. */
void Spread::paintColumns(QPainter& painter, const QRect& dirty, int first, int last) {
  if (first > last) return;
  const int left = first > 1 ? edges_[size_t(stillColumns())] : 0;
  const QRect part = dirty & QRect(left, 0, cellRect(1, last).right() + 1 - left, viewport()->height());
  if (part.isEmpty()) return;
  painter.setClipRect(part);
  const int top = std::max(topRow(), topRow() + (part.top() - headerHeight_) / rowPixels_);
  for (int row = top; row <= model_.MaxRows(); ++row) {
    if (cellRect(row, 1).top() > part.bottom()) break;
    paintRow(painter, row, part, first, last);
  }
  if (activeRow_ > 0 && activeCol_ >= first && activeCol_ <= last && !model_.column(activeCol_).hidden) {
    painter.setPen(QPen(line_->hasFocus() ? look::accent : look::disabledInk, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cellRect(activeRow_, activeCol_).adjusted(1, 1, -2, -2));
  }
  if (part.top() < headerHeight_) paintHeader(painter, part, first, last);
  painter.setClipping(false);
}

void Spread::paintHeader(QPainter& painter, const QRect& part, int first, int last) {
  painter.fillRect(QRect(part.left(), 0, part.width(), headerHeight_), look::header);
  const bool groups = headerHeight_ > headerRow_;
  const auto box = [&](const QRect& rect, const QString& text, bool current) {
    if (current) painter.fillRect(rect, look::accentSoft);
    painter.setPen(look::line);
    painter.drawLine(rect.topRight(), rect.bottomRight());
    painter.drawLine(rect.bottomLeft(), rect.bottomRight());
    painter.setPen(isEnabled() ? look::ink : look::disabledInk);
    painter.drawText(rect.adjusted(2, 0, -2, 0), Qt::AlignCenter, text);
  };
  for (int col = first; col <= last; ++col) {
    const SpreadColumn& column = model_.column(col);
    if (column.hidden) continue;
    const QRect cell = cellRect(topRow(), col);
    const bool grouped = groups && !column.group.isEmpty();
    box(QRect(cell.left(), grouped ? headerRow_ : 0, cell.width(), grouped ? headerRow_ : headerHeight_),
        column.header, col == activeCol_);
    if (!grouped || (col > first && model_.column(col - 1).group == column.group)) continue;
    int end = col;
    while (end < last && model_.column(end + 1).group == column.group) ++end;
    const int groupRight = cellRect(topRow(), end).right();
    box(QRect(cell.left(), 0, groupRight - cell.left() + 1, headerRow_), column.group, false);
  }
}

void Spread::paintRow(QPainter& painter, int row, const QRect& part, int first, int last) {
  const QRect cellOfRow = cellRect(row, 1);
  const QRect whole(part.left(), cellOfRow.top(), part.width(), rowPixels_);
  const bool current = row == activeRow_;
  painter.fillRect(whole, !isEnabled() ? look::disabledPaper
                          : current    ? look::accentSoft
                          : row % 2    ? look::paper
                                       : look::stripe);
  QFont face = font();
  face.setBold(model_.bold(row));
  painter.setFont(face);
  for (int col = first; col <= last; ++col) {
    const QRect cell = cellRect(row, col);
    if (cell.width() == 0 || cell.right() < part.left() || cell.left() > part.right()) continue;
    paintCell(painter, row, col, cell);
  }
  painter.setPen(look::gridLine);
  painter.drawLine(whole.bottomLeft(), whole.bottomRight());
  if (const int rgb = model_.topLine(row); rgb >= 0 && row > 1) {
    painter.setPen(QPen(QColor::fromRgb(QRgb(rgb)), 2));
    painter.drawLine(whole.topLeft(), whole.topRight());
  }
}

void Spread::paintCell(QPainter& painter, int row, int col, const QRect& rect) {
  const SpreadColumn& column = model_.column(col);
  const int colour = model_.background(row, col);
  if (colour >= 0 && row != activeRow_) painter.fillRect(rect, QColor::fromRgb(QRgb(colour)));
  const auto [top, bottom] = std::minmax(activeRow_, anchorRow_);
  const auto [left, right] = std::minmax(activeCol_, anchorCol_);
  const bool block = top != bottom || left != right;
  if (block && row >= top && row <= bottom && col >= left && col <= right)
    painter.fillRect(rect, look::accentSoft.darker(108));
  painter.setPen(look::gridLine);
  painter.drawLine(rect.topRight(), rect.bottomRight());

  if (column.kind == CellKind::CheckBox) {
    QStyleOptionButton option;
    const int side = style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this);
    option.rect = QRect(rect.center() - QPoint(side / 2, side / 2), QSize(side, side));
    option.state = (isEnabled() ? QStyle::State_Enabled : QStyle::State_None) |
                   (model_.text(row, col) == u'1' ? QStyle::State_On : QStyle::State_Off);
    style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter, this);
    return;
  }
  QRect inside = rect.adjusted(4, 0, -5, 0);
  if (column.kind == CellKind::Combo && row == activeRow_ && col == activeCol_ && canEdit()) {
    QStyleOption option;
    const int side = fontMetrics().height() * 2 / 3;
    option.rect = QRect(rect.right() - side - 3, rect.center().y() - side / 2, side, side);
    option.palette = palette();
    option.state = QStyle::State_Enabled;
    style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &option, &painter, this);
    inside.setRight(option.rect.left() - 2);
  }
  if (const QString sign = model_.sign(row, col); !sign.isEmpty()) {
    painter.setPen(isEnabled() ? look::ink : look::disabledInk);
    painter.drawText(inside, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, sign);
    inside.setLeft(inside.left() + painter.fontMetrics().horizontalAdvance(sign) + 3);
  }
  const QString offered = model_.offer(row, col);
  const QString& stored = offered.isEmpty() ? model_.text(row, col) : offered;
  if (stored.isEmpty()) return;
  if (!offered.isEmpty()) {
    QFont face = painter.font();
    face.setItalic(true);
    painter.setFont(face);
  }
  const bool toTheRight = isRight(column);
  QString text = column.kind == CellKind::Money ? shownAmount(stored) : stored;
  const QFontMetrics metrics = painter.fontMetrics();
  if (metrics.horizontalAdvance(text) > inside.width()) {
    // A cut amount would be read as a smaller one.
    text = toTheRight
               ? QString(std::max(1, inside.width() / std::max(1, metrics.horizontalAdvance(u'#'))), u'#')
               : metrics.elidedText(text, Qt::ElideRight, inside.width());
  }
  const bool below = toTheRight && stored.startsWith(u'-');
  const int ink = model_.ink(row, col);
  painter.setPen(!isEnabled()         ? look::disabledInk
                 : !offered.isEmpty() ? look::faintInk
                 : below              ? look::negative
                 : ink >= 0           ? QColor::fromRgb(QRgb(ink))
                                      : look::ink);
  const auto side = toTheRight                          ? Qt::AlignRight
                    : column.align == CellAlign::Center ? Qt::AlignHCenter
                                                        : Qt::AlignLeft;
  painter.drawText(inside, side | Qt::AlignVCenter | Qt::TextSingleLine, text);
  if (offered.isEmpty()) return;
  QFont upright = painter.font();
  upright.setItalic(false);
  painter.setFont(upright);
}
