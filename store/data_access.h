#pragma once
// The helpers that every form opens, asks and closes the data files with. A failed query is told in a box with its
// statement and answered with false; nothing here throws.
#include <QString>

#include <optional>

#include "store/jet/database.h"
#include "store/jet/plain.h"
#include "ui/model/prompts.h"

// What the statements of the forms are joined with.
using jet::copiedText;
using jet::plainNumber;
using jet::plainPath;
using jet::plainText;

/** False when the file cannot be opened, db is then unset. Reports nothing: the caller decides. */
bool OpenDB(const jet::Workspace& workspace, jet::Database& db, const QString& path, bool exclusive = false);

/** A recordset whose rows can be written back. False after a failure has been told, rs is then unset. */
bool OpenDynaset(Prompts& prompts, const jet::Database& db, jet::Recordset& rs, const QString& sql);
/** The same, read only. */
bool OpenSnapshot(Prompts& prompts, const jet::Database& db, jet::Recordset& rs, QStringView sql);
inline bool OpenSnapshot(Prompts& prompts, const jet::Database& db, jet::Recordset& rs, const QString& sql) {
  return OpenSnapshot(prompts, db, rs, QStringView(sql));
}

/** First field of the first row of "SELECT field FROM table where"; Null when there is no row. `where` is the whole
 *  rest of the statement, its word Where included. */
jet::Value DAO_GetValue(Prompts& prompts, const jet::Database& db, QStringView field, QStringView table,
                        QStringView where);

bool DAO_ExistTable(Prompts& prompts, const jet::Database& db, const QString& name);

/** Adds a column and then runs initSql. False when the column is there already (initSql is not run then) or after a
 *  failure has been told. defaultValue: none leaves the column without one. ordinal: place from 0, -1 at the end. */
bool DAO_AddField(Prompts& prompts, const jet::Database& db, const QString& table, const QString& field,
                  jet::Type type, int size, bool allowZeroLength, const QString& initSql = {},
                  const std::optional<jet::Value>& defaultValue = {}, int ordinal = -1,
                  bool required = false);

/** Closes what is set; does nothing to what is not. */
void CloseDB(jet::Database& db);
void CloseDB(jet::Recordset& rs);
