#include "giro/frmPrtJiro.h"

#include <QCheckBox>

#include "giro/form_giro_parts.h"

using namespace Qt::StringLiterals;

frmPrtJiro::frmPrtJiro(FormContext& context, QWidget* parent)
    : GiroForm(context, u"frmPrtJiro"_s, u"MICR"_s, jiroPaper(context.session), Period::LastMonth, parent) {
  bank_ = addBank(1);
  addAfterDue();
  auto* const micr =
      addCheck("chkMicr", u"MICR 용지 (모든 PC에 적용)"_s, slips().paper() == GiroPaper::JiroMicr);
  on(micr, &QCheckBox::toggled, [this, micr] {
    setJiroPaper(session(), micr->isChecked() ? GiroPaper::JiroMicr : GiroPaper::Jiro);
    slips().setPaper(jiroPaper(session()));
  });
  begin();
}

bool frmPrtJiro::addInput(GiroInput& input) {
  input.banks = {bank_->bank()};
  return true;
}
