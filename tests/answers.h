#pragma once
// What the store answers, as a test compares it.
#include <QStringList>

#include "store/jet/database.h"

namespace tests {

/** Number of the error that work fails with, 0 when it does not. */
template <typename Work>
int failureOf(Work work) {
  try {
    work();
  } catch (const jet::Error& error) {
    return error.number();
  }
  return 0;
}

/** Rows into "Table(Columns)", each as its values stand in a statement. */
inline void insertRows(const jet::Database& db, const QString& into, const QStringList& values) {
  for (const QString& row : values) db.Execute("Insert Into " + into + " Values(" + row + ')');
}

/** The rows from where the recordset stands: each row's fields with "|" between, Null as null says. */
inline QStringList linesOf(jet::Recordset rs, const QString& null = {}) {
  QStringList lines;
  for (; !rs.atEnd(); rs.MoveNext()) {
    QStringList fields;
    const int count = int(rs.fieldNames().size());
    for (int at = 0; at < count; ++at) fields << (rs[at].isNull() ? null : rs[at].toText());
    lines << fields.join(u'|');
  }
  return lines;
}
/** Those of a query. */
inline QStringList linesOf(const jet::Database& db, const QString& sql, const QString& null = {}) {
  return linesOf(db.OpenRecordset(sql), null);
}

/** The same in one text, with ";" between the rows. */
inline QString rowsOf(const jet::Database& db, const QString& sql) {
  return linesOf(db, sql).join(u';');
}

}  // namespace tests
