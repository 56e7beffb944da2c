#include "ui/model/spread_model.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

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

void SpreadModel::setColumnLocked(int col, bool locked, int background) {
  columns_.at(col - 1).locked = locked;
  columns_.at(col - 1).background = background;
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
    forgetRows();
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
  moveFormulas(row, 1);
  tell(What::RowsInserted, row, 0);
}

void SpreadModel::deleteRow(int row) {
  std::erase_if(formulas_,
                [id = rows_.at(size_t(row - 1)).id](const Formula& each) { return each.id == id; });
  rows_.erase(rows_.begin() + row - 1);
  moveFormulas(row, -1);
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

/** What stands beside the rows' texts goes with them. */
void SpreadModel::forgetRows() {
  formulas_.clear();
  locks_.clear();
  colours_.clear();
  inks_.clear();
  signs_.clear();
  offers_.clear();
}

void SpreadModel::setRows(std::vector<std::vector<QString>> rows) {
  forgetRows();
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
  if (!formulas_.empty()) follow(row, col);
}

void SpreadModel::setOffer(int row, int col, const QString& text) {
  const quint64 cell = key(int(rows_.at(size_t(row - 1)).id), col);
  if (offers_.value(cell) == text) return;
  if (text.isEmpty())
    offers_.remove(cell);
  else
    offers_[cell] = text;
  tell(What::Cells, row, col);
}

QString SpreadModel::offer(int row, int col) const {
  if (offers_.isEmpty() || row < 1 || row > MaxRows()) return {};
  return offers_.value(key(int(rows_[size_t(row - 1)].id), col));
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
  const int under = of.background >= 0 || col == 0 ? of.background : column(col).background;
  return colours_.value(key(int(of.id), col), under);
}

void SpreadModel::setBackground(int row, int col, int rgb) {
  Row& of = rows_.at(size_t(row - 1));
  if (col == 0)
    of.background = rgb;
  else
    colours_[key(int(of.id), col)] = rgb;
  tell(What::Cells, row, col);
}

int SpreadModel::ink(int row, int col) const {
  return inks_.isEmpty() ? -1 : inks_.value(key(int(rows_.at(size_t(row - 1)).id), col), -1);
}

void SpreadModel::setInk(int row, int col, int rgb) {
  inks_[key(int(rows_.at(size_t(row - 1)).id), col)] = rgb;
  tell(What::Cells, row, col);
}

QString SpreadModel::sign(int row, int col) const {
  return signs_.isEmpty() ? QString() : signs_.value(key(int(rows_.at(size_t(row - 1)).id), col));
}

void SpreadModel::setSign(int row, int col, const QString& sign) {
  signs_[key(int(rows_.at(size_t(row - 1)).id), col)] = sign;
  tell(What::Cells, row, col);
}

bool SpreadModel::bold(int row) const {
  return rows_.at(size_t(row - 1)).bold;
}

void SpreadModel::setBold(int row, bool bold) {
  rows_.at(size_t(row - 1)).bold = bold;
  tell(What::Cells, row, 0);
}

int SpreadModel::topLine(int row) const {
  return rows_.at(size_t(row - 1)).topLine;
}

void SpreadModel::setTopLine(int row, int rgb) {
  rows_.at(size_t(row - 1)).topLine = rgb;
  tell(What::Cells, row, 0);
}

qint64 SpreadModel::sum(int col, int fromRow, int toRow) const {
  qint64 total = 0;
  for (int row = fromRow; row <= toRow; ++row) total += QString(text(row, col)).remove(u',').toLongLong();
  return total;
}

// --- formulas -----------------------------------------------------------------------------------------------

bool SpreadModel::setFormula(int row, int col, const QString& formula) {
  static const QRegularExpression sumOf(u"^SUM\\(R(\\d+)C(\\d+):R(\\d+)C(\\d+)\\)$"_s);
  const QRegularExpressionMatch match = sumOf.match(formula);
  if (!match.hasMatch() || match.captured(2) != match.captured(4)) return false;
  const qint64 id = rows_.at(size_t(row - 1)).id;
  std::erase_if(formulas_, [&](const Formula& each) { return each.id == id && each.col == col; });
  const Formula sums{id, col, match.captured(2).toInt(), match.captured(1).toInt(),
                     match.captured(3).toInt()};
  formulas_.push_back(sums);
  setText(row, col, QString::number(sum(sums.sumCol, sums.from, sums.to)));
  return true;
}

QString SpreadModel::formula(int row, int col) const {
  const qint64 id = rows_.at(size_t(row - 1)).id;
  for (const Formula& each : formulas_)
    if (each.id == id && each.col == col)
      return u"SUM(R%1C%2:R%3C%2)"_s.arg(each.from).arg(each.sumCol).arg(each.to);
  return {};
}

int SpreadModel::rowOf(qint64 id) const {
  const auto at = std::find_if(rows_.begin(), rows_.end(), [id](const Row& row) { return row.id == id; });
  return at == rows_.end() ? 0 : int(at - rows_.begin()) + 1;
}

/** A summed cell has another text: the sums over it follow. */
void SpreadModel::follow(int row, int col) {
  const std::vector<Formula> all = formulas_;
  for (const Formula& each : all) {
    const int shows = rowOf(each.id);
    if (shows == 0 || col != each.sumCol || row < each.from || row > each.to || row == shows) continue;
    setText(shows, each.col, QString::number(sum(each.sumCol, each.from, each.to)));
  }
}

void SpreadModel::moveFormulas(int row, int step) {
  for (Formula& each : formulas_) {
    if (each.from > row || (step > 0 && each.from == row)) each.from += step;
    if (each.to >= row) each.to += step;
  }
  const std::vector<Formula> all = formulas_;
  for (const Formula& each : all)
    if (const int shows = rowOf(each.id))
      setText(shows, each.col, QString::number(sum(each.sumCol, each.from, each.to)));
}

void InsertSubTotal(SpreadModel& grid, int row, SubTotal kind, int labelCol,
                    const std::vector<int>& columns) {
  grid.insertRow(row);
  grid.setText(row, labelCol, kind == SubTotal::Part ? u"[소 계]"_s : u"[합 계]"_s);
  for (const int col : columns) {
    const QString column = QString::number(col);
    grid.setFormula(row, col,
                    u"SUM(R1C"_s + column + u":R"_s + QString::number(row - 1) + u"C"_s + column + u")"_s);
  }
  grid.setBold(row, true);
  grid.setBackground(row, 0, 0xE8ECF1);
}
