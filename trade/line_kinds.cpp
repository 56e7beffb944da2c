#include "trade/line_kinds.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr StockTable gasStock{u"LPG", u"LPGName"};
constexpr StockTable materialStock{u"Util", u"Name"};
constexpr auto oddSetter = u"CANEmpty = CANEMpty + ";

constexpr auto ofGas = LineBalance::Gas;
constexpr auto ofMaterial = LineBalance::Material;

// A row: code, label, item search, text of a payment, balance, balance of a deletion, stock table, effects of one piece
// more on the line. The order is that of the combo cell.
// clang-format off

const LineKinds& gasSales() {
  static const LineKinds kinds = {
      {SaleGas, u"가스"_s, u"1"_s, {}, ofGas, ofGas, &gasStock,
       {{u"LPGStock", -1, true}, {u"CANFull", -1}, {u"CANEmpty", +1}}, true},
      {SaleCollection, u"수금"_s, {}, u"가스수금"_s, ofGas, ofGas},
      {SaleLoan, u"용대"_s, u"5"_s, {}, ofGas, ofGas, &gasStock,
       {{u"CANEmpty", -1, false, oddSetter, StockMode::Delete}, {u"CANLoan", +1}}, true},
      {SaleReturn, u"용회"_s, u"6"_s, {}, ofGas, ofGas, &gasStock,
       {{u"CANEmpty", +1, false, oddSetter, StockMode::Change}, {u"CANLoan", -1}}},
      {SaleCylinder, u"용판"_s, u"2"_s, {}, ofGas, ofGas, &gasStock,
       {{u"CANEmpty", -1}, {u"CANTotalHold", -1}}},
      {SaleFullCylinder, u"실병"_s, u"3"_s, {}, ofGas, ofGas, &gasStock,
       {{u"LPGStock", -1, true}, {u"CANTotalHold", -1}, {u"CANFull", -1}}},
  };
  return kinds;
}

const LineKinds& materialSales() {
  static const LineKinds kinds = {
      // Kept: the credit of a deleted line comes off the gas balance although it was booked on the other.
      {SaleMaterial, u"자판"_s, u"4"_s, {}, ofMaterial, ofGas, &materialStock, {{u"UtilStock", -1}}},
      {SaleMaterialCollection, u"자수"_s, {}, u"자재수금"_s, ofMaterial, ofMaterial},
  };
  return kinds;
}

// What a station is owed goes down by what is paid, and a deletion is exact. Cylinders left with a station are away from
// the yard as those lent to a customer are: one count.
const LineKinds& purchases() {
  static const LineKinds kinds = {
      {BuyGas, u"가스"_s, u"1"_s, {}, ofGas, ofGas, &gasStock,
       {{u"LPGStock", +1, true}, {u"CANFull", +1}, {u"CANEmpty", -1}}},
      {BuyCylinder, u"용기"_s, u"2"_s, {}, ofGas, ofGas, &gasStock, {{u"CANEmpty", +1}, {u"CANTotalHold", +1}}},
      {BuyLeft, u"보관"_s, u"5"_s, {}, ofGas, ofGas, &gasStock, {{u"CANEmpty", -1}, {u"CANLoan", +1}}},
      {BuyTakenBack, u"회수"_s, u"6"_s, {}, ofGas, ofGas, &gasStock, {{u"CANEmpty", +1}, {u"CANLoan", -1}}},
      {BuyFullCylinder, u"실병"_s, u"3"_s, {}, ofGas, ofGas, &gasStock,
       {{u"LPGStock", +1, true}, {u"CANTotalHold", +1}, {u"CANFull", +1}}},
      {BuyGasPayment, u"가외"_s, {}, u"가스지급"_s, ofGas, ofGas},
      {BuyMaterial, u"자재"_s, u"4"_s, {}, ofMaterial, ofMaterial, &materialStock, {{u"UtilStock", +1}}},
      {BuyMaterialPayment, u"자외"_s, {}, u"자재지급"_s, ofMaterial, ofMaterial},
  };
  return kinds;
}
// clang-format on

const LineKind* find(const LineKinds& kinds, int code) {
  const auto found =
      std::find_if(kinds.begin(), kinds.end(), [code](const LineKind& kind) { return kind.code == code; });
  return found == kinds.end() ? nullptr : &*found;
}

QString kindIs(std::initializer_list<const LineKinds*> tables, const QString& column, LineBalance balance,
               KindPart part) {
  QStringList codes;
  for (const LineKinds* const kinds : tables)
    for (const LineKind& kind : *kinds)
      if (kind.balance == balance && (part == KindPart::All || kind.isPayment() == (part == KindPart::Paid)))
        codes << column + u" = "_s + QString::number(kind.code);
  return u'(' + codes.join(u" Or "_s) + u')';
}

QString isGasGoods(QString (*is)(const QString&, LineBalance, KindPart), const QString& column) {
  return u"Not ("_s + is(column, LineBalance::Gas, KindPart::Paid) + u" Or "_s +
         is(column, LineBalance::Material, KindPart::All) + u')';
}

const LineKind& noKind() {
  static const LineKind none{};
  return none;
}

}  // namespace

const LineKinds& saleKinds(SaleSheet sheet) {
  return sheet == SaleSheet::Material ? materialSales() : gasSales();
}

QString saleKindIs(const QString& column, LineBalance balance, KindPart part) {
  return kindIs({&gasSales(), &materialSales()}, column, balance, part);
}

QString buyKindIs(const QString& column, LineBalance balance, KindPart part) {
  return kindIs({&purchases()}, column, balance, part);
}

QString saleIsGasGoods(const QString& column) {
  return isGasGoods(saleKindIs, column);
}

QString buyIsGasGoods(const QString& column) {
  return isGasGoods(buyKindIs, column);
}

QStringList labelsOf(const LineKinds& kinds) {
  QStringList labels;
  for (const LineKind& kind : kinds) labels << kind.label;
  return labels;
}

const LineKind& kindAt(const LineKinds& kinds, int position) {
  return kinds[position >= 0 && size_t(position) < kinds.size() ? size_t(position) : 0];
}

int positionOf(const LineKinds& kinds, int code) {
  const LineKind* const kind = find(kinds, code);
  return kind ? int(kind - kinds.data()) : int(kinds.size()) - 1;
}

const LineKinds& buyKinds() {
  return purchases();
}

const LineKind& saleKind(int code) {
  const LineKind* const gas = find(gasSales(), code);
  const LineKind* const kind = gas ? gas : find(materialSales(), code);
  return kind ? *kind : noKind();
}

const LineKind& buyKind(int code) {
  const LineKind* const kind = find(purchases(), code);
  return kind ? *kind : noKind();
}
