#include "giro/frmPrtJiroOrgA4.h"

#include <QCheckBox>

#include "giro/form_giro_parts.h"

using namespace Qt::StringLiterals;

frmPrtJiroOrgA4::frmPrtJiroOrgA4(FormContext& context, QWidget* parent)
    : GiroForm(context, u"frmPrtJiroOrgA4"_s, u"일반지로(A4) 발행"_s, GiroPaper::JiroOrgA4, Period::ByMonth,
               parent) {
  const OrgA4Memory memory = orgA4Memory(session());
  chkNewPaper_ = addCheck("chkNewPaper", u"당월 미수금만 적용"_s, memory.newPaper);
  chkPaperType_ = addCheck("chkPaperType", u"상호.전화 미인쇄"_s, memory.preprinted);
  if (!memory.useFrom.isEmpty() || !memory.useTo.isEmpty()) {
    const bool asNow = memory.useFrom == period().from() && memory.useTo == period().to();
    period().set(memory.useFrom, memory.useTo);
    if (!asNow) addNote(u"지난번에 쓴 기간입니다. 사용월을 고르면 새로 채웁니다."_s);
  }
  for (int bank = 0; bank < 3; ++bank) addBank();
  begin();
}

void frmPrtJiroOrgA4::keep() {
  keepOrgA4Memory(session(),
                  {chkNewPaper_->isChecked(), chkPaperType_->isChecked(), period().from(), period().to()});
}

void frmPrtJiroOrgA4::done(int result) {
  guard([this] { keep(); });
  GiroForm::done(result);
}

bool frmPrtJiroOrgA4::addInput(GiroInput& input) {
  keep();
  input.monthsArrearsOnly = chkNewPaper_->isChecked();
  input.companyPreprinted = chkPaperType_->isChecked();
  return true;
}
