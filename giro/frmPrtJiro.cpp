#include "giro/frmPrtJiro.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

frmPrtJiro::frmPrtJiro(FormContext& context, QWidget* parent)
    : GiroForm(context, u"frmPrtJiro"_s, u"MICR"_s, jiroPaper(context.session), Period::LastMonth, parent) {
  addBank();
  addAfterDue();
  auto* const micr =
      addCheck("chkMicr", u"MICR 용지 (모든 PC에 적용)"_s, slips().paper() == GiroPaper::JiroMicr);
  on(micr, &QCheckBox::toggled, [this, micr] {
    setJiroPaper(session(), micr->isChecked() ? GiroPaper::JiroMicr : GiroPaper::Jiro);
    slips().setPaper(jiroPaper(session()));
  });
  begin();
}

frmPrtJiroOrg::frmPrtJiroOrg(FormContext& context, QWidget* parent)
    : GiroForm(context, u"frmPrtJiroOrg"_s, u"일반지로"_s, GiroPaper::JiroOrg, Period::ByMonth, parent) {
  addBank();
  begin();
}

frmPrtMicr::frmPrtMicr(FormContext& context, QWidget* parent)
    : GiroForm(context, u"frmPrtMicr"_s, u"MICR-A4"_s, GiroPaper::MicrA4, Period::LastMonth, parent) {
  addBank();
  addAfterDue();
  begin();
}
