#pragma once
// Prints the bills on the plain or the MICR paper, whichever the shop uses, with the bank's account.
#include "giro/form_giro.h"

class frmPrtJiro : public GiroForm {
 public:
  explicit frmPrtJiro(FormContext& context, QWidget* parent = nullptr);

 protected:
  bool addInput(GiroInput& input) override;

 private:
  BankPanel* bank_;
};
