#include "store/jet/database.h"

#include <algorithm>

#include "store/jet/error_texts.h"
#include "store/jet/recordset_data.h"
#include "store/jet/shape.h"
#include "store/jet/top_rows.h"
#include "store/jet/workspace_data.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

template <typename Pointer>
auto& checked(const Pointer& data) {
  if (!data) fail(91);
  return *data;
}

/** An error that leaves work takes along what was run and where. */
template <typename Work>
auto withOrigin(QStringView statement, const QString& path, const Work& work) {
  try {
    return work();
  } catch (Error& error) {
    error.setOrigin(statement.toString(), path);
    throw;
  }
}

void bindLiterals(SqliteStatement& statement, const Shape& shape) {
  int parameter = 0;
  for (const Token& literal : shape.literals) {
    ++parameter;
    if (literal.isPlainText())
      statement.bindText(parameter, literal.text);
    else if (literal.isPlainWhole())
      statement.bindNumber(parameter, literal.whole());
    else
      statement.bind(parameter, literal.value());
  }
}

const DataFile& currentFile(DatabaseData& data) {
  data.workspace().refresh(data.file());
  return *data.file();
}

void runDefinition(DatabaseData& data, const Compiled& compiled) {
  const FilePtr& file = data.file();
  const TableDef& wanted = compiled.definition;
  data.workspace().define(file, [&](Connection& connection) {
    switch (compiled.kind) {
      case Compiled::Kind::CreateTable:
        return file->createTable(connection, wanted);
      case Compiled::Kind::DropTable:
        if (!file->find(wanted.name)) fail(3376, wanted.name);
        return file->dropTable(connection, wanted.name);
      case Compiled::Kind::AddColumn:
        return file->addField(connection, wanted.name, wanted.fields.front(), -1);
      case Compiled::Kind::AlterColumn:
        return file->widenField(connection, wanted.name, wanted.fields.front());
      case Compiled::Kind::CreateIndex:
        return file->createIndex(connection, wanted.name, wanted.indexes.front());
      default:
        return file->dropIndex(connection, wanted.name, wanted.indexes.front().name);
    }
  });
}

}  // namespace

// ---- workspace

Workspace::Workspace(Options options) : data_(std::make_shared<WorkspaceData>(std::move(options))) {}

Database Workspace::OpenDatabase(const QString& path, bool exclusive) const {
  FilePtr file = withOrigin({}, path, [&] { return checked(data_).open(path, exclusive); });
  Database database;
  database.data_ = std::make_shared<DatabaseData>(data_, std::move(file), path, exclusive);
  return database;
}

Database Workspace::CreateDatabase(const QString& path) const {
  checked(data_).create(path);
  return OpenDatabase(path);
}

void Workspace::Together(const std::function<void()>& work) const {
  checked(data_).together(work);
}

void Workspace::Together(const std::vector<Database>& files, const std::function<void()>& work) const {
  std::vector<FilePtr> also;
  for (const Database& file : files)
    if (file.isOpen()) also.push_back(file.data_->file());
  checked(data_).together(work, also);
}

void Workspace::KeepingFiles(const std::function<void()>& work) const {
  checked(data_).keepingFiles(work);
}

// ---- statements

QString Database::path() const {
  return checked(data_).written();
}

void Database::Together(const std::function<void()>& work) const {
  DatabaseData& data = checked(data_);
  data.workspace().together(work, {data.file()});
}

bool Database::isSound() const {
  DatabaseData& data = checked(data_);
  return data.workspace().isSound(data.file());
}

int Database::Execute(QStringView sql) const {
  return withOrigin(sql, data_ ? data_->written() : QString(), [&] { return execute(sql); });
}

Recordset Database::OpenRecordset(QStringView sql, RecordsetType type) const {
  return withOrigin(sql, data_ ? data_->written() : QString(), [&] { return read(sql, type); });
}

int Database::execute(QStringView sql) const {
  DatabaseData& data = checked(data_);
  WorkspaceData& workspace = data.workspace();
  const Shape shape = shapeOf(sql);
  Prepared& prepared = workspace.prepare(data.file(), shape.key(), sql, Keys::None);
  switch (prepared.compiled.kind) {
    case Compiled::Kind::Select:
      fail(3065);
    case Compiled::Kind::Insert:
    case Compiled::Kind::Update:
    case Compiled::Kind::Delete:
      break;
    default:
      runDefinition(data, Compiled(prepared.compiled));
      return 0;
  }
  qint64 rows = 0;
  const auto write = [&](Connection& connection) {
    bindLiterals(prepared.statement, shape);
    prepared.statement.run(prepared.about);
    rows = connection.changes();
  };
  workspace.run(prepared, std::ref(write));
  return int(rows);
}

Recordset Database::read(QStringView sql, RecordsetType type) const {
  DatabaseData& data = checked(data_);
  WorkspaceData& workspace = data.workspace();
  const Shape shape = shapeOf(sql);
  const bool dynaset = type == RecordsetType::Dynaset;
  Prepared& prepared = workspace.prepare(data.file(), shape.key(), sql, dynaset ? Keys::With : Keys::None);
  const Compiled& compiled = prepared.compiled;
  if (compiled.kind != Compiled::Kind::Select) fail(3219, sql.toString());

  const int columns = int(prepared.columns->size() + compiled.keys.size());
  RowStore rows(columns);
  const auto read = [&](Connection&) {
    if (rows.rows() > 0) rows = RowStore(columns);  // a second reading
    bindLiterals(prepared.statement, shape);
    TopRows top(compiled);
    while (prepared.statement.step(prepared.about) && top.takes(prepared.statement.raw()))
      rows.appendRow(prepared.statement.raw());
    prepared.statement.reset();
  };
  workspace.run(prepared, std::ref(read));
  rows.stopFilling();

  std::vector<RecordsetData::Source> sources;
  for (const TableInfo& table : compiled.keys) {
    const auto file = std::find_if(
        prepared.files.begin(), prepared.files.end(),
        [&](const FilePtr& candidate) { return QLatin1StringView(candidate->alias()) == table.schema; });
    if (file != prepared.files.end()) sources.push_back({*file, table});
  }
  Recordset recordset;
  recordset.data_ = std::make_shared<RecordsetData>(prepared.columns, std::move(rows));
  if (dynaset) recordset.data_->makeWritable(data_, std::move(sources));
  return recordset;
}

// ---- object model

std::vector<TableDef> Database::TableDefs() const {
  return currentFile(checked(data_)).tables();
}

bool Database::hasTable(const QString& name) const {
  return currentFile(checked(data_)).find(name) != nullptr;
}

TableDef Database::tableDef(const QString& name) const {
  const TableDef* table = currentFile(checked(data_)).find(name);
  if (!table) fail(3265, name);
  return *table;
}

void Database::createTable(const TableDef& table) const {
  const FilePtr& file = checked(data_).file();
  data_->workspace().define(file, [&](Connection& connection) { file->createTable(connection, table); });
}

void Database::deleteTable(const QString& name) const {
  const FilePtr& file = checked(data_).file();
  data_->workspace().define(file, [&](Connection& connection) { file->dropTable(connection, name); });
}

void Database::appendField(const QString& table, const Field& field, int ordinal) const {
  const FilePtr& file = checked(data_).file();
  data_->workspace().define(
      file, [&](Connection& connection) { file->addField(connection, table, field, ordinal); });
}

void Database::createIndex(const QString& table, const Index& index) const {
  const FilePtr& file = checked(data_).file();
  data_->workspace().define(file,
                            [&](Connection& connection) { file->createIndex(connection, table, index); });
}

// ---- recordset

bool Recordset::atEnd() const {
  return checked(data_).atEnd();
}
bool Recordset::atStart() const {
  return checked(data_).atStart();
}
void Recordset::MoveFirst() {
  checked(data_).moveFirst();
}
void Recordset::MoveLast() {
  checked(data_).moveLast();
}
void Recordset::MoveNext() {
  checked(data_).moveNext();
}
void Recordset::MovePrevious() {
  checked(data_).movePrevious();
}
int Recordset::RecordCount() const {
  return checked(data_).recordCount();
}

int Recordset::Bookmark() const {
  const RecordsetData& data = checked(data_);
  if (data.atEnd() || data.position() < 0) fail(3021);
  return data.position();
}

void Recordset::setBookmark(int bookmark) {
  checked(data_).moveTo(bookmark);
}

QStringList Recordset::fieldNames() const {
  return checked(data_).names();
}
int Recordset::fieldIndex(const QString& name) const {
  return checked(data_).fieldIndex(name);
}

Value Recordset::operator[](const QString& name) const {
  const RecordsetData& data = checked(data_);
  return data.value(data.fieldOf(name));
}

Value Recordset::operator[](const char* name) const {
  const RecordsetData& data = checked(data_);
  return data.value(data.fieldOf(name));
}

Value Recordset::operator[](int index) const {
  return checked(data_).value(index);
}

void Recordset::AddNew() {
  checked(data_).addNew();
}
void Recordset::Edit() {
  checked(data_).edit();
}
void Recordset::set(const QString& name, const Value& value) {
  RecordsetData& data = checked(data_);
  data.set(data.fieldOf(name), value);
}
void Recordset::Update() {
  RecordsetData& data = checked(data_);
  withOrigin(data.writtenAs(), data.path(), [&] { data.update(); });
}
void Recordset::CancelUpdate() {
  checked(data_).cancelUpdate();
}
void Recordset::Delete() {
  RecordsetData& data = checked(data_);
  withOrigin(u"Delete From "_s + data.table(), data.path(), [&] { data.deleteRow(); });
}

}  // namespace jet
