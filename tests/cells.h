#pragma once
// A grid's cells as texts that a test compares.
#include <QStringList>

#include "ui/model/spread_model.h"

namespace tests {

/** Cells of one row, from one column to another; to 0: the last. */
inline QStringList cellsOf(const SpreadModel& grid, int row, int from = 1, int to = 0) {
  QStringList cells;
  for (int col = from; col <= (to > 0 ? to : grid.MaxCols()); ++col) cells << grid.text(row, col);
  return cells;
}

/** A column's cells from above. */
inline QStringList columnOf(const SpreadModel& grid, int col) {
  QStringList cells;
  for (int row = 1; row <= grid.MaxRows(); ++row) cells << grid.text(row, col);
  return cells;
}

/** Every row, its cells with a mark between. */
inline QStringList rowsOf(const SpreadModel& grid, const QString& mark = "|") {
  QStringList rows;
  for (int row = 1; row <= grid.MaxRows(); ++row) rows << cellsOf(grid, row).join(mark);
  return rows;
}

}  // namespace tests
