#include "master/catalogue/util_catalogue.h"

#include "store/data_access.h"

#include <QtMath>

using namespace Qt::StringLiterals;

namespace {
const QString utilTitle = u"시설/자재 관리자"_s;

/** Whole won, half a won away from zero. */
QString utilStockWorth(const RegisterFields& record) {
  return QString::number(qRound64(typedNumber(record[u"UtilStock"_s]).toDouble() *
                                  typedNumber(record[u"UtilPurchase"_s]).toDouble()));
}
}  // namespace

UtilCatalogue::UtilCatalogue(Session& session)
    : RegisterRules(
          session, {u"Util"_s}, utilTitle,
          {u"Select * From Util Order By Code"_s,
           {field::text(u"Name"_s, u"품명"_s, 24), field::text(u"Size"_s, u"규격"_s, 14),
            field::money(u"UtilPurchase"_s, u"구입단가"_s), field::money(u"UtilSelling"_s, u"판매단가"_s),
            field::money(u"UtilStock"_s, u"재고량"_s, 10),
            computes(column::money(u"재고액"_s, 14), utilStockWorth),
            field::integer(u"Code"_s, u"코드"_s, 7)},
           u"시설/자재 현황"_s}) {}

RegisterRules::Outcome UtilCatalogue::checkRequired(const RegisterFields& boxes) {
  if (boxes[u"Name"_s].isEmpty())
    return refuse(u"시설/자재의 품명을 입력해 주십시오"_s, utilTitle, u"Name"_s);
  if (boxes[u"Size"_s].isEmpty())
    return refuse(u"시설/자재의 규격을 입력해 주십시오"_s, utilTitle, u"Size"_s);
  return {true};
}

/** Materials are known by name and size together. */
QString UtilCatalogue::whereIs(const RegisterFields& row) {
  return u" Where Name = '"_s + plainText(row[u"Name"_s]) + u"' And Size = '"_s + plainText(row[u"Size"_s]) +
         u"'"_s;
}

RegisterRules::Outcome UtilCatalogue::insert(const RegisterFields& boxes) {
  if (Outcome required = checkRequired(boxes); !required.done) return required;
  const QString name = boxes[u"Name"_s], size = boxes[u"Size"_s];
  const Found twin = lookFor(u"Select * From Util Where Name = '"_s + plainText(name) + u"' And Size = '"_s +
                             plainText(size) + u"'"_s);
  if (twin == Found::Failed) return {};
  if (twin == Found::Something)
    return refuse(name + u" "_s + size + u" 의 시설/자재는 이미 등록되어 있습니다!"_s, utilTitle, u"Name"_s);
  session_.dbBasic.Execute(
      u"Insert into Util(Name,  Size, SizeSize, UtilPurchase, UtilSelling, UtilStock) Values('"_s +
      plainText(name) + u"', '"_s + plainText(size) + u"', '"_s + plainText(boxes[u"SizeSize"_s]) + u"', "_s +
      typedNumber(boxes[u"UtilPurchase"_s]) + u", "_s + typedNumber(boxes[u"UtilSelling"_s]) + u", "_s +
      typedNumber(boxes[u"UtilStock"_s]) + u")"_s);
  return {true};
}

RegisterRules::Outcome UtilCatalogue::change(const RegisterFields& boxes) {
  if (Outcome required = checkRequired(boxes); !required.done) return required;
  if (!session_.prompts.MsgAsk(u"선택된 자료를 위와 같이 변경하시겠습니까?"_s, utilTitle)) return {};
  return changeChosen(boxes, utilTitle,
                      [&](const RowChange& change, const RegisterFields& row, const RegisterFields& stored) {
                        session_.dbBasic.Execute(
                            u"Update Util Set Name = '"_s + plainText(row[u"Name"_s]) + u"', Size = '"_s +
                            plainText(row[u"Size"_s]) + u"', SizeSize = '"_s + plainText(row[u"SizeSize"_s]) +
                            u"', UtilPurchase = '"_s + typedNumber(row[u"UtilPurchase"_s]) +
                            u"', UtilSelling = '"_s + typedNumber(row[u"UtilSelling"_s]) + u"'"_s +
                            movedFigures(change, stored) + whereIs(stored));
                      });
}

RegisterRules::Outcome UtilCatalogue::erase() {
  if (!selectedRow()) return {};
  return eraseChosen(record()[u"Name"_s] + u' ' + record()[u"Size"_s], u"선택된 자료를 삭제하시겠습니까?"_s,
                     utilTitle,
                     [&] { session_.dbBasic.Execute(u"Delete * From Util"_s + whereIs(record())); });
}
