// Statements and invoices: searching and listing a year's lines, gathering a month's, a thousand papers to a PDF.
#include <QSet>

#include <memory>

#include "bench/books.h"
#include "bench/pairs.h"
#include "bench/plain_drawing.h"
#include "documents/invoices/tax_desk.h"
#include "documents/statements/deal_desk.h"
#include "papers/document_run.h"
#include "store/settings_table.h"
#include "store/upgrades.h"
#include "tests/recorded_print.h"
#include "ui/paper/printers.h"

namespace {

constexpr int clients = 1000;

std::shared_ptr<bench::Books> booksWith(int lines) {
  auto books = std::make_shared<bench::Books>();
  books->addClients(clients);
  books->addSales(books->session.dbYear, lines, clients);
  books->session.dbYear.Execute("Update Sale Set DealList = 0, SaleList = 0, SaleUnit = 30000, SaleNum = 1");
  upgrades::makeDealList(books->session);
  return books;
}

const int listing = bench::addPair(
    {"statements: searching and listing a year's lines",
     1.3,
     {20000, 200000},
     [](int size, bench::Side& ours, bench::Side& plain) {
       auto books = booksWith(size);
       auto beside = std::make_shared<bench::Plain>(*books);
       auto desk = std::make_shared<DealDesk>(books->session);
       auto rows = std::make_shared<int>(0);
       ours.run = [books, desk, rows] {
         desk->search({.from = QDate(2026, 1, 1), .to = QDate(2026, 12, 31), .facility = true});
         *rows = desk->grid().MaxRows();
       };
       // The same lists: a month at a time, the dates and customers told once, the sum.
       sqlite3_stmt* collections = beside->prepare(
           "SELECT SaleID FROM y.Sale WHERE (SaleName = '자재수금' OR SaleName = '가스수금') AND DealList <> "
           "2 "
           "LIMIT 1");
       sqlite3_stmt* month = beside->prepare(
           "SELECT s.SaleID, s.SaleDate, s.ClientCode, c.Name, s.SaleName, s.SaleThing, s.SaleNum, "
           "s.SaleUnit, "
           "s.SaleNum * s.SaleUnit, s.DC, s.SaleID FROM y.Sale s JOIN Client c ON s.ClientCode = c.Code "
           "WHERE "
           "s.SaleDate BETWEEN ?1 AND ?2 AND s.DealList = 0 ORDER BY s.SaleDate, s.SaleID");
       plain.run = [beside, collections, month, rows] {
         sqlite3_step(collections);
         sqlite3_reset(collections);
         std::vector<std::vector<QString>> list;
         qint64 sum = 0;
         for (int each = 1; each <= 12; ++each) {
           const QByteArray from = QString("2026-%1-01").arg(each, 2, 10, QChar('0')).toUtf8(),
                            to = QDate(2026, each, 1).addMonths(1).addDays(-1).toString(Qt::ISODate).toUtf8();
           sqlite3_bind_text(month, 1, from.data(), -1, SQLITE_STATIC);
           sqlite3_bind_text(month, 2, to.data(), -1, SQLITE_STATIC);
           while (sqlite3_step(month) == SQLITE_ROW) {
             std::vector<QString> row(14);
             for (int col = 0; col < 11; ++col)
               row[size_t(col)] =
                   QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(month, col)),
                                     sqlite3_column_bytes(month, col));
             row[11] = row[1];
             row[12] = row[3];
             row[13] = row[0];
             sum += sqlite3_column_int64(month, 8);
             list.push_back(std::move(row));
           }
           sqlite3_reset(month);
         }
         bench::require(*rows == 0 || int(list.size()) == *rows, "other lines");
         bench::require(sum > 0, "a sum");
       };
     },
     5});

const int gathering = bench::addPair(
    {"invoices: gathering a month's lines",
     1.3,
     {10000, 100000},
     [](int size, bench::Side& ours, bench::Side& plain) {
       auto books = booksWith(size);
       books->session.dbYear.Execute("Update Sale Set SaleDate = '2026-03-' & Right(SaleDate, 2)");
       books->session.dbYear.Execute("Update Sale Set SaleDate = '2026-03-28' Where SaleDate > '2026-03-28'");
       auto beside = std::make_shared<bench::Plain>(*books);
       const QByteArray tax = books->native("dbTax.mdb").toUtf8() + ".plain";
       QFile::copy(books->native("dbTax.mdb"), QString::fromUtf8(tax));
       bench::exec(beside->db(), ("ATTACH '" + tax + "' AS t").constData());
       auto desk = std::make_shared<TaxDesk>(books->session);
       auto rows = std::make_shared<int>(0);
       ours.run = [books, desk, rows] {
         desk->gather({.from = QDate(2026, 3, 1), .to = QDate(2026, 3, 31)});
         *rows = desk->grid().MaxRows();
       };
       sqlite3_stmt* sums = beside->prepare(
           "SELECT substr(s.SaleDate, 1, 7), c.Name, sum(s.SaleUnit * s.SaleNum), count(s.SaleName), "
           "s.SaleName, "
           "sum(s.SaleNum), s.SaleUnit, s.ClientCode, s.SaleThing, sum(s.DC) FROM y.Sale s LEFT JOIN Client "
           "c ON "
           "s.ClientCode = c.Code WHERE s.SaleDate BETWEEN '2026-03-01' AND '2026-03-31' AND s.SaleUnit <> 0 "
           "AND "
           "s.SaleList = 0 GROUP BY substr(s.SaleDate, 1, 7), c.Name, s.ClientCode ORDER BY c.Name");
       sqlite3_stmt* insert = beside->prepare(
           "INSERT INTO t.NewAcount(TaxCode, CCode, CName, PCode, PName, PNorm, Quantity, UnitCost, "
           "TradeKum, VatKum, "
           "SumKum, DealDate, IssueDate, Item, Code, Station) VALUES(?1, ?2, ?3, '0', ?4, ?5, ?6, ?7, ?8, "
           "?9, ?10, "
           "?11, '2026-03-16', ?12, ?1, 'plain')");
       sqlite3_stmt* list = beside->prepare(
           "SELECT DealDate, IssueDate, CName, sum(TradeKum), sum(VatKum), sum(SumKum), sum(Item), PName, "
           "TaxCode, "
           "CCode FROM t.NewAcount GROUP BY CName, TaxCode, CCode, DealDate, IssueDate ORDER BY DealDate, "
           "CName");
       plain.run = [beside, sums, insert, list, rows] {
         bench::exec(beside->db(), "BEGIN IMMEDIATE; DELETE FROM t.NewAcount");
         int code = 2603000;
         while (sqlite3_step(sums) == SQLITE_ROW) {
           const qint64 amount = sqlite3_column_int64(sums, 2) - sqlite3_column_int64(sums, 9);
           if (amount == 0) continue;
           const VatSplit split = splitAmount(amount, Vat::Included);
           sqlite3_bind_text(insert, 1, QByteArray::number(++code).constData(), -1, SQLITE_TRANSIENT);
           sqlite3_bind_text(insert, 2, reinterpret_cast<const char*>(sqlite3_column_text(sums, 7)), -1,
                             SQLITE_TRANSIENT);
           for (const auto& [to, from] : {std::pair{3, 1}, {4, 4}, {5, 8}, {6, 5}, {7, 6}, {11, 0}, {12, 3}})
             sqlite3_bind_value(insert, to, sqlite3_column_value(sums, from));
           sqlite3_bind_double(insert, 6, sqlite3_column_double(sums, 5));
           sqlite3_bind_double(insert, 7, sqlite3_column_double(sums, 6));
           sqlite3_bind_double(insert, 8, double(split.supply));
           sqlite3_bind_double(insert, 9, double(split.tax));
           sqlite3_bind_double(insert, 10, double(split.total));
           bench::step(insert);
         }
         sqlite3_reset(sums);
         bench::exec(beside->db(), "COMMIT");
         std::vector<std::vector<QString>> found;
         while (sqlite3_step(list) == SQLITE_ROW) {
           std::vector<QString> row(10);
           for (int col = 0; col < 10; ++col)
             row[size_t(col)] =
                 QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(list, col)));
           found.push_back(std::move(row));
         }
         sqlite3_reset(list);
         bench::require(*rows == 0 || int(found.size()) == *rows, "other invoices");
       };
     },
     5});

/** Ours through the printers to a PDF, plain the recorded texts and lines on another. */
void pairOf(const std::shared_ptr<bench::Books>& books, const DocumentRun& run, bench::Side& ours,
            bench::Side& plain) {
  auto recorder = std::make_shared<tests::RecordedPrinters>();
  books->session.printers = recorder.get();
  runDocuments(onPrinter(books->session, recorder->defaultName()), run);
  auto printers = std::make_shared<PcPrinters>(books->session.pc);
  ours.run = [books, printers, run] {
    books->session.printers = printers.get();
    qputenv("HAEON_PDF", books->folder.filePath("ours.pdf").toUtf8());
    bench::require(runDocuments(onPrinter(books->session, pdfPrinterName()), run) == run.documents, "papers");
  };
  plain.run = [books, recorder] {
    bench::drawPlainly(*recorder->jobs.back(), books->folder.filePath("plain.pdf"), QPageLayout::Portrait);
  };
}

const int statements = bench::addPair(
    {"statements of 14 lines with their form to a PDF file",
     1.2,
     {100, 1000},
     [](int size, bench::Side& ours, bench::Side& plain) {
       auto books = booksWith(0);
       books->session.dbYear.Together([&] {
         for (int line = 0; line < size * 14; ++line)
           books->session.dbYear.Execute(QString("Insert Into Sale(SaleDate, ClientCode, SaleName, "
                                                 "SaleThing, SaleUnit, SaleNum, SaleGubun) "
                                                 "Values('2026-03-02', %1, 'LPG', '20', 34500, %2, 1)")
                                             .arg(1 + line / 14 % clients)
                                             .arg(1 + line % 9));
       });
       auto desk = std::make_shared<DealDesk>(books->session);
       desk->search({.from = QDate(2026, 3, 1), .to = QDate(2026, 3, 31)});
       desk->ticks().setAll(true);
       const DocumentRun run = desk->papers({.layout = DealLayout::FullA4});
       bench::require(run.documents == size, "statements");
       pairOf(books, run, ours, plain);
     },
     3});

const int invoices = bench::addPair({"invoices with their drawn form to a PDF file",
                                     1.2,
                                     {100, 1000},
                                     [](int size, bench::Side& ours, bench::Side& plain) {
                                       auto books = booksWith(0);
                                       books->session.dbYear.Together([&] {
                                         for (int line = 0; line < size; ++line)
                                           books->session.dbYear.Execute(
                                               QString("Insert Into Sale(SaleDate, ClientCode, SaleName, "
                                                       "SaleThing, SaleUnit, SaleNum, SaleGubun) "
                                                       "Values('2026-03-02', %1, 'LPG', '20', 34500, %2, 1)")
                                                   .arg(1 + line)
                                                   .arg(1 + line % 9));
                                       });
                                       auto desk = std::make_shared<TaxDesk>(books->session);
                                       const TaxAsk ask{.from = QDate(2026, 3, 1), .to = QDate(2026, 3, 31)};
                                       desk->gather(ask);
                                       desk->ticks().setAll(true);
                                       const DocumentRun run = desk->papers(ask, "2603001", {});
                                       bench::require(run.documents == size, "invoices");
                                       pairOf(books, run, ours, plain);
                                     },
                                     3});

}  // namespace
