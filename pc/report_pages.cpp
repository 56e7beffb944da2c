#include "pc/report_pages.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pc {
namespace {

using Kind = ReportBand::Kind;

constexpr double footGap = 0.1;  ///< inches between the rows and the page's foot
constexpr double rounding = 1e-9;

}  // namespace

QString plainText(const ReportValue& value) {
  if (const auto* whole = std::get_if<qint64>(&value)) return QString::number(*whole);
  if (const auto* fraction = std::get_if<double>(&value)) {
    ExactSum digits;
    digits.add(*fraction);
    return digits.text();
  }
  const auto* text = std::get_if<QString>(&value);
  return text ? *text : QString();
}

const ReportValue& ReportTable::value(int row, const QString& field) const {
  static const ReportValue nothing;
  const qsizetype place = fields.indexOf(field);
  return place < 0 ? nothing : rows.at(size_t(row)).at(size_t(place));
}

bool ReportTable::isBlank(int row) const {
  return std::ranges::all_of(rows.at(size_t(row)), [](const ReportValue& value) {
    const auto* text = std::get_if<QString>(&value);
    return std::holds_alternative<std::monostate>(value) || (text && text->isEmpty());
  });
}

ReportPages::ReportPages(const ReportLayout& layout, const ReportTable& table, double pictureHeight)
    : layout_(layout), table_(table), total_(layout.columns.size()) {
  limit_ = layout.paper.height - layout.bottom - (layout.foot.empty() ? 0 : heightOf(layout.foot) + footGap);
  countRows();
  const int rows = int(table.rows.size());
  beginPage();
  double fresh = at_;  // where a page's rows begin
  ReportSums sums(layout.columns.size());
  for (int row = 0; row < rows; ++row) {
    const double groupHeight = heightOf(layout.group);
    const double needed =
        layout.rowHeight() + spaceBehind(row) + (groupBegins(row) ? groupHeight : 0) - rounding;
    if (at_ + needed > limit_ && at_ > fresh) {
      beginPage();
      fresh = at_;
      // A group that goes on is named again.
      if (!layout.groupField.isEmpty() && !groupBegins(row)) {
        put(Kind::Group, groupHeight, row);
        fresh = at_;
      }
    }
    if (at_ + needed > limit_) throw ReportError{u"용지에 한 줄도 들어가지 않습니다"_s};
    if (groupBegins(row)) put(Kind::Group, groupHeight, row);
    put(Kind::Row, layout.rowHeight(), row);
    addRow(row, sums);
    if (groupEnds(row)) {
      if (!layout.subtotal.isEmpty()) {
        put(Kind::Subtotal, layout.rowHeight(), -1, int(subtotals_.size()));
        subtotals_.push_back(sums);
      }
      for (size_t col = 0; col < sums.size(); ++col) total_[col].add(sums[col]);
      sums.assign(layout.columns.size(), {});
    }
  }
  if (!layout.total.isEmpty()) put(Kind::Total, layout.rowHeight());
  if (!layout.summary.empty()) put(Kind::Summary, heightOf(layout.summary));
  if (pictureHeight <= 0) return;
  if (at_ + pictureHeight > limit_) beginPage(false);
  put(Kind::Picture, std::min(pictureHeight, limit_ - at_));
}

void ReportPages::countRows() {
  for (int row = 0; row < int(table_.rows.size()); ++row)
    numbers_.push_back(table_.isBlank(row) ? 0 : ++counted_);
}

bool ReportPages::groupBegins(int row) const {
  if (layout_.groupField.isEmpty()) return false;
  return row == 0 || table_.value(row, layout_.groupField) != table_.value(row - 1, layout_.groupField);
}

/** A report without groups is one group. */
bool ReportPages::groupEnds(int row) const {
  return row + 1 == int(table_.rows.size()) || groupBegins(row + 1);
}

/** What follows a row stays with it: no sum stands alone on a page. */
double ReportPages::spaceBehind(int row) const {
  double space = 0;
  if (groupEnds(row) && !layout_.subtotal.isEmpty()) space += layout_.rowHeight();
  if (row + 1 == int(table_.rows.size()))
    space += (layout_.total.isEmpty() ? 0 : layout_.rowHeight()) + heightOf(layout_.summary);
  return space;
}

void ReportPages::beginPage(bool heading) {
  const bool first = pages_.empty();
  pages_.emplace_back();
  if (!layout_.foot.empty()) {
    at_ = limit_ + footGap;
    put(Kind::Foot, heightOf(layout_.foot));
  }
  at_ = layout_.top;
  const ReportLines& head = first ? layout_.title : layout_.next;
  if (!head.empty()) put(first ? Kind::Title : Kind::Next, heightOf(head));
  if (heading) put(Kind::Heading, layout_.headingHeight());
}

void ReportPages::put(Kind kind, double height, int row, int sums) {
  pages_.back().push_back({kind, at_, height, row, sums});
  at_ += height;
}

void ReportPages::addRow(int row, ReportSums& sums) const {
  for (size_t col = 0; col < layout_.columns.size(); ++col) {
    if (!layout_.columns[col].sum) continue;
    const ReportValue& value = table_.value(row, layout_.columns[col].field);
    if (const auto* whole = std::get_if<qint64>(&value)) sums[col].add(*whole);
    if (const auto* fraction = std::get_if<double>(&value)) sums[col].add(*fraction);
  }
}

}  // namespace pc
