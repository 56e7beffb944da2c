#pragma once
// Every row of a retailer's data files as texts, and what became of them in between.
#include <QMap>
#include <QString>
#include <QStringList>

struct sqlite3;

namespace samples {

/** A row: "column=value" of each value that is neither missing, empty nor 0. */
using BookRow = QStringList;
/** Rows by "file.table" and the store's number of the row. */
using BookRows = QMap<QString, QMap<qint64, BookRow>>;

/** The data files of a folder, but those whose rows say nothing of the trade (the post codes, the empty year). */
class BookReader {
 public:
  BookReader() = default;
  ~BookReader();
  BookReader(const BookReader&) = delete;
  BookReader& operator=(const BookReader&) = delete;

  /** What has been written whole by now; the files may be open elsewhere. Reads only those that changed since the call
   *  before. */
  BookRows read(const QString& folder);

 private:
  struct File {
    sqlite3* handle = nullptr;
    qint64 fileNumber = 0;  ///< the file system's: another one means that the file was put in its place
    qint64 version = -1;
    BookRows rows;
  };
  static void renew(File& file, const QString& path);

  QMap<QString, File> files_;
};

/** A line a row: "+" new, "-" gone, "~" with each value that changed, "old -> new"; of a table with many the first and last,
 *  and the sums of the others' figures. */
QStringList changesBetween(const BookRows& before, const BookRows& now);

}  // namespace samples
