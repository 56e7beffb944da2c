#include "ui/spread_model.h"

#include <algorithm>

namespace {
const QString nothing;
}

void SpreadModel::setColumns(std::vector<SpreadColumn> columns) {
  columns_ = std::move(columns);
  for (Row& row : rows_) row.cells.resize(columns_.size());
  tell(What::Reset, 0, 0);
}

void SpreadModel::setColumnHeader(int col, const QString& header) {
  columns_.at(col - 1).header = header;
  tell(What::Columns, 0, col);
}

void SpreadModel::setColumnHidden(int col, bool hidden) {
  columns_.at(col - 1).hidden = hidden;
  tell(What::Columns, 0, col);
}

void SpreadModel::setCombo(int col, const QStringList& labels) {
  columns_.at(col - 1).combo = labels;
  tell(What::Columns, 0, col);
}

void SpreadModel::setMaxRows(int rows) {
  if (rows == MaxRows()) return;
  const bool all = rows == 0;
  const size_t before = rows_.size();
  rows_.resize(size_t(rows));
  for (size_t at = before; at < rows_.size(); ++at) {
    rows_[at].cells.resize(columns_.size());
    rows_[at].id = nextId_++;
  }
  if (all) {
    locks_.clear();
    colours_.clear();
    tell(What::Reset, 0, 0);
  } else {
    tell(size_t(rows) > before ? What::RowsInserted : What::RowsRemoved, std::min(int(before), rows) + 1, 0);
  }
}

void SpreadModel::insertRow(int row) {
  Row fresh;
  fresh.cells.resize(columns_.size());
  fresh.id = nextId_++;
  rows_.insert(rows_.begin() + row - 1, std::move(fresh));
  tell(What::RowsInserted, row, 0);
}

void SpreadModel::deleteRow(int row) {
  rows_.erase(rows_.begin() + row - 1);
  tell(What::RowsRemoved, row, 0);
}

int SpreadModel::DataRowCnt() const {
  for (int row = MaxRows(); row > 0; --row) {
    const auto& cells = rows_[size_t(row - 1)].cells;
    if (std::any_of(cells.begin(), cells.end(), [](const QString& cell) { return !cell.isEmpty(); }))
      return row;
  }
  return 0;
}

void SpreadModel::setRows(std::vector<std::vector<QString>> rows) {
  locks_.clear();
  colours_.clear();
  rows_.clear();
  rows_.reserve(rows.size());
  for (auto& cells : rows) {
    cells.resize(columns_.size());
    rows_.push_back({std::move(cells), nextId_++});
  }
  tell(What::Reset, 0, 0);
}

const QString& SpreadModel::text(int row, int col) const {
  if (row < 1 || col < 1 || row > MaxRows() || col > MaxCols()) return nothing;
  return rows_[size_t(row - 1)].cells[size_t(col - 1)];
}

void SpreadModel::setText(int row, int col, const QString& text) {
  QString& cell = rows_.at(size_t(row - 1)).cells.at(size_t(col - 1));
  if (cell == text) return;
  cell = text;
  tell(What::Cells, row, col);
}

int SpreadModel::comboPosition(int row, int col) const {
  return int(column(col).combo.indexOf(text(row, col)));
}

void SpreadModel::setComboPosition(int row, int col, int position) {
  setText(row, col, column(col).combo.value(position));
}

bool SpreadModel::locked(int row, int col) const {
  return locks_.value(key(int(rows_.at(size_t(row - 1)).id), col), column(col).locked);
}

void SpreadModel::setLocked(int row, int col, bool locked) {
  locks_[key(int(rows_.at(size_t(row - 1)).id), col)] = locked;
}

int SpreadModel::background(int row, int col) const {
  const Row& of = rows_.at(size_t(row - 1));
  return colours_.value(key(int(of.id), col), of.background);
}

void SpreadModel::setBackground(int row, int col, int rgb) {
  Row& of = rows_.at(size_t(row - 1));
  if (col == 0)
    of.background = rgb;
  else
    colours_[key(int(of.id), col)] = rgb;
  tell(What::Cells, row, col);
}

bool SpreadModel::bold(int row) const {
  return rows_.at(size_t(row - 1)).bold;
}

void SpreadModel::setBold(int row, bool bold) {
  rows_.at(size_t(row - 1)).bold = bold;
  tell(What::Cells, row, 0);
}

qint64 SpreadModel::sum(int col, int fromRow, int toRow) const {
  qint64 total = 0;
  for (int row = fromRow; row <= toRow; ++row) total += QString(text(row, col)).remove(u',').toLongLong();
  return total;
}
