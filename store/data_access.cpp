#include "store/data_access.h"

#include <algorithm>

#include "store/jet/sql.h"

using namespace Qt::StringLiterals;

namespace {

/** A failed query's box: the text by the error's number, then the statement. */
void reportQuery(Prompts& prompts, const jet::Error& error, QStringView sql) {
  prompts.noted(error);
  QString text = error.description(), title = u"ERROR"_s;
  if (error.number() == 3011) {
    text = u"Jet Data Base Engine의 식을 확인하세요."_s;
    title = u"Query"_s;
  } else if (error.number() == 91) {
    text = u"Data Base MDB가 선언되지 않았습니다."_s;
    title = u"MDB 오류"_s;
  } else if (error.number() == 3261) {
    title = u"MDB 오류"_s;
  }
  const QString shown = jet::shownSql(sql);
  prompts.MsgInfo(text.endsWith(shown) ? text : text + u'\r' + shown, title);
}

bool openRows(Prompts& prompts, const jet::Database& db, jet::Recordset& rs, QStringView sql,
              jet::RecordsetType type) {
  rs.Close();
  try {
    rs = db.OpenRecordset(sql, type);
    return true;
  } catch (const jet::Error& error) {
    reportQuery(prompts, error, sql);
    return false;
  }
}

bool sameName(const QString& a, const QString& b) {
  return a.toUpper() == b.toUpper();
}

bool hasField(const jet::TableDef& table, const QString& name) {
  return std::ranges::any_of(table.fields,
                             [&](const jet::Field& field) { return sameName(field.name, name); });
}

}  // namespace

bool OpenDB(const jet::Workspace& workspace, jet::Database& db, const QString& path, bool exclusive) {
  db.Close();
  try {
    db = workspace.OpenDatabase(path, exclusive);
    return true;
  } catch (const jet::Error&) {
    return false;
  }
}

bool OpenDynaset(Prompts& prompts, const jet::Database& db, jet::Recordset& rs, const QString& sql) {
  return openRows(prompts, db, rs, sql, jet::RecordsetType::Dynaset);
}

bool OpenSnapshot(Prompts& prompts, const jet::Database& db, jet::Recordset& rs, QStringView sql) {
  return openRows(prompts, db, rs, sql, jet::RecordsetType::Snapshot);
}

jet::Value DAO_GetValue(Prompts& prompts, const jet::Database& db, QStringView field, QStringView table,
                        QStringView where) {
  jet::Recordset rs;
  if (!OpenSnapshot(prompts, db, rs,
                    jet::Sql() << u"SELECT " << field << u" FROM " << table << u" " << where))
    return {};
  return rs.atEnd() ? jet::Value() : rs[0];
}

bool DAO_ExistTable(Prompts& prompts, const jet::Database& db, const QString& name) {
  try {
    const auto tables = db.TableDefs();
    return std::any_of(tables.begin(), tables.end(),
                       [&](const auto& table) { return sameName(table.name, name); });
  } catch (const jet::Error& error) {
    prompts.tellError(u") in procedure DAO_ExistTable of Module mdlCommonRW"_s, error);
    return false;
  }
}

bool DAO_AddField(Prompts& prompts, const jet::Database& db, const QString& table, const QString& field,
                  jet::Type type, int size, bool allowZeroLength, const QString& initSql,
                  const std::optional<jet::Value>& defaultValue, int ordinal, bool required) {
  try {
    if (hasField(db.tableDef(table), field)) return false;
    jet::Field added;
    added.name = field;
    added.type = type;
    added.size = std::max(size, 0);
    added.allowZeroLength = allowZeroLength && type == jet::Type::Text;
    if (defaultValue && !defaultValue->isNull()) {
      added.defaultValue = *defaultValue;
      added.required = required;
    }
    bool adds = true;
    db.Together([&] {  // with its rows' first values or not at all; another PC may have been faster
      adds = !hasField(db.tableDef(table), field);
      if (!adds) return;
      db.appendField(table, added, ordinal);
      if (!initSql.isEmpty()) db.Execute(initSql);
    });
    return adds;
  } catch (const jet::Error& error) {
    prompts.tellError(u") in procedure DAO_AddField of Module mdlCommonRW"_s + u"\r\n"_s + u"[TABLE]: "_s +
                          table + u",    [FIELD]: "_s + field,
                      error);
    return false;
  }
}

void CloseDB(jet::Database& db) {
  db.Close();
}
void CloseDB(jet::Recordset& rs) {
  rs.Close();
}
