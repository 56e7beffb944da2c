#include "trade/sale_kinds.h"

#include <algorithm>
#include <iterator>

namespace {

struct SaleKindRow {
  int code;
  const char16_t* label;
  const char16_t* searchCode;
};

// In the order of the combo cell.
constexpr SaleKindRow gasKinds[] = {
    {SaleGas, u"가스", u"1"},    {SaleCollection, u"수금", u""}, {SaleLoan, u"용대", u"5"},
    {SaleReturn, u"용회", u"6"}, {SaleCylinder, u"용판", u"2"},  {SaleFullCylinder, u"실병", u"3"},
};
constexpr SaleKindRow materialKinds[] = {
    {SaleMaterial, u"자판", u"4"},
    {SaleMaterialCollection, u"자수", u""},
};

struct SaleKindList {
  const SaleKindRow* first;
  int count;
  const SaleKindRow* begin() const { return first; }
  const SaleKindRow* end() const { return first + count; }
};

SaleKindList saleKindsOf(SaleSheet sheet) {
  if (sheet == SaleSheet::Material) return {materialKinds, int(std::size(materialKinds))};
  return {gasKinds, int(std::size(gasKinds))};
}

const SaleKindRow* saleKindRow(int kind) {
  for (const SaleSheet sheet : {SaleSheet::General, SaleSheet::Material})
    for (const SaleKindRow& row : saleKindsOf(sheet))
      if (row.code == kind) return &row;
  return nullptr;
}

}  // namespace

QStringList saleLabels(SaleSheet sheet) {
  QStringList labels;
  for (const SaleKindRow& kind : saleKindsOf(sheet)) labels << QString::fromUtf16(kind.label);
  return labels;
}

int saleKindAt(SaleSheet sheet, int position) {
  const SaleKindList kinds = saleKindsOf(sheet);
  return kinds.first[position >= 0 && position < kinds.count ? position : 0].code;
}

int salePositionOf(SaleSheet sheet, int kind) {
  const SaleKindList kinds = saleKindsOf(sheet);
  const auto* found =
      std::find_if(kinds.begin(), kinds.end(), [kind](const SaleKindRow& row) { return row.code == kind; });
  return std::min(int(found - kinds.begin()), kinds.count - 1);
}

QString saleLabel(int kind) {
  const SaleKindRow* const row = saleKindRow(kind);
  return row ? QString::fromUtf16(row->label) : QString();
}

QString saleSearchCode(int kind) {
  const SaleKindRow* const row = saleKindRow(kind);
  return row ? QString::fromUtf16(row->searchCode) : QString();
}
