#pragma once
// "충전소 등록": the refill stations and other suppliers.
#include "master/partners/refill_register.h"
#include "master/registers/form_context.h"
#include "master/registers/form_register.h"

class frmRefillState : public RegisterForm {
 public:
  explicit frmRefillState(FormContext& context, QWidget* parent = nullptr);

 private:
  RefillRegister refills_;
};
