#pragma once
// "체적 단가 등록": the pressure regulators and their price a unit.
#include "master/catalogue/volume_register.h"
#include "master/registers/form_context.h"
#include "master/registers/form_register.h"

class frmVolume : public RegisterForm {
 public:
  explicit frmVolume(FormContext& context, QWidget* parent = nullptr);

 protected:
  void recordShown() override;

 private:
  VolumeRegister volumes_;
  QLineEdit* size_ = nullptr;
};
