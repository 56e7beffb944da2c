#include "master/catalogue/frmSearchVolume.h"

#include "master/registers/register_search.h"
#include "ui/forms/picker_dialog.h"

std::optional<VolumeChoice> frmSearchVolume(Session& session, QWidget* parent) {
  const RegisterSearch search = RegisterSearch::volumes();
  SpreadModel list;
  if (!search.load(session, list)) return {};
  PickerDialog dialog(QStringLiteral("frmSearchVolume"), search.title(), session, list, "SpVolume", parent);
  const int row = dialog.pick();
  if (row == 0) return {};
  return VolumeChoice{list.text(row, 1), jet::Value(list.text(row, 3)).toDouble()};
}
