#include "documents/tick_column.h"

void TickColumn::set(int row, bool on) {
  if (!list_.text(row, codeCol_).isEmpty()) list_.setText(row, tickCol_, on ? "1" : "0");
}

void TickColumn::setBlock(int from, int to, bool on) {
  for (int row = qMin(from, to); row <= qMax(from, to); ++row) set(row, on);
}

std::vector<int> TickColumn::ticked() const {
  std::vector<int> rows;
  for (int row = 1; row <= list_.MaxRows(); ++row)
    if (isTicked(row) && !list_.text(row, codeCol_).isEmpty()) rows.push_back(row);
  return rows;
}

QSet<QString> TickColumn::codes() const {
  QSet<QString> found;
  for (const int row : ticked()) found << list_.text(row, codeCol_);
  return found;
}

void TickColumn::tick(const QSet<QString>& codes) {
  for (int row = 1; row <= list_.MaxRows(); ++row)
    if (codes.contains(list_.text(row, codeCol_))) set(row, true);
}
