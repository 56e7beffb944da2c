#pragma once
// One attached data file and its own catalogue: what the tables, fields, indexes and links are in the engine's terms.
//
// The rows lie in plain STRICT tables, so any SQLite tool reads them. What SQLite's types cannot say (text sizes,
// yes/no, zero-length allowed, links) stands in the tables jet_fields, jet_indexes and jet_links of the same file. No
// column declares a collation; only indexes name the collation JET, which a foreign tool does not know: it can read
// every table, and is refused when it writes to one with an index on a text.
#include <QHash>
#include <QString>
#include <optional>
#include <vector>

#include "store/jet/compile.h"
#include "store/jet/connection.h"
#include "store/jet/database.h"
#include "store/jet/presence.h"

namespace jet {

class DataFile {
 public:
  explicit DataFile(QString nativePath) : path_(std::move(nativePath)) {}

  /** A new file with an empty catalogue; 3204 when it exists, 3044 when its folder does not. */
  static void create(const QString& nativePath);

  const QString& path() const { return path_; }
  const QByteArray& alias() const { return alias_; }
  void setAlias(const QByteArray& alias) { alias_ = alias; }

  bool attached = false;
  /** Open handles on the file; at 0 it is let go. */
  int handles = 0;
  int exclusiveHandles = 0;
  /** Its write lock is held by the running group. */
  bool reserved = false;
  /** A failure undid more than its own statement: the catalogue is read again before the next one. */
  bool outdated = false;
  quint64 lastUse = 0;

  /** From before it is opened until after it is closed others can see that somebody has it open. 3356. */
  void arrive(int milliseconds) { presence_.emplace(path_, milliseconds); }
  void leave() { presence_.reset(); }
  bool takeAlone() { return presence_ && presence_->takeAlone(); }
  void shareAgain() {
    if (presence_) presence_->shareAgain();
  }

  /** Right after opening: a file that a foreign tool has switched to write-ahead logging is switched back, or a group
   *  over several files would not be whole; 3051 when others keep it so. */
  void useRollbackJournal(Connection& connection);
  /** Reads the catalogue; throws 3343 for a file that has none. */
  void load(Connection& connection);
  /** The same when another program has changed it since; true when it had. */
  bool refresh(Connection& connection);

  const std::vector<TableDef>& tables() const { return tables_; }
  const TableDef* find(const QString& name) const;  ///< names without case

  // Each is done wholly or not at all. Links: 3057.
  void createTable(Connection& connection, const TableDef& table);
  void dropTable(Connection& connection, const QString& name);
  void addField(Connection& connection, const QString& table, const Field& field, int ordinal);
  /** A longer text, or a whole number that becomes one with fractions; nothing where the field holds that already. Its
   *  default and its requirement stay. 3219 for every other change and for a number in an index. */
  void widenField(Connection& connection, const QString& table, const Field& wanted);
  void createIndex(Connection& connection, const QString& table, const Index& index);
  void dropIndex(Connection& connection, const QString& table, const QString& index);

 private:
  TableDef& own(const QString& name);
  QByteArray schemaName(const QString& name) const { return alias_ + '.' + quotedName(name); }
  void writeFields(Connection& connection, const TableDef& table);
  void writeIndex(Connection& connection, const TableDef& table, const Index& index);
  void bumpVersion(Connection& connection);

  QString path_;
  QByteArray alias_;
  std::vector<TableDef> tables_;
  QHash<QString, int> byName_;  ///< case-folded
  int version_ = -1;
  std::optional<Presence> presence_;
};

}  // namespace jet
