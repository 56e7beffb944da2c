#include "store/jet/data_file.h"

#include <QFile>
#include <QSet>
#include <algorithm>

#include "store/jet/error_texts.h"
#include "store/jet/file_system.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

constexpr qint64 kApplicationId = 0x48614F6E;  // so that `file` and we tell our files from other SQLite files

const char* const kEmptyCatalogue = R"(
CREATE TABLE jet_fields(table_name TEXT NOT NULL, ordinal INTEGER NOT NULL, name TEXT NOT NULL,
  type INTEGER NOT NULL, size INTEGER NOT NULL, autonumber INTEGER NOT NULL, zero_length INTEGER NOT NULL,
  required INTEGER NOT NULL, default_value ANY, PRIMARY KEY(table_name, name)) STRICT;
CREATE TABLE jet_indexes(table_name TEXT NOT NULL, name TEXT NOT NULL, fields TEXT NOT NULL,
  is_primary INTEGER NOT NULL, is_unique INTEGER NOT NULL, PRIMARY KEY(table_name, name)) STRICT;
CREATE TABLE jet_links(name TEXT PRIMARY KEY NOT NULL, connect TEXT NOT NULL, source_table TEXT NOT NULL) STRICT;
)";

// What a catalogue may hold. A file that says more was not made by this program, and reading on would only cost.
constexpr size_t kTablesAtMost = 1000, kFieldsAtMost = 255, kIndexesAtMost = 32;
constexpr int kLinksAtMost = 100;

constexpr QChar kFieldSeparator = u'\n';  // between an index's fields in jet_indexes

bool isKnown(qint64 type) {
  for (const Type known : {Type::Boolean, Type::Long, Type::Double, Type::Text, Type::Memo})
    if (type == qint64(known)) return true;
  return false;
}

void checkSize(const TableDef& table) {
  if (table.fields.size() > kFieldsAtMost) fail(3190, table.name);
  if (table.indexes.size() > kIndexesAtMost) fail(3626, table.name);
}

bool isText(const Field& field) {
  return field.type == Type::Text || field.type == Type::Memo;
}

void checkName(const QString& name) {
  const bool bad = std::any_of(name.begin(), name.end(), [](QChar c) {
    return c < u' ' || c == u'.' || c == u'!' || c == u'`' || c == u'[' || c == u']';
  });
  if (bad || name.isEmpty() || name.size() > 64 || name.startsWith(u' ') ||
      name.startsWith(u"jet_", Qt::CaseInsensitive) || name.startsWith(u"sqlite_", Qt::CaseInsensitive))
    fail(3125, name);
}

QByteArray literal(const Field& field) {
  if (isText(field)) return "'" + field.defaultValue.toText().toUtf8().replace('\'', "''") + "'";
  if (field.type == Type::Boolean) return field.defaultValue.toBool() ? "-1" : "0";
  return field.defaultValue.toText().toUtf8();
}

/** The column as SQLite keeps it. A failing check's name is the error's number. */
QByteArray columnText(const Field& field, bool required, bool inKey) {
  QByteArray text = quotedName(field.name);
  if (field.autonumber) return text + " INTEGER PRIMARY KEY AUTOINCREMENT";
  text += isText(field) ? " TEXT" : field.type == Type::Double ? " REAL" : " INTEGER";
  if (field.type == Type::Boolean) return text + " NOT NULL DEFAULT " + literal(field);
  if (inKey) text += " CONSTRAINT \"JET 3058\" CHECK(" + quotedName(field.name) + " IS NOT NULL)";
  if (required) text += " NOT NULL";
  if (!field.defaultValue.isNull()) text += " DEFAULT " + literal(field);
  return text;
}

const Field* fieldOf(const TableDef& table, const QString& name) {
  const auto at = std::find_if(table.fields.begin(), table.fields.end(), [&](const Field& field) {
    return field.name.compare(name, Qt::CaseInsensitive) == 0;
  });
  return at == table.fields.end() ? nullptr : &*at;
}

bool inPrimaryKey(const TableDef& table, const QString& field) {
  return std::any_of(table.indexes.begin(), table.indexes.end(), [&](const Index& index) {
    return index.primary && index.fields.contains(field, Qt::CaseInsensitive);
  });
}

/** The autonumber is SQLite's own row key, so a key of it alone needs no index. */
bool isRowKey(const TableDef& table, const Index& index) {
  if (index.fields.size() != 1) return false;
  const Field* field = fieldOf(table, index.fields.first());
  return field && field->autonumber;
}

int userVersion(Connection& connection, const QByteArray& alias, const QString& path) {
  SqliteStatement statement(connection, "PRAGMA " + alias + ".user_version");
  const bool row = statement.step(path);
  return row ? int(statement.number(0)) : 0;
}

}  // namespace

void DataFile::create(const QString& nativePath) {
  requireNothing(nativePath);
  QFile made(nativePath);
  if (!made.open(QIODevice::WriteOnly | QIODevice::NewOnly)) fail(3051, nativePath);
  made.close();
  try {
    Connection connection(nativePath, 0);
    connection.exec("BEGIN IMMEDIATE");
    connection.exec(kEmptyCatalogue);
    connection.exec("PRAGMA application_id = " + QByteArray::number(kApplicationId));
    connection.exec("PRAGMA user_version = 1");
    connection.exec("COMMIT");
  } catch (const Error&) {
    QFile::remove(nativePath);
    throw;
  }
}

void DataFile::useRollbackJournal(Connection& connection) {
  SqliteStatement mode(connection, "PRAGMA " + alias_ + ".journal_mode = DELETE");
  if (mode.step(path_) && mode.text(0) == u"wal") fail(3051, path_);
}

void DataFile::load(Connection& connection) {
  std::vector<TableDef> tables;
  QHash<QString, int> byName;
  const auto table = [&](const QString& name) -> TableDef& {
    const QString key = name.toCaseFolded();
    const auto known = byName.constFind(key);
    if (known != byName.constEnd()) return tables[size_t(*known)];
    if (tables.size() == kTablesAtMost) fail(3037, path_);
    byName.insert(key, int(tables.size()));
    return tables.emplace_back(TableDef{name, {}, {}, {}, {}});
  };

  Savepoint oneLook(connection);  // one lock for all of it, and nobody changes the file in between
  const int version = userVersion(connection, alias_, path_);
  SqliteStatement known(connection, "SELECT 1 FROM " + alias_ + ".sqlite_schema WHERE name = 'jet_links'");
  if (!known.step(path_)) fail(3343, path_);
  known.reset();

  SqliteStatement fields(
      connection,
      "SELECT table_name, name, type, size, autonumber, zero_length, required, default_value FROM " + alias_ +
          ".jet_fields ORDER BY table_name, ordinal");
  while (fields.step(path_)) {
    TableDef& of = table(fields.text(0));
    if (!isKnown(fields.number(2))) fail(3037, of.name);
    of.fields.push_back({.name = fields.text(1),
                         .type = Type(fields.number(2)),
                         .size = int(fields.number(3)),
                         .autonumber = fields.number(4) != 0,
                         .allowZeroLength = fields.number(5) != 0,
                         .required = fields.number(6) != 0,
                         .defaultValue = fields.value(7)});
    checkSize(of);
  }
  SqliteStatement indexes(connection, "SELECT table_name, name, fields, is_primary, is_unique FROM " +
                                          alias_ + ".jet_indexes ORDER BY rowid");
  while (indexes.step(path_)) {
    TableDef& of = table(indexes.text(0));
    of.indexes.push_back({.name = indexes.text(1),
                          .fields = indexes.text(2).split(kFieldSeparator),
                          .primary = indexes.number(3) != 0,
                          .unique = indexes.number(4) != 0});
    checkSize(of);
  }
  SqliteStatement links(connection,
                        "SELECT name, connect, source_table FROM " + alias_ + ".jet_links ORDER BY rowid");
  for (int count = 0; links.step(path_); ++count) {
    if (count == kLinksAtMost) fail(3037, path_);
    TableDef& link = table(links.text(0));
    link.connect = links.text(1);
    link.sourceTableName = links.text(2);
  }
  oneLook.release();
  tables_ = std::move(tables);
  byName_ = std::move(byName);
  version_ = version;
  outdated = false;
}

bool DataFile::refresh(Connection& connection) {
  if (!outdated && userVersion(connection, alias_, path_) == version_) return false;
  load(connection);
  return true;
}

const TableDef* DataFile::find(const QString& name) const {
  const auto at = byName_.constFind(name.toCaseFolded());
  return at == byName_.constEnd() ? nullptr : &tables_[size_t(*at)];
}

TableDef& DataFile::own(const QString& name) {
  const auto at = byName_.constFind(name.toCaseFolded());
  if (at == byName_.constEnd()) fail(3265, name);
  TableDef& table = tables_[size_t(*at)];
  if (table.isLink()) fail(3057, name);
  return table;
}

void DataFile::bumpVersion(Connection& connection) {
  version_ = userVersion(connection, alias_, path_) + 1;
  connection.exec("PRAGMA " + alias_ + ".user_version = " + QByteArray::number(version_));
}

void DataFile::writeFields(Connection& connection, const TableDef& table) {
  SqliteStatement clear(connection, "DELETE FROM " + alias_ + ".jet_fields WHERE table_name = ?1");
  clear.bind(1, table.name).run(path_);
  SqliteStatement put(connection,
                      "INSERT INTO " + alias_ + ".jet_fields VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9)");
  int ordinal = 0;
  for (const Field& field : table.fields) {
    put.bind(1, table.name)
        .bind(2, ordinal++)
        .bind(3, field.name)
        .bind(4, int(field.type))
        .bind(5, field.size);
    put.bind(6, int(field.autonumber)).bind(7, int(field.allowZeroLength)).bind(8, int(field.required));
    put.bind(9, field.defaultValue).run(path_);
  }
}

void DataFile::writeIndex(Connection& connection, const TableDef& table, const Index& index) {
  QByteArray columns;
  for (const QString& name : index.fields) {
    const Field* field = fieldOf(table, name);
    if (!field) fail(3409, name);
    if (!columns.isEmpty()) columns += ", ";
    columns += quotedName(field->name);
    if (isText(*field)) columns += " COLLATE JET";
  }
  if (columns.isEmpty()) fail(3409, index.name);
  if (!isRowKey(table, index)) {
    const bool unique = index.unique || index.primary;
    connection.exec((unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ") +
                    schemaName(table.name + u'.' + index.name) + " ON " + quotedName(table.name) + '(' +
                    columns + ')');
  }
  SqliteStatement put(connection, "INSERT INTO " + alias_ + ".jet_indexes VALUES(?1, ?2, ?3, ?4, ?5)");
  put.bind(1, table.name).bind(2, index.name).bind(3, index.fields.join(kFieldSeparator));
  put.bind(4, int(index.primary)).bind(5, int(index.unique || index.primary)).run(path_);
}

void DataFile::createTable(Connection& connection, const TableDef& table) {
  checkName(table.name);
  if (find(table.name)) fail(3010, table.name);
  Savepoint step(connection);
  if (table.isLink()) {
    SqliteStatement put(connection, "INSERT INTO " + alias_ + ".jet_links VALUES(?1, ?2, ?3)");
    put.bind(1, table.name).bind(2, table.connect);
    put.bind(3, table.sourceTableName.isEmpty() ? table.name : table.sourceTableName).run(path_);
  } else {
    QSet<QString> names;
    QByteArray columns;
    for (const Field& field : table.fields) {
      checkName(field.name);
      if (names.contains(field.name.toCaseFolded())) fail(3191, field.name);
      names.insert(field.name.toCaseFolded());
      if (!columns.isEmpty()) columns += ", ";
      columns += columnText(field, field.required, inPrimaryKey(table, field.name));
    }
    if (columns.isEmpty()) fail(3264, table.name);
    checkSize(table);
    if (std::ranges::count_if(table.fields, &Field::autonumber) > 1) fail(3219, table.name);
    if (std::ranges::count_if(table.indexes, &Index::primary) > 1) fail(3283, table.name);
    connection.exec("CREATE TABLE " + schemaName(table.name) + '(' + columns + ") STRICT");
    writeFields(connection, table);
    for (const Index& index : table.indexes) writeIndex(connection, table, index);
  }
  bumpVersion(connection);
  step.release();
  load(connection);
}

void DataFile::dropTable(Connection& connection, const QString& name) {
  const TableDef* table = find(name);
  if (!table) fail(3265, name);
  Savepoint step(connection);
  if (table->isLink()) {
    SqliteStatement(connection, "DELETE FROM " + alias_ + ".jet_links WHERE name = ?1")
        .bind(1, table->name)
        .run(path_);
  } else {
    connection.exec("DROP TABLE " + schemaName(table->name));
    for (const char* catalogue : {".jet_fields", ".jet_indexes"})
      SqliteStatement(connection, "DELETE FROM " + alias_ + catalogue + " WHERE table_name = ?1")
          .bind(1, table->name)
          .run(path_);
  }
  bumpVersion(connection);
  step.release();
  load(connection);
}

void DataFile::addField(Connection& connection, const QString& name, const Field& field, int ordinal) {
  TableDef table = own(name);
  checkName(field.name);
  if (fieldOf(table, field.name)) fail(3380, field.name);
  if (field.autonumber) fail(3219, field.name);
  const int end = int(table.fields.size());
  table.fields.insert(table.fields.begin() + (ordinal < 0 ? end : std::min(ordinal, end)), field);
  checkSize(table);

  Savepoint step(connection);
  // Rows that are there keep Null, whatever the default or the requirement says of new ones; only yes/no knows none.
  // So the column cannot require a value: whoever writes into it does.
  connection.exec("ALTER TABLE " + schemaName(table.name) + " ADD COLUMN " + columnText(field, false, false));
  if (field.type != Type::Boolean && !field.defaultValue.isNull())
    connection.exec("UPDATE " + schemaName(table.name) + " SET " + quotedName(field.name) + " = NULL");
  writeFields(connection, table);
  bumpVersion(connection);
  step.release();
  load(connection);
}

void DataFile::widenField(Connection& connection, const QString& name, const Field& wanted) {
  TableDef table = own(name);
  const Field* const known = fieldOf(table, wanted.name);
  if (!known) fail(3265, wanted.name);
  Field& field = table.fields[size_t(known - table.fields.data())];
  constexpr int longestText = 255;
  const auto sizeOf = [](const Field& text) { return text.size == 0 ? longestText : text.size; };
  const bool indexed = std::ranges::any_of(table.indexes, [&](const Index& index) {
    return index.fields.contains(field.name, Qt::CaseInsensitive);
  });
  if (field.type == wanted.type && (field.type != Type::Text || sizeOf(wanted) <= sizeOf(field))) return;

  Savepoint step(connection);
  if (field.type == Type::Text && wanted.type == Type::Text) {
    field.size = wanted.size;  // the rows lie in a column without a size
  } else if (field.type == Type::Long && wanted.type == Type::Double && !indexed && !field.autonumber) {
    field.type = Type::Double;
    const QByteArray alter = "ALTER TABLE " + schemaName(table.name), own = quotedName(field.name);
    Field wide = field;
    wide.name += u'~';
    connection.exec(alter + " ADD COLUMN " + columnText(wide, false, false));
    connection.exec("UPDATE " + schemaName(table.name) + " SET " + quotedName(wide.name) + " = " + own);
    connection.exec(alter + " DROP COLUMN " + own);
    connection.exec(alter + " RENAME COLUMN " + quotedName(wide.name) + " TO " + own);
  } else {
    fail(3219, field.name);
  }
  writeFields(connection, table);
  bumpVersion(connection);
  step.release();
  load(connection);
}

void DataFile::createIndex(Connection& connection, const QString& name, const Index& index) {
  const TableDef& table = own(name);
  checkName(index.name);
  for (const Index& other : table.indexes)
    if (other.name.compare(index.name, Qt::CaseInsensitive) == 0) fail(3284, index.name);
  if (index.primary && std::ranges::any_of(table.indexes, &Index::primary)) fail(3283, table.name);
  if (table.indexes.size() == kIndexesAtMost) fail(3626, table.name);
  Savepoint step(connection);
  writeIndex(connection, table, index);
  bumpVersion(connection);
  step.release();
  load(connection);
}

void DataFile::dropIndex(Connection& connection, const QString& name, const QString& indexName) {
  const TableDef& table = own(name);
  const auto index = std::find_if(table.indexes.begin(), table.indexes.end(), [&](const Index& candidate) {
    return candidate.name.compare(indexName, Qt::CaseInsensitive) == 0;
  });
  if (index == table.indexes.end()) fail(3372, indexName);
  Savepoint step(connection);
  if (!isRowKey(table, *index)) connection.exec("DROP INDEX " + schemaName(table.name + u'.' + index->name));
  SqliteStatement clear(connection,
                        "DELETE FROM " + alias_ + ".jet_indexes WHERE table_name = ?1 AND name = ?2");
  clear.bind(1, table.name).bind(2, index->name).run(path_);
  bumpVersion(connection);
  step.release();
  load(connection);
}

}  // namespace jet
