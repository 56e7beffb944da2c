// The reports of gas sales by month, day and customer over a year's lines, each with its rows put into the grid's cells.
#include <array>
#include <memory>

#include "bench/books.h"
#include "bench/pairs.h"
#include "briefs/brief_run.h"
#include "trade/briefs/trade_briefs.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int clients = 10000;

/** A page of the report, and by hand its statements and what makes cells of their rows. */
struct View {
  int page;
  const char* before;  ///< a statement that is run first, or none
  const char* sql;
  bench::Rows (*cells)(sqlite3_stmt* rows);
};

/** The figures of a row: pieces, amount, discount, income, trust; the columns they are summed in follow each other. */
void addFigures(std::vector<QString>& cells, qint64 pieces, qint64 discount, qint64 income, qint64 trust) {
  for (const qint64 figure : {pieces, income + trust, discount, income, trust})
    cells.push_back(QString::number(figure));
}

bench::Rows monthCells(sqlite3_stmt* days) {
  struct Month {
    qint64 pieces = 0, discount = 0, income = 0, trust = 0;
    double kilograms = 0;
  };
  std::array<Month, 12> months;
  while (sqlite3_step(days) == SQLITE_ROW) {
    const auto* date = reinterpret_cast<const char*>(sqlite3_column_text(days, 0));
    Month& month = months[size_t((date[5] - '0') * 10 + date[6] - '0' - 1)];
    month.pieces += sqlite3_column_int64(days, 1);
    month.kilograms += sqlite3_column_double(days, 2);
    month.income += sqlite3_column_int64(days, 4);
    month.discount += sqlite3_column_int64(days, 5);
    month.trust += sqlite3_column_int64(days, 6);
  }
  bench::Rows rows;
  for (size_t at = 0; at < months.size(); ++at) {
    const Month& of = months[at];
    std::vector<QString>& cells = rows.emplace_back(std::vector{u"%1월"_s.arg(at + 1, 2, 10, QChar(u'0'))});
    addFigures(cells, of.pieces, of.discount, of.income, of.trust);
    cells.insert(cells.begin() + 2, QString::number(of.kilograms, 'g', 15));
  }
  return rows;
}

bench::Rows dayCells(sqlite3_stmt* days) {
  bench::Rows rows;
  while (sqlite3_step(days) == SQLITE_ROW) {
    const auto whole = [days](int column) { return sqlite3_column_int64(days, column); };
    addFigures(rows.emplace_back(std::vector{bench::cell(days, 0).mid(5)}), whole(1), whole(4), whole(3),
               whole(5));
  }
  return rows;
}

bench::Rows clientCells(sqlite3_stmt* clients) {
  const QString kinds[] = {"일반/식당", "아 파 트", "다 가 구"};
  bench::Rows rows;
  while (sqlite3_step(clients) == SQLITE_ROW) {
    const auto whole = [clients](int column) { return sqlite3_column_int64(clients, column); };
    std::vector<QString>& cells =
        rows.emplace_back(std::vector{bench::cell(clients, 2), bench::cell(clients, 3), kinds[whole(10)]});
    addFigures(cells, whole(1), whole(5), whole(4), whole(9));
    cells.push_back(bench::cell(clients, 0));
  }
  return rows;
}

void makeView(const View& view, int size, bench::Side& ours, bench::Side& plain) {
  auto books = std::make_shared<bench::Books>(clients, size);
  auto beside = std::make_shared<bench::Plain>(*books);
  auto run = std::make_shared<BriefRun>(books->session, lpgSaleBrief());
  const BriefAsk ask{.page = view.page,
                     .answers = {{"CboYear", {.text = "2026"}},
                                 {"CboMonth", {.text = "03"}},
                                 {"TxtDay", {.text = "2026-01-01", .to = "2026-12-31"}}}};
  ours.run = [books, run, ask] { bench::require(run->load(ask), "no rows"); };
  ours.outcome = [run, view] { return bench::cellsOf(run->grid(view.page), true); };
  sqlite3_stmt* const before = view.before ? beside->prepare(view.before) : nullptr;
  sqlite3_stmt* const grouped = beside->prepare(view.sql);
  auto grid = std::make_shared<SpreadModel>();
  grid->setColumns(std::vector<SpreadColumn>(run->page(view.page).columns.size()));
  plain.run = [beside, before, grouped, grid, view] {
    if (before) bench::step(before);
    grid->setRows(view.cells(grouped));
    sqlite3_reset(grouped);
  };
  plain.outcome = [grid] { return bench::cellsOf(*grid); };
}

int addView(const char* work, View view) {
  return bench::addPair(
      {work,
       1.3,
       {10000, 100000, 1000000},
       [view](int size, bench::Side& ours, bench::Side& plain) { makeView(view, size, ours, plain); },
       3});
}

const int byMonth = addView(
    "gas sales by month: a year's lines",
    {0, "UPDATE y.Sale SET SaleThing = '0' WHERE SaleThing IS NULL",
     "SELECT SaleDate, SUM(SaleNum), SUM(CAST(SaleThing AS REAL) * SaleNum), SUM(SaleUnit), SUM(Income), "
     "SUM(DC), SUM(Trust), SaleGubun FROM y.Sale WHERE NOT (SaleGubun = 7 OR SaleGubun = 8 OR SaleGubun = 4) "
     "AND SaleDate LIKE '2026%' GROUP BY SaleDate, SaleGubun ORDER BY SaleDate",
     monthCells});

const int byDay = addView(
    "gas sales by day: a month of a year's lines",
    {1, nullptr,
     "SELECT SaleDate, SUM(SaleNum), SUM(SaleUnit), SUM(Income), SUM(DC), SUM(Trust) FROM y.Sale WHERE "
     "SaleDate LIKE '2026-03-%' AND NOT (SaleGubun = 7 OR SaleGubun = 8 OR SaleGubun = 4) GROUP BY SaleDate "
     "ORDER BY SaleDate",
     dayCells});

const int byClient = addView(
    "gas sales by customer: a year's lines",
    {2, nullptr,
     "SELECT Sale.ClientCode, SUM(Sale.SaleNum), Client.Name, Client.Tel, SUM(Sale.Income), SUM(Sale.DC), "
     "Client.BDName, Client.Dong, Client.Ho, SUM(Sale.Trust), Client.HouseStyle, Client.VolumeYesNo FROM "
     "y.Sale AS Sale JOIN Client ON Sale.ClientCode = Client.Code WHERE Client.Name LIKE '%%' AND "
     "Sale.SaleDate >= '2026-01-01' AND Sale.SaleDate <= '2026-12-31' AND NOT (Sale.SaleGubun = 7 OR "
     "Sale.SaleGubun = 8 OR Sale.SaleGubun = 4) GROUP BY Sale.ClientCode, Client.Name, Client.Tel, "
     "Client.HouseStyle, Client.VolumeYesNo, Client.BDName, Client.Dong, Client.Ho ORDER BY Client.Name",
     clientCells});

}  // namespace
