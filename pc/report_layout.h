#pragma once
// A report's layout as its file under reports/ writes it: paper, bands of text, columns. One thing a line, the words
// are told in reports/README.md.
#include <QString>
#include <QStringList>

#include <map>
#include <vector>

#include "pc/print_job.h"

namespace pc {

/** Why a report cannot be made; Korean, for the operator. */
struct ReportError {
  QString text;
};

enum class ReportAlign { Left, Center, Right };

/** A piece of a band's line; {월} in it is the formula field of that name, or one of the report's own values. */
struct ReportText {
  ReportAlign align = ReportAlign::Left;
  double points = 0;
  bool bold = false;
  QString text;
};

/** A line of a band; its height follows its largest text. */
struct ReportLine {
  std::vector<ReportText> texts;
  double height() const;  ///< inches
};

using ReportLines = std::vector<ReportLine>;
double heightOf(const ReportLines& lines);  ///< inches

struct ReportColumn {
  QString field = {};  ///< Str01, Lng01, Dbl01, ...; "no" counts the rows
  QString caption = {};
  double width = 10;  ///< a share of the paper's width
  ReportAlign align = ReportAlign::Left;
  QString picture = {};  ///< '' shows the number as it is
  bool sum = false;

  /** A text is cut to its column, a figure is set smaller. */
  bool isText() const;
};

/** One caption above neighbouring columns, from first to last (places from 0). */
struct ReportSpan {
  QString caption = {};
  int first = 0, last = 0;
};

/** The live tables of a report whose rows are not staged. Names are letters, digits and _; nothing else is read. */
struct ReportTables {
  struct Join {
    QString table, left, right;  ///< "Client", "Sale.ClientCode", "Client.Code"
  };
  /** Fields added up; nothing at all in a row whose other field holds one of the codes. */
  struct Value {
    QStringList fields = {};
    QString exceptField = {};  ///< '' for every row
    QStringList codes = {};    ///< whole numbers
  };
  QString first;  ///< '' for a staged report
  std::vector<Join> joins = {};
  QStringList order = {};                                     ///< "Sale.SaleDate"
  std::map<QString, Value> values = {};                       ///< by the name that columns go by
  std::map<QString, std::map<QString, QString>> labels = {};  ///< a field's codes in words

  bool has(const QString& table) const;
};

struct ReportLayout {
  ReportTables tables = {};
  PaperSize paper;
  double left = 0.5, top = 0.5, right = 0.5, bottom = 0.5;  ///< margins, inches
  PrintFont font{"굴림체", 9};
  double rowPoints = 0;  ///< height of a row in points; 0 follows the font
  ReportLines title;     ///< once, on the first page
  ReportLines next;      ///< in its place on the others
  std::vector<ReportColumn> columns;
  std::vector<ReportSpan> spans;
  QString groupField;  ///< '' for a report without groups
  ReportLines group;
  QString subtotal, total;  ///< the labels; '' for none
  ReportLines summary;      ///< once, behind the rows
  ReportLines foot;

  double rowHeight() const;      ///< inches
  double headingHeight() const;  ///< inches, of the columns' captions
  double width() const { return paper.width - left - right; }
  /** What the report needs of a row: columns, the group's field, fields named in the group's texts; of a live report
   *  also names of its values. */
  QStringList fields() const;
};

/** Throws ReportError with the line's number. */
ReportLayout parseReportLayout(const QString& text);

}  // namespace pc
