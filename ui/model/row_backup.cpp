#include "ui/model/row_backup.h"

RowBackup::RowBackup(SpreadModel& grid, int row, int lastCol) : grid_(grid), row_(row) {
  const int last = lastCol > 0 ? lastCol : grid.MaxCols();
  cells_.reserve(last);
  for (int col = 1; col <= last; ++col) cells_ << grid.text(row, col);
}

void RowBackup::putBack() {
  if (row_ == 0) return;
  for (int at = 0; at < cells_.size(); ++at) grid_.setText(row_, at + 1, cells_[at]);
  row_ = 0;
}
