#pragma once
// The blocks of one building with their addresses.
#include "master/buildings/building_search.h"
#include "ui/forms/picker_dialog.h"

class frmAPTAddress : public PickerDialog {
 public:
  /** Shows the blocks that the search has loaded. */
  frmAPTAddress(Session& session, BuildingSearch& search, QWidget* parent = nullptr);
};
