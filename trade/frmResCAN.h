#pragma once
// "담당자별 용기현황": the cylinders on each delivery person's van.
#include "master/registers/form_context.h"
#include "master/registers/form_register.h"
#include "trade/can_book.h"

class frmResCAN : public RegisterForm {
 public:
  explicit frmResCAN(FormContext& context, QWidget* parent = nullptr);

 private:
  CanBook cans_;
};
