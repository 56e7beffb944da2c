#pragma once
// Which printer each kind of document goes to.
#include "papers/form_document_kinds.h"

class QComboBox;
class QLabel;

class FrmSetPrinter : public DocumentKindDialog {
 public:
  explicit FrmSetPrinter(FormContext& context, QWidget* parent = nullptr);

 private:
  void showKind() override;
  void store();

  QComboBox* cboPrinter_;
  QLabel* lblChosen_;
};
