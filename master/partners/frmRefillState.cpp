#include "master/partners/frmRefillState.h"

#include <QGroupBox>

#include "master/registers/form_business_number.h"
#include "master/registers/form_lookups.h"

using namespace Qt::StringLiterals;

frmRefillState::frmRefillState(FormContext& context, QWidget* parent)
    : RegisterForm(u"frmRefillState"_s, u"충전소 등록"_s, context.session, parent),
      refills_(context.session) {
  RegisterPage* const stations =
      addPage(refills_, "SpRefill", u"등록된 거래처의 삭제는 삭제버튼이나 키보드의 Delete키로 가능합니다"_s);
  Fields fields(stations->boxPanel(), 3);
  stations->bind(fields.text("TxtCompany", u"상호"_s, 0, 40), u"Company"_s, u"거래처의 상호를 입력합니다"_s);
  stations->bind(fields.text("TxtUser", u"대표자"_s, 16, 20), u"User"_s, u"대표자의 성명을 입력합니다"_s);
  QLineEdit* const busCode = fields.text("TxtBusCode", u"사업자번호"_s, 16, 12);
  stations->bind(busCode, u"BusCode"_s, u"사업자등록번호를 입력합니다"_s);
  watchBusinessNumber(*this, busCode);
  stations->bind(fields.tel("TxtTel", u"전화번호"_s), u"Tel"_s, u"거래처의 전화번호를 입력합니다"_s);
  stations->bind(fields.tel("TxtFax", u"팩스"_s), u"Fax"_s, u"거래처의 팩스번호를 입력합니다"_s);
  fields.newRow();
  QLineEdit* const postCode = fields.text("TxtPostCode", u"우편번호"_s, 10, 20);
  stations->bind(postCode, u"PostCode"_s, u"우편번호나 읍/면/동을 입력한 후 엔터나 F12로 조회합니다"_s);
  QLineEdit* const address = fields.text("TxtAddress", u"주소"_s, 0, 100, 2);
  stations->bind(address, u"Address"_s, u"거래처의 주소를 입력합니다"_s);
  const auto owed = [&](const char* name, const QString& label, const QString& column, const QString& help) {
    MoneyBox* const box = fields.money(name, label);
    box->setRange(-999'999'999, 999'999'999);
    stations->bind(box, column, help);
  };
  owed("TxtGasInit", u"가스미불"_s, u"GasInit"_s, u"등록시의 가스미불금을 입력합니다"_s);
  owed("TxtUtilInit", u"자재미불"_s, u"UtilInit"_s, u"등록시의 시설/자재 미불금을 입력합니다"_s);
  start();
  attachPostCode(*this, context.pickers, postCode, address);
}
