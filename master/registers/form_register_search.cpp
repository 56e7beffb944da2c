#include "master/registers/form_register_search.h"

#include "ui/forms/picker_dialog.h"

std::optional<QStringList> chooseFrom(const RegisterSearch& search, Session& session, QWidget* parent) {
  SpreadModel list;
  if (!search.load(session, list)) return {};
  PickerDialog dialog(search.form(), search.title(), session, list, search.grid(), parent);
  const int row = dialog.pick();
  if (row == 0) return {};
  QStringList cells;
  for (int col = 1; col <= list.MaxCols(); ++col) cells << list.text(row, col);
  return cells;
}
