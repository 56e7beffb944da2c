#include "store/jet/connection.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include "store/jet/error_texts.h"
#include "store/jet/file_system.h"
#include "store/jet/functions.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

/** The number of a failure of our own: a function's message is "JET " and the number, a check's name stands behind
 *  SQLite's words. 0 when it is none of ours. */
int ownFailure(const QByteArray& message) {
  for (const char* before : {"JET ", "CHECK constraint failed: JET "})
    if (message.startsWith(before)) return message.mid(qsizetype(qstrlen(before))).toInt();
  return 0;
}

Error constraintError(int code, const QByteArray& message) {
  // "NOT NULL constraint failed: Client.Name": what stands behind the colon.
  const QString where = QString::fromUtf8(message.mid(message.lastIndexOf(':') + 1)).trimmed();
  switch (code) {
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
      return errorOf(3022, where);
    case SQLITE_CONSTRAINT_NOTNULL:
      return errorOf(3314, where);
    default:
      return errorOf(3421, where);
  }
}

/** What the system said of a file that could not be opened: not allowed, in the way, or too many; not that the disk or
 *  the network is silent. */
bool isForbidden(int systemError) {
  return std::ranges::count(std::to_array({0, EACCES, EPERM, EROFS, ENOENT, ENOTDIR, EISDIR, EMFILE, ENFILE}),
                            systemError) > 0;
}

/** A data file may have been made or changed by anybody: nothing in it runs or adds to a statement (triggers, foreign
 *  keys, views, virtual tables), what is in it has a size, and damage is noticed early. */
void distrustFiles(sqlite3* handle) {
  const auto set = [&](int option, int on) { sqlite3_db_config(handle, option, on, nullptr); };
  set(SQLITE_DBCONFIG_DQS_DML, 0);
  set(SQLITE_DBCONFIG_DQS_DDL, 0);
  set(SQLITE_DBCONFIG_DEFENSIVE, 1);
  set(SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0);
  set(SQLITE_DBCONFIG_ENABLE_TRIGGER, 0);
  set(SQLITE_DBCONFIG_ENABLE_FKEY, 0);
  set(SQLITE_DBCONFIG_ENABLE_VIEW, 0);
  set(SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0);
  set(SQLITE_DBCONFIG_ENABLE_FTS3_TOKENIZER, 0);
  sqlite3_drop_modules(handle, nullptr);  // no virtual tables
  constexpr int megabyte = 1 << 20;
  sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, 16 * megabyte);  // a value, a row
  sqlite3_limit(handle, SQLITE_LIMIT_SQL_LENGTH, megabyte);
  sqlite3_limit(handle, SQLITE_LIMIT_COLUMN, 1000);
  sqlite3_limit(handle, SQLITE_LIMIT_VDBE_OP, megabyte);
  sqlite3_hard_heap_limit64(sqlite3_int64(1024) * megabyte);  // queries within queries may grow without end
}

}  // namespace

QByteArray quotedName(const QString& name) {
  return '"' + name.toUtf8().replace('"', "\"\"") + '"';
}

/** SQLite's own waiting looks again only every tenth of a second and would find no gap between the groups of another
 *  PC's long work. */
int Connection::waitForLock(void* connection, int tries) {
  constexpr int milliseconds = 8;
  auto* self = static_cast<Connection*>(connection);
  if (tries == 0) self->waiting_.start();
  if (self->waiting_.hasExpired(self->patience_)) return 0;
  sqlite3_sleep(tries < 2 ? 1 : milliseconds);
  return 1;
}

Connection::Connection(const QString& nativePath, int busyMilliseconds) : patience_(busyMilliseconds) {
  requireFile(nativePath);
  sqlite3* handle = nullptr;
  // Without the create flag: a file that is not there is never made by looking at it, neither here nor attached.
  // And without locks around every call: one thread at a time works with a connection.
  const int code = sqlite3_open_v2(nativePath.toUtf8().constData(), &handle,
                                   SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, fileSystem());
  handle_.reset(handle);
  if (code != SQLITE_OK) throw error(code, nativePath);
  sqlite3_extended_result_codes(handle, 1);
  sqlite3_busy_handler(handle, waitForLock, this);
  distrustFiles(handle);
  // SQLite's Bloom filter for joins takes texts of different length for different ones (up to 3.40), which "LPG " and
  // "LPG" are not here: a joined row would be missed.
  constexpr int bloomFilter = 0x00080000;
  sqlite3_test_control(SQLITE_TESTCTRL_OPTIMIZATIONS, handle, bloomFilter);
  registerFunctions(*this);
  // The main file's cache is also the room in which rows are sorted at one go.
  exec("PRAGMA temp_store = MEMORY; PRAGMA cell_size_check = ON; PRAGMA main.cache_size = -16000");
}

void Connection::exec(const QByteArray& sql) {
  const int code = sqlite3_exec(handle_.get(), sql.constData(), nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) throw error(code);
}

void Connection::tryExec(const QByteArray& sql) noexcept {
  sqlite3_exec(handle_.get(), sql.constData(), nullptr, nullptr, nullptr);
}

void Connection::attach(const QString& nativePath, const QByteArray& alias) {
  SqliteStatement statement(*this, "ATTACH ?1 AS " + alias);
  statement.bind(1, Value(nativePath));
  statement.run(nativePath);
}

void Connection::detach(const QByteArray& alias) {
  exec("DETACH " + alias);
}

bool Connection::hasMoved(const QByteArray& alias) const {
  int moved = 0;
  sqlite3_file_control(handle_.get(), alias.constData(), SQLITE_FCNTL_HAS_MOVED, &moved);
  return moved != 0;
}

bool Connection::isLocked(const QByteArray& alias) const {
  int level = SQLITE_LOCK_NONE;
  sqlite3_file_control(handle_.get(), alias.constData(), SQLITE_FCNTL_LOCKSTATE, &level);
  return level != SQLITE_LOCK_NONE;
}

Error Connection::error(int code, const QString& about) const {
  const QByteArray message = handle_ ? QByteArray(sqlite3_errmsg(handle_.get())) : QByteArray();
  if (const int number = ownFailure(message)) return errorOf(number, about);
  switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return errorOf(3261, about);
    case SQLITE_CONSTRAINT:
      return constraintError(code, message);
    case SQLITE_MISMATCH:
      return errorOf(3421, about);
    case SQLITE_READONLY:
      // What stands under the name on the disk is another file by now, or none.
      return errorOf(code == SQLITE_READONLY_DBMOVED ? 3043 : 3027, about);
    case SQLITE_CANTOPEN:
      if (const auto refused = takeRefusal()) return *refused;
      return errorOf(isForbidden(sqlite3_system_errno(handle_.get())) ? 3051 : 3043, about);
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return errorOf(3051, about);
    case SQLITE_IOERR:
      return errorOf(3043, about);
    case SQLITE_CORRUPT:
      return errorOf(3049, about);
    case SQLITE_FULL:
      return errorOf(3026, about);
    case SQLITE_NOTADB:
      return errorOf(3343, about);
    case SQLITE_NOMEM:
    case SQLITE_TOOBIG:
      return errorOf(3035, about);
    default:
      if (message == "unsupported file format") return errorOf(3343, about);
      if (message == "integer overflow") return errorOf(6);
      if (message == "parser stack overflow") return errorOf(3360);  // queries within queries, seven and more
      return errorOf(3146, QString::fromUtf8(message));
  }
}

SqliteStatement::SqliteStatement(Connection& connection, const QByteArray& sql, bool persistent)
    : connection_(&connection) {
  sqlite3_stmt* statement = nullptr;
  const int code = sqlite3_prepare_v3(connection.handle(), sql.constData(), int(sql.size()),
                                      persistent ? SQLITE_PREPARE_PERSISTENT : 0, &statement, nullptr);
  if (code != SQLITE_OK) throw connection.error(code);
  statement_.reset(statement);
}

SqliteStatement& SqliteStatement::bind(int index, const Value& value) {
  if (value.isNull()) {
    sqlite3_bind_null(raw(), index);
  } else if (value.isWhole()) {
    sqlite3_bind_int64(raw(), index, value.toLong());
  } else if (value.isDouble()) {
    sqlite3_bind_double(raw(), index, value.toDouble());
  } else {
    bindText(index, value.toText());
  }
  return *this;
}

void SqliteStatement::bindText(int index, QStringView text) {
  if (texts_.size() <= size_t(index)) texts_.resize(size_t(index) + 1);
  QByteArray& utf8 = texts_[size_t(index)];
  utf8 = text.toUtf8();
  const int code = sqlite3_bind_text64(raw(), index, utf8.constData(), sqlite3_uint64(utf8.size()),
                                       SQLITE_STATIC, SQLITE_UTF8);
  if (code != SQLITE_OK) throw connection_->error(code);  // too long; it would be stored as Null
}

bool SqliteStatement::step(const QString& about) {
  const int code = sqlite3_step(raw());
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  Error failure = connection_->error(code, about);
  reset();
  throw failure;
}

void SqliteStatement::reset() noexcept {
  sqlite3_reset(raw());
}

void SqliteStatement::run(const QString& about) {
  while (step(about)) {
  }
  reset();
}

Value SqliteStatement::value(int column) const {
  switch (sqlite3_column_type(raw(), column)) {
    case SQLITE_INTEGER:
      return qint64(sqlite3_column_int64(raw(), column));
    case SQLITE_FLOAT:
      return sqlite3_column_double(raw(), column);
    case SQLITE_NULL:
      return {};
    default: {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(raw(), column));
      return QString::fromUtf8(text, sqlite3_column_bytes(raw(), column));
    }
  }
}

Savepoint::~Savepoint() {
  if (done_) return;
  connection_.tryExec("ROLLBACK TO step");
  connection_.tryExec("RELEASE step");
}

void Savepoint::release() {
  connection_.exec("RELEASE step");
  done_ = true;
}

}  // namespace jet
