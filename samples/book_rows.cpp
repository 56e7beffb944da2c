#include "samples/book_rows.h"

#include <sqlite3.h>
#include <sys/stat.h>

#include <QDir>

#include <functional>

using namespace Qt::StringLiterals;

namespace samples {

namespace {

constexpr qsizetype shownLines = 8;  ///< of one table and one kind, at either end

QString textOf(sqlite3_stmt* row, int at) {
  return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(row, at)));
}

void eachRow(sqlite3* file, const QString& sql, const std::function<void(sqlite3_stmt*)>& work) {
  sqlite3_stmt* row = nullptr;
  if (sqlite3_prepare_v2(file, sql.toUtf8().constData(), -1, &row, nullptr) == SQLITE_OK)
    while (sqlite3_step(row) == SQLITE_ROW) work(row);
  sqlite3_finalize(row);
}

QString nameOf(const QString& part) {
  return part.section(u'=', 0, 0);
}
QString valueOf(const QString& part) {
  return part.section(u'=', 1);
}

/** The first two values, by which a reader finds a row. */
QString headOf(const BookRow& row) {
  QStringList head;
  for (const QString& part : row.mid(0, 2)) head << valueOf(part);
  return head.join(u' ');
}

QString changeOf(const BookRow& before, const BookRow& now) {
  QMap<QString, QString> was;
  for (const QString& part : before) was[nameOf(part)] = valueOf(part);
  QStringList changed;
  for (const QString& part : now) {
    const QString old = was.take(nameOf(part));
    if (old != valueOf(part)) changed << u"%1 %2 -> %3"_s.arg(nameOf(part), old, valueOf(part));
  }
  for (auto left = was.cbegin(); left != was.cend(); ++left)
    changed << u"%1 %2 ->"_s.arg(left.key(), left.value());
  return changed.join(u", "_s);
}

/** The lines of one table and one kind; sums: of the rows that are left out. */
void add(QStringList& to, const QStringList& lines, const QList<BookRow>& rows) {
  if (lines.size() <= 2 * shownLines) {
    to += lines;
    return;
  }
  to += lines.mid(0, shownLines);
  QMap<QString, double> sums;
  for (qsizetype at = shownLines; at < rows.size() - shownLines; ++at)
    for (const QString& part : rows[at]) {
      bool number = false;
      const double value = valueOf(part).toDouble(&number);
      if (number) sums[nameOf(part)] += value;
    }
  QStringList said;
  for (auto sum = sums.cbegin(); sum != sums.cend(); ++sum)
    said << u"%1=%2"_s.arg(sum.key(), QString::number(sum.value(), 'f', 2));
  to << u"  and %1 more, together "_s.arg(lines.size() - 2 * shownLines) + said.join(u' ');
  to += lines.mid(lines.size() - shownLines);
}

}  // namespace

BookReader::~BookReader() {
  for (const File& file : std::as_const(files_)) sqlite3_close(file.handle);
}

BookRows BookReader::read(const QString& folder) {
  BookRows rows;
  for (const QString& name : QDir(folder).entryList({u"*.mdb"_s}, QDir::Files, QDir::Name)) {
    if (name == "dbPost.mdb"_L1 || name == "2002Foundation.mdb"_L1) continue;
    File& file = files_[name];
    renew(file, folder + u'/' + name);
    for (auto table = file.rows.cbegin(); table != file.rows.cend(); ++table)
      rows[name.chopped(4) + u'.' + table.key()] = *table;
  }
  return rows;
}

void BookReader::renew(File& file, const QString& path) {
  // A look at the file's number opens nothing: closing it would let go of the store's own locks.
  struct stat at {};
  if (::stat(path.toUtf8().constData(), &at) != 0) return;
  if (!file.handle || qint64(at.st_ino) != file.fileNumber) {
    sqlite3_close(file.handle);
    file = {nullptr, qint64(at.st_ino), -1, {}};
    sqlite3_open_v2(path.toUtf8().constData(), &file.handle, SQLITE_OPEN_READONLY, nullptr);
  }
  qint64 version = 0;
  eachRow(file.handle, u"PRAGMA data_version"_s,
          [&](sqlite3_stmt* row) { version = sqlite3_column_int64(row, 0); });
  if (version == file.version) return;
  file.version = version;
  file.rows.clear();
  QStringList tables;
  eachRow(file.handle, u"Select name From sqlite_master Where type = 'table' And name Not Like 'sqlite_%'"_s,
          [&](sqlite3_stmt* row) { tables << textOf(row, 0); });
  for (const QString& table : tables) {
    auto& of = file.rows[table];
    eachRow(file.handle, u"Select rowid, * From \"%1\""_s.arg(table), [&](sqlite3_stmt* row) {
      BookRow& parts = of[sqlite3_column_int64(row, 0)];
      for (int at = 1; at < sqlite3_column_count(row); ++at) {
        const QString value = textOf(row, at);
        if (!value.isEmpty() && value != "0"_L1 && value != "0.0"_L1)
          parts << QString::fromUtf8(sqlite3_column_name(row, at)) + u'=' + value;
      }
    });
  }
}

QStringList changesBetween(const BookRows& before, const BookRows& now) {
  QStringList all;
  QStringList tables = before.keys() + now.keys();
  tables.sort();
  tables.removeDuplicates();
  for (const QString& table : tables) {
    const auto was = before.value(table), is = now.value(table);
    if (was == is) continue;
    QStringList gone, changed, made;
    QList<BookRow> goneRows, changedRows, madeRows;
    for (auto row = was.cbegin(); row != was.cend(); ++row) {
      const auto same = is.constFind(row.key());
      if (same == is.cend()) {
        gone << u"- %1: %2"_s.arg(table, row.value().join(u' '));
        goneRows << row.value();
      } else if (*same != row.value()) {
        changed << u"~ %1 %2: %3"_s.arg(table, headOf(row.value()), changeOf(row.value(), *same));
        changedRows << *same;
      }
    }
    for (auto row = is.cbegin(); row != is.cend(); ++row)
      if (!was.contains(row.key())) {
        made << u"+ %1: %2"_s.arg(table, row.value().join(u' '));
        madeRows << row.value();
      }
    add(all, gone, goneRows);
    add(all, changed, changedRows);
    add(all, made, madeRows);
  }
  return all;
}

}  // namespace samples
