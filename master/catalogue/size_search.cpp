#include "master/catalogue/size_search.h"

#include <algorithm>
#include <array>
#include <span>

#include "store/data_access.h"
#include "ui/model/column.h"

using namespace Qt::StringLiterals;

namespace {

/** One kind of posting line: its four headings, and the columns that price and count are read from (two price columns
 *  are added up, none is a price of nothing). */
struct SizeSearchWay {
  QStringView kind;
  std::array<QStringView, 4> headings;
  QStringView price, furtherPrice, count;

  /** Materials have a table of their own. */
  bool isLpg() const { return kind != u"4"; }
};

constexpr SizeSearchWay saleWays[] = {
    {u"1", {u"가스명", u"용  량", u"판매단가", u"실병재고"}, u"LPGSelling", {}, u"CANFull"},
    {u"2", {u"용기명", u"용  량", u"용기단가", u"공병재고"}, u"CANSelling", {}, u"CANEmpty"},
    {u"3", {u"품  명", u"용  량", u"판매단가", u"실병재고"}, u"LPGSelling", u"CANSelling", u"CANFull"},
    {u"4", {u"자재명", u"규  격", u"판매단가", u"현재재고"}, u"UtilSelling", {}, u"UtilStock"},
    {u"5", {u"용기명", u"용  량", u"대여단가", u"공병재고"}, {}, {}, u"CANEmpty"},
    {u"6", {u"용기명", u"용  량", u"회수단가", u"공병재고"}, {}, {}, u"CANEmpty"},
};

constexpr SizeSearchWay purchaseWays[] = {
    {u"1", {u"가스명", u"용  량", u"구매단가", u"공병재고"}, u"LPGPurchase", {}, u"CANEmpty"},
    {u"2", {u"용기명", u"용  량", u"용기단가", u"보유용기"}, u"CANPurchase", {}, u"CANTotalHold"},
    {u"3", {u"품  명", u"용  량", u"단    가", u"보유용기"}, u"LPGPurchase", u"CANPurchase", u"CANTotalHold"},
    {u"4", {u"품  명", u"규  격", u"구매단가", u"현재재고"}, u"UtilPurchase", {}, u"UtilStock"},
    {u"5", {u"용기명", u"용  량", u"대여단가", u"대여수량"}, {}, {}, u"CANLoan"},
    {u"6", {u"용기명", u"용  량", u"회수단가", u"용 기 수"}, {}, {}, u"CANLoan"},
};

const SizeSearchWay* sizeSearchWay(const QString& kind, TradeSide side) {
  const std::span<const SizeSearchWay> ways = side == TradeSide::Sale ? std::span(saleWays) : purchaseWays;
  const auto way = std::ranges::find(ways, QStringView(kind), &SizeSearchWay::kind);
  return way == ways.end() ? nullptr : &*way;
}

double figure(const jet::Recordset& rs, QStringView column) {
  return column.isEmpty() ? 0 : rs[column.toString()].toDouble();
}

std::vector<SpreadColumn> sizeSearchColumns(const SizeSearchWay& way) {
  const auto heading = [&](int at) { return way.headings[at].toString(); };
  return column::shown({column::text(heading(0), 20), column::centred(heading(1), 12),
                        column::money(heading(2), 12), column::money(heading(3), 10)});
}

}  // namespace

SizeSearch::SizeSearch(Session& session, const QString& kind, TradeSide side)
    : session_(session), kind_(kind), side_(side) {}

QString SizeSearch::title() const {
  return side_ == TradeSide::Purchase ? u"구매상품 조회"_s : u"판매상품조회"_s;
}

bool SizeSearch::load(SpreadModel& list) const {
  list.clear();
  const SizeSearchWay* way = sizeSearchWay(kind_, side_);
  if (!way) return true;
  list.setColumns(sizeSearchColumns(*way));

  const bool lpg = way->isLpg();
  jet::Recordset rs;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, rs,
                    lpg ? u"Select * From LPG Order By Code"_s : u"Select * From Util Order By Code"_s))
    return false;
  std::vector<std::vector<QString>> rows;
  for (; !rs.atEnd(); rs.MoveNext())
    rows.push_back({rs[lpg ? u"LPGName"_s : u"Name"_s].toText(), rs[u"Size"_s].toText(),
                    jet::Value(figure(rs, way->price) + figure(rs, way->furtherPrice)).toText(),
                    jet::Value(figure(rs, way->count)).toText()});
  list.setRows(std::move(rows));
  return true;
}

std::optional<ItemChoice> SizeSearch::choice(const SpreadModel& list, int row) {
  if (list.text(row, 1).isEmpty() && list.text(row, 2).isEmpty()) return {};
  return ItemChoice{list.text(row, 1), list.text(row, 2), jet::Value(list.text(row, 3)).toDouble(),
                    jet::Value(list.text(row, 4)).toDouble()};
}
