#include "master/registers/register_list.h"

std::vector<SpreadColumn> looksOf(const RegisterList& list) {
  std::vector<SpreadColumn> looks;
  for (const RegisterColumn& column : list.columns) {
    looks.push_back(column.look);
    looks.back().group = list.group;
  }
  return column::shown(std::move(looks));
}

std::vector<QString> cellsOf(const RegisterList& list, const RegisterFields& record) {
  std::vector<QString> cells;
  for (const RegisterColumn& column : list.columns)
    cells.push_back(column.computed ? column.computed(record) : record[column.field]);
  return cells;
}
