#include "master/partners/frmBank.h"

#include <QGroupBox>

using namespace Qt::StringLiterals;

frmBank::frmBank(FormContext& context, QWidget* parent)
    : RegisterForm(u"frmBank"_s, u"수납 은행 등록"_s, context.session, parent), banks_(context.session) {
  RegisterPage* const accounts =
      addPage(banks_, "SpBank", u"자료의 삭제는 삭제버튼이나 Delete 키로 합니다"_s);
  Fields fields(accounts->boxPanel(), 3);
  accounts->bind(fields.text("TxtBName", u"은행명"_s, 0, 30), u"BName"_s, u"수납 은행명을 입력합니다"_s);
  accounts->bind(fields.text("TxtBNumber", u"계좌번호"_s, 0, 30), u"BNumber"_s, u"계좌번호를 입력합니다"_s);
  accounts->bind(fields.text("TxtBUser", u"예금주"_s, 0, 30), u"BUser"_s, u"예금주의 성명을 입력합니다"_s);
  start();
}
