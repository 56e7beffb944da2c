#pragma once
// "PC년도 변경": another year's file and the clock in that year.
#include "ui/forms/dialog.h"

struct FormContext;

class frmChangeYear : public Dialog {
 public:
  explicit frmChangeYear(FormContext& context, QWidget* parent = nullptr);
};
