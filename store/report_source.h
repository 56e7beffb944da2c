#pragma once
// A report made from its layout file and the rows staged for it.
#include <memory>

#include "pc/report.h"
#include "pc/reports.h"

struct Session;
namespace jet {
class Value;
}

/** The layout of a report name, "체적검침현황.rpt": the shop's own "체적검침현황.layout" in the report folder, else the one
 *  that is built into the program. So a shop can change a paper, and a new program brings its new papers to all that
 *  did not. Throws pc::ReportError. */
pc::ReportLayout findReportLayout(const Session& session, const QString& file);

/** A stored value as a report takes it. */
pc::ReportValue reportValue(const jet::Value& value);

/** These fields of the data file's table Print, in the order the rows were staged. Throws jet::Error. */
pc::ReportTable readStagedRows(const Session& session, const QString& dataFile, const QStringList& fields);

/** What the layout needs of its live tables, of the rows that the request's selection lets through, file after file.
 *  Throws pc::ReportError for a selection that is none or names a table that the layout does not; jet::Error. */
pc::ReportTable readLiveRows(const Session& session, const pc::ReportLayout& layout,
                             const pc::ReportRequest& request);
/** The selection as a statement's condition; '' for every row. Throws pc::ReportError. */
QString selectionCondition(const QString& selection, const pc::ReportTables& tables);

/** Throws pc::ReportError for a report that cannot be made: no or a damaged layout, no rows; jet::Error. */
std::unique_ptr<pc::Report> makeReport(const Session& session, const pc::ReportRequest& request);
