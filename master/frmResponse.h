#pragma once
// "배달담당 등록": the delivery staff.
#include "master/form_context.h"
#include "master/form_register.h"
#include "master/response_register.h"

class frmResponse : public RegisterForm {
 public:
  explicit frmResponse(FormContext& context, QWidget* parent = nullptr);

 private:
  ResponseRegister staff_;
};
