#include "master/partners/frmResponse.h"

#include <QGroupBox>

#include "master/registers/form_lookups.h"

using namespace Qt::StringLiterals;

frmResponse::frmResponse(FormContext& context, QWidget* parent)
    : RegisterForm(u"frmResponse"_s, u"배달담당 등록"_s, context.session, parent), staff_(context.session) {
  RegisterPage* const people =
      addPage(staff_, "SpResponse", u"자료의 삭제는 삭제버튼이나 Delete 키로 합니다"_s);
  Fields fields(people->boxPanel(), 3);
  people->bind(fields.text("TxtName", u"담당자"_s, 16, 20), u"Name"_s, u"담당자의 성명을 입력합니다"_s);
  people->bind(fields.tel("TxtTel", u"전화번호"_s), u"Tel"_s, u"담당자의 전화번호를 입력합니다"_s);
  people->bind(fields.tel("TxtHP", u"휴대폰"_s), u"HP"_s, u"담당자의 휴대폰번호를 입력합니다"_s);
  DateBox* const joined = fields.date("TxtAppDate", u"입사일자"_s);
  people->bind(joined, u"AppDate"_s, u"입사일자를 입력합니다.  달력조회 = F12"_s);
  people->bind(fields.text("TxtIdentyNo", u"주민등록번호"_s, 16, 14), u"IdentyNo"_s,
               u"담당자의 주민등록번호를 입력합니다"_s);
  fields.newRow();
  QLineEdit* const postCode = fields.text("TxtPostCode", u"우편번호"_s, 10, 20);
  people->bind(postCode, u"PostCode"_s, u"우편번호나 읍/면/동을 입력한 후 엔터나 F12로 조회합니다"_s);
  QLineEdit* const address = fields.text("TxtAddress", u"주소"_s, 0, 100, 2);
  people->bind(address, u"Address"_s, u"담당자의 주소를 입력합니다"_s);
  people->bind(fields.text("TxtMemo", u"메모사항"_s, 0, 255, 3), u"Memo"_s,
               u"담당자에 대한 메모/특이사항을 입력합니다"_s);
  start();
  attachPostCode(*this, context.pickers, postCode, address);
  attachDate(*this, context.pickers, joined);
}
