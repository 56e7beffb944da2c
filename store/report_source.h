#pragma once
// A report made from its layout file and the rows staged for it.
#include <memory>

#include "pc/report.h"
#include "pc/reports.h"

struct Session;

/** The layout of a report name, "체적검침현황.rpt": the shop's own "체적검침현황.layout" in the report folder, else the one
 *  that is built into the program. So a shop can change a paper, and a new program brings its new papers to all that
 *  did not. Throws pc::ReportError. */
pc::ReportLayout findReportLayout(const Session& session, const QString& file);

/** These fields of the data file's table Print, in the order the rows were staged. Throws jet::Error. */
pc::ReportTable readStagedRows(const Session& session, const QString& dataFile, const QStringList& fields);

/** Throws pc::ReportError for a report that cannot be made: no or a damaged layout, no rows; jet::Error. */
std::unique_ptr<pc::Report> makeReport(const Session& session, const pc::ReportRequest& request);
