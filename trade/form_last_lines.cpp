#include "trade/form_last_lines.h"

#include <QGridLayout>
#include <QLabel>

#include "ui/forms/style.h"

namespace {

struct LastLinesColumn {
  const char* header;
  int width;  ///< half-width characters
  Qt::Alignment side;
};

constexpr LastLinesColumn lastLinesColumns[] = {
    {"일자", 5, Qt::AlignLeft},  {"구분", 4, Qt::AlignLeft},  {"품명 / 용량", 11, Qt::AlignLeft},
    {"수량", 4, Qt::AlignRight}, {"금액", 9, Qt::AlignRight}, {"미수금", 9, Qt::AlignRight}};

}  // namespace

LastLines::LastLines(QWidget* parent) : QWidget(parent) {
  setObjectName("PnlLast");
  setAttribute(Qt::WA_StyledBackground);
  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins(8, 3, 8, 3);
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(1);
  const int digit = fontMetrics().horizontalAdvance(u'0');
  for (int col = 0; col < columns; ++col) {
    const LastLinesColumn& column = lastLinesColumns[col];
    for (int row = -1; row < rows; ++row) {
      auto* const cell = new QLabel(row < 0 ? column.header : "", this);
      cell->setAlignment(column.side | Qt::AlignVCenter);
      cell->setTextFormat(Qt::PlainText);
      cell->setFixedWidth(column.width * digit);
      cell->setMinimumHeight(fontMetrics().height());
      if (row < 0)
        (owedHeader_ = cell)->setProperty("role", "faint");
      else
        cells_[size_t(row)][size_t(col)] = cell;
      grid->addWidget(cell, row + 1, col);
    }
  }
  grid->setRowStretch(rows + 1, 1);
}

void LastLines::setOwedHeader(const QString& header) {
  owedHeader_->setText(header);
}

void LastLines::show(const std::vector<LastLine>& lines) {
  for (size_t row = 0; row < rows; ++row) {
    const LastLine line = row < lines.size() ? lines[row] : LastLine{};
    const QString texts[] = {line.date, line.kind, line.item, line.number, line.amount, line.trust};
    for (size_t col = 0; col < columns; ++col) {
      QLabel* const cell = cells_[row][col];
      cell->setText(cell->fontMetrics().elidedText(texts[col], Qt::ElideRight, cell->width()));
    }
  }
}
