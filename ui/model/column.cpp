#include "ui/model/column.h"

namespace column {

namespace {

SpreadColumn made(const QString& header, double width, CellKind kind, CellAlign align) {
  return {.header = header, .width = width, .kind = kind, .align = align};
}

}  // namespace

SpreadColumn text(const QString& header, double width) {
  return made(header, width, CellKind::Text, CellAlign::Left);
}
SpreadColumn centred(const QString& header, double width) {
  return made(header, width, CellKind::Text, CellAlign::Center);
}
SpreadColumn right(const QString& header, double width) {
  return made(header, width, CellKind::Text, CellAlign::Right);
}
SpreadColumn money(const QString& header, double width) {
  return made(header, width, CellKind::Money, CellAlign::Right);
}
SpreadColumn integer(const QString& header, double width) {
  return made(header, width, CellKind::Integer, CellAlign::Right);
}
SpreadColumn number(const QString& header, double width) {
  return made(header, width, CellKind::Number, CellAlign::Right);
}
SpreadColumn date(const QString& header, double width) {
  return made(header, width, CellKind::Date, CellAlign::Center);
}
SpreadColumn monthDay(const QString& header, double width) {
  return made(header, width, CellKind::MonthDay, CellAlign::Center);
}
SpreadColumn tick(const QString& header, double width) {
  return made(header, width, CellKind::CheckBox, CellAlign::Center);
}

SpreadColumn choice(const QString& header, double width, const QStringList& labels) {
  SpreadColumn column = made(header, width, CellKind::Combo, CellAlign::Center);
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
