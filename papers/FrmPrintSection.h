#pragma once
// Asks which of the two product lists is to be printed.
#include "ui/forms/dialog.h"

struct FormContext;

class FrmPrintSection : public Dialog {
 public:
  /** What exec() ends with. */
  enum Choice { Cancelled = QDialog::Rejected, ByCategory = 1, ProductList = 2 };
  explicit FrmPrintSection(FormContext& context, QWidget* parent = nullptr);
};
