// The rows of a report over live tables: one statement made from what the layout names and the selection lets through.
#include "pc/selection_formula.h"
#include "store/data_access.h"
#include "store/report_source.h"
#include "store/session.h"

using namespace Qt::StringLiterals;

namespace {

QString conditionOf(const pc::Selection& selection, const pc::ReportTables& tables) {
  using Kind = pc::Selection::Kind;
  const auto joined = [&](const QString& word) {
    QStringList parts;
    for (const pc::Selection& part : selection.parts) parts << conditionOf(part, tables);
    return u'(' + parts.join(word) + u')';
  };
  switch (selection.kind) {
    case Kind::All:
      return {};
    case Kind::And:
      return joined(u" And "_s);
    case Kind::Or:
      return joined(u" Or "_s);
    case Kind::Not:
      return u"Not ("_s + conditionOf(selection.parts.front(), tables) + u')';
    case Kind::Compare:
      break;
  }
  if (!tables.has(selection.table))
    throw pc::ReportError{u"선택 조건에 쓰인 "_s + selection.table + u" 테이블이 보고서 양식에 없습니다!"_s};
  const QString left =
      plainPath(selection.table) + u'.' + plainPath(selection.field) + u' ' + plainPath(selection.op);
  switch (selection.type) {
    case pc::Selection::Value::Text:
      return left + u" '"_s + copiedText(selection.value) + u"'"_s;
    case pc::Selection::Value::YesNo:
      return left + u' ' + plainPath(selection.value);
    case pc::Selection::Value::Number:
      break;
  }
  return left + u' ' + plainNumber(selection.value);
}

/** "(Sale LEFT JOIN Client ON ...) LEFT JOIN ..." */
QString fromClause(const pc::ReportTables& tables) {
  QString from = plainPath(tables.first);
  for (const pc::ReportTables::Join& join : tables.joins) {
    if (from.contains(u' ')) from = u'(' + from + u')';
    from += u" LEFT JOIN "_s + plainPath(join.table) + u" ON "_s + plainPath(join.left) + u" = "_s +
            plainPath(join.right);
  }
  return from;
}

QString columnOf(const QString& field, const pc::ReportTables& tables) {
  const auto found = tables.values.find(field);
  if (found == tables.values.end()) return plainPath(field);
  const auto& [fields, exceptField, codes] = found->second;
  QString sum = plainPath(fields.join(u" + "_s));
  if (exceptField.isEmpty()) return sum;
  QStringList numbers;
  for (const QString& code : codes) numbers << plainNumber(code);
  return u"IIf("_s + plainPath(exceptField) + u" In ("_s + numbers.join(u", "_s) + u"), Null, "_s + sum +
         u')';
}

pc::ReportValue liveValue(const jet::Value& value, const std::map<QString, QString>* labels) {
  if (labels) {
    const auto label = labels->find(value.toText());
    return label == labels->end() ? value.toText() : label->second;
  }
  return reportValue(value);
}

}  // namespace

QString selectionCondition(const QString& selection, const pc::ReportTables& tables) {
  return conditionOf(pc::parseSelection(selection), tables);
}

pc::ReportTable readLiveRows(const Session& session, const pc::ReportLayout& layout,
                             const pc::ReportRequest& request) {
  const pc::ReportTables& tables = layout.tables;
  pc::ReportTable table{.fields = layout.fields()};
  QStringList columns;
  std::vector<const std::map<QString, QString>*> labels;
  for (const QString& field : table.fields) {
    columns << columnOf(field, tables);
    const auto words = tables.labels.find(field);
    labels.push_back(words == tables.labels.end() ? nullptr : &words->second);
  }
  const auto statement = [&](const QString& selection) {
    const QString condition = selectionCondition(selection, tables);
    return u"Select "_s + columns.join(u", "_s) + u" From "_s + fromClause(tables) +
           (condition.isEmpty() ? QString() : u" Where "_s + condition) +
           (tables.order.isEmpty() ? QString() : u" Order By "_s + tables.order.join(u", "_s));
  };
  for (qsizetype at = 0; at < request.liveFiles.size(); ++at) {
    const jet::Database db = session.wsMain.OpenDatabase(request.liveFiles[at]);
    const QString sql = statement(request.liveSelections.value(at, request.selection));
    for (jet::Recordset rs = db.OpenRecordset(sql); !rs.atEnd(); rs.MoveNext()) {
      std::vector<pc::ReportValue>& row = table.rows.emplace_back();
      row.reserve(labels.size());
      for (int at = 0; at < int(labels.size()); ++at) row.push_back(liveValue(rs[at], labels[size_t(at)]));
    }
  }
  return table;
}
