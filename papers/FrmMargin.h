#pragma once
// How far each kind of document is moved on its paper.
#include "papers/form_kind_dialog.h"

class QLineEdit;

class FrmMargin : public KindDialog {
 public:
  explicit FrmMargin(FormContext& context, QWidget* parent = nullptr);

 protected:
  void showKind() override;

 private:
  QLineEdit *txtTop_, *txtLeft_;
};
