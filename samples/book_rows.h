#pragma once
// Every row of a retailer's data files as texts, and what became of them in between.
#include <QMap>
#include <QString>
#include <QStringList>

namespace samples {

/** A row: "column=value" of each value that is neither missing, empty nor 0. */
using BookRow = QStringList;
/** Rows by "file.table" and the store's number of the row. */
using BookRows = QMap<QString, QMap<qint64, BookRow>>;

/** The data files of a folder, but those whose rows say nothing of the trade (the post codes, the empty year). Reads what has
 *  been written whole by now; the files may be open. */
BookRows rowsIn(const QString& folder);

/** A line a row: "+" new, "-" gone, "~" with each value that changed, "old -> new"; of a table with many the first and last,
 *  and the sums of the others' figures. */
QStringList changesBetween(const BookRows& before, const BookRows& now);

}  // namespace samples
