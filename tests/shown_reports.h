#pragma once
// Reports that were to be shown, and the rows that stand staged for them.
#include "pc/reports.h"
#include "store/report_staging.h"
#include "store/session.h"
#include "tests/answers.h"

namespace tests {

struct ShownReports : pc::Reports {
  std::vector<pc::ReportRequest> asked;
  void show(const pc::ReportRequest& request) override { asked.push_back(request); }
};

/** Fields of Print, "Str01, Lng01", row by row. */
inline QStringList stagedRows(const Session& session, const QString& fields) {
  return linesOf(session.wsMain.OpenDatabase(printFile()), "Select " + fields + " From Print");
}

}  // namespace tests
