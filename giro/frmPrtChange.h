#pragma once
// Printer and place of the giro slips.
#include "ui/forms/dialog.h"

struct FormContext;
class QLineEdit;
class QListWidget;

class frmPrtChange : public Dialog {
 public:
  explicit frmPrtChange(FormContext& context, QWidget* parent = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void save();

  FormContext& context_;
  QListWidget* lstPrt_;
  QLineEdit *txtTop_, *txtLeft_;
};
