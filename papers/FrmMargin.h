#pragma once
// How far each kind of document is moved on its paper.
#include "papers/form_document_kinds.h"

class QLineEdit;

class FrmMargin : public DocumentKindDialog {
 public:
  explicit FrmMargin(FormContext& context, QWidget* parent = nullptr);

 private:
  void showKind() override;
  void store();

  QLineEdit *txtTop_, *txtLeft_;
};
