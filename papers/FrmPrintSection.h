#pragma once
// Asks which of the two product lists is to be printed.
#include <QDialog>

struct FormContext;

class FrmPrintSection : public QDialog {
 public:
  /** What exec() ends with. */
  enum Choice { Cancelled = QDialog::Rejected, ByCategory = 1, ProductList = 2 };
  explicit FrmPrintSection(FormContext& context, QWidget* parent = nullptr);
};
