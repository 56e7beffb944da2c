#include "master/buildings/form_building_search.h"

#include "ui/forms/picker_dialog.h"

int frmBDName(Session& session, BuildingSearch& search, QWidget* parent) {
  PickerDialog dialog("frmBDName", "건물명 조회", session, search.buildings(), "SpBDName", parent);
  dialog.showLines(20);
  return dialog.pick();
}

int frmAPTAddress(Session& session, BuildingSearch& search, QWidget* parent) {
  PickerDialog dialog("frmAPTAddress", "건물주소 조회", session, search.blocks(), "SpBDAddress", parent);
  dialog.showLines(18);
  return dialog.pick();
}

std::optional<BuildingChoice> chooseBuilding(Session& session, HouseStyle style, QWidget* parent) {
  BuildingSearch search(session, style);
  if (!search.loadBuildings()) return {};
  const int building = frmBDName(session, search, parent);
  if (building == 0) return {};
  const QString name = search.buildings().text(building, 1);
  if (!search.loadBlocks(name)) return {};
  const bool oneBlock = search.blocks().MaxRows() == 1;
  const int block = oneBlock ? 1 : frmAPTAddress(session, search, parent);
  if (block == 0) return {};
  return search.choice(name, search.blocks().text(block, 1));
}
