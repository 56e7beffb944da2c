#include "ui/paper/grid_report.h"

#include "store/jet/format_rules.h"
#include "ui/model/spread_model.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double portraitWidth = 115;  ///< half-width characters that still read well across an upright sheet
constexpr double marginInches = 0.47;
constexpr double textPoints = 9, titlePoints = 15, rowPoints = 15.5;

pc::ReportAlign aligned(CellAlign align) {
  switch (align) {
    case CellAlign::Right:
      return pc::ReportAlign::Right;
    case CellAlign::Center:
      return pc::ReportAlign::Center;
    case CellAlign::Left:
      break;
  }
  return pc::ReportAlign::Left;
}

bool isFigure(const SpreadColumn& column) {
  return column.kind == CellKind::Money || column.kind == CellKind::Number ||
         column.kind == CellKind::Integer;
}

/** Money that is a whole number gets its separators; whatever else stands in the cell is printed as it stands. */
pc::ReportValue printedValue(const SpreadColumn& column, const QString& text) {
  bool whole = false;
  const qint64 won = text.toLongLong(&whole);
  if (whole && column.kind == CellKind::Money) return won;
  return text;
}

pc::ReportLayout layoutOf(const SpreadModel& grid, const QString& title, const std::vector<int>& shown) {
  double width = 0;
  pc::ReportLayout layout;
  for (const int col : shown) {
    const SpreadColumn& column = grid.column(col);
    width += column.width;
    // Texts are cut, figures are set smaller: the field's name tells which.
    layout.columns.push_back({.field = (isFigure(column) ? u"Lng"_s : u"Str"_s) + QString::number(col),
                              .caption = column.header,
                              .width = column.width,
                              .align = aligned(column.align),
                              .picture = column.kind == CellKind::Money ? u"#,##0"_s : QString()});
    const int place = int(layout.columns.size()) - 1;
    if (column.group.isEmpty()) continue;
    if (!layout.spans.empty() && layout.spans.back().last == place - 1 &&
        layout.spans.back().caption == column.group)
      layout.spans.back().last = place;
    else
      layout.spans.push_back({column.group, place, place});
  }
  if (width > portraitWidth) layout.paper = {layout.paper.height, layout.paper.width};
  layout.left = layout.right = layout.top = layout.bottom = marginInches;
  layout.font.points = textPoints;
  layout.rowPoints = rowPoints;
  layout.title = {{{{pc::ReportAlign::Center, titlePoints, true, title}}},
                  {{{pc::ReportAlign::Right, textPoints, false, u"출력일자 : {today}"_s}}}};
  layout.next = layout.title;
  layout.foot = {{{{pc::ReportAlign::Center, textPoints, false, u"{page} / {pages}"_s}}}};
  return layout;
}

}  // namespace

std::unique_ptr<pc::Report> gridReport(const SpreadModel& grid, const QString& title, const QString& today) {
  std::vector<int> shown;
  for (int col = 1; col <= grid.MaxCols(); ++col)
    if (!grid.column(col).hidden) shown.push_back(col);
  pc::ReportLayout layout = layoutOf(grid, title, shown);
  pc::ReportTable table;
  for (const pc::ReportColumn& column : layout.columns) table.fields << column.field;
  for (int row = 1; row <= grid.DataRowCnt(); ++row) {
    std::vector<pc::ReportValue> values;
    values.reserve(shown.size());
    for (const int col : shown) values.push_back(printedValue(grid.column(col), grid.text(row, col)));
    if (grid.bold(row)) table.boldRows.insert(int(table.rows.size()));
    table.rows.push_back(std::move(values));
  }
  return std::make_unique<pc::Report>(
      std::move(layout), std::move(table), QStringList(), today,
      [](const QString& number, const QString& picture) { return jet::format(number, picture); });
}
