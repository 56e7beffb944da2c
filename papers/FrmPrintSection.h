#pragma once
// A choice of two roads: which of the two product lists is printed, or how tax invoices come about.
#include "ui/forms/dialog.h"

class QLabel;
class QPushButton;
struct FormContext;

class FrmPrintSection : public Dialog {
 public:
  /** What exec() ends with. */
  enum Choice { Cancelled = QDialog::Rejected, ByCategory = 1, ProductList = 2 };
  explicit FrmPrintSection(FormContext& context, QWidget* parent = nullptr);

  /** "tax": sale lines are gathered or invoices are typed, and the choice opens the form. */
  void showPage(const QString& page);

 private:
  void choose(Choice choice);

  FormContext& context_;
  QLabel* prompt_;
  QPushButton *first_, *second_;
  QString opens_;  ///< a form; its page is the choice
};
