// The reports of gas sales by month, day and customer over a year's lines, each with its rows put into the grid's cells.
#include <memory>

#include "bench/books.h"
#include "bench/pairs.h"
#include "briefs/brief_run.h"
#include "trade/briefs/trade_briefs.h"

namespace {

constexpr int clients = 10000;

struct View {
  int page;
  BriefAsk ask;
  const char* before = nullptr;  ///< a statement that is run first
  const char* sql;
};

/** The statement's rows as texts in the cells of a grid of so many columns. */
int fill(sqlite3_stmt* statement, SpreadModel& grid, int columns) {
  std::vector<std::vector<QString>> rows;
  while (sqlite3_step(statement) == SQLITE_ROW) {
    std::vector<QString>& row = rows.emplace_back();
    for (int at = 0; at < columns; ++at)
      row.push_back(QString::fromUtf8(reinterpret_cast<const char*>(
          sqlite3_column_text(statement, at % sqlite3_column_count(statement)))));
  }
  sqlite3_reset(statement);
  const int count = int(rows.size());
  grid.setRows(std::move(rows));
  return count;
}

bench::Pair viewPair(const char* work, View view) {
  return {work,
          1.3,
          {10000, 100000, 1000000},
          [view](int size, bench::Side& ours, bench::Side& plain) {
            auto books = std::make_shared<bench::Books>();
            books->addClients(clients);
            books->addSales(books->session.dbYear, size, clients);
            auto beside = std::make_shared<bench::Plain>(*books);
            auto run = std::make_shared<BriefRun>(books->session, lpgSaleBrief());
            ours.run = [books, run, view] { bench::require(run->load(view.ask), "no rows"); };
            sqlite3_stmt* const first = view.before ? beside->prepare(view.before) : nullptr;
            sqlite3_stmt* const grouped = beside->prepare(view.sql);
            auto grid = std::make_shared<SpreadModel>();
            grid->setColumns(std::vector<SpreadColumn>(run->page(view.page).columns.size()));
            plain.run = [beside, first, grouped, grid, run, view] {
              if (first) bench::step(first);
              const int rows = fill(grouped, *grid, grid->MaxCols());
              const int shown = int(run->rows(view.page).rows.size());
              bench::require(shown == 0 || view.page == 0 || rows == shown, "other rows");
            };
          },
          3};
}

BriefAsk asked(int page) {
  return {.page = page,
          .answers = {{"CboYear", {.text = "2026"}},
                      {"CboMonth", {.text = "03"}},
                      {"TxtDay", {.text = "2026-01-01", .to = "2026-12-31"}}}};
}

const int byMonth = bench::addPair(viewPair(
    "gas sales by month: a year's lines",
    {0, asked(0), "UPDATE y.Sale SET SaleThing = '0' WHERE SaleThing IS NULL",
     "SELECT SaleDate, SUM(SaleNum), SUM(CAST(SaleThing AS REAL) * SaleNum), SUM(SaleUnit), SUM(Income), "
     "SUM(DC), SUM(Trust), SaleGubun FROM y.Sale WHERE NOT (SaleGubun = 7 OR SaleGubun = 8 OR SaleGubun = 4) "
     "AND SaleDate LIKE '2026%' GROUP BY SaleDate, SaleGubun ORDER BY SaleDate"}));

const int byDay = bench::addPair(viewPair(
    "gas sales by day: a month of a year's lines",
    {1, asked(1), nullptr,
     "SELECT SaleDate, SUM(SaleNum), SUM(SaleUnit), SUM(Income), SUM(DC), SUM(Trust) FROM y.Sale WHERE "
     "SaleDate LIKE '2026-03-%' AND NOT (SaleGubun = 7 OR SaleGubun = 8 OR SaleGubun = 4) GROUP BY SaleDate "
     "ORDER BY SaleDate"}));

const int byClient = bench::addPair(viewPair(
    "gas sales by customer: a year's lines",
    {2, asked(2), nullptr,
     "SELECT Sale.ClientCode, SUM(Sale.SaleNum), Client.Name, Client.Tel, SUM(Sale.Income), SUM(Sale.DC), "
     "Client.BDName, Client.Dong, Client.Ho, SUM(Sale.Trust), Client.HouseStyle, Client.VolumeYesNo FROM "
     "y.Sale AS Sale JOIN Client ON Sale.ClientCode = Client.Code WHERE Client.Name LIKE '%%' AND "
     "Sale.SaleDate >= '2026-01-01' AND Sale.SaleDate <= '2026-12-31' AND NOT (Sale.SaleGubun = 7 OR "
     "Sale.SaleGubun = 8 OR Sale.SaleGubun = 4) GROUP BY Sale.ClientCode, Client.Name, Client.Tel, "
     "Client.HouseStyle, Client.VolumeYesNo, Client.BDName, Client.Dong, Client.Ho ORDER BY Client.Name"}));

}  // namespace
