#include "master/catalogue/gas_catalogue.h"

#include "store/data_access.h"

#include <QtMath>

using namespace Qt::StringLiterals;

namespace {
const QString gasTitle = u"LPG/용기 관리자"_s;

double gasNumber(const RegisterFields& fields, const QString& column) {
  return typedNumber(fields.value(column)).toDouble();
}
}  // namespace

GasCatalogue::GasCatalogue(Session& session)
    : RegisterRules(
          session, {u"LPG"_s}, gasTitle,
          {u"Select * From LPG Order By Code"_s,
           {field::text(u"LPGName"_s, u"품명"_s, 12), field::right(u"Size"_s, u"규격"_s, 6),
            field::money(u"LPGPurchase"_s, u"가스구입가"_s, 10),
            field::money(u"LPGSelling"_s, u"가스판매가"_s, 10),
            field::money(u"CANPurchase"_s, u"용기구입가"_s, 10),
            field::money(u"CANSelling"_s, u"용기판매가"_s, 10), field::money(u"CANFull"_s, u"실병재고"_s, 8),
            field::money(u"CANEmpty"_s, u"공병재고"_s, 8), field::money(u"CANLoan"_s, u"용기대여"_s, 8),
            computes(column::money(u"보유용기"_s, 8), totalHold),
            field::money(u"LPGStock"_s, u"가스재고"_s, 9),
            computes(column::money(u"재고액"_s),
                     [](const RegisterFields& record) { return QString::number(stockWorth(record)); })},
           u"가스/용기 현황"_s}) {}

QString GasCatalogue::defaultName() {
  return u"LPG"_s;
}

QString GasCatalogue::totalHold(const RegisterFields& boxes) {
  return jet::Value(gasNumber(boxes, u"CANEmpty"_s) + gasNumber(boxes, u"CANFull"_s) +
                    gasNumber(boxes, u"CANLoan"_s))
      .toText();
}

qint64 GasCatalogue::stockWorth(const RegisterFields& record) {
  const double size = gasNumber(record, u"Size"_s);
  if (size == 0) return 0;
  return qRound64(gasNumber(record, u"LPGStock"_s) * gasNumber(record, u"LPGPurchase"_s) / size);
}

RegisterRules::Outcome GasCatalogue::insert(const RegisterFields& boxes) {
  const QString name = boxes[u"LPGName"_s], size = boxes[u"Size"_s];
  if (name.isEmpty()) return refuse(u"품명은 필수입력사항입니다!"_s, u"LPG 관리자"_s, u"LPGName"_s);
  if (size.isEmpty()) return refuse(u"LPG/용기의 용량은 필수입력사항입니다!"_s, u"LPG 관리자"_s, u"Size"_s);
  const Found twin = lookFor(u"Select * From LPG Where Size = '"_s + plainText(size) +
                             u"' And LPGName = '"_s + plainText(name) + u"'"_s);
  if (twin == Found::Failed) return {};
  if (twin == Found::Something)
    return refuse(u"용량이 "_s + size + u"KG의 LPG/용기는 이미 등록되어 있습니다!"_s, gasTitle, u"Size"_s);

  const auto number = [&](const QString& column) { return typedNumber(boxes[column]); };
  session_.dbBasic.Execute(
      u"Insert Into LPG(LPGName, Size, LPGPurchase, LPGSelling, CANPurchase, CANSelling, LPGStock, "
      u"CANTotalHold, CANLoan, CANFull, CANEmpty) Values('"_s +
      plainText(name) + u"', '"_s + plainText(size) + u"', "_s + number(u"LPGPurchase"_s) + u", "_s +
      number(u"LPGSelling"_s) + u", "_s + number(u"CANPurchase"_s) + u", "_s + number(u"CANSelling"_s) +
      u", "_s + number(u"LPGStock"_s) + u", "_s + totalHold(boxes) + u", "_s + number(u"CANLoan"_s) +
      u", "_s + number(u"CANFull"_s) + u", "_s + number(u"CANEmpty"_s) + u")"_s);
  return {true};
}

QStringList GasCatalogue::runningColumns() const {
  return {u"CANLoan"_s, u"CANEmpty"_s, u"CANFull"_s, u"LPGStock"_s};
}

/** The cylinders held follow a corrected count; counts that were left alone leave them alone. */
QString GasCatalogue::movedTotal(const RowChange& change, const RegisterFields& stored) {
  double moved = 0;
  bool any = false;
  for (const QString& count : {u"CANLoan"_s, u"CANEmpty"_s, u"CANFull"_s}) {
    moved += movedBy(change, count);
    any = any || movedBy(change, count) != 0;
  }
  if (!any) return {};
  return u", CANTotalHold = "_s + jet::Value(typedNumber(totalHold(stored)).toDouble() + moved).toText();
}

// The size of a stored row stays as it is, digit by digit, whatever the box says: name and size are what posted lines
// go by. An emptied name is stored as it is.
RegisterRules::Outcome GasCatalogue::change(const RegisterFields& boxes) {
  if (!session_.prompts.MsgAsk(u"선택된 자료를 위와 같이 변경하시겠습니까?"_s, gasTitle)) return {};
  RegisterFields typed = boxes;
  typed.remove(u"Size"_s);
  return changeChosen(
      typed, gasTitle, [&](const RowChange& change, const RegisterFields& row, const RegisterFields& stored) {
        const auto number = [&](const QString& column) { return typedNumber(row[column]); };
        session_.dbBasic.Execute(u"Update LPG Set LPGName = '"_s + plainText(row[u"LPGName"_s]) +
                                 u"', LPGPurchase = "_s + number(u"LPGPurchase"_s) + u", LPGSelling = "_s +
                                 number(u"LPGSelling"_s) + u", CANPurchase = "_s + number(u"CANPurchase"_s) +
                                 u", CANSelling = "_s + number(u"CANSelling"_s) +
                                 movedFigures(change, stored) + movedTotal(change, stored) +
                                 u" Where Code = "_s + plainNumber(record()[u"Code"_s]));
      });
}

RegisterRules::Outcome GasCatalogue::erase() {
  if (!selectedRow()) return {};
  return eraseChosen(
      record()[u"LPGName"_s] + u' ' + record()[u"Size"_s] + u"KG"_s,
      u"선택된 LPG/용기에 대한 자료를 삭제하시겠습니까?"_s, gasTitle, [&] {
        session_.dbBasic.Execute(u"Delete * From LPG Where Code = "_s + plainNumber(record()[u"Code"_s]));
      });
}
