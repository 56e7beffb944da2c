#include "giro/frmPrtJiroOrg.h"

#include "giro/form_giro_parts.h"

using namespace Qt::StringLiterals;

frmPrtJiroOrg::frmPrtJiroOrg(FormContext& context, QWidget* parent)
    : GiroForm(context, u"frmPrtJiroOrg"_s, u"일반지로"_s, GiroPaper::JiroOrg, Period::ByMonth, parent) {
  bank_ = addBank(1);
  begin();
}

bool frmPrtJiroOrg::addInput(GiroInput& input) {
  input.banks = {bank_->bank()};
  return true;
}
