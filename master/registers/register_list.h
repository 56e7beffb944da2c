#pragma once
// A list of stored rows as registers and pickers show it: where its rows come from and what stands in which column.
#include <functional>

#include "master/registers/row_change.h"
#include "ui/model/column.h"

struct RegisterColumn {
  QString field;  ///< of the statement's rows
  SpreadColumn look;
  std::function<QString(const RegisterFields& record)> computed = {};  ///< in place of the field
};

struct RegisterList {
  QString statement;
  std::vector<RegisterColumn> columns;
  QString group = {};  ///< a heading above all columns
};

/** The columns of a list that is only looked at. */
std::vector<SpreadColumn> looksOf(const RegisterList& list);
/** One row's cells. */
std::vector<QString> cellsOf(const RegisterList& list, const RegisterFields& record);
