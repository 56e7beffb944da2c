#include "master/catalogue/volume_register.h"

#include "store/data_access.h"

using namespace Qt::StringLiterals;

namespace {
constexpr int fixedRegulators = 7;
constexpr int regulatorCodeColumn = 4;
const QString volumeTitle = u"체적 관리자"_s;
}  // namespace

VolumeRegister::VolumeRegister(Session& session)
    : RegisterRules(session, {u"Volume"_s}, volumeTitle,
                    {u"Select Size, Name, Unit, Code From Volume Order By Code"_s,
                     {field::text(u"Size"_s, u"규격"_s, 16), field::text(u"Name"_s, u"명칭"_s, 24),
                      field::money(u"Unit"_s, u"단가"_s), field::hidden(u"Code"_s, u"코드"_s)}}) {}

void VolumeRegister::dressList() {
  for (int row = 1; row <= list_.MaxRows(); ++row)
    if (list_.text(row, regulatorCodeColumn).toInt() <= fixedRegulators)
      list_.setBackground(row, 0, fixedColour);
}

bool VolumeRegister::chosenIsFixed() const {
  return selectedRow() && record()[u"Code"_s].toInt() <= fixedRegulators;
}

RegisterRules::Outcome VolumeRegister::checkRequired(const RegisterFields& boxes) {
  if (boxes[u"Size"_s].isEmpty())
    return refuse(u"압력조정기 규격은 필수입력사항입니다!"_s, volumeTitle, u"Size"_s);
  if (boxes[u"Unit"_s].isEmpty()) return refuse(u"KG당 단가는 필수입력사항입니다!"_s, volumeTitle, u"Unit"_s);
  return {true};
}

RegisterRules::Outcome VolumeRegister::insert(const RegisterFields& boxes) {
  if (Outcome required = checkRequired(boxes); !required.done) return required;
  const QString size = boxes[u"Size"_s];
  const Found twin =
      lookFor(u"Select * From Volume Where Size = '"_s + plainText(size) + u"' Order By Code"_s);
  if (twin == Found::Failed) return {};
  if (twin == Found::Something)
    return refuse(u"규격 : "_s + size + u" 은 이미 등록되어 있습니다!"_s, volumeTitle, u"Size"_s);
  session_.dbBasic.Execute(u"Insert Into Volume(Size, Name, Unit) Values('"_s + plainText(size) + u"', '"_s +
                           plainText(boxes[u"Name"_s]) + u"', '"_s + typedNumber(boxes[u"Unit"_s]) + u"')"_s);
  return {true};
}

RegisterRules::Outcome VolumeRegister::change(const RegisterFields& boxes) {
  if (Outcome required = checkRequired(boxes); !required.done) return required;
  QString oldSize, oldUnit, newUnit;
  Outcome outcome = changeChosen(
      boxes, volumeTitle, [&](const RowChange&, const RegisterFields& row, const RegisterFields& stored) {
        oldSize = stored[u"Size"_s];
        oldUnit = typedNumber(stored[u"Unit"_s]);
        newUnit = typedNumber(row[u"Unit"_s]);
        session_.dbBasic.Execute(u"Update Volume Set Size = '"_s +
                                 plainText(chosenIsFixed() ? oldSize : row[u"Size"_s]) + u"', Name = '"_s +
                                 plainText(row[u"Name"_s]) + u"', Unit = '"_s + plainText(newUnit) +
                                 u"' Where Code = "_s + plainNumber(record()[u"Code"_s]));
      });
  if (outcome.done && newUnit != oldUnit) spreadPrice(oldSize, oldUnit, newUnit);
  return outcome;
}

// Customers carry the size as it was before this change, so they are found by that one.
void VolumeRegister::spreadPrice(const QString& size, const QString& oldUnit, const QString& newUnit) {
  const bool specialPricesToo = session_.prompts.MsgAsk(
      u"동일한 조정기를 사용 하지만, 단가가 다른 고객도 같이 변경할까요?\n"
      u"[아니오]선택시 동일한 단가를 사용하는 고객만 변경합니다."_s,
      u"단가변경"_s);
  QString sql =
      u"Update Client Set VolumeUnit = "_s + newUnit + u" Where Volume = '"_s + plainText(size) + u"' "_s;
  if (!specialPricesToo) sql += u"And VolumeUnit = "_s + oldUnit;
  const int count = session_.dbBasic.Execute(sql);
  session_.prompts.MsgInfo(u"고객 "_s + QString::number(count) + u" 명의 체적단가가 변경되었습니다!"_s,
                           u"단가변경"_s);
}

RegisterRules::Outcome VolumeRegister::erase() {
  if (!selectedRow()) return {};
  if (chosenIsFixed())
    return refuse(u"하늘색 부분의 7개의 등록사항은 삭제할 수 없습니다!"_s, u"체적관리자"_s);
  return eraseChosen(
      record()[u"Size"_s] + u' ' + record()[u"Name"_s], u"선택된 자료를 삭제하시겠습니까?"_s, volumeTitle,
      [&] {
        session_.dbBasic.Execute(u"Delete * From Volume Where Code = "_s + plainNumber(record()[u"Code"_s]));
      });
}

RegisterRules::Outcome VolumeRegister::saveWithoutRow(const RegisterFields&) {
  return refuse(u"신규등록은 신규버튼을 누른후 입력하십시오"_s, u"압력조정기 관리자"_s);
}
