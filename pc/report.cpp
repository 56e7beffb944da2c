#include "pc/report.h"

using namespace Qt::StringLiterals;

namespace pc {

namespace {
constexpr double chartInches = 3.3;
}

Report::Report(ReportLayout layout, ReportTable table, const QStringList& formulas, const QString& today,
               ReportPicture picture, QByteArray chart)
    : layout_(std::move(layout)),
      table_(std::move(table)),
      today_(today),
      picture_(std::move(picture)),
      chart_(std::move(chart)) {
  if (table_.rows.empty()) throw ReportError{u"출력할 자료가 없습니다!"_s};
  for (const QString& formula : formulas) {
    const auto [name, value] = readFormula(formula);
    formulas_.insert(name, value);
  }
  pages_ = std::make_unique<ReportPages>(layout_, table_, chart_.isEmpty() ? 0 : chartInches);
}

QString Report::figure(const QString& number, const ReportColumn& column) const {
  if (number.isEmpty() || column.picture.isEmpty()) return number;
  QString text = picture_(number, column.picture);
  if (text.endsWith(u'.')) text.chop(1);  // "#,##0.##" leaves a whole number its point
  return text;
}

QString Report::cell(int row, const ReportColumn& column) const {
  if (column.field == "no"_L1) {
    const int number = pages_->numberOf(row);
    return number > 0 ? QString::number(number) : QString();
  }
  const ReportValue& value = table_.value(row, column.field);
  const QString text = plainText(value);
  return std::holds_alternative<QString>(value) ? text : figure(text, column);
}

QString Report::filled(const QString& text, int page, int row) const {
  QString filled;
  for (qsizetype at = 0; at < text.size();) {
    const qsizetype open = text.indexOf(u'{', at);
    const qsizetype close = open < 0 ? -1 : text.indexOf(u'}', open);
    if (close < 0) return filled + text.mid(at);
    filled += text.mid(at, open - at) + valueOf(text.mid(open + 1, close - open - 1), page, row);
    at = close + 1;
  }
  return filled;
}

QString Report::valueOf(const QString& name, int page, int row) const {
  if (const auto given = formulas_.find(name); given != formulas_.end()) return *given;
  if (name == "today"_L1) return today_;
  if (name == "page"_L1) return QString::number(page + 1);
  if (name == "pages"_L1) return QString::number(pages_->count());
  if (name == "count"_L1) return figure(QString::number(pages_->rowsCounted()), {.picture = u"#,##0"_s});
  const bool sum = name.startsWith("sum "_L1);
  const QString field = sum ? name.mid(4).trimmed() : name;
  for (size_t col = 0; col < layout_.columns.size(); ++col) {
    const ReportColumn& column = layout_.columns[col];
    if (column.field != field) continue;
    if (sum) return figure(pages_->total()[col].text(), column);
    if (row >= 0) return cell(row, column);
  }
  return row >= 0 && !sum ? plainText(table_.value(row, field)) : QString();
}

std::pair<QString, QString> readFormula(const QString& formula) {
  const qsizetype equals = formula.indexOf(u'=');
  if (equals < 0) return {formula.trimmed(), {}};
  QString value = formula.mid(equals + 1).trimmed();
  if (value.size() >= 2 && value.startsWith(u'\'') && value.endsWith(u'\''))
    value = value.mid(1, value.size() - 2);
  return {formula.left(equals).trimmed(), value};
}

}  // namespace pc
