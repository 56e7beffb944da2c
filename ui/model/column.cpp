#include "ui/model/column.h"

namespace column {

SpreadColumn Look::operator()(const QString& header, double width) const {
  return {.header = header, .width = width, .kind = kind, .align = align};
}

SpreadColumn choice(const QString& header, double width, const QStringList& labels) {
  SpreadColumn column = Look{CellKind::Combo, CellAlign::Center}(header, width);
  column.combo = labels;
  return column;
}

SpreadColumn hidden(const QString& header) {
  SpreadColumn column{.header = header};
  column.hidden = true;
  return column;
}

SpreadColumn locked(SpreadColumn column) {
  column.locked = true;
  return column;
}

SpreadColumn grouped(const QString& group, SpreadColumn column) {
  column.group = group;
  return column;
}

SpreadColumn limited(int maxLength, SpreadColumn column) {
  column.maxLength = maxLength;
  return column;
}

SpreadColumn coloured(int background, SpreadColumn column) {
  column.background = background;
  return column;
}

std::vector<SpreadColumn> shown(std::vector<SpreadColumn> all) {
  for (SpreadColumn& column : all) column.locked = true;
  return all;
}

}  // namespace column
