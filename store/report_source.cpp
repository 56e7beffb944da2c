#include "store/report_source.h"

#include <QFile>

#include "store/jet/format_rules.h"
#include "store/session.h"

using namespace Qt::StringLiterals;

namespace {

QString layoutName(const QString& report) {
  return (report.endsWith(".rpt"_L1, Qt::CaseInsensitive) ? report.chopped(4) : report) + u".layout"_s;
}

}  // namespace

pc::ReportValue reportValue(const jet::Value& value) {
  if (value.isNull()) return {};
  if (value.isWhole()) return value.toLong();
  if (value.isDouble()) return value.toDouble();
  return value.toText();
}

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

pc::ReportTable readStagedRows(const Session& session, const QString& dataFile, const QStringList& fields) {
  const jet::Database print = session.wsMain.OpenDatabase(dataFile);
  pc::ReportTable table{.fields = fields};
  jet::Recordset rs = print.OpenRecordset(u"Select "_s + fields.join(u", "_s) + u" From Print"_s);
  for (; !rs.atEnd(); rs.MoveNext()) {
    std::vector<pc::ReportValue>& row = table.rows.emplace_back();
    row.reserve(size_t(fields.size()));
    for (int field = 0; field < int(fields.size()); ++field) row.push_back(reportValue(rs[field]));
  }
  return table;
}

std::unique_ptr<pc::Report> makeReport(const Session& session, const pc::ReportRequest& request) {
  pc::ReportLayout layout = findReportLayout(session, request.file);
  if (layout.tables.first.isEmpty() && request.dataFile.isEmpty())
    throw pc::ReportError{u"보고서 양식 "_s + layoutName(request.file) +
                          u"에 자료를 읽을 table 줄이 없습니다!"_s};
  pc::ReportTable rows = layout.tables.first.isEmpty()
                             ? readStagedRows(session, request.dataFile, layout.fields())
                             : readLiveRows(session, layout, request);
  return std::make_unique<pc::Report>(
      std::move(layout), std::move(rows), request.formulas, session.pc.clock.dateText(),
      [](const QString& number, const QString& picture) { return jet::format(number, picture); },
      request.picture);
}
