#include "trade/line_history.h"

#include <functional>

#include "store/data_access.h"
#include "store/jet/error.h"
#include "store/jet/sql.h"
#include "store/text_width.h"
#include "store/year_file.h"
#include "trade/line_items.h"
#include "trade/trade_line.h"

using namespace Qt::StringLiterals;

namespace {

/** Hands over the partner's newest lines, so many as fit the condition. */
void eachLastLine(const Session& session, const LineTable& of, QStringView columns, const QString& partner,
                  QStringView which, int count, const std::function<void(const jet::Recordset&)>& take) {
  const QString own = of.partnerIsText ? u"'"_s + plainText(partner) + u"'"_s : plainNumber(partner);
  const auto read = [&](const QString& table, const QString& since) {
    jet::Sql sql;
    sql << u"Select Top " << count << u" " << columns << u" From " << table << u" Where " << of.partner
        << u" = " << own << which << since << u" Order By " << of.date << u" Desc, " << of.key << u" Desc";
    for (jet::Recordset lines = session.dbYear.OpenRecordset(sql); !lines.atEnd(); lines.MoveNext()) {
      take(lines);
      --count;
    }
  };
  const int open = openedYear(session);
  const QString yearBefore = yearFile(session, open - 1);
  const bool hasBefore = session.pc.paths.exists(yearBefore);
  QString since;
  if (hasBefore)  // a closing leaves a copy of that year in the open file
    since = u" And "_s + plainPath(of.date) + u" >= '"_s + plainText(lineDays(session, open).first) + u"'"_s;
  read(of.table, since);
  if (count <= 0 || !hasBefore) return;
  try {
    read(u"["_s + plainPath(yearBefore) + u"]."_s + of.table, {});
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

std::vector<LastLine> lastLinesOf(const Session& session, const LineTable& of, const QString& partner,
                                  int count) {
  std::vector<LastLine> last;
  eachLastLine(session, of, u"*", partner, u"", count, [&](const jet::Recordset& line) {
    const LineKind& kind = of.kindOf(int(line[of.kind].toLong()));
    const double paid = line[of.paid].toDouble(), trust = line[u"Trust"_s].toDouble();
    last.push_back(
        {line[of.date].toText().right(5), kind.label,
         kind.isPayment() ? kind.paymentText : joinItem({line[of.name].toText(), line[of.size].toText()}),
         kind.isPayment() ? QString() : moneyText(line[of.number].toDouble()),
         moneyText(kind.isPayment() ? paid : paid + trust), moneyText(trust)});
  });
  return last;
}

LineOffer lastOffer(Session& session, const LineTable& of, TradeSide side, const LineKind& kind,
                    const QString& partner, QStringView which) {
  LineOffer offer;
  eachLastLine(session, of, u"Response", partner, u" And Response <> ''", 1, [&](const jet::Recordset& line) {
    if (const QString person = line[u"Response"_s].toText();
        offer.person.isEmpty() && isWithTheShop(session, person))
      offer.person = person;
  });
  if (kind.isPayment()) return offer;
  jet::Sql ofKind;
  ofKind << u" And " << of.name << u" <> '' And " << of.kind << u" = " << kind.code << which;
  const QString columns = of.name + u", "_s + of.size + u", "_s + of.unit;
  eachLastLine(session, of, columns, partner, ofKind, 1, [&](const jet::Recordset& line) {
    const ItemText item{line[of.name].toText(), line[of.size].toText()};
    const std::vector<ItemChoice> stands = lineItemsNamed(session, kind, side, joinItem(item));
    if (stands.size() != 1) return;
    offer.item = item;
    offer.unit = line[of.unit].toDouble();
    if (offer.unit == 0) offer.unit = stands.front().price;
  });
  return offer;
}
