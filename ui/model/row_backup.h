#pragma once
// A row of a grid before a step that may fail: put back, unless the step was stored.
#include "ui/model/spread_model.h"

class RowBackup {
 public:
  /** Of the columns from 1 on, lastCol the last of them; 0: all. */
  RowBackup(SpreadModel& grid, int row, int lastCol = 0);
  ~RowBackup() { putBack(); }
  RowBackup(const RowBackup&) = delete;
  RowBackup& operator=(const RowBackup&) = delete;

  void stored() { row_ = 0; }
  /** At once; the row's cells are their own afterwards. */
  void putBack();

 private:
  SpreadModel& grid_;
  int row_;
  QStringList cells_;
};
