#pragma once
// A data file of the older format (Jet 3 or Jet 4), read by a program of its own (jet_rows, on the library libmdb): a torn
// file may bring that program down, never this one. Nothing is written to the file or beside it.
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

namespace moving {

enum class OldType {
  Text,
  Whole,
  Single,
  Real,
  YesNo,
  Moment,
  Object,  ///< a picture or another program's; a value is only "*"
};

struct OldColumn {
  QString name;
  OldType type = OldType::Text;
};

struct OldTable {
  QString name;
  std::vector<OldColumn> columns;
  qint64 rows = 0;   ///< as the file's own table definition counts them; 0 also where it was not closed well
  QString key = {};  ///< by which the reading program knows it
};

/** A field as text; nothing is Null. Numbers are plain decimals, yes/no is "-1" or "0", a moment "2026-03-16" with its
 *  time behind it unless that is midnight. */
using OldValue = std::optional<QString>;
using OldRow = std::vector<OldValue>;

/** Whether a file begins as one of the older format does. */
bool isOldFormat(const QString& nativePath);
/** Whether the program that reads it is installed. */
bool canReadOldFormat();

class JetFile {
 public:
  /** Throws jet::Error: 3343 for a file of another format, 3049 for a torn one. */
  explicit JetFile(const QString& nativePath);

  int version() const { return version_; }  ///< 3 or 4
  /** The file's own tables, without links and the format's own. Throws jet::Error 3049. */
  std::vector<OldTable> tables() const;
  /** All rows of a table in the file's order. broken: gets a line for each text that holds bytes of no character, with
   *  the bytes; U+FFFD stands in the text there. Throws jet::Error 3049 where some rows cannot be read. */
  std::vector<OldRow> rows(const OldTable& table, QStringList& broken) const;

 private:
  QByteArray run(const QStringList& arguments) const;
  QByteArray bytesOf(const QByteArray& told) const;
  QString textOf(const QByteArray& told) const;

  QString path_;
  int version_ = 0;
};

}  // namespace moving
