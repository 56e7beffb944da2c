#include "bench/books.h"

#include <QFile>

#include "store/data_files.h"
#include "store/upgrades.h"
#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace bench {

void NoPrompts::stop(const QString& text) {
  require(false, text.toUtf8().constData());
}

Books::Books(int clients, int lines) {
  pc.clock.set(QDateTime({2026, 3, 16}, {9, 0}));
  session.AppTitle = u"해온판매"_s;
  session.DbPath = installedDataFolder();
  session.WorkYear = u"2026"_s;
  session.StockEnabled = true;
  require(prepareDataFolder(session), "data folder");
  makeYearFile(session, session.WorkYear);
  session.wsMain = openWorkspace(session, session.DbPath);
  session.dbBasic = session.wsMain.OpenDatabase(session.DbPath + u"Basic.mdb"_s);
  require(upgrades::relink(session), "links");
  session.dbYear = session.wsMain.OpenDatabase(yearFile(session, session.WorkYear));
  session.dbTax = session.wsMain.OpenDatabase(session.DbPath + u"dbTax.mdb"_s);
  session.dbCommon = session.dbBasic;
  session.dbBasic.Execute(
      "Insert Into User(Company, PayState, Rate, Security, AptRate, AptSecurity, ManyRate, "
      "ManySecurity, Stock) Values('달빛가스', 1, 2, 1000, 2, 800, 2, 900, True)");
  session.dbBasic.Execute(
      "Insert Into LPG(LPGName, Size, LPGStock, CANTotalHold, CANLoan, CANEmpty, CANFull) "
      "Values('LPG', '20', 1000, 100, 10, 40, 50)");
  addClients(clients);
  if (lines > 0) addSales(session.dbYear, lines, clients);
}

Books::~Books() = default;

void Books::addClients(int count) {
  session.wsMain.Together([&] {
    for (int code = 1; code <= count; ++code) {
      const QString n = QString::number(code);
      session.dbBasic.Execute(
          "Insert Into Client(Name, Tel, Tel1, Tel2, Address, HouseStyle, GasInit, UtilInit, VolumeYesNo, "
          "VolumeUnit) "
          "Values('" +
          u"고객"_s + n + "', '053-" + QString::number(200 + code % 700) + "-" +
          QString::number(code * 7919 % 10000).rightJustified(4, u'0') + "', '', '', '" +
          u"경북 달빛시 장터동 "_s + n + "', 0, 0, 0, False, 0)");
    }
  });
}

void Books::addSales(const jet::Database& year, int lines, int clients, int yearNumber) {
  const QDate first(yearNumber, 1, 1);
  session.wsMain.Together([&] {
    for (int at = 0; at < lines; ++at) {
      const QString day = first.addDays(qint64(at) * 365 / lines).toString(u"yyyy-MM-dd");
      year.Execute(
          "Insert Into Sale(salelist, deallist, SaleDate, ClientCode, Response, SaleName, SaleThing, "
          "SaleUnit, SaleNum, "
          "SaleGubun, Gubun, Income, Trust, DC) Values(0, 0, '" +
          day + "', " + QString::number(1 + at % clients) + ", '" + u"홍길수"_s + "', 'LPG', '" +
          (at % 3 ? "20" : "50") + "', 27000, " + QString::number(1 + at % 3) + ", " +
          QString::number(1 + at % 6) + (at % 5 ? ", False, " : ", True, ") + QString::number(at % 4 * 9000) +
          ", " + QString::number(at % 2 * 1000) + ", 0)");
    }
  });
}

void knowTextOrder(sqlite3* db) {
  sqlite3_create_collation(db, "JET", SQLITE_UTF8, nullptr,
                           [](void*, int a, const void* x, int b, const void* y) {
                             const int order = memcmp(x, y, size_t(std::min(a, b)));
                             return order ? order : a - b;
                           });
}

namespace {

/** In the bytes' order, so that plain statements find their rows by the same indexes as the program's do. */
void indexPlainly(const QString& file) {
  sqlite3* db = nullptr;
  require(sqlite3_open(file.toUtf8().constData(), &db) == SQLITE_OK, "open");
  knowTextOrder(db);
  QList<std::pair<QString, QString>> indexes;
  const auto read = [](void* into, int, char** row, char**) {
    static_cast<QList<std::pair<QString, QString>>*>(into)->emplaceBack(row[0], row[1]);
    return 0;
  };
  sqlite3_exec(db, "SELECT name, sql FROM sqlite_schema WHERE type = 'index' AND sql LIKE '%COLLATE%'", read,
               &indexes, nullptr);
  require(!indexes.isEmpty(), "indexes in the program's order");
  for (const auto& [name, sql] : indexes) {
    exec(db, ("DROP INDEX \"" + name + '"').toUtf8().constData());
    exec(db, QString(sql).remove(u"COLLATE JET"_s).remove(u"COLLATE \"JET\""_s).toUtf8().constData());
  }
  sqlite3_close(db);
}

}  // namespace

Plain::Plain(const Books& books) {
  for (const QString& name : {u"Basic.mdb"_s, u"2026Foundation.mdb"_s}) {
    require(QFile::copy(books.native(name), folder_.filePath(name)), "copy");
    indexPlainly(folder_.filePath(name));
  }
  require(sqlite3_open(folder_.filePath("Basic.mdb").toUtf8().constData(), &db_) == SQLITE_OK, "open");
  knowTextOrder(db_);
  exec(db_, ("ATTACH '" + folder_.filePath("2026Foundation.mdb") + "' AS y").toUtf8().constData());
  exec(db_, "PRAGMA main.cache_size = -16000; PRAGMA y.cache_size = -16000");
}

Plain::~Plain() {
  for (sqlite3_stmt* statement : statements_) sqlite3_finalize(statement);
  sqlite3_close(db_);
}

sqlite3_stmt* Plain::prepare(const char* sql) {
  sqlite3_stmt* statement = nullptr;
  require(sqlite3_prepare_v3(db_, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) == SQLITE_OK,
          sqlite3_errmsg(db_));
  statements_.push_back(statement);
  return statement;
}

void step(sqlite3_stmt* statement) {
  require(sqlite3_step(statement) == SQLITE_DONE, "a plain statement");
  sqlite3_reset(statement);
}

QString cell(sqlite3_stmt* statement, int column) {
  return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)),
                           sqlite3_column_bytes(statement, column));
}

void bindText(sqlite3_stmt* statement, int parameter, const QString& text) {
  sqlite3_bind_text(statement, parameter, text.toUtf8().constData(), -1, SQLITE_TRANSIENT);
}

Rows rowsOf(const jet::Database& db, const QString& sql) {
  Rows rows;
  for (jet::Recordset found = db.OpenRecordset(sql); !found.atEnd(); found.MoveNext()) {
    std::vector<QString>& cells = rows.emplace_back();
    for (int at = 0; at < int(found.fieldNames().size()); ++at) cells.push_back(found[at].toText());
  }
  return rows;
}

Rows rowsOf(sqlite3_stmt* query) {
  Rows rows;
  while (sqlite3_step(query) == SQLITE_ROW) {
    std::vector<QString>& cells = rows.emplace_back();
    for (int at = 0; at < sqlite3_column_count(query); ++at)
      cells.push_back(sqlite3_column_type(query, at) == SQLITE_FLOAT
                          ? QString::number(sqlite3_column_double(query, at), 'g', 15)
                          : cell(query, at));
  }
  sqlite3_reset(query);
  return rows;
}

Rows cellsOf(const SpreadModel& grid, bool closed) {
  Rows rows;
  for (int row = 1; row <= grid.MaxRows() - (closed ? 1 : 0); ++row) {
    std::vector<QString>& cells = rows.emplace_back();
    for (int col = 1; col <= grid.MaxCols(); ++col) cells.push_back(grid.text(row, col));
  }
  return rows;
}

}  // namespace bench
