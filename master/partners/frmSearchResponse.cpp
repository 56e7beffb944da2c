#include "master/partners/frmSearchResponse.h"

#include "master/registers/register_search.h"
#include "ui/forms/picker_dialog.h"

std::optional<QString> frmSearchResponse(Session& session, QWidget* parent) {
  const RegisterSearch search = RegisterSearch::responses();
  SpreadModel list;
  if (!search.load(session, list)) return {};
  PickerDialog dialog(QStringLiteral("frmSearchResponse"), search.title(), session, list, "SpResponse",
                      parent);
  const int row = dialog.pick();
  if (row == 0) return {};
  return list.text(row, 1);
}
