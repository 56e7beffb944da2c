#include "trade/frmResCAN.h"

#include <QGroupBox>

#include "master/registers/form_lookups.h"

using namespace Qt::StringLiterals;

frmResCAN::frmResCAN(FormContext& context, QWidget* parent)
    : RegisterForm(u"frmResCAN"_s, u"담당자별 용기현황"_s, context.session, parent), cans_(context.session) {
  RegisterPage* const cans = addPage(cans_, "SpResCAN", u" 담당자별 용기현황을 조회/수정합니다"_s);
  Fields fields(cans->boxPanel(), 3);
  QLineEdit* const person = fields.text("TxtResName", u"담당자"_s, 0, 20);
  QLineEdit* const name = fields.text("TxtLPGName", u"용기명"_s, 0, 30);
  QLineEdit* const size = fields.text("TxtCANSize", u"용량"_s, 8, 6);
  MoneyBox* const empty = fields.money("TxtCANEmpty", u"빈용기"_s);
  MoneyBox* const full = fields.money("TxtCANFull", u"실병"_s);
  MoneyBox* const total = fields.money("TxtCANTotal", u"총용기"_s);
  cans->bind(person, u"ResName"_s, u"엔터나 F12로 담당자를 선택하세요.  지움 : DELETE"_s);
  cans->bind(name, u"LPGName"_s, u"엔터나 F12로 품명을 선택하세요.  지움 : DELETE"_s);
  cans->bind(size, u"CANSize"_s, u"용량을 입력합니다"_s);
  cans->bind(empty, u"CANEmpty"_s, u"빈용기 수량을 입력합니다"_s);
  cans->bind(full, u"CANFull"_s, u"실병 수량을 입력합니다"_s);
  cans->bind(total, u"CANTotal"_s, u"총용기 수량을 입력합니다"_s);
  // What the van holds is what stands on it, full or empty; another total may still be typed.
  for (MoneyBox* const box : {empty, full})
    connect(box, &QLineEdit::textEdited, this, [=] {
      if (!empty->plainText().isEmpty() && !full->plainText().isEmpty())
        total->setValue(empty->value() + full->value());
    });
  onKey(Qt::Key_F10, [this] { cans_.print(); });
  setBottomLine(u"F10:인쇄  Esc:목록으로"_s);
  start();
  attachSearch(*this, person, name, [person, &context] {
    const auto chosen = context.pickers.searchResponse();
    if (chosen) person->setText(*chosen);
    return chosen.has_value();
  });
  attachSearch(*this, name, empty, [name, size, &context] {
    const auto chosen = context.pickers.searchSize(u"1"_s, TradeSide::Sale);
    if (!chosen) return false;
    name->setText(chosen->name);
    size->setText(chosen->size);
    return true;
  });
}
