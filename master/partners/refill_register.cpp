#include "master/partners/refill_register.h"

#include "store/data_access.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace {
const QString refillTitle = u"거래처 관리자"_s;
const QString companyMissing = u"상호는 필수입력사항입니다!"_s;
}  // namespace

RefillRegister::RefillRegister(Session& session)
    : RegisterRules(
          session, {u"RefillState"_s, u"Code"_s, true}, refillTitle,
          {u"Select * From RefillState Order By Code"_s,
           {field::text(u"Company"_s, u"상호"_s, 18), field::text(u"User"_s, u"대표자"_s, 8),
            field::centred(u"BusCode"_s, u"사업자번호"_s, 13), field::centred(u"Tel"_s, u"전화번호"_s, 13),
            field::centred(u"Fax"_s, u"팩스"_s, 13), field::money(u"GasInit"_s, u"가스미불"_s, 11),
            field::money(u"UtilInit"_s, u"자재미불"_s, 11), field::text(u"Address"_s, u"주소"_s, 24)}}) {}

bool RefillRegister::nameAccepted(const QString& company, const QString& ownCode) {
  const QString others = ownCode.isEmpty() ? QString() : u" And Code <> '"_s + plainText(ownCode) + u"'"_s;
  const Found twin =
      lookFor(u"Select * from Refillstate Where Company = '"_s + plainText(company) + u"'"_s + others);
  if (twin != Found::Something) return twin == Found::Nothing;
  return session_.prompts.MsgAsk(
      ownCode.isEmpty() ? u"등록을 계속하시겠습니까?"_s : u"수정을 계속하시겠습니까?"_s, refillTitle);
}

QString RefillRegister::nextCode() const {
  const qint64 last =
      DAO_GetValue(session_.prompts, session_.dbBasic, u"Max(Code) As MCode", u"RefillState", {}).toLong();
  return u"%1"_s.arg(last + 1, 4, 10, QChar(u'0'));
}

RegisterRules::Outcome RefillRegister::insert(const RegisterFields& boxes) {
  const QString company = boxes[u"Company"_s];
  if (company.isEmpty()) return refuse(companyMissing, refillTitle, u"Company"_s);
  if (!nameAccepted(company, {})) return {false, u"Company"_s};
  // The next code is read and given out in one group: two PCs would otherwise take the same.
  session_.wsMain.Together([&] { insertWith(boxes, nextCode()); });
  return {true};
}

void RefillRegister::insertWith(const RegisterFields& boxes, const QString& code) {
  session_.dbBasic.Execute(
      u"Insert into RefillState(Company, User, BusCode, Tel, Address, Fax, PostCode, GasInit, UtilInit, "
      u"Code) "
      u"Values('"_s +
      plainText(boxes[u"Company"_s]) + u"', '"_s + plainText(boxes[u"User"_s]) + u"', '"_s +
      plainText(boxes[u"BusCode"_s]) + u"', '"_s + plainText(boxes[u"Tel"_s]) + u"', '"_s +
      plainText(boxes[u"Address"_s]) + u"', '"_s + plainText(boxes[u"Fax"_s]) + u"', '"_s +
      plainText(boxes[u"PostCode"_s]) + u"', "_s + typedNumber(boxes[u"GasInit"_s]) + u", "_s +
      typedNumber(boxes[u"UtilInit"_s]) + u", '"_s + plainText(code) + u"')"_s);
}

RegisterRules::Outcome RefillRegister::change(const RegisterFields& boxes) {
  const QString company = boxes[u"Company"_s], code = record()[u"Code"_s];
  if (company.isEmpty()) return refuse(companyMissing, refillTitle, u"Company"_s);
  if (!nameAccepted(company, code)) return {false, u"Company"_s};
  QString renamed;  // the name that its lines of purchase hold so far
  Outcome outcome = changeChosen(
      boxes, refillTitle,
      [&](const RowChange& change, const RegisterFields& row, const RegisterFields& stored) {
        session_.dbBasic.Execute(
            u"Update RefillState Set Company = '"_s + plainText(row[u"Company"_s]) + u"', User = '"_s +
            plainText(row[u"User"_s]) + u"', BusCode = '"_s + plainText(row[u"BusCode"_s]) + u"', Tel = '"_s +
            plainText(row[u"Tel"_s]) + u"', Address = '"_s + plainText(row[u"Address"_s]) + u"', Fax = '"_s +
            plainText(row[u"Fax"_s]) + u"', PostCode = '"_s + plainText(row[u"PostCode"_s]) + u"'"_s +
            movedFigures(change, stored) + u" Where Code = '"_s + plainText(code) + u"'"_s);
        renamed = stored[u"Company"_s];
        renameLines(session_.dbYear, renamed, row[u"Company"_s]);
      });
  if (!outcome.done || renamed.isEmpty()) return outcome;
  for (const int year : yearsThere(session_)) {
    if (year == openedYear(session_)) continue;
    if (const jet::Database file = openYear(session_, year); file.isOpen())
      renameLines(file, renamed, company);
    else
      session_.prompts.MsgWarn(
          yearFile(session_, year) + u"\n파일을 열 수 없어 이 해의 구매자료는 예전 상호로 남았습니다!"_s,
          refillTitle);
  }
  return outcome;
}

/** Lines go by the station's name. Where another station still carries the old one, they stay with that. */
void RefillRegister::renameLines(const jet::Database& year, const QString& from, const QString& to) const {
  if (from == to ||
      !session_.dbBasic
           .OpenRecordset(u"Select Code From RefillState Where Company = '"_s + copiedText(from) + u"'"_s)
           .atEnd())
    return;
  year.Execute(u"Update Buy Set BuyCompany = '"_s + plainText(to) + u"' Where BuyCompany = '"_s +
               copiedText(from) + u"'"_s);
}

// Goes by the name that purchases hold: a second station of the same name goes too; kept.
RegisterRules::Outcome RefillRegister::erase() {
  if (!selectedRow()) return {};
  const QString company = record()[u"Company"_s];
  if (!session_.prompts.MsgAsk(company + u" 인 거래처에 대한 자료를 삭제하시겠습니까?"_s, refillTitle, false))
    return {};
  return eraseAsShown(refillTitle, [&] {
    session_.dbBasic.Execute(u"Delete * From RefillState Where company = '"_s + plainText(company) + u"'"_s);
  });
}
