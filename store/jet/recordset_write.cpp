// A dynaset's way back to the tables: AddNew, Edit, Update and Delete by the rows' keys.
#include <algorithm>

#include "store/jet/error_texts.h"
#include "store/jet/put_call.h"
#include "store/jet/recordset_data.h"
#include "store/jet/workspace_data.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

const Field& tableField(const TableInfo& table, const QString& name) {
  for (const Field& field : table.fields)
    if (field.name == name) return field;
  fail(3265, name);
}

QByteArray tableName(const DataFile& file, const TableInfo& table) {
  return file.alias() + '.' + quotedName(table.name);
}

}  // namespace

void RecordsetData::makeWritable(std::weak_ptr<DatabaseData> database, std::vector<Source> sources) {
  database_ = std::move(database);
  sources_ = std::move(sources);
  writable_ = !sources_.empty();
}

void RecordsetData::checkWritable() const {
  if (!writable_) fail(3027);
  if (database_.expired()) fail(3420);
}

int RecordsetData::sourceOf(int field) const {
  const ResultColumn& column = (*columns_)[size_t(field)];
  for (size_t i = 0; i < sources_.size(); ++i) {
    const TableInfo& table = sources_[i].table;
    if (!column.column.isEmpty() && table.schema == column.schema && table.name == column.table)
      return int(i);
  }
  fail(3164, column.name);
}

QString RecordsetData::path() const {
  const FilePtr file = sources_.empty() ? FilePtr() : sources_.front().file.lock();
  return file ? file->path() : QString();
}

QString RecordsetData::writtenAs() const {
  return (mode_ == Mode::Adding ? u"Insert Into "_s : u"Update "_s) + table();
}

void RecordsetData::addNew() {
  checkWritable();
  pending_.clear();
  mode_ = Mode::Adding;
}

void RecordsetData::edit() {
  checkWritable();
  checkCurrent();
  pending_.clear();
  mode_ = Mode::Editing;
}

void RecordsetData::set(int field, const Value& value) {
  if (mode_ == Mode::Reading) fail(3020);
  (void)sourceOf(field);
  pending_[field] = value;
}

void RecordsetData::cancelUpdate() {
  mode_ = Mode::Reading;
  pending_.clear();
}

qint64 RecordsetData::writeRow(Connection& connection, int source, const std::map<int, Value>& fields,
                               const Value& key) {
  const FilePtr file = sources_[size_t(source)].file.lock();
  const TableInfo& table = sources_[size_t(source)].table;
  QByteArray names, values, pairs;
  int parameter = 0;
  for (const auto& [field, value] : fields) {
    const Field& column = tableField(table, (*columns_)[size_t(field)].column);
    const PutCall call = putCall(column);
    const QByteArray name = quotedName(column.name);
    const QByteArray put = call.before + '?' + QByteArray::number(++parameter) + call.behind;
    const QByteArray comma = parameter > 1 ? ", " : "";
    names += comma + name;
    values += comma + put;
    pairs += comma + name + " = " + put;
  }
  QByteArray sql = "UPDATE OR ABORT " + tableName(*file, table) + " SET " + pairs + " WHERE rowid = ?" +
                   QByteArray::number(parameter + 1);
  if (key.isNull()) {
    requireGiven(table.fields, [&](const Field& field) {
      return std::ranges::any_of(
          fields, [&](const auto& each) { return (*columns_)[size_t(each.first)].column == field.name; });
    });
    sql = "INSERT OR ABORT INTO " + tableName(*file, table);
    sql += fields.empty() ? QByteArray(" DEFAULT VALUES") : '(' + names + ") VALUES(" + values + ')';
  }
  SqliteStatement statement(connection, sql);
  parameter = 0;
  for (const auto& entry : fields) statement.bind(++parameter, entry.second);
  if (!key.isNull()) statement.bind(parameter + 1, key);
  statement.run(table.name);
  if (key.isNull()) return connection.lastRowId();
  if (connection.changes() == 0) fail(3167);
  return key.toLong();
}

std::vector<Value> RecordsetData::readRow(Connection& connection, int source, qint64 key,
                                          const std::vector<int>& fields) {
  const FilePtr file = sources_[size_t(source)].file.lock();
  const TableInfo& table = sources_[size_t(source)].table;
  QByteArray names = "rowid";
  for (const int field : fields) names += ", " + quotedName((*columns_)[size_t(field)].column);
  SqliteStatement statement(connection,
                            "SELECT " + names + " FROM " + tableName(*file, table) + " WHERE rowid = ?1");
  statement.bind(1, key);
  std::vector<Value> values;
  if (!statement.step(table.name)) fail(3167);
  for (size_t i = 0; i < fields.size(); ++i) values.push_back(statement.value(int(i) + 1));
  return values;
}

/** Writes one table's part of the pending fields, then reads the row again: what it shows is what is stored. */
void RecordsetData::writeBack(int source, const std::map<int, Value>& fields) {
  const auto database = database_.lock();
  const FilePtr file = sources_[size_t(source)].file.lock();
  if (!database || !file) fail(3420);
  const bool adding = mode_ == Mode::Adding;
  Value key;
  if (!adding) {
    key = rows_.at(position_, keyColumn(source));
    if (key.isNull()) fail(3164, sources_[size_t(source)].table.name);  // an outer join's empty side
  }
  std::vector<int> shown;
  for (int field = 0; field < int(columns_->size()); ++field) {
    const ResultColumn& column = (*columns_)[size_t(field)];
    if (column.schema == sources_[size_t(source)].table.schema &&
        column.table == sources_[size_t(source)].table.name && !column.column.isEmpty())
      shown.push_back(field);
  }
  database->workspace().runOn(file, [&](Connection& connection) {
    const qint64 written = writeRow(connection, source, fields, key);
    const std::vector<Value> values = readRow(connection, source, written, shown);
    int row = position_;
    if (adding) {
      std::vector<Value> empty(columns_->size() + sources_.size());
      empty[size_t(keyColumn(source))] = written;
      row = rows_.rows();
      rows_.appendRow(empty);
      if (position_ >= row) ++position_;  // behind the last row it stays
      ++reached_;
    }
    for (size_t i = 0; i < shown.size(); ++i) rows_.set(row, shown[i], values[i]);
  });
}

void RecordsetData::update() {
  if (mode_ == Mode::Reading) fail(3020);
  checkWritable();
  std::map<int, std::map<int, Value>> bySource;
  for (const auto& [field, value] : pending_) bySource[sourceOf(field)][field] = value;
  if (mode_ == Mode::Adding) {
    if (bySource.size() > 1) fail(3219);
    if (bySource.empty()) bySource[0] = {};
  }
  const auto write = [&] {
    for (const auto& [source, fields] : bySource) writeBack(source, fields);
  };
  if (bySource.size() > 1)
    database_.lock()->workspace().together(write);
  else
    write();
  cancelUpdate();
}

void RecordsetData::deleteRow() {
  checkWritable();
  checkCurrent();
  const auto database = database_.lock();
  const FilePtr file = sources_.front().file.lock();
  if (!database || !file) fail(3420);
  const Value key = rows_.at(position_, keyColumn(0));
  if (key.isNull()) fail(3164, sources_.front().table.name);
  database->workspace().runOn(file, [&](Connection& connection) {
    SqliteStatement statement(
        connection, "DELETE FROM " + tableName(*file, sources_.front().table) + " WHERE rowid = ?1");
    statement.bind(1, key).run(sources_.front().table.name);
  });
  gone_.resize(size_t(rows_.rows()));
  gone_[size_t(position_)] = true;
  ++deleted_;
  cancelUpdate();
}

}  // namespace jet
