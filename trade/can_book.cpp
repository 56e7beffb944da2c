#include "trade/can_book.h"

#include "pc/reports.h"
#include "store/data_access.h"
#include "store/report_staging.h"
#include "ui/model/column.h"

using namespace Qt::StringLiterals;

namespace {

const QString canTitle = u"용기관리자"_s;

struct CanBox {
  QString column, missing;
};
/** In the order they are asked for. */
const CanBox canBoxes[] = {
    {u"ResName"_s, u"담당자명을 입력하십시오"_s},  {u"LPGName"_s, u"용기명을 입력하십시오"_s},
    {u"CANSize"_s, u"용량을 입력하십시오"_s},      {u"CANEmpty"_s, u"빈용기 수량을 입력하십시오"_s},
    {u"CANFull"_s, u"실병 수량을 입력하십시오"_s}, {u"CANTotal"_s, u"총용기수량이 정해지지 않았습니다!"_s}};

QString whereCan(const RegisterFields& of) {
  return u"ResName = '"_s + plainText(of[u"ResName"_s]) + u"' And LPGName = '"_s +
         plainText(of[u"LPGName"_s]) + u"' And CANSize = "_s + plainNumber(of[u"CANSize"_s]);
}

bool isSameCan(const RegisterFields& one, const RegisterFields& other) {
  return one[u"ResName"_s] == other[u"ResName"_s] && one[u"LPGName"_s] == other[u"LPGName"_s] &&
         one[u"CANSize"_s] == other[u"CANSize"_s];
}

}  // namespace

CanBook::CanBook(Session& session)
    : KeyedRegister(
          session, {u"ResCAN"_s, u"ResName"_s, true, {{u"LPGName"_s, true}, {u"CANSize"_s, false}}}, canTitle,
          {u"Select * From ResCAN Order By ResName, LPGName, CANSize"_s,
           {field::text(u"ResName"_s, u"담당자"_s, 14), field::text(u"LPGName"_s, u"용기명"_s, 16),
            field::centred(u"CANSize"_s, u"용량"_s, 8), field::money(u"CANEmpty"_s, u"빈용기"_s, 11),
            field::money(u"CANFull"_s, u"실병"_s, 11), field::money(u"CANTotal"_s, u"총용기"_s, 11)}}) {}

RegisterRules::Outcome CanBook::store(const RegisterFields& boxes) {
  for (const CanBox& box : canBoxes)
    if (boxes[box.column].trimmed().isEmpty()) return refuse(box.missing, canTitle, box.column);
  bool isNumber = false;
  boxes[u"CANSize"_s].toInt(&isNumber);
  if (!isNumber) return refuse(u"용량은 숫자로 입력하십시오"_s, canTitle, u"CANSize"_s);

  const auto counts = [](const RegisterFields& row) {
    return std::tuple(typedNumber(row[u"CANFull"_s]), typedNumber(row[u"CANEmpty"_s]),
                      typedNumber(row[u"CANTotal"_s]));
  };
  const Found known = lookFor(u"Select * From ResCAN Where "_s + whereCan(boxes));
  if (known == Found::Failed) return {false, u"ResName"_s};
  if (known == Found::Nothing) {
    const auto [full, empty, total] = counts(boxes);
    session_.dbBasic.Execute(
        u"Insert Into ResCAN(ResName, LPGName, CANSize, CANFull, CANEmpty, CANTotal) Values('"_s +
        plainText(boxes[u"ResName"_s]) + u"', '"_s + plainText(boxes[u"LPGName"_s]) + u"', "_s +
        plainNumber(boxes[u"CANSize"_s]) + u", "_s + full + u", "_s + empty + u", "_s + total + u")"_s);
    return {true};
  }
  if (!session_.prompts.MsgAsk(boxes[u"ResName"_s] + u" 의 내역을 변경하시겠습니까?"_s, canTitle))
    return {false, u"CANEmpty"_s};
  const auto update = [&](const RegisterFields& row) {
    const auto [full, empty, total] = counts(row);
    session_.dbBasic.Execute(u"Update ResCAN Set ResName = '"_s + plainText(boxes[u"ResName"_s]) +
                             u"', CANFull = "_s + full + u", CANEmpty = "_s + empty + u", CANTotal = "_s +
                             total + u" Where "_s + whereCan(boxes));
  };
  if (selectedRow() && isSameCan(boxes, record()))
    return changeChosen(
        boxes, canTitle,
        [&](const RowChange&, const RegisterFields& row, const RegisterFields&) { update(row); });
  update(boxes);
  return {true};
}

RegisterRules::Outcome CanBook::erase() {
  if (!selectedRow()) return refuse(u"삭제할 자료를 선택하십시오"_s, canTitle);
  const RegisterFields chosen = record();
  return eraseChosen(chosen[u"ResName"_s] + u"   "_s + chosen[u"LPGName"_s] + u" / "_s + chosen[u"CANSize"_s],
                     u"선택한 자료를 삭제하시겠습니까?"_s, canTitle,
                     [&] { session_.dbBasic.Execute(u"Delete * From ResCAN Where "_s + whereCan(chosen)); });
}

void CanBook::print() {
  const auto text = [this](int row, int col) { return u'\'' + copiedText(list_.text(row, col)) + u'\''; };
  const int rows = list_.MaxRows();
  if (rows == 0)
    stageReport(session_, 1, [](int) { return u"Insert Into Print(Str01) "_s + u"Values('')"_s; });
  else
    stageReport(session_, rows, [&](int row) {
      return u"Insert Into Print(Str01, Str02, Str03, Lng02, Lng03, Lng04) Values("_s +
             QStringList{text(row, 1),       text(row, 2),       text(row, 3),
                         list_.text(row, 4), list_.text(row, 5), list_.text(row, 6)}
                 .join(u", "_s) +
             u')';
    });
  session_.reports->show({.file = u"담당자별보유용기현황.rpt"_s, .formulas = {}, .dataFile = printFile()});
}
