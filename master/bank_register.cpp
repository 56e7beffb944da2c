#include "master/bank_register.h"

#include "store/data_access.h"

using namespace Qt::StringLiterals;

namespace {
const QString bankTitle = u"수납은행 관리자"_s;
}

BankRegister::BankRegister(Session& session) : RegisterRules(session) {
  list_.setColumns({{.header = u"은행명"_s, .width = 24, .locked = true},
                    {.header = u"계좌번호"_s, .width = 26, .align = CellAlign::Center, .locked = true},
                    {.header = u"예금주"_s, .width = 24, .locked = true}});
}

QString BankRegister::listStatement() const {
  return u"Select * From Bank"_s;
}

std::vector<QString> BankRegister::cells(const RegisterFields& record) const {
  return {record[u"BName"_s], record[u"BNumber"_s], record[u"BUser"_s]};
}

RegisterRules::Outcome BankRegister::store(const RegisterFields& boxes) {
  const QString name = boxes[u"BName"_s], number = boxes[u"BNumber"_s], user = boxes[u"BUser"_s];
  if (name.isEmpty()) return refuse(u"은행명을 입력하십시오"_s, bankTitle, u"BName"_s);
  if (number.isEmpty()) return refuse(u"계좌번호를 입력하십시오"_s, bankTitle, u"BNumber"_s);
  const Found known = lookFor(u"Select * From Bank Where BName = '"_s + plainText(name) + u"'"_s);
  if (known == Found::Failed) return {false, u"BName"_s};
  if (known == Found::Something)
    session_.dbBasic.Execute(u"Update Bank Set BName = '"_s + plainText(name) + u"', BNumber = '"_s +
                             plainText(number) + u"', BUser = '"_s + plainText(user) +
                             u"' Where BName = '"_s + plainText(name) + u"'"_s);
  else
    session_.dbBasic.Execute(u"Insert Into Bank(BName, BNumber, BUser) Values('"_s + plainText(name) +
                             u"', '"_s + plainText(number) + u"', '"_s + plainText(user) + u"')"_s);
  return {true};
}

RegisterRules::Outcome BankRegister::erase() {
  if (!selectedRow()) return refuse(u"삭제할 자료를 선택하십시오"_s, bankTitle);
  if (!session_.prompts.MsgAsk(u"선택한 자료를 삭제하시겠습니까?"_s, bankTitle)) return {};
  session_.dbBasic.Execute(u"Delete * From Bank Where BName = '"_s + plainText(record()[u"BName"_s]) +
                           u"'"_s);
  return {true};
}
