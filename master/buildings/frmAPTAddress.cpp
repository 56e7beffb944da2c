#include "master/buildings/frmAPTAddress.h"

frmAPTAddress::frmAPTAddress(Session& session, BuildingSearch& search, QWidget* parent)
    : PickerDialog("frmAPTAddress", "건물주소 조회", session, search.blocks(), "SpBDAddress", parent) {
  resize(grid()->fullWidth() + 40, 18 * fontMetrics().lineSpacing());
}
