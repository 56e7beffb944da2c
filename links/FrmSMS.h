#pragma once
// "문자 전송(SMS)": picks customers and hands their numbers to the sender tool.
#include "links/form_ticked.h"
#include "links/sms_search.h"
#include "master/registers/form_context.h"

class MoneyBox;
class QRadioButton;

class FrmSMS : public TickedForm {
 public:
  explicit FrmSMS(FormContext& context, QWidget* parent = nullptr);

 private:
  QWidget* buildFilter();
  QWidget* buildFoot();
  void search();
  void showCounts() override;
  SmsFilter filter() const;

  FormContext& context_;
  SmsSearch rules_;
  QRadioButton* optFilter_[2];
  QLineEdit* txtName_;
  MoneyBox* txtBalance_;
  QLabel* lblCountRec_;
};
