#pragma once
// How a form hands its staged rows to the report engine.
#include <QByteArray>
#include <QString>
#include <QStringList>

namespace pc {

struct ReportRequest {
  QString file;               ///< the report's name, "체적검침현황.rpt"
  QStringList formulas = {};  ///< named values as the forms write them, "월= '03월)'"
  QString dataFile = {};      ///< data file with the table Print, as written: "C:\RWGas\Dbs\Print.mdb"
  QByteArray picture = {};    ///< a picture's file below the rows; empty for none
  // Of a report over live tables, in place of the data file.
  QString selection = {};           ///< its formula (pc/selection_formula)
  QStringList liveFiles = {};       ///< data files with its tables, one after the other
  QStringList liveSelections = {};  ///< of each of the files in place of the one for all; empty for that
};

/** Shows a report: preview, from which it is printed or saved. Throws nothing; failures are told to the operator. */
class Reports {
 public:
  virtual ~Reports() = default;
  virtual void show(const ReportRequest& request) = 0;
};

}  // namespace pc
