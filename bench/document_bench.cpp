// Statements and invoices: searching and listing a year's lines, gathering a month's, a thousand papers to a PDF.
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

using namespace Qt::StringLiterals;

namespace {

constexpr int clients = 1000;

std::shared_ptr<bench::Books> booksWith(int lines) {
  auto books = std::make_shared<bench::Books>(clients, lines);
  books->session.dbYear.Execute("Update Sale Set DealList = 0, SaleList = 0, SaleUnit = 30000, SaleNum = 1");
  upgrades::makeDealList(books->session);
  return books;
}

/** The same lists by hand: a month at a time, dates and customers told once, the sum. */
class PlainListing {
 public:
  PlainListing(bench::Plain& plain, int columns)
      : collections_(plain.prepare("SELECT SaleID FROM y.Sale WHERE (SaleName = '자재수금' OR SaleName = "
                                   "'가스수금') AND DealList <> 2 LIMIT 1")),
        month_(plain.prepare(
            "SELECT s.SaleID, s.SaleDate, s.ClientCode, c.Name, s.SaleName, s.SaleThing, s.SaleNum, "
            "s.SaleUnit, s.SaleNum * s.SaleUnit, s.DC, s.SaleID FROM y.Sale s JOIN Client c ON s.ClientCode "
            "= "
            "c.Code WHERE s.SaleDate BETWEEN ?1 AND ?2 AND s.DealList = 0 ORDER BY s.SaleDate, s.SaleID")) {
    grid.setColumns(std::vector<SpreadColumn>(size_t(columns)));
  }

  void run() {
    bench::require(sqlite3_step(collections_) == SQLITE_DONE, "no collection");
    sqlite3_reset(collections_);
    bench::Rows rows;
    QString lastDate, lastClient;
    sum = 0;
    for (int each = 1; each <= 12; ++each) {
      const QDate first(2026, each, 1);
      bench::bindText(month_, 1, first.toString(Qt::ISODate));
      bench::bindText(month_, 2, first.addMonths(1).addDays(-1).toString(Qt::ISODate));
      while (sqlite3_step(month_) == SQLITE_ROW) {
        const auto cell = [this](int column) { return bench::cell(month_, column); };
        const QString line = cell(0), date = cell(1), client = cell(2), name = cell(3);
        const bool newDate = date != lastDate, newClient = newDate || client != lastClient;
        sum += sqlite3_column_int64(month_, 8);
        rows.push_back({newDate ? date : QString(), newClient ? name : QString(), cell(4), cell(5), cell(6),
                        cell(7), cell(8), QString(), line, date, client, name, line, cell(9)});
        lastDate = date;
        lastClient = client;
      }
      sqlite3_reset(month_);
    }
    grid.setRows(std::move(rows));
  }

  SpreadModel grid;
  qint64 sum = 0;

 private:
  sqlite3_stmt *collections_, *month_;
};

void listingPair(int size, bench::Side& ours, bench::Side& plain) {
  auto books = booksWith(size);
  auto beside = std::make_shared<bench::Plain>(*books);
  auto desk = std::make_shared<DealDesk>(books->session);
  auto listing = std::make_shared<PlainListing>(*beside, desk->grid().MaxCols());
  ours.run = [books, desk] {
    desk->search({.from = QDate(2026, 1, 1), .to = QDate(2026, 12, 31), .facility = true});
  };
  ours.outcome = [desk] { return bench::cellsOf(desk->grid()); };
  plain.run = [beside, listing] { listing->run(); };
  plain.outcome = [listing] { return bench::cellsOf(listing->grid); };
}

const int listing =
    bench::addPair({"statements: searching and listing a year's lines", 1.3, {20000, 200000}, listingPair});

/** The same by hand: the table emptied, a month's sums by customer, an invoice each, the list. */
class PlainGathering {
 public:
  PlainGathering(bench::Plain& plain, const QString& taxFile, int columns) : db_(plain.db()) {
    bench::exec(db_, ("ATTACH '" + taxFile + "' AS t").toUtf8().constData());
    sums_ = plain.prepare(
        "SELECT substr(s.SaleDate, 1, 7), c.Name, sum(s.SaleUnit * s.SaleNum), count(s.SaleName), "
        "s.SaleName, "
        "sum(s.SaleNum), s.SaleUnit, s.ClientCode, s.SaleThing, sum(s.DC) FROM y.Sale s LEFT JOIN Client c "
        "ON "
        "s.ClientCode = c.Code WHERE s.SaleDate BETWEEN '2026-03-01' AND '2026-03-31' AND s.SaleUnit <> 0 "
        "AND "
        "s.SaleList = 0 GROUP BY substr(s.SaleDate, 1, 7), c.Name, s.ClientCode ORDER BY c.Name");
    insert_ = plain.prepare(
        "INSERT INTO t.NewAcount(TaxCode, CCode, CName, PCode, PName, PNorm, Quantity, UnitCost, TradeKum, "
        "VatKum, SumKum, DealDate, IssueDate, Item, Code, Station) VALUES(?1, ?2, ?3, '0', ?4, ?5, ?6, ?7, "
        "?8, "
        "?9, ?10, ?11, '2026-03-16', ?12, ?1, 'plain')");
    list_ = plain.prepare(
        "SELECT DealDate, IssueDate, CName, sum(TradeKum), sum(VatKum), sum(SumKum), sum(Item), PName, "
        "TaxCode, CCode FROM t.NewAcount GROUP BY CName, TaxCode, CCode, DealDate, IssueDate ORDER BY "
        "DealDate, "
        "CName");
    grid.setColumns(std::vector<SpreadColumn>(size_t(columns)));
  }

  void run() {
    bench::exec(db_, "BEGIN IMMEDIATE; DELETE FROM t.NewAcount");
    int number = 0;
    while (sqlite3_step(sums_) == SQLITE_ROW) {
      const qint64 amount = sqlite3_column_int64(sums_, 2) - sqlite3_column_int64(sums_, 9);
      if (amount == 0) continue;
      const VatSplit split = splitAmount(amount, Vat::Included);
      bench::bindText(insert_, 1, u"2603%1"_s.arg(++number, 3, 10, QChar(u'0')));
      for (const auto& [to, from] :
           {std::pair{2, 7}, {3, 1}, {4, 4}, {5, 8}, {6, 5}, {7, 6}, {11, 0}, {12, 3}})
        sqlite3_bind_value(insert_, to, sqlite3_column_value(sums_, from));
      for (const auto& [to, won] : {std::pair{8, split.supply}, {9, split.tax}, {10, split.total}})
        sqlite3_bind_double(insert_, to, double(won));
      bench::step(insert_);
    }
    sqlite3_reset(sums_);
    bench::exec(db_, "COMMIT");
    bench::Rows rows;
    while (sqlite3_step(list_) == SQLITE_ROW) {
      const VatSplit split = splitAmount(sqlite3_column_int64(list_, 5), Vat::Included);
      const QString item = bench::cell(list_, 7);
      rows.push_back({bench::cell(list_, 1), bench::cell(list_, 0).left(7), bench::cell(list_, 2),
                      QString::number(split.supply), QString::number(split.tax), QString::number(split.total),
                      sqlite3_column_int64(list_, 6) > 1 ? item + " 외" : item, QString(),
                      bench::cell(list_, 8), bench::cell(list_, 9)});
    }
    sqlite3_reset(list_);
    grid.setRows(std::move(rows));
  }

  SpreadModel grid;

 private:
  sqlite3* db_;
  sqlite3_stmt *sums_ = nullptr, *insert_ = nullptr, *list_ = nullptr;
};

void gatheringPair(int size, bench::Side& ours, bench::Side& plain) {
  auto books = booksWith(size);
  books->session.dbYear.Execute("Update Sale Set SaleDate = '2026-03-' & Right(SaleDate, 2)");
  books->session.dbYear.Execute("Update Sale Set SaleDate = '2026-03-28' Where SaleDate > '2026-03-28'");
  auto beside = std::make_shared<bench::Plain>(*books);
  const QString tax = books->native("dbTax.mdb") + ".plain";
  QFile::copy(books->native("dbTax.mdb"), tax);
  auto desk = std::make_shared<TaxDesk>(books->session);
  auto gathering = std::make_shared<PlainGathering>(*beside, tax, desk->grid().MaxCols());
  ours.run = [books, desk] { desk->gather({.from = QDate(2026, 3, 1), .to = QDate(2026, 3, 31)}); };
  ours.outcome = [desk] { return bench::cellsOf(desk->grid()); };
  plain.run = [beside, gathering] { gathering->run(); };
  plain.outcome = [gathering] { return bench::cellsOf(gathering->grid); };
}

const int gathering =
    bench::addPair({"invoices: gathering a month's lines", 1.3, {10000, 100000}, gatheringPair});

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

/** So many lines in March, each customer's in a row. */
std::shared_ptr<bench::Books> booksWithLinesEach(int customers, int linesEach) {
  auto books = booksWith(0);
  books->session.dbYear.Together([&] {
    for (int line = 0; line < customers * linesEach; ++line)
      books->session.dbYear.Execute(
          u"Insert Into Sale(SaleDate, ClientCode, SaleName, SaleThing, SaleUnit, "
          "SaleNum, SaleGubun) Values('2026-03-02', %1, 'LPG', '20', 34500, %2, 1)"_s
              .arg(1 + line / linesEach)
              .arg(1 + line % 9));
  });
  return books;
}

void statementPair(int size, bench::Side& ours, bench::Side& plain) {
  auto books = booksWithLinesEach(size, 14);
  auto desk = std::make_shared<DealDesk>(books->session);
  desk->search({.from = QDate(2026, 3, 1), .to = QDate(2026, 3, 31)});
  desk->ticks().setAll(true);
  const DocumentRun run = desk->papers({.layout = DocumentLayout::FullA4});
  bench::require(run.documents == size, "statements");
  pairOf(books, run, ours, plain);
}

const int statements = bench::addPair(
    {"statements of 14 lines with their form to a PDF file", 1.2, {100, 1000}, statementPair, 3});

void invoicePair(int size, bench::Side& ours, bench::Side& plain) {
  auto books = booksWithLinesEach(size, 1);
  auto desk = std::make_shared<TaxDesk>(books->session);
  const TaxAsk ask{.from = QDate(2026, 3, 1), .to = QDate(2026, 3, 31)};
  desk->gather(ask);
  desk->ticks().setAll(true);
  const DocumentRun run = desk->papers(ask, "2603001", {});
  bench::require(run.documents == size, "invoices");
  pairOf(books, run, ours, plain);
}

const int invoices =
    bench::addPair({"invoices with their drawn form to a PDF file", 1.2, {100, 1000}, invoicePair, 3});

}  // namespace
