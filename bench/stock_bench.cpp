// The stock in and out of a period, and the forecast of deliveries, over a year's lines.
#include <QDate>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>
#include <string>
#include <unordered_map>

#include "bench/books.h"
#include "bench/pairs.h"
#include "trade/forecast.h"
#include "trade/stock_walk.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int items = 300;

/** So many lines over 300 items of the catalogue, a fifth of them purchases, all from January to March. */
void addItemLines(bench::Books& books, int lines) {
  books.session.wsMain.Together([&] {
    const jet::Database& year = books.session.dbYear;
    for (int at = 0; at < items; ++at)
      books.session.dbBasic.Execute(
          u"Insert Into LPG(LPGName, Size, CANFull, CANEmpty) Values('품목%1', '20', 100, 50)"_s.arg(at));
    for (int at = 0; at < lines; ++at) {
      const QString day =
          u"2026-%1-%2"_s.arg(1 + at % 3, 2, 10, QChar(u'0')).arg(1 + at % 28, 2, 10, QChar(u'0'));
      const QString item = QString::number(at % items), pieces = QString::number(1 + at % 4);
      const QString kind = QString::number(at % 7 == 0 ? 3 : at % 11 == 0 ? 5 : at % 13 == 0 ? 6 : 1);
      if (at % 5)
        year.Execute(
            "Insert Into Sale(SaleDate, ClientCode, SaleName, SaleThing, SaleNum, SaleGubun, Gubun) "
            "Values('" +
            day + "', 1, '품목" + item + "', '20', " + pieces + ", " + kind + ", False)");
      else
        year.Execute(
            "Insert Into Buy(BuyDate, BuyCompany, BuyName, BuyThing, PurchaseNum, PurchaseGubun) Values('" +
            day + "', '한강', '품목" + item + "', '20', " + pieces + ", " + kind + ")");
    }
  });
}

/** Opening, bought, sold, closing; of cylinders opening, bought, sold, lent, returned, closing. */
bench::Rows textsOf(const std::vector<StockInOut>& items) {
  bench::Rows rows;
  for (const StockInOut& item : items) {
    std::vector<QString>& row = rows.emplace_back(std::vector{item.name, item.size});
    for (const qint64 figure :
         {item.opening, item.bought, item.sold, item.closing, item.canOpening, item.canBought, item.canSold,
          item.canLent, item.canReturned, item.canClosing})
      row.push_back(QString::number(figure));
  }
  return rows;
}

/** The same tables filled with the same figures: lines copied, one pass, two statements an item. */
class PlainWalk {
 public:
  explicit PlainWalk(bench::Plain& plain)
      : begin_(plain.prepare("BEGIN IMMEDIATE")),
        commit_(plain.prepare("COMMIT")),
        noLines_(plain.prepare("DELETE FROM y.TmpLPGCAN")),
        noItems_(plain.prepare("DELETE FROM y.TmpLPGCANStock")),
        sales_(plain.prepare("INSERT INTO y.TmpLPGCAN(SaleDate, ClientCode, Response, SaleName, SaleThing, "
                             "SaleUnit, SaleNum, SaleGubun, "
                             "Gubun, Income, Trust, DC) SELECT SaleDate, ClientCode, Response, SaleName, "
                             "SaleThing, SaleUnit, SaleNum, "
                             "SaleGubun, -1, Income, Trust, DC FROM y.Sale WHERE SaleDate >= '2026-01-01' "
                             "AND SaleGubun NOT IN (4, 7, 8)")),
        purchases_(plain.prepare(
            "INSERT INTO y.TmpLPGCAN(SaleDate, Response, SaleName, SaleThing, SaleUnit, SaleNum, SaleGubun, "
            "Gubun, Income, "
            "Trust, DC) SELECT BuyDate, Response, BuyName, BuyThing, PurchaseUnit, PurchaseNum, "
            "PurchaseGubun, 0, Pay, "
            "Trust, DC FROM y.Buy WHERE BuyDate >= '2026-01-01' AND PurchaseGubun NOT IN (4, 7, 8)")),
        catalogue_(plain.prepare(
            "INSERT INTO y.TmpLPGCANStock(Name, Size, LPGStock, CANStock) SELECT DISTINCT LPGName, "
            "Size, CANFull, CANFull + CANEmpty FROM LPG")),
        items_(plain.prepare("SELECT Name, Size FROM y.TmpLPGCANStock")),
        lines_(plain.prepare(
            "SELECT SaleName, SaleThing, SaleGubun, Gubun, SaleNum, SaleDate FROM y.TmpLPGCAN")),
        moved_(
            plain.prepare("UPDATE y.TmpLPGCANStock SET LPGBuy = ?1, LPGSale = ?2, CANBuy = ?3, CANSale = ?4, "
                          "CANLent = ?5, CANReturn = ?6 WHERE Name = ?7 AND Size = ?8")),
        opened_(plain.prepare(
            "UPDATE y.TmpLPGCANStock SET LPGPreStock = LPGStock + ?1, CANPreStock = CANStock + ?2 "
            "WHERE Name = ?3 AND Size = ?4")),
        closed_(
            plain.prepare("UPDATE y.TmpLPGCANStock SET LPGStock = LPGPreStock + LPGBuy - LPGSale, CANStock = "
                          "CANPreStock + CANBuy - CANSale + CANReturn - CANLent")),
        rows_(plain.prepare("SELECT Name, Size, LPGPreStock, LPGBuy, LPGSale, LPGStock, CANPreStock, CANBuy, "
                            "CANSale, CANLent, CANReturn, CANStock FROM y.TmpLPGCANStock")) {}

  void run() {
    for (sqlite3_stmt* const each : {begin_, noLines_, noItems_, sales_, purchases_, catalogue_})
      bench::step(each);
    struct Counted {
      sqlite3_int64 in[6] = {}, gone = 0, cansGone = 0;
    };
    std::unordered_map<std::string, Counted> counted;  // by name and size
    std::string key;
    const auto countersOf = [&](sqlite3_stmt* named) -> Counted& {
      key = reinterpret_cast<const char*>(sqlite3_column_text(named, 0));
      key += '\n';
      key += reinterpret_cast<const char*>(sqlite3_column_text(named, 1));
      return counted[key];
    };
    while (sqlite3_step(items_) == SQLITE_ROW) countersOf(items_);
    sqlite3_reset(items_);
    while (sqlite3_step(lines_) == SQLITE_ROW) {
      Counted& of = countersOf(lines_);
      const int kind = sqlite3_column_int(lines_, 2);
      const bool sale = sqlite3_column_int(lines_, 3) != 0;
      const sqlite3_int64 pieces = sqlite3_column_int64(lines_, 4);
      const bool within =
          strcmp(reinterpret_cast<const char*>(sqlite3_column_text(lines_, 5)), "2026-02-28") <= 0;
      const auto count = [&](int at, sqlite3_int64& gone, int sign) {
        gone += sign * pieces;
        if (within) of.in[at] += pieces;
      };
      if (kind == 1 || kind == 3) count(sale ? 1 : 0, of.gone, sale ? 1 : -1);
      if (kind == 2 || kind == 3) count(sale ? 3 : 2, of.cansGone, sale ? 1 : -1);
      if (kind == 5) count(4, of.cansGone, 1);
      if (kind == 6) count(5, of.cansGone, -1);
    }
    sqlite3_reset(lines_);
    for (const auto& [item, of] : counted) {
      const size_t end = item.find('\n');
      const auto named = [&](sqlite3_stmt* statement, int at) {
        sqlite3_bind_text(statement, at, item.data(), int(end), SQLITE_STATIC);
        sqlite3_bind_text(statement, at + 1, item.data() + end + 1, -1, SQLITE_STATIC);
      };
      for (int at = 0; at < 6; ++at) sqlite3_bind_int64(moved_, at + 1, of.in[at]);
      named(moved_, 7);
      bench::step(moved_);
      sqlite3_bind_int64(opened_, 1, of.gone);
      sqlite3_bind_int64(opened_, 2, of.cansGone);
      named(opened_, 3);
      bench::step(opened_);
    }
    bench::step(closed_);
    items.clear();
    while (sqlite3_step(rows_) == SQLITE_ROW) {
      const auto whole = [this](int column) { return sqlite3_column_int64(rows_, column); };
      items.push_back({bench::cell(rows_, 0), bench::cell(rows_, 1), whole(2), whole(3), whole(4), whole(5),
                       whole(6), whole(7), whole(8), whole(9), whole(10), whole(11)});
    }
    sqlite3_reset(rows_);
    bench::step(commit_);
  }

  std::vector<StockInOut> items;

 private:
  sqlite3_stmt *begin_, *commit_, *noLines_, *noItems_, *sales_, *purchases_, *catalogue_, *items_, *lines_,
      *moved_, *opened_, *closed_, *rows_;
};

void walkPair(int size, bench::Side& ours, bench::Side& plain) {
  auto books = std::make_shared<bench::Books>();
  addItemLines(*books, size);
  auto beside = std::make_shared<bench::Plain>(*books);
  auto walk = std::make_shared<PlainWalk>(*beside);
  auto walked = std::make_shared<std::vector<StockInOut>>();
  ours.run = [books, walked] {
    auto rows = walkStock(books->session, StockWalkOf::Gas, "2026-01-01", "2026-02-28");
    bench::require(rows.has_value(), "a walk");
    *walked = *std::move(rows);
  };
  ours.outcome = [walked] { return textsOf(*walked); };
  plain.run = [beside, walk] { walk->run(); };
  plain.outcome = [walk] { return textsOf(walk->items); };
}

const int stockInOut = bench::addPair({"stock in and out, 300 items", 1.5, {1000, 10000, 100000}, walkPair});

/** One prepared statement a customer. */
class PlainForecast {
 public:
  explicit PlainForecast(bench::Plain& plain)
      : clients_(plain.prepare(
            "SELECT DISTINCT ClientCode FROM y.Sale WHERE SaleDate >= '2025-01-01' AND SaleDate <> ''")),
        last_(plain.prepare("SELECT Client.Name, Client.Tel, Client.EstimateDate, Client.Code, Sale.SaleDate "
                            "FROM Client JOIN y.Sale AS Sale "
                            "ON Client.Code = Sale.ClientCode WHERE Sale.ClientCode = ?1 AND Sale.SaleGubun "
                            "<> 4 AND SaleDate >= "
                            "'2025-01-01' AND SaleDate <> '' ORDER BY Sale.SaleDate DESC LIMIT 8")) {}

  void run() {
    std::vector<sqlite3_int64> codes;
    while (sqlite3_step(clients_) == SQLITE_ROW) codes.push_back(sqlite3_column_int64(clients_, 0));
    sqlite3_reset(clients_);
    std::sort(codes.begin(), codes.end());
    bench::Rows rows;
    for (const sqlite3_int64 code : codes) {
      sqlite3_bind_int64(last_, 1, code);
      std::vector<QString> cells(15);
      QStringList days;
      while (sqlite3_step(last_) == SQLITE_ROW) {
        if (days.isEmpty())
          for (const auto& [to, from] : {std::pair{0, 0}, {1, 1}, {13, 2}, {14, 3}})
            cells[size_t(to)] = bench::cell(last_, from);
        days << bench::cell(last_, 4);
      }
      sqlite3_reset(last_);
      if (days.isEmpty()) continue;
      for (qsizetype at = 0; at < days.size(); ++at)
        cells[size_t(2 + at)] = days[days.size() - 1 - at].mid(5);
      const QDate newest = QDate::fromString(days.front(), Qt::ISODate),
                  oldest = QDate::fromString(days.back(), Qt::ISODate);
      cells[10] = days.front().mid(5);
      if (const qint64 span = oldest.daysTo(newest); span > 0) {
        const auto gap = qint64(std::nearbyint(double(span) / double(days.size() - 1)));
        cells[11] = newest.addDays(gap).toString(u"MM-dd");
        cells[12] = QString::number(gap);
      }
      rows.push_back(std::move(cells));
    }
    grid.setRows(std::move(rows));
  }

  SpreadModel grid;

 private:
  sqlite3_stmt *clients_, *last_;
};

void forecastPair(int size, bench::Side& ours, bench::Side& plain) {
  auto books = std::make_shared<bench::Books>(size, size * 40);
  auto beside = std::make_shared<bench::Plain>(*books);
  auto extract = std::make_shared<PlainForecast>(*beside);
  auto of = std::make_shared<Forecast>(books->session);
  extract->grid.setColumns(std::vector<SpreadColumn>(size_t(of->grid().MaxCols())));
  ours.run = [books, of] { bench::require(of->ExtractForecast(ForecastOf::All, "2026", {}), "customers"); };
  ours.outcome = [of] { return bench::cellsOf(of->grid()); };
  plain.run = [beside, extract] { extract->run(); };
  plain.outcome = [extract] { return bench::cellsOf(extract->grid); };
}

const int forecast =
    bench::addPair({"forecast of deliveries, 40 lines a customer", 1.5, {100, 1000, 10000}, forecastPair});

}  // namespace
