#pragma once
// Books of a retailer in a temporary folder on the disk, opened as at the end of a start, and a plain SQLite
// connection on a copy of them.
#include <sqlite3.h>

#include <QTemporaryDir>

#include "bench/pairs.h"
#include "pc/pc.h"
#include "store/session.h"
#include "ui/model/spread_model.h"

namespace bench {

/** No box belongs into a measured run. */
struct NoPrompts : Prompts {
  void MsgInfo(const QString& text, const QString&) override { stop(text); }
  void MsgWarn(const QString& text, const QString&) override { stop(text); }
  bool MsgAsk(const QString&, const QString&, bool) override { return true; }
  void ErrorBox(const QString& text, int, const QString& description) override { stop(text + description); }
  std::optional<QString> InputBox(const QString& text, const QString&, const QString&) override {
    stop(text);
    return {};
  }
  static void stop(const QString& text);
};

/** 2026-03-16, stock management on. */
struct Books {
  /** With customers and, when wanted, so many lines of them in the year's file. */
  explicit Books(int clients = 0, int lines = 0);
  ~Books();
  /** Customers 1 to count with telephones. */
  void addClients(int count);
  /** Lines spread over the days of the year and its customers, in the year's file. */
  void addSales(const jet::Database& year, int lines, int clients, int yearNumber = 2026);
  QString native(const QString& name) const { return pc.paths.native(session.DbPath + name); }

  QTemporaryDir folder;
  pc::Pc pc{folder.path()};
  NoPrompts prompts;
  Session session{pc, prompts};
};

/** Plain SQLite on copies of Basic.mdb and the year's file of some books: same journal, sync and cache as the program's. */
class Plain {
 public:
  explicit Plain(const Books& books);
  ~Plain();
  sqlite3* db() { return db_; }
  sqlite3_stmt* prepare(const char* sql);

 private:
  QTemporaryDir folder_;
  sqlite3* db_ = nullptr;
  std::vector<sqlite3_stmt*> statements_;
};

/** The files' indexes name the program's text order: it must be known to write a row. Here the bytes' order is enough. */
void knowTextOrder(sqlite3* db);

/** A bound statement that gives no rows, run and reset. */
void step(sqlite3_stmt* statement);
/** The field of the row on which a statement stands, as a cell holds it. */
QString cell(sqlite3_stmt* statement, int column);
void bindText(sqlite3_stmt* statement, int parameter, const QString& text);
/** What a query gives, as texts. */
Rows rowsOf(const jet::Database& db, const QString& sql);
Rows rowsOf(sqlite3_stmt* query);
/** Every cell of a grid, without a closing row of sums. */
Rows cellsOf(const SpreadModel& grid, bool closed = false);

}  // namespace bench
