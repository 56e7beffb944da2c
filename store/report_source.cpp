#include "store/report_source.h"

#include <QFile>

#include "store/jet/format_rules.h"
#include "store/session.h"

using namespace Qt::StringLiterals;

namespace {

QString layoutName(const QString& report) {
  return (report.endsWith(".rpt"_L1, Qt::CaseInsensitive) ? report.chopped(4) : report) + u".layout"_s;
}

pc::ReportValue reportValue(const jet::Value& value) {
  if (value.isNull()) return {};
  if (value.isWhole()) return value.toLong();
  if (value.isDouble()) return value.toDouble();
  return value.toText();
}

}  // namespace

pc::ReportLayout findReportLayout(const Session& session, const QString& file) {
  const QString name = layoutName(file);
  QFile own(session.pc.paths.native(session.RptPath + name)), builtIn(u":/reports/"_s + name);
  QFile& layout = own.exists() ? own : builtIn;
  if (!layout.open(QIODevice::ReadOnly))
    throw pc::ReportError{u"보고서 양식을 찾을 수 없습니다!\n"_s + session.RptPath + name};
  try {
    return pc::parseReportLayout(QString::fromUtf8(layout.readAll()));
  } catch (const pc::ReportError& error) {
    throw pc::ReportError{u"보고서 양식 "_s + name + u"이(가) 잘못되었습니다!\n"_s + error.text};
  }
}

pc::ReportTable readStagedRows(const Session& session, const QString& dataFile) {
  const jet::Database print = session.wsMain.OpenDatabase(dataFile);
  jet::Recordset rs = print.OpenRecordset(u"Select * From Print"_s);
  pc::ReportTable table{.fields = rs.fieldNames()};
  for (; !rs.atEnd(); rs.MoveNext()) {
    std::vector<pc::ReportValue>& row = table.rows.emplace_back();
    for (int field = 0; field < int(table.fields.size()); ++field) row.push_back(reportValue(rs[field]));
  }
  return table;
}

std::unique_ptr<pc::Report> makeReport(const Session& session, const pc::ReportRequest& request) {
  return std::make_unique<pc::Report>(
      findReportLayout(session, request.file), readStagedRows(session, request.dataFile), request.formulas,
      session.pc.clock.dateText(),
      [](const QString& number, const QString& picture) { return jet::format(number, picture); });
}
