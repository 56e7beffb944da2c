#include "trade/stock_walk.h"

#include <map>

#include "store/data_access.h"
#include "store/jet/error.h"
#include "store/jet/sql.h"
#include "store/jet/text_rules.h"
#include "store/year_file.h"
#include "trade/line_kinds.h"

using namespace Qt::StringLiterals;

namespace {

/** What one item's lines add up to. */
struct Counters {
  qint64 bought = 0, sold = 0, canBought = 0, canSold = 0, canLent = 0, canReturned = 0;

  qint64 gone() const { return sold - bought; }
  qint64 cansGone() const { return canSold - canBought + canLent - canReturned; }
};

/** Inside the period, and since its first day. */
struct ItemCounters {
  Counters within, since;
};

/** Texts as the language compares them. */
struct ItemOrder {
  bool operator()(const std::pair<QString, QString>& a, const std::pair<QString, QString>& b) const {
    const int names = jet::compareText(a.first, b.first);
    return names < 0 || (names == 0 && jet::compareText(a.second, b.second) < 0);
  }
};
using Items = std::map<std::pair<QString, QString>, ItemCounters, ItemOrder>;

/** Which counters a kind's pieces go to. */
void count(Counters& to, bool sale, int kind, qint64 pieces) {
  if (sale) {
    if (kind == SaleGas || kind == SaleFullCylinder || kind == SaleMaterial) to.sold += pieces;
    if (kind == SaleFullCylinder || kind == SaleCylinder) to.canSold += pieces;
    if (kind == SaleLoan) to.canLent += pieces;
    if (kind == SaleReturn) to.canReturned += pieces;
    return;
  }
  if (kind == BuyGas || kind == BuyFullCylinder || kind == BuyMaterial) to.bought += pieces;
  if (kind == BuyFullCylinder || kind == BuyCylinder) to.canBought += pieces;
  if (kind == BuyLeft) to.canLent += pieces;
  if (kind == BuyTakenBack) to.canReturned += pieces;
}

class StockWalk {
 public:
  StockWalk(Session& session, StockWalkOf what, const QString& start, const QString& end)
      : session_(session), what_(what), start_(start), end_(end) {}

  void clear() {
    db().Execute(u"Delete * From TmpLPGCAN"_s);
    db().Execute(u"Delete * From TmpLPGCANStock"_s);
  }

  std::vector<StockInOut> run(const std::function<void(int, int)>& told) {
    clear();
    const int first = start_.left(4).toInt(), open = openedYear(session_);
    copyLines({}, lineDays(session_, open));
    for (const int year : yearsThere(session_))  // also those after the clock's, which may have been put back
      if (year != open && year >= first) copyLines(yearFile(session_, year), lineDays(session_, year));
    fillItems();
    countLines();
    writeItems(told);
    return result();
  }

 private:
  jet::Database& db() { return session_.dbYear; }
  bool gas() const { return what_ == StockWalkOf::Gas; }

  /** Lines from the first day to today: the later ones are needed for the walk back. file: '' for the open year's. */
  void copyLines(const QString& file, LineDays own) {
    own.first = std::max(own.first, start_);
    const QString from = file.isEmpty() ? QString() : u"["_s + plainPath(file) + u"]."_s;
    db().Execute(
        u"Insert Into TmpLPGCAN(SaleDate, ClientCode, Response, SaleName, SaleThing, SaleUnit, SaleNum, "
        u"SaleGubun, Gubun, Income, Trust, DC) Select SaleDate, ClientCode, Response, "
        u"SaleName, SaleThing, SaleUnit, SaleNum, SaleGubun, True, Income, Trust, DC From "_s +
        from + u"Sale Where "_s + daysAre(u"Sale.SaleDate"_s, own) + u" And "_s +
        (gas() ? saleIsGasGoods(u"Sale.SaleGubun"_s)
               : saleKindIs(u"Sale.SaleGubun"_s, LineBalance::Material, KindPart::Sold)));
    db().Execute(
        u"Insert Into TmpLPGCAN(SaleDate, Response, SaleName, SaleThing, SaleUnit, SaleNum, "
        u"SaleGubun, Gubun, Income, Trust, DC) Select BuyDate, Response, "
        u"BuyName, BuyThing, PurchaseUnit, PurchaseNum, PurchaseGubun, False, Pay, Trust, DC From "_s +
        from + u"Buy Where "_s + daysAre(u"Buy.BuyDate"_s, own) + u" And "_s +
        (gas() ? buyIsGasGoods(u"Buy.PurchaseGubun"_s)
               : buyKindIs(u"Buy.PurchaseGubun"_s, LineBalance::Material, KindPart::Sold)));
  }

  /** Every item has a row, with lines or without. */
  void fillItems() {
    db().Execute(gas() ? u"Insert Into TmpLPGCANStock(Name, Size, LPGStock, CANStock) "
                         u"SELECT DISTINCT LPG.LPGName, LPG.Size, LPG.CANFull, (LPG.CANFull + LPG.CANEmpty) "
                         u"AS CANTotal FROM LPG"_s
                       : u"Insert Into TmpLPGCANStock(Name, Size, LPGStock, CANBuy) "
                         u"SELECT DISTINCT Util.Name, Util.Size, Util.UtilStock, 0 FROM Util"_s);
  }

  /** One pass over the lines. */
  void countLines() {
    for (jet::Recordset item = db().OpenRecordset(u"Select Name, Size From TmpLPGCANStock"_s); !item.atEnd();
         item.MoveNext())
      items_[{item[0].toText(), item[1].toText()}];
    jet::Recordset line = db().OpenRecordset(
        u"Select SaleName, SaleThing, SaleGubun, Gubun, SaleNum, SaleDate From TmpLPGCAN"_s);
    QHash<std::pair<QString, QString>, ItemCounters*> known;  // as they are spelled on the lines
    for (; !line.atEnd(); line.MoveNext()) {
      const std::pair<QString, QString> named{line[0].toText(), line[1].toText()};
      auto at = known.constFind(named);
      if (at == known.constEnd()) {
        const auto item = items_.find(named);
        at = known.insert(named, item == items_.end() ? nullptr : &item->second);
      }
      if (!*at) continue;  // an item that the catalogue has no longer
      const int kind = int(line[2].toLong());
      const bool sale = line[3].toBool();
      const qint64 pieces = line[4].toLong();
      count((*at)->since, sale, kind, pieces);
      if (line[5].toText() <= end_) count((*at)->within, sale, kind, pieces);
    }
  }

  void writeItems(const std::function<void(int, int)>& told) {
    int done = 0;
    for (const auto& [item, counted] : items_) {
      const QString where = u" Where Name = '"_s + copiedText(item.first) + u"' And Size = '"_s +
                            copiedText(item.second) + u"'"_s;
      const Counters& in = counted.within;
      db().Execute(jet::Sql() << u"Update TmpLPGCANStock Set LPGBuy = " << in.bought << u", LPGSale = "
                              << in.sold << u", CANBuy = " << in.canBought << u", CANSale = " << in.canSold
                              << u", CANLent = " << in.canLent << u", CANReturn = " << in.canReturned
                              << where);
      db().Execute(jet::Sql() << u"Update TmpLPGCANStock Set LPGPreStock = LPGStock + "
                              << counted.since.gone() << u", CANPreStock = CANStock + "
                              << counted.since.cansGone() << where);
      if (told) told(++done, int(items_.size()));
    }
    db().Execute(gas() ? u"Update TmpLPGCANStock Set "
                         u"LPGStock = LPGPreStock + lpgbuy - lpgsale , "
                         u"CANStock = CANPreStock + canbuy - cansale + CANReturn - CANLent "_s
                       : u"Update TmpLPGCANStock Set LPGStock = LPGPreStock + lpgbuy - lpgsale "_s);
  }

  std::vector<StockInOut> result() {
    std::vector<StockInOut> rows;
    for (jet::Recordset row = db().OpenRecordset(u"Select * From TmpLPGCANStock"_s); !row.atEnd();
         row.MoveNext()) {
      const auto whole = [&row](const char* column) { return row[column].toLong(); };
      rows.push_back({row["Name"].toText(), row["Size"].toText(), whole("LPGPreStock"), whole("LPGBuy"),
                      whole("LPGSale"), whole("LPGStock"), whole("CANPreStock"), whole("CANBuy"),
                      whole("CANSale"), whole("CANLent"), whole("CANReturn"), whole("CANStock")});
    }
    return rows;
  }

  Session& session_;
  const StockWalkOf what_;
  const QString start_, end_;
  Items items_;
};

}  // namespace

std::optional<std::vector<StockInOut>> walkStock(Session& session, StockWalkOf what, const QString& start,
                                                 const QString& end,
                                                 const std::function<void(int, int)>& told) {
  const QString first = start.left(4);
  if (first.toInt() < openedYear(session) && !session.pc.paths.exists(yearFile(session, first))) {
    session.prompts.MsgWarn(first + u"년의 자료가 없습니다!"_s, u"조회 관리자"_s);
    return {};
  }
  StockWalk walk(session, what, start, end);
  try {
    std::vector<StockInOut> rows;
    session.wsMain.Together([&] { rows = walk.run(told); });
    return rows;
  } catch (const jet::Error& error) {
    session.prompts.MsgWarn(error.description(), u"계산오류"_s);
  }
  try {
    session.wsMain.Together([&] { walk.clear(); });
  } catch (const jet::Error&) {  // where nothing can be written, nothing was
  }
  return {};
}
