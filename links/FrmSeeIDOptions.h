#pragma once
// The two serial ports of the caller-identification units.
#include <array>

#include "links/caller.h"
#include "ui/forms/dialog.h"

class QLineEdit;

class FrmSeeIDOptions : public Dialog {
 public:
  FrmSeeIDOptions(Session& session, Caller& caller, QWidget* parent = nullptr);

 private:
  std::array<QLineEdit*, 2> txtPortNo_;
};
