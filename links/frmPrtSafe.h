#pragma once
// "안전관리대장 출력": the days and the inspection's month of the printed safety register.
#include "master/registers/form_context.h"
#include "ui/forms/dialog.h"

class DateBox;
class QLineEdit;

class frmPrtSafe : public Dialog {
 public:
  explicit frmPrtSafe(FormContext& context, QWidget* parent = nullptr);

 private:
  void print();

  Session& session_;
  DateBox *from_, *to_;
  QLineEdit* month_;
};
