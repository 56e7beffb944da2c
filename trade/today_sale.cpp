#include "trade/today_sale.h"

#include "store/data_access.h"

using namespace Qt::StringLiterals;

namespace {

/** Of the day's lines, by sheet. */
const QString daySumMaterial = saleKindIs(u"SaleGubun"_s, LineBalance::Material);
const QString daySumFilters[] = {u" And Gubun = False And Not "_s + daySumMaterial, u" And Gubun = True"_s,
                                 u" And "_s + daySumMaterial};

}  // namespace

QString TodaySale::title() const {
  return session_.SaleDay.mid(5).replace(u'-', u'/') + u"일의 판매현황"_s;
}

bool TodaySale::load() {
  for (const SaleSheet sheet : {SaleSheet::General, SaleSheet::Volume, SaleSheet::Material}) {
    jet::Recordset rows;
    if (!OpenSnapshot(session_.prompts, session_.dbYear, rows,
                      u"SELECT Sum(Sale.SaleNum) AS SaleNum, Sum(Sale.Income) AS Income, Sum(Sale.DC) AS DC, "
                      u"Sum(Sale.Trust) AS Trust FROM Sale Where SaleDate = '"_s +
                          plainText(session_.SaleDay) + u"'"_s + daySumFilters[size_t(sheet)]))
      return false;
    sums_[size_t(sheet)] = {rows[u"SaleNum"_s].toLong(), rows[u"Income"_s].toLong(), rows[u"DC"_s].toLong(),
                            rows[u"Trust"_s].toLong()};
  }
  return true;
}
