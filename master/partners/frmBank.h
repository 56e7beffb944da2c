#pragma once
// "수납 은행 등록": the accounts that slips are paid into.
#include "master/partners/bank_register.h"
#include "master/registers/form_context.h"
#include "master/registers/form_register.h"

class frmBank : public RegisterForm {
 public:
  explicit frmBank(FormContext& context, QWidget* parent = nullptr);

 private:
  BankRegister banks_;
};
