#pragma once
// "수납 은행 등록": the accounts that slips are paid into.
#include "master/bank_register.h"
#include "master/form_context.h"
#include "master/form_register.h"

class frmBank : public RegisterForm {
 public:
  explicit frmBank(FormContext& context, QWidget* parent = nullptr);

 private:
  BankRegister banks_;
};
