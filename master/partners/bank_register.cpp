#include "master/partners/bank_register.h"

#include "store/data_access.h"

using namespace Qt::StringLiterals;

namespace {
const QString bankTitle = u"수납은행 관리자"_s;
}

BankRegister::BankRegister(Session& session)
    : KeyedRegister(
          session, {u"Bank"_s, u"BName"_s, true}, bankTitle,
          {u"Select * From Bank"_s,
           {field::text(u"BName"_s, u"은행명"_s, 24), field::centred(u"BNumber"_s, u"계좌번호"_s, 26),
            field::text(u"BUser"_s, u"예금주"_s, 24)}}) {}

RegisterRules::Outcome BankRegister::store(const RegisterFields& boxes) {
  const QString name = boxes[u"BName"_s];
  if (name.isEmpty()) return refuse(u"은행명을 입력하십시오"_s, bankTitle, u"BName"_s);
  if (boxes[u"BNumber"_s].isEmpty()) return refuse(u"계좌번호를 입력하십시오"_s, bankTitle, u"BNumber"_s);
  const auto update = [&](const RegisterFields& row) {
    session_.dbBasic.Execute(u"Update Bank Set BName = '"_s + plainText(name) + u"', BNumber = '"_s +
                             plainText(row[u"BNumber"_s]) + u"', BUser = '"_s + plainText(row[u"BUser"_s]) +
                             u"' Where BName = '"_s + plainText(name) + u"'"_s);
  };
  if (selectedRow() && name == record()[u"BName"_s])
    return changeChosen(
        boxes, bankTitle,
        [&](const RowChange&, const RegisterFields& row, const RegisterFields&) { update(row); });

  const Found known = lookFor(u"Select * From Bank Where BName = '"_s + plainText(name) + u"'"_s);
  if (known == Found::Failed) return {false, u"BName"_s};
  if (known == Found::Nothing) {
    session_.dbBasic.Execute(u"Insert Into Bank(BName, BNumber, BUser) Values('"_s + plainText(name) +
                             u"', '"_s + plainText(boxes[u"BNumber"_s]) + u"', '"_s +
                             plainText(boxes[u"BUser"_s]) + u"')"_s);
    return {true};
  }
  // The row that would be written over is not the one on the screen.
  if (!session_.prompts.MsgAsk(
          name + u"은(는) 이미 등록된 은행입니다!\n등록된 내용을 입력한 내용으로 바꾸시겠습니까?"_s,
          bankTitle, false))
    return {false, u"BName"_s};
  update(boxes);
  return {true};
}

RegisterRules::Outcome BankRegister::erase() {
  if (!selectedRow()) return refuse(u"삭제할 자료를 선택하십시오"_s, bankTitle);
  const QString name = record()[u"BName"_s];
  return eraseChosen(
      name + u' ' + record()[u"BNumber"_s], u"선택한 자료를 삭제하시겠습니까?"_s, bankTitle,
      [&] { session_.dbBasic.Execute(u"Delete * From Bank Where BName = '"_s + plainText(name) + u"'"_s); });
}
