#pragma once
// "PC년도 변경": another year's file and the clock in that year.
#include <QDialog>

struct FormContext;
class QComboBox;

class frmChangeYear : public QDialog {
 public:
  explicit frmChangeYear(FormContext& context, QWidget* parent = nullptr);

 private:
  FormContext& context_;
  QComboBox* cmbYY_;
};
