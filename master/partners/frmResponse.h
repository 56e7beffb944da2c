#pragma once
// "배달담당 등록": the delivery staff.
#include "master/partners/response_register.h"
#include "master/registers/form_context.h"
#include "master/registers/form_register.h"

class frmResponse : public RegisterForm {
 public:
  explicit frmResponse(FormContext& context, QWidget* parent = nullptr);

 private:
  ResponseRegister staff_;
};
