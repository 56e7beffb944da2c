#include "master/partners/response_register.h"

#include "store/data_access.h"
#include "store/date_text.h"

using namespace Qt::StringLiterals;

namespace {
const QString responseTitle = u"배달 관리자"_s;
}

ResponseRegister::ResponseRegister(Session& session)
    : RegisterRules(
          session, {u"Response"_s}, responseTitle,
          {u"Select * From Response"_s,
           {field::text(u"Name"_s, u"담당자"_s, 10), field::centred(u"Tel"_s, u"전화번호"_s, 13),
            field::centred(u"HP"_s, u"휴대폰"_s, 13), field::centred(u"AppDate"_s, u"입사일자"_s, 11),
            field::centred(u"IdentyNo"_s, u"주민등록번호"_s, 14), field::text(u"Address"_s, u"주소"_s, 28),
            field::text(u"Memo"_s, u"메모사항"_s, 16)}}) {}

RegisterFields ResponseRegister::blank() const {
  return {{u"AppDate"_s, session_.pc.clock.dateText()}};
}

RegisterRules::Outcome ResponseRegister::check(RegisterFields& boxes) {
  if (boxes[u"Name"_s].isEmpty())
    return refuse(u"담당자명은 필수입력사항입니다!"_s, responseTitle, u"Name"_s);
  QString& joined = boxes[u"AppDate"_s];
  if (joined.isEmpty()) return {true};
  const QString date = checkedDate(joined, session_.pc.clock);
  if (date.isEmpty())
    return refuse(u"날짜 입력이 올바르지 않습니다!\n입력예) "_s + session_.pc.clock.dateText(),
                  u"날짜입력 에러"_s, u"AppDate"_s);
  joined = date;
  return {true};
}

RegisterRules::Outcome ResponseRegister::insert(const RegisterFields& typed) {
  RegisterFields boxes = typed;
  if (Outcome checked = check(boxes); !checked.done) return checked;
  session_.dbBasic.Execute(
      u"Insert Into Response(Name, Tel, AppDate, IdentyNo, HP, PostCode, Address, Memo)  Values('"_s +
      plainText(boxes[u"Name"_s]) + u"', '"_s + plainText(boxes[u"Tel"_s]) + u"', '"_s +
      plainText(boxes[u"AppDate"_s]) + u"', '"_s + plainText(boxes[u"IdentyNo"_s]) + u"', '"_s +
      plainText(boxes[u"HP"_s]) + u"', '"_s + plainText(boxes[u"PostCode"_s]) + u"', '"_s +
      plainText(boxes[u"Address"_s]) + u"', '"_s + plainText(boxes[u"Memo"_s]) + u"')"_s);
  return {true};
}

RegisterRules::Outcome ResponseRegister::change(const RegisterFields& typed) {
  RegisterFields boxes = typed;
  if (Outcome checked = check(boxes); !checked.done) return checked;
  if (!session_.prompts.MsgAsk(u"선택된 자료를 위와 같이 변경하시겠습니까?"_s, responseTitle)) return {};
  return changeChosen(
      boxes, responseTitle, [&](const RowChange&, const RegisterFields& row, const RegisterFields&) {
        session_.dbBasic.Execute(u"Update Response Set Name = '"_s + plainText(row[u"Name"_s]) +
                                 u"', Tel = '"_s + plainText(row[u"Tel"_s]) + u"', AppDate = '"_s +
                                 plainText(row[u"AppDate"_s]) + u"', IdentyNo = '"_s +
                                 plainText(row[u"IdentyNo"_s]) + u"', HP = '"_s + plainText(row[u"HP"_s]) +
                                 u"', PostCode = '"_s + plainText(row[u"PostCode"_s]) + u"', Address = '"_s +
                                 plainText(row[u"Address"_s]) + u"', Memo = '"_s + plainText(row[u"Memo"_s]) +
                                 u"' Where Code = "_s + plainNumber(record()[u"Code"_s]));
      });
}

RegisterRules::Outcome ResponseRegister::erase() {
  if (!selectedRow()) return {};
  return eraseChosen(record()[u"Name"_s], u"선택된 담당자에 대한 자료를 삭제하시겠습니까?"_s, responseTitle,
                     [&] {
                       session_.dbBasic.Execute(u"Delete * From Response Where Code = "_s +
                                                plainNumber(record()[u"Code"_s]));
                     });
}
