// The start with ten years of lines: late-charge and statement marks looked for, orphans looked for, links made anew.
#include <QFile>

#include <memory>

#include "app/start_up.h"
#include "bench/books.h"
#include "bench/pairs.h"
#include "store/data_files.h"
#include "store/upgrades.h"

namespace {

constexpr int years = 10, customers = 1000;

/** Ten year files of the size, the last one the clock's year. */
void makeYears(bench::Books& books, int lines) {
  books.addClients(customers);
  books.addSales(books.session.dbYear, lines, customers);
  books.session.dbYear.Close();
  for (int year = 2026 - years + 1; year < 2026; ++year)
    bench::require(QFile::copy(books.native("2026Foundation.mdb"),
                               books.native(QString::number(year) + "Foundation.mdb")),
                   "copy");
}

/** The same looks at the same files, by hand. */
void plainStart(const bench::Books& books) {
  for (int year = 2026; year > 2026 - years; --year) {
    sqlite3* db = nullptr;
    const QByteArray path = books.native(QString::number(year) + "Foundation.mdb").toUtf8();
    bench::require(sqlite3_open_v2(path.constData(), &db, SQLITE_OPEN_READWRITE, nullptr) == SQLITE_OK,
                   "open");
    bench::knowTextOrder(db);
    bench::exec(db, ("ATTACH '" + books.native("Basic.mdb") + "' AS b").toUtf8().constData());
    bench::exec(db, "SELECT paydelayed FROM Evaporation LIMIT 0");
    bench::exec(db, "SELECT DealList, SaleList FROM Sale LIMIT 0");
    bench::exec(
        db,
        "DELETE FROM Sale WHERE ClientCode IN (SELECT s.ClientCode FROM Sale s LEFT JOIN b.Client c ON "
        "s.ClientCode = c.Code WHERE c.Code IS NULL)");
    int links = 0;
    sqlite3_exec(
        db,
        "SELECT count(*) FROM jet_links WHERE connect = ';DATABASE=C:\\rwgas\\dbs\\basic.mdb' AND "
        "source_table = name "
        "AND name IN ('Client', 'LPG', 'RefillState', 'Response', 'Util')",
        [](void* count, int, char** row, char**) {
          *static_cast<int*>(count) = atoi(row[0]);
          return 0;
        },
        &links, nullptr);
    bench::require(links == 5, "links");  // as at most starts: nothing to write
    sqlite3_close(db);
  }
}

const int start = bench::addPair({"start with ten year files: upgrades, orphan repair, links",
                                  1.3,
                                  {2000, 20000, 200000},
                                  [](int size, bench::Side& ours, bench::Side& plain) {
                                    auto books = std::make_shared<bench::Books>();
                                    makeYears(*books, size);
                                    ours.run = [books] {
                                      Session& session = books->session;
                                      upgrades::addLateCharges(session);
                                      session.wsMain.KeepingFiles([&] {
                                        upgrades::addDealMarks(session);
                                        upgrades::removeOrphans(session);
                                        bench::require(upgrades::relink(session), "links");
                                      });
                                    };
                                    plain.run = [books] { plainStart(*books); };
                                  }});

}  // namespace
