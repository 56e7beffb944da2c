#pragma once
// Prints the bills on the clearing house's A4 form.
#include "giro/form_giro.h"

class frmPrtMicr : public GiroForm {
 public:
  explicit frmPrtMicr(FormContext& context, QWidget* parent = nullptr);

 protected:
  bool addInput(GiroInput& input) override;

 private:
  BankPanel* bank_;
};
