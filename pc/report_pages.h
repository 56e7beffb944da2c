#pragma once
// A report's rows broken into pages: plain arithmetic on heights, without fonts and painters.
#include <set>
#include <variant>
#include <vector>

#include "pc/exact_sum.h"
#include "pc/report_layout.h"

namespace pc {

/** Nothing, a whole number, a fraction or a text, as staged. */
using ReportValue = std::variant<std::monostate, qint64, double, QString>;
QString plainText(const ReportValue& value);  ///< a number's plain digits

struct ReportTable {
  QStringList fields;
  std::vector<std::vector<ReportValue>> rows = {};
  std::set<int> boldRows = {};  ///< rows that stand out

  /** Nothing for a field that is not there. */
  const ReportValue& value(int row, const QString& field) const;
  /** A row without a number and without a letter: it takes its line and is not counted. */
  bool isBlank(int row) const;
};

/** Sums by the layout's columns; of columns without sum they stay 0. */
using ReportSums = std::vector<ExactSum>;

/** A strip of a page, from its top over its height, in inches. */
struct ReportBand {
  enum class Kind { Title, Next, Heading, Group, Row, Subtotal, Total, Summary, Foot, Picture };
  Kind kind;
  double top = 0, height = 0;
  int row = -1;   ///< of a row, of a group's first row
  int sums = -1;  ///< of a subtotal, which
};

class ReportPages {
 public:
  /** pictureHeight: inches below the rows; 0 for none. Throws ReportError when the paper takes not even one row. */
  ReportPages(const ReportLayout& layout, const ReportTable& table, double pictureHeight = 0);

  int count() const { return int(pages_.size()); }
  const std::vector<ReportBand>& bands(int page) const { return pages_.at(size_t(page)); }  ///< from 0
  const ReportSums& total() const { return total_; }
  const ReportSums& subtotal(int which) const { return subtotals_.at(size_t(which)); }
  int rowsCounted() const { return counted_; }
  int numberOf(int row) const { return numbers_.at(size_t(row)); }  ///< from 1; 0 for a blank row

 private:
  void countRows();
  bool groupBegins(int row) const;
  bool groupEnds(int row) const;
  double spaceBehind(int row) const;
  void beginPage(bool heading = true);
  void put(ReportBand::Kind kind, double height, int row = -1, int sums = -1);
  void addRow(int row, ReportSums& sums) const;

  const ReportLayout& layout_;
  const ReportTable& table_;
  std::vector<std::vector<ReportBand>> pages_;
  ReportSums total_;
  std::vector<ReportSums> subtotals_;
  std::vector<int> numbers_;
  int counted_ = 0;
  double at_ = 0, limit_ = 0;
};

}  // namespace pc
