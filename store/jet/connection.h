#pragma once
// One SQLite connection and its statements, by the C interface; failures come out as the engine's own numbers.
#include <sqlite3.h>

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>
#include <memory>
#include <vector>

#include "store/jet/error.h"
#include "store/jet/value.h"

namespace jet {

/** A name between double quotes, as SQLite wants names. */
QByteArray quotedName(const QString& name);

/** A connection whose main file exists; closed with it. Its statements must be gone by then. */
class Connection {
 public:
  /** Throws 3024 missing, 3343 no data file, 3356 locked, 3049 damaged. */
  Connection(const QString& nativePath, int busyMilliseconds);
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  void exec(const QByteArray& sql);
  /** Nothing is thrown; for the way back after a failure. */
  void tryExec(const QByteArray& sql) noexcept;
  bool inTransaction() const { return sqlite3_get_autocommit(handle_.get()) == 0; }
  qint64 changes() const { return sqlite3_changes64(handle_.get()); }
  qint64 lastRowId() const { return sqlite3_last_insert_rowid(handle_.get()); }

  void attach(const QString& nativePath, const QByteArray& alias);
  void detach(const QByteArray& alias);
  /** The file under this alias was deleted or replaced on the disk since it was opened. */
  bool hasMoved(const QByteArray& alias) const;
  /** A lock on the file is held, also one that could not be given back. */
  bool isLocked(const QByteArray& alias) const;
  /** Gives back the memory of the pages that were read. */
  void forgetPages() { sqlite3_db_release_memory(handle_.get()); }
  bool isReadOnly(const QByteArray& alias) const {
    return sqlite3_db_readonly(handle_.get(), alias.constData()) == 1;
  }

  /** What the last call's failure means; `about` (a table's or a file's name) fills the text. */
  Error error(int code, const QString& about = {}) const;
  sqlite3* handle() const { return handle_.get(); }

 private:
  struct Closer {
    void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
  };
  static int waitForLock(void* connection, int tries);

  int patience_;  ///< milliseconds
  QElapsedTimer waiting_;
  std::unique_ptr<sqlite3, Closer> handle_;
};

/** A prepared statement. */
class SqliteStatement {
 public:
  SqliteStatement() = default;
  SqliteStatement(Connection& connection, const QByteArray& sql, bool persistent = false);

  SqliteStatement& bind(int index, const Value& value);  ///< from 1
  void bindNumber(int index, qint64 number) { sqlite3_bind_int64(raw(), index, number); }
  /** The text is kept here until another takes its place. */
  void bindText(int index, QStringView text);
  /** True: a row stands ready. Throws the failure; `about` fills its text. */
  bool step(const QString& about = {});
  void reset() noexcept;
  void run(const QString& about = {});  ///< steps to the end and resets

  Value value(int column) const;
  QString text(int column) const { return value(column).toText(); }
  qint64 number(int column) const { return sqlite3_column_int64(raw(), column); }
  sqlite3_stmt* raw() const { return statement_.get(); }

 private:
  struct Finalizer {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  Connection* connection_ = nullptr;
  std::vector<QByteArray> texts_;  ///< bound ones
  std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
};

/** A group inside or outside a transaction: kept when release() was called, undone otherwise. */
class Savepoint {
 public:
  explicit Savepoint(Connection& connection) : connection_(connection) { connection_.exec("SAVEPOINT step"); }
  ~Savepoint();
  Savepoint(const Savepoint&) = delete;
  Savepoint& operator=(const Savepoint&) = delete;
  void release();

 private:
  Connection& connection_;
  bool done_ = false;
};

}  // namespace jet
