#pragma once
// The buildings of a house style, to choose one for a household.
#include "master/buildings/building_search.h"
#include "ui/forms/picker_dialog.h"

class frmBDName : public PickerDialog {
 public:
  /** Shows the buildings that the search has loaded. */
  frmBDName(Session& session, BuildingSearch& search, QWidget* parent = nullptr);
};
