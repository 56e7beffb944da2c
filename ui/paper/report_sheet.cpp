#include "ui/paper/report_sheet.h"

#include "pc/report.h"

using namespace Qt::StringLiterals;

namespace {

SpreadColumn sheetColumn(const pc::ReportLayout& layout, int at) {
  const pc::ReportColumn& column = layout.columns[size_t(at)];
  SpreadColumn made{.header = column.caption, .width = column.width};
  for (const pc::ReportSpan& span : layout.spans)
    if (at >= span.first && at <= span.last) made.group = span.caption;
  if (column.field == "no"_L1)
    made.kind = CellKind::Integer;
  else if (column.field.startsWith("Lng"_L1))
    made.kind = column.picture.isEmpty() ? CellKind::Integer : CellKind::Money;
  else if (!column.isText())
    made.kind = CellKind::Number;
  return made;
}

}  // namespace

SpreadModel reportSheet(const pc::Report& report) {
  const pc::ReportLayout& layout = report.layout();
  const int rows = int(report.table().rows.size());
  std::vector<SpreadColumn> columns;
  columns.reserve(layout.columns.size());
  for (int at = 0; at < int(layout.columns.size()); ++at) columns.push_back(sheetColumn(layout, at));

  std::vector<std::vector<QString>> cells;
  for (int row = 0; row < rows; ++row) {
    auto& line = cells.emplace_back();
    for (const pc::ReportColumn& column : layout.columns) {
      const bool counter = column.field == "no"_L1;
      line.push_back(counter ? report.cell(row, column)
                             : pc::plainText(report.table().value(row, column.field)));
    }
  }
  if (!layout.total.isEmpty()) {
    auto& line = cells.emplace_back();
    bool labelled = false;
    for (size_t at = 0; at < layout.columns.size(); ++at) {
      const bool text = layout.columns[at].isText();
      const bool label = text && !labelled;
      line.push_back(layout.columns[at].sum ? report.pages().total()[at].text()
                     : label                ? report.filled(layout.total, 0)
                                            : QString());
      labelled = labelled || text;
    }
  }
  SpreadModel sheet;
  sheet.setColumns(std::move(columns));
  sheet.setRows(std::move(cells));
  return sheet;
}
