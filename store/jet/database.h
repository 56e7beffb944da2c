#pragma once
// The engine's face: workspace, database, recordset and the object model for tables, fields, indexes and links.
// Below it one SQLite connection a workspace, every open file attached; above it nobody sees SQLite.
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

#include "store/jet/error.h"
#include "store/jet/value.h"

namespace jet {

/** Column types by the object model's own numbers. */
enum class Type { Boolean = 1, Long = 4, Double = 7, Text = 10, Memo = 12 };

/** A column. Texts compare without case and trailing blanks; '' is refused (3315) unless allowZeroLength. */
struct Field {
  QString name;
  Type type = Type::Text;
  int size = 0;  ///< characters, text only; 0 takes 255
  bool autonumber = false;
  bool allowZeroLength = true;
  bool required = false;
  Value defaultValue;  ///< Null: none. Numbers without one take 0 on insert only when the file says so.
};

struct Index {
  QString name;
  QStringList fields;
  bool primary = false;
  bool unique = false;
};

/** A table of a file, or a link to a table of another file. */
struct TableDef {
  QString name;
  std::vector<Field> fields;
  std::vector<Index> indexes;
  QString connect;          ///< ";DATABASE=" + path of the other file for a link, else empty
  QString sourceTableName;  ///< the table's name there
  bool isLink() const { return !connect.isEmpty(); }
};

enum class RecordsetType { Dynaset = 2, Snapshot = 4 };

class Database;
class RecordsetData;

/** Rows read at opening; the store is let go at once. A dynaset can write rows back by their key. */
class Recordset {
 public:
  Recordset() = default;
  bool isOpen() const { return data_ != nullptr; }
  void Close() { data_.reset(); }

  bool atEnd() const;    ///< EOF
  bool atStart() const;  ///< BOF
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  void MovePrevious();
  /** Right after opening a yes-or-no (0 or not), then the rows reached so far; after MoveLast the count of rows. */
  int RecordCount() const;
  int Bookmark() const;
  void setBookmark(int bookmark);

  QStringList fieldNames() const;
  int fieldIndex(const QString& name) const;  ///< -1 when there is none; case does not matter
  /** The current row's field, of names that stand twice the first; between Edit or AddNew and Update what was set.
   *  3265 for an unknown name, 3021 when there is no current row, 3167 when it was deleted. */
  Value operator[](const QString& name) const;
  Value operator[](const char* name) const;
  Value operator[](int index) const;
  bool isNull(const QString& name) const { return (*this)[name].isNull(); }

  // A dynaset's rows are written to the tables they came from; 3027 for a snapshot and for rows that are no table's
  // (groups, DISTINCT, UNION). AddNew writes one table. Update leaves the position where it was.
  void AddNew();
  void Edit();
  void set(const QString& name,
           const Value& value);  ///< 3020 without AddNew or Edit, 3164 no column of a table
  void Update();
  void CancelUpdate();
  void Delete();

 private:
  friend class Database;
  std::shared_ptr<RecordsetData> data_;
};

class WorkspaceData;
class DatabaseData;

/** A handle on one open data file; an unset handle answers every call with error 91. Copies share the file. */
class Database {
 public:
  Database() = default;
  bool isOpen() const { return data_ != nullptr; }
  QString path() const;
  /** Lets the file go when the last handle on it is closed. Closing an unset handle does nothing. */
  void Close() { data_.reset(); }

  /** A group (Workspace::Together) on this file. */
  void Together(const std::function<void()>& work) const;
  /** Runs one statement, returns the rows it touched. Throws Error. */
  int Execute(QStringView sql) const;
  /** Reads the whole file; false when it is damaged. Throws what keeps it from being read. */
  bool isSound() const;
  int Execute(const QString& sql) const { return Execute(QStringView(sql)); }
  Recordset OpenRecordset(QStringView sql, RecordsetType type = RecordsetType::Snapshot) const;
  Recordset OpenRecordset(const QString& sql, RecordsetType type = RecordsetType::Snapshot) const {
    return OpenRecordset(QStringView(sql), type);
  }

  std::vector<TableDef> TableDefs() const;
  bool hasTable(const QString& name) const;       ///< upper-cased names compared
  TableDef tableDef(const QString& name) const;   ///< 3265 when there is none
  void createTable(const TableDef& table) const;  ///< a link when connect is set
  void deleteTable(const QString& name) const;    ///< from the TableDefs: of a link only the link goes
  void appendField(const QString& table, const Field& field, int ordinal = -1) const;
  void createIndex(const QString& table, const Index& index) const;

 private:
  int execute(QStringView sql) const;
  Recordset read(QStringView sql, RecordsetType type) const;
  friend class Workspace;
  std::shared_ptr<DatabaseData> data_;
};

/** One connection to the data folder. */
class Workspace {
 public:
  struct Options {
    /** The connection's main file (the data folder's Basic.mdb), so that a commit over several files is atomic. */
    QString mainFile;
    /** A path as the statements write it ("C:\RWGas\Dbs\Basic.mdb") to the PC's own path. Default: identity. */
    std::function<QString(const QString&)> resolvePath;
    int busyMilliseconds = 4000;  ///< then error 3261
  };

  Workspace() = default;  ///< unset
  explicit Workspace(Options options);
  bool isOpen() const { return data_ != nullptr; }
  void Close() { data_.reset(); }

  /** 3024 no such file, 3343 no data file, 3356 opened exclusively elsewhere. */
  Database OpenDatabase(const QString& path, bool exclusive = false) const;
  Database CreateDatabase(const QString& path) const;  ///< 3204 when it exists

  /** One flush for what work does. No undo for what a statement's text or data are refused for: what ran before it stays
   *  and is committed, and the error goes on. A failure of the store itself (disk, room, lock, permission, connection)
   *  takes all of it back, and every later statement of the group, and the group, fail with it. Nested calls join the
   *  outer one. */
  void Together(const std::function<void()>& work) const;
  /** The same for work that writes into several files: all of them are locked before the first is written. */
  void Together(const std::vector<Database>& files, const std::function<void()>& work) const;
  /** A file that is closed within work keeps its place, unless another needs it, until work ends: opening it again
   *  reads nothing anew. Nothing of it is locked. */
  void KeepingFiles(const std::function<void()>& work) const;

 private:
  std::shared_ptr<WorkspaceData> data_;
};

}  // namespace jet
