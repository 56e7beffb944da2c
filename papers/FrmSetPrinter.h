#pragma once
// Which printer each kind of document goes to.
#include "papers/form_kind_dialog.h"

class QComboBox;
class QLabel;

class FrmSetPrinter : public KindDialog {
 public:
  explicit FrmSetPrinter(FormContext& context, QWidget* parent = nullptr);

 protected:
  void showKind() override;

 private:
  void store();

  QComboBox* cboPrinter_;
  QLabel* lblChosen_;
};
