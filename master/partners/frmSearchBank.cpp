#include "master/partners/frmSearchBank.h"

#include "master/registers/register_search.h"
#include "ui/forms/picker_dialog.h"

std::optional<BankChoice> frmSearchBank(Session& session, QWidget* parent) {
  const RegisterSearch search = RegisterSearch::banks();
  SpreadModel list;
  if (!search.load(session, list)) return {};
  PickerDialog dialog(QStringLiteral("frmSearchBank"), search.title(), session, list, "SpBank", parent);
  const int row = dialog.pick();
  if (row == 0) return {};
  return BankChoice{list.text(row, 1), list.text(row, 2), list.text(row, 3)};
}
