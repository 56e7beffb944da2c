#pragma once
// The program's name, version and maker.
#include "ui/forms/dialog.h"

struct FormContext;

class frmAbout : public Dialog {
 public:
  explicit frmAbout(FormContext& context, QWidget* parent = nullptr);
};
