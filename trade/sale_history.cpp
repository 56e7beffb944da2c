#include "trade/sale_history.h"

#include <functional>

#include "store/data_access.h"
#include "store/jet/error.h"
#include "store/jet/sql.h"
#include "store/text_width.h"
#include "store/year_file.h"
#include "trade/sale_items.h"
#include "trade/sale_line.h"

using namespace Qt::StringLiterals;

namespace {

/** Hands over the customer's newest lines, so many as fit the condition. */
void eachLastSale(const Session& session, QStringView columns, const QString& client, QStringView which,
                  int count, const std::function<void(const jet::Recordset&)>& take) {
  const auto read = [&](const QString& table) {
    jet::Sql sql;
    sql << u"Select Top " << count << u" " << columns << u" From " << table << u" Where ClientCode = "
        << plainNumber(client) << which << u" Order By SaleDate Desc, SaleID Desc";
    for (jet::Recordset lines = session.dbYear.OpenRecordset(sql); !lines.atEnd(); lines.MoveNext()) {
      take(lines);
      --count;
    }
  };
  read(u"Sale"_s);
  const QString yearBefore = yearFile(session, session.WorkYear.toInt() - 1);
  if (count <= 0 || !session.pc.paths.exists(yearBefore)) return;
  try {
    read(u"["_s + plainPath(yearBefore) + u"].Sale"_s);
  } catch (const jet::Error&) {  // a file of an old year that cannot be read must not hold up the day's work
  }
}

bool isWithTheShop(const Session& session, const QString& person) {
  jet::Recordset staff = session.dbBasic.OpenRecordset(u"Select Name From Response"_s);
  for (; !staff.atEnd(); staff.MoveNext())
    if (staff[u"Name"_s].toText() == person) return true;
  return false;
}

}  // namespace

std::vector<SaleLastLine> lastSaleLines(const Session& session, const QString& client, int count) {
  std::vector<SaleLastLine> last;
  eachLastSale(session, u"*", client, u"", count, [&](const jet::Recordset& line) {
    const int kind = int(line[u"SaleGubun"_s].toLong());
    const bool collection = isCollection(kind);
    const double income = line[u"Income"_s].toDouble(), trust = line[u"Trust"_s].toDouble();
    last.push_back({line[u"SaleDate"_s].toText().right(5), saleLabel(kind),
                    collection ? collectionItem(kind)
                               : joinItem({line[u"SaleName"_s].toText(), line[u"SaleThing"_s].toText()}),
                    collection ? QString() : moneyText(line[u"SaleNum"_s].toDouble()),
                    moneyText(collection ? income : income + trust), moneyText(trust)});
  });
  return last;
}

SaleOffer lastSaleOffer(Session& session, SaleSheet sheet, int kind, const QString& client) {
  SaleOffer offer;
  eachLastSale(session, u"Response", client, u" And Response <> ''", 1, [&](const jet::Recordset& line) {
    if (const QString person = line[u"Response"_s].toText();
        offer.person.isEmpty() && isWithTheShop(session, person))
      offer.person = person;
  });
  if (isCollection(kind)) return offer;
  jet::Sql which;
  which << u" And SaleName <> '' And SaleGubun = " << kind
        << (sheet == SaleSheet::Volume ? u" And Gubun = True" : u" And Gubun = False");
  eachLastSale(session, u"SaleName, SaleThing, SaleUnit", client, which, 1, [&](const jet::Recordset& line) {
    const ItemText item{line[u"SaleName"_s].toText(), line[u"SaleThing"_s].toText()};
    const std::vector<ItemChoice> stands = saleItemsNamed(session, kind, joinItem(item));
    if (stands.size() != 1) return;
    offer.item = item;
    offer.unit = line[u"SaleUnit"_s].toDouble();
    if (offer.unit == 0) offer.unit = stands.front().price;
  });
  return offer;
}
