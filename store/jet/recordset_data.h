#pragma once
// What stands behind a recordset: the rows, where it stands, and for a dynaset where each row came from.
#include <QStringList>
#include <map>
#include <memory>
#include <vector>

#include "store/jet/compile.h"
#include "store/jet/data_file.h"
#include "store/jet/row_store.h"

namespace jet {

class WorkspaceData;

class RecordsetData {
 public:
  /** Takes the rows; hidden row keys stand behind the columns, one for each source. */
  RecordsetData(std::shared_ptr<const std::vector<ResultColumn>> columns, RowStore rows);

  /** A table that rows are written back to. */
  struct Source {
    std::weak_ptr<DataFile> file;
    TableInfo table;
  };
  void makeWritable(std::weak_ptr<DatabaseData> database, std::vector<Source> sources);

  QStringList names() const;
  int fieldIndex(QAnyStringView name) const;  ///< of names that stand twice the first; -1
  int fieldOf(QAnyStringView name) const;     ///< 3265
  int fieldOf(const char* name) const;        ///< 3265; a name met before costs one comparison
  Value value(int field) const;

  bool atEnd() const { return position_ >= rows_.rows(); }
  bool atStart() const { return position_ < 0 || rows_.rows() == deleted_; }
  int position() const { return position_; }
  void moveTo(int position);  ///< to the row itself
  void moveFirst();
  void moveLast();
  void moveNext();
  void movePrevious();
  int recordCount() const;

  void addNew();
  void edit();
  void set(int field, const Value& value);
  void update();
  void cancelUpdate();
  void deleteRow();

  /** Where rows are written back to: the first table, its file's path, the pending write as a statement. For what is told
   *  of a failure; '' where there is none. */
  QString table() const { return sources_.empty() ? QString() : sources_.front().table.name; }
  QString path() const;
  QString writtenAs() const;

 private:
  enum class Mode { Reading, Editing, Adding };
  bool isDeleted(int row) const { return row < int(gone_.size()) && gone_[size_t(row)]; }
  void reach() { reached_ = std::max(reached_, std::min(position_ + 1, rows_.rows())); }
  void checkCurrent() const;
  void checkWritable() const;
  int sourceOf(int field) const;
  int keyColumn(int source) const { return int(columns_->size()) + source; }
  void writeBack(int source, const std::map<int, Value>& fields);
  qint64 writeRow(class Connection& connection, int source, const std::map<int, Value>& fields,
                  const Value& key);
  std::vector<Value> readRow(class Connection& connection, int source, qint64 key,
                             const std::vector<int>& fields);

  std::shared_ptr<const std::vector<ResultColumn>>
      columns_;  ///< of the statement, where each field came from
  /** Names as they were asked for, in that order: a loop asks for the same ones row after row. */
  mutable std::vector<std::pair<QByteArray, int>> met_;
  mutable size_t nextMet_ = 0;
  RowStore rows_;
  std::vector<bool> gone_;  ///< deleted rows, empty until the first
  int deleted_ = 0;
  int position_ = 0;
  int reached_ = 0;

  bool writable_ = false;
  std::weak_ptr<DatabaseData> database_;
  std::vector<Source> sources_;
  Mode mode_ = Mode::Reading;
  std::map<int, Value> pending_;
};

}  // namespace jet
