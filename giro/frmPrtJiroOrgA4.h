#pragma once
// Prints the bills on the general giro's A4 paper, with up to three banks. Its boxes are remembered.
#include "giro/form_giro.h"

class frmPrtJiroOrgA4 : public GiroForm {
 public:
  explicit frmPrtJiroOrgA4(FormContext& context, QWidget* parent = nullptr);
  void done(int result) override;

 protected:
  bool addInput(GiroInput& input) override;

 private:
  void keep();

  QCheckBox *chkNewPaper_, *chkPaperType_;
};
