#include "master/partners/frmSearchRefill.h"

#include "master/registers/register_search.h"
#include "ui/forms/picker_dialog.h"

std::optional<QString> frmSearchRefill(Session& session, QWidget* parent) {
  const RegisterSearch search = RegisterSearch::refills();
  SpreadModel list;
  if (!search.load(session, list)) return {};
  PickerDialog dialog(QStringLiteral("frmSearchRefill"), search.title(), session, list, "SpRefill", parent);
  const int row = dialog.pick();
  if (row == 0) return {};
  return list.text(row, 1);
}
