#include "giro/frmPrtMicr.h"

#include "giro/form_giro_parts.h"

using namespace Qt::StringLiterals;

frmPrtMicr::frmPrtMicr(FormContext& context, QWidget* parent)
    : GiroForm(context, u"frmPrtMicr"_s, u"MICR-A4"_s, GiroPaper::MicrA4, Period::LastMonth, parent) {
  bank_ = addBank(1);
  addAfterDue();
  begin();
}

bool frmPrtMicr::addInput(GiroInput& input) {
  input.banks = {bank_->bank()};
  return true;
}
