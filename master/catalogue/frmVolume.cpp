#include "master/catalogue/frmVolume.h"

#include <QGroupBox>

using namespace Qt::StringLiterals;

frmVolume::frmVolume(FormContext& context, QWidget* parent)
    : RegisterForm(u"frmVolume"_s, u"체적 단가 등록"_s, context.session, parent), volumes_(context.session) {
  RegisterPage* const regulators =
      addPage(volumes_, "SpVolume", u"자료의 삭제는 삭제버튼이나 Delete 키로 합니다"_s);
  regulators->grid()->setFillColumn(2);
  Fields fields(regulators->boxPanel(), 3);
  size_ = fields.text("TxtSize", u"규격"_s, 16, 20);
  regulators->bind(size_, u"Size"_s);
  regulators->bind(fields.text("TxtName", u"명칭"_s, 24, 40), u"Name"_s,
                   u"규격별 다른단가를 등록할 때 입력합니다"_s);
  MoneyBox* const unit = fields.money("TxtUnit", u"단가"_s, 12);
  unit->setRange(0, 999'999'999);
  regulators->bind(unit, u"Unit"_s, u"사용량 계산시 적용할 단가를 입력합니다"_s);
  setBottomLine(u" 압력조정기별 체적단가를 등록합니다"_s);
  start();
}

void frmVolume::recordShown() {
  if (!size_) return;
  const bool fixed = volumes_.chosenIsFixed();
  size_->setReadOnly(fixed);
  setHelp(size_,
          fixed ? u"하늘색 부분의 규격은 명칭/단가수정만 가능"_s : u"압력조정기의 규격을 입력합니다"_s);
}
