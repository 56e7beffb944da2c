#include "master/buildings/frmBDName.h"

frmBDName::frmBDName(Session& session, BuildingSearch& search, QWidget* parent)
    : PickerDialog("frmBDName", "건물명 조회", session, search.buildings(), "SpBDName", parent) {
  resize(grid()->fullWidth() + 40, 20 * fontMetrics().lineSpacing());
}
