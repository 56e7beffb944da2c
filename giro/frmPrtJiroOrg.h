#pragma once
// Prints the bills on the general giro's continuous paper.
#include "giro/form_giro.h"

class frmPrtJiroOrg : public GiroForm {
 public:
  explicit frmPrtJiroOrg(FormContext& context, QWidget* parent = nullptr);

 protected:
  bool addInput(GiroInput& input) override;

 private:
  BankPanel* bank_;
};
