// The engine below the forms: a statement with new literals, a statement never seen, a million rows read.
#include <malloc.h>
#include <sqlite3.h>

#include <memory>
#include <string>

#include "bench/books.h"
#include "bench/pairs.h"
#include "store/jet/compile.h"
#include "store/jet/connection.h"
#include "store/jet/shape.h"
#include "store/jet/sql.h"
#include "tests/jet/sample_catalogue.h"

namespace {

// ---- a balance moved, one flush for all

void balancePair(int size, bench::Side& ours, bench::Side& plain) {
  auto books = std::make_shared<bench::Books>(1000);
  auto beside = std::make_shared<bench::Plain>(*books);
  ours.run = [books, size] {
    books->session.wsMain.Together([&] {
      for (int at = 0; at < size; ++at)
        books->session.dbYear.Execute(jet::Sql() << u"Update Client Set GasInit = GasInit + " << at << u" - "
                                                 << 0 << u" Where Code = " << 1 + at % 1000);
    });
  };
  ours.outcome = [books] {
    return bench::rowsOf(books->session.dbBasic, "Select Code, GasInit From Client");
  };
  sqlite3_stmt* update = beside->prepare("UPDATE Client SET GasInit = GasInit + ?1 - ?2 WHERE Code = ?3");
  plain.run = [beside, update, size] {
    bench::exec(beside->db(), "BEGIN IMMEDIATE");
    for (int at = 0; at < size; ++at) {
      sqlite3_bind_int64(update, 1, at);
      sqlite3_bind_int64(update, 2, 0);
      sqlite3_bind_int64(update, 3, 1 + at % 1000);
      bench::step(update);
    }
    bench::exec(beside->db(), "COMMIT");
  };
  plain.outcome = [beside] { return bench::rowsOf(beside->prepare("SELECT Code, GasInit FROM Client")); };
}

const int balances = bench::addPair({"statement with new literals in one group: a customer's balance",
                                     1.3,
                                     {1000, 10000, 100000},
                                     balancePair});

// ---- a statement never seen

QString unseenStatement(int at) {
  return "SELECT Sale.SaleDate As D" + QString::number(at) +
         ", Sum(Sale.SaleNum) AS SaleNum, Sum(Sale.Income) AS Income, Sum(Sale.Trust) AS Trust, Client.Name, "
         "Client.Tel "
         "From Sale LEFT JOIN Client ON Sale.ClientCode = Client.Code Where Sale.Gubun = False And "
         "Sale.SaleDate >= "
         "'2026-01-01' And not (Sale.SaleGubun = 7 or Sale.SaleGubun = 8 or Sale.SaleGubun = 4) "
         "GROUP BY Sale.SaleDate, Client.Name, Client.Tel Order By Sale.SaleDate";
}

const int firstSight = bench::addPair(
    {"first sight of a statement: lex, parse, resolve, write, prepare; plain: prepare",
     3,
     {100, 1000},
     [](int size, bench::Side& ours, bench::Side& plain) {
       auto books = std::make_shared<bench::Books>();
       auto connection = std::make_shared<jet::Connection>(books->native("Basic.mdb"), 100);
       connection->attach(books->native("2026Foundation.mdb"), "y");
       connection->exec("ATTACH ':memory:' AS b; CREATE TABLE b.Client AS SELECT * FROM main.Client");
       auto catalogue = std::make_shared<tests::SampleCatalogue>();
       ours.run = [=] {
         for (int at = 0; at < size; ++at) {
           const QString sql = unseenStatement(at);
           jet::shapeOf(sql);
           jet::SqliteStatement(*connection, jet::compile(sql, *catalogue).sql, true);
         }
       };
       std::vector<QByteArray> written;
       for (int at = 0; at < size; ++at) written.push_back(jet::compile(unseenStatement(at), *catalogue).sql);
       plain.run = [written, connection] {
         for (const QByteArray& sql : written) {
           sqlite3_stmt* statement = nullptr;
           bench::require(sqlite3_prepare_v3(connection->handle(), sql.constData(), int(sql.size()),
                                             SQLITE_PREPARE_PERSISTENT, &statement, nullptr) == SQLITE_OK,
                          "prepare");
           sqlite3_finalize(statement);
         }
       };
     }});

// ---- many rows read

struct PlainSale {
  std::string date, response, name, thing;
  sqlite3_int64 id, client, unit, number, kind, gubun, income, trust, discount;
};

const char* const saleColumns =
    "SELECT SaleID, SaleDate, ClientCode, Response, SaleName, SaleThing, SaleUnit, SaleNum, SaleGubun, "
    "Gubun, Income, "
    "Trust, DC FROM ";

std::vector<PlainSale> readPlain(sqlite3_stmt* statement) {
  std::vector<PlainSale> rows;
  const auto text = [&](int column) {
    return std::string(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)),
                       size_t(sqlite3_column_bytes(statement, column)));
  };
  const auto whole = [&](int column) { return sqlite3_column_int64(statement, column); };
  while (sqlite3_step(statement) == SQLITE_ROW)
    rows.push_back({text(1), text(3), text(4), text(5), whole(0), whole(2), whole(6), whole(7), whole(8),
                    whole(9), whole(10), whole(11), whole(12)});
  sqlite3_reset(statement);
  return rows;
}

qint64 readByName(const jet::Database& year) {
  qint64 sum = 0;
  jet::Recordset sale = year.OpenRecordset(
      "Select SaleID, SaleDate, ClientCode, Response, SaleName, SaleThing, SaleUnit, "
      "SaleNum, SaleGubun, Gubun, Income, Trust, DC From Sale");
  for (; !sale.atEnd(); sale.MoveNext()) {
    sum += sale["SaleID"].toLong() + sale["ClientCode"].toLong() + sale["SaleUnit"].toLong() +
           sale["SaleNum"].toLong() + sale["SaleGubun"].toLong() + sale["Gubun"].toLong() +
           sale["Income"].toLong() + sale["Trust"].toLong() + sale["DC"].toLong();
    sum += sale["SaleDate"].toText().size() + sale["Response"].toText().size() +
           sale["SaleName"].toText().size() + sale["SaleThing"].toText().size();
  }
  return sum;
}

qint64 sumPlain(const std::vector<PlainSale>& rows) {
  qint64 sum = 0;
  for (const PlainSale& row : rows) {
    sum += row.id + row.client + row.unit + row.number + row.kind + row.gubun + row.income + row.trust +
           row.discount;
    // As the program gives them out: text of the language, not bytes of the file.
    sum += QString::fromUtf8(row.date.data(), qsizetype(row.date.size())).size() +
           QString::fromUtf8(row.response.data(), qsizetype(row.response.size())).size() +
           QString::fromUtf8(row.name.data(), qsizetype(row.name.size())).size() +
           QString::fromUtf8(row.thing.data(), qsizetype(row.thing.size())).size();
  }
  return sum;
}

void snapshotPair(int size, bench::Side& ours, bench::Side& plain) {
  auto books = std::make_shared<bench::Books>(1000, size);
  auto beside = std::make_shared<bench::Plain>(*books);
  sqlite3_stmt* all = beside->prepare((std::string(saleColumns) + "y.Sale").c_str());
  auto sum = std::make_shared<qint64>(0);
  ours.run = [=] { *sum = readByName(books->session.dbYear); };
  plain.run = [beside, all, sum] { bench::require(*sum == sumPlain(readPlain(all)), "other rows"); };
}

const int manyRows = bench::addPair({"snapshot of sale lines, 13 columns, each field read by its name",
                                     1.5,
                                     {10000, 100000, 1000000},
                                     snapshotPair,
                                     3});

double heapBytes() {
  const struct mallinfo2 info = mallinfo2();
  return double(info.uordblks) + double(info.hblkhd);
}

const int memory =
    bench::addFigure({"the same 1,000,000 lines held: memory beside the values held plainly", 1.5, "x", [] {
                        constexpr int lines = 1000000;
                        bench::Books books(1000, lines);
                        bench::Plain beside(books);
                        sqlite3_stmt* all = beside.prepare((std::string(saleColumns) + "y.Sale").c_str());
                        { (void)readPlain(all); }  // the page caches are full from here on
                        books.session.dbYear.OpenRecordset("Select * From Sale");
                        malloc_trim(0);
                        double before = heapBytes();
                        auto rows = readPlain(all);
                        rows.shrink_to_fit();
                        const double plainBytes = heapBytes() - before;
                        rows = {};
                        malloc_trim(0);
                        before = heapBytes();
                        const jet::Recordset sale = books.session.dbYear.OpenRecordset(
                            "Select SaleID, SaleDate, ClientCode, Response, SaleName, SaleThing, SaleUnit, "
                            "SaleNum, SaleGubun, Gubun, "
                            "Income, Trust, DC From Sale");
                        return (heapBytes() - before) / plainBytes;
                      }});

}  // namespace
