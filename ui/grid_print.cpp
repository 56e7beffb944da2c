#include "ui/grid_print.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include "store/jet/format_rules.h"
#include "store/session.h"
#include "ui/spread_model.h"
#include "ui/style.h"

namespace {

constexpr int portraitWidth = 115;  ///< half-width characters that still read well across an upright sheet
constexpr double marginMillimetres = 12;
constexpr double textPoints = 9, titlePoints = 15;

struct PrintColumn {
  int col;
  double left, width;
};

QString printedText(const SpreadModel& grid, int row, int col) {
  const QString& text = grid.text(row, col);
  if (grid.column(col).kind != CellKind::Money) return text;
  bool whole = false;
  text.toLongLong(&whole);
  return whole ? jet::format(text, u"#,##0") : text;
}

Qt::Alignment printedAlignment(const SpreadColumn& column) {
  switch (column.align) {
    case CellAlign::Right:
      return Qt::AlignRight | Qt::AlignVCenter;
    case CellAlign::Center:
      return Qt::AlignCenter;
    case CellAlign::Left:
      break;
  }
  return Qt::AlignLeft | Qt::AlignVCenter;
}

double totalWidth(const SpreadModel& grid) {
  double total = 0;
  for (int col = 1; col <= grid.MaxCols(); ++col) {
    if (!grid.column(col).hidden) total += grid.column(col).width;
  }
  return total;
}

/** One print run: measures once, then paints page by page. All lengths in the printer's dots. */
class GridPages {
 public:
  GridPages(const SpreadModel& grid, const QString& title, const QString& date, QPrinter& printer)
      : grid_(grid), title_(title), date_(date), printer_(printer), painter_(&printer) {
    dot_ = printer.resolution() / 72.0;
    page_ = QRectF(printer.pageLayout().paintRectPixels(printer.resolution()));
    page_.moveTopLeft({0, 0});
    textFont_ = fontOf(textPoints, false);
    boldFont_ = fontOf(textPoints, true);
    row_ = 1.7 * textPoints * dot_;
    top_ = 3.2 * titlePoints * dot_;
    placeColumns();
  }

  bool isActive() const { return painter_.isActive(); }

  void print(int rows) {
    const int each = std::max(1, int((page_.height() - top_ - headerHeight() - 2 * row_) / row_));
    const int pages = (rows + each - 1) / each;
    for (int page = 1; page <= pages; ++page) {
      if (page > 1) printer_.newPage();
      const int first = (page - 1) * each + 1;
      paintHead();
      paintRows(first, std::min(rows, first + each - 1));
      paintFoot(QString::number(page) + " / " + QString::number(pages));
    }
  }

 private:
  QFont fontOf(double points, bool bold) const {
    QFont font = look::textFont();
    font.setPixelSize(int(points * dot_));
    font.setBold(bold);
    return font;
  }

  void placeColumns() {
    const double unit = page_.width() / totalWidth(grid_);
    double left = 0;
    for (int col = 1; col <= grid_.MaxCols(); ++col) {
      if (grid_.column(col).hidden) continue;
      const double width = grid_.column(col).width * unit;
      columns_.push_back({col, left, width});
      left += width;
      grouped_ = grouped_ || !grid_.column(col).group.isEmpty();
    }
  }

  double headerHeight() const { return grouped_ ? 2 * row_ : row_; }

  void cell(const QRectF& box, const QString& text, Qt::Alignment align) {
    const double pad = 3 * dot_;
    const QRectF inner = box.adjusted(pad, 0, -pad, 0);
    painter_.drawText(inner, int(align) | Qt::TextSingleLine,
                      painter_.fontMetrics().elidedText(text, Qt::ElideRight, int(inner.width())));
  }

  void paintHead() {
    painter_.setPen(Qt::black);
    painter_.setFont(fontOf(titlePoints, true));
    painter_.drawText(QRectF(0, 0, page_.width(), 1.6 * titlePoints * dot_), Qt::AlignCenter, title_);
    painter_.setFont(textFont_);
    painter_.drawText(QRectF(0, 0, page_.width(), top_ - 3 * dot_), Qt::AlignRight | Qt::AlignBottom,
                      "출력일자 : " + date_);
    const QRectF band(0, top_, page_.width(), headerHeight());
    painter_.fillRect(band, look::header);
    painter_.setFont(boldFont_);
    for (size_t i = 0; i < columns_.size(); ++i) {
      const SpreadColumn& column = grid_.column(columns_[i].col);
      const double labelTop = column.group.isEmpty() ? top_ : top_ + row_;
      cell({columns_[i].left, labelTop, columns_[i].width, top_ + headerHeight() - labelTop}, column.header,
           Qt::AlignCenter);
      if (!column.group.isEmpty()) paintGroup(i);
    }
    line(top_, 1);
    line(top_ + headerHeight(), 1);
  }

  /** A group's label once, over all neighbouring columns of the group. */
  void paintGroup(size_t first) {
    const QString& group = grid_.column(columns_[first].col).group;
    if (first > 0 && grid_.column(columns_[first - 1].col).group == group) return;
    double width = 0;
    for (size_t i = first; i < columns_.size() && grid_.column(columns_[i].col).group == group; ++i) {
      width += columns_[i].width;
    }
    cell({columns_[first].left, top_, width, row_}, group, Qt::AlignCenter);
    painter_.setPen(QPen(look::line, 0.5 * dot_));
    painter_.drawLine(QPointF(columns_[first].left, top_ + row_),
                      QPointF(columns_[first].left + width, top_ + row_));
    painter_.setPen(Qt::black);
  }

  void paintRows(int first, int last) {
    double at = top_ + headerHeight();
    const double start = top_;
    for (int row = first; row <= last; ++row, at += row_) {
      painter_.setFont(grid_.bold(row) ? boldFont_ : textFont_);
      for (const PrintColumn& place : columns_) {
        cell({place.left, at, place.width, row_}, printedText(grid_, row, place.col),
             printedAlignment(grid_.column(place.col)));
      }
      line(at + row_, 0.4);
    }
    painter_.setPen(QPen(look::line, 0.4 * dot_));
    for (const PrintColumn& place : columns_) {
      if (place.left > 0)
        painter_.drawLine(QPointF(place.left, start + (grouped_ ? row_ : 0)), QPointF(place.left, at));
    }
    painter_.setPen(QPen(Qt::black, dot_));
    painter_.drawRect(QRectF(0, start, page_.width(), at - start));
  }

  void paintFoot(const QString& text) {
    painter_.setPen(Qt::black);
    painter_.setFont(textFont_);
    painter_.drawText(QRectF(0, page_.height() - row_, page_.width(), row_), Qt::AlignCenter, text);
  }

  void line(double y, double points) {
    painter_.setPen(QPen(points < 1 ? look::line : QColor(Qt::black), points * dot_));
    painter_.drawLine(QPointF(0, y), QPointF(page_.width(), y));
    painter_.setPen(Qt::black);
  }

  const SpreadModel& grid_;
  const QString title_, date_;
  QPrinter& printer_;
  QPainter painter_;
  QFont textFont_, boldFont_;
  QRectF page_;
  std::vector<PrintColumn> columns_;
  double dot_ = 1, row_ = 0, top_ = 0;
  bool grouped_ = false;
};

bool askForPrinter(QPrinter& printer, QWidget* parent) {
  QPrintDialog dialog(&printer, parent);
  dialog.setWindowTitle("인쇄");
  return dialog.exec() == QDialog::Accepted;
}

}  // namespace

PrinterChooser& printerChooser() {
  static PrinterChooser chooser = askForPrinter;
  return chooser;
}

bool PrintGrid(Session& session, const SpreadModel& grid, const QString& title, QWidget* parent) {
  const int rows = grid.DataRowCnt();
  if (rows == 0) {
    session.prompts.MsgInfo("출력할 자료가 없습니다!", title);
    return false;
  }
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(title);
  printer.setPageSize(QPageSize(QPageSize::A4));
  printer.setPageOrientation(totalWidth(grid) > portraitWidth ? QPageLayout::Landscape
                                                              : QPageLayout::Portrait);
  printer.setPageMargins(
      QMarginsF(marginMillimetres, marginMillimetres, marginMillimetres, marginMillimetres),
      QPageLayout::Millimeter);
  if (!printerChooser()(printer, parent)) return false;
  GridPages pages(grid, title, session.pc.clock.dateText(), printer);
  if (!pages.isActive()) {
    session.prompts.MsgWarn("인쇄를 시작할 수 없습니다!\n프린터나 저장할 파일을 확인하십시오.", title);
    return false;
  }
  pages.print(rows);
  return true;
}
