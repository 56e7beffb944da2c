#pragma once
// "문자 전송(SMS)": picks customers and hands their numbers to the sender tool.
#include "links/sms_search.h"
#include "master/registers/form_context.h"
#include "ui/forms/form.h"

class MoneyBox;
class QCheckBox;
class QRadioButton;

class FrmSMS : public Form {
 public:
  explicit FrmSMS(FormContext& context, QWidget* parent = nullptr);

 private:
  QWidget* buildFilter();
  QWidget* buildFoot();
  void search();
  void showCount();
  SmsFilter filter() const;

  FormContext& context_;
  SmsSearch rules_;
  QRadioButton* optFilter_[2];
  QLineEdit* txtName_;
  MoneyBox* txtBalance_;
  QCheckBox* chkAll_;
  QLabel* lblCountRec_;
  Spread* grdList_;
};
