#include "briefs/chart_data.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr double readable = 100'000, tenThousand = 10'000;  ///< won

/** The labels' order, the greatest first. */
std::vector<size_t> largest(const std::vector<double>& values, size_t most) {
  std::vector<size_t> order(values.size());
  std::iota(order.begin(), order.end(), size_t(0));
  std::ranges::stable_sort(order, [&](size_t a, size_t b) { return values[a] > values[b]; });
  order.resize(std::min(order.size(), most));
  return order;
}

void keepLargest(ChartData& data, size_t most) {
  const std::vector<size_t> order = largest(data.series.front(), most);
  QStringList labels;
  for (const size_t at : order) labels << data.labels[qsizetype(at)];
  data.labels = labels;
  for (std::vector<double>& values : data.series) {
    std::vector<double> kept;
    for (const size_t at : order) kept.push_back(values[at]);
    values = std::move(kept);
  }
}

void setUnit(ChartData& data, BriefLook look) {
  data.unit = look == BriefLook::Money ? QStringLiteral("원") : QStringLiteral("개");
  if (look != BriefLook::Money) return;
  double greatest = 0;
  for (const std::vector<double>& values : data.series)
    for (const double value : values) greatest = std::max(greatest, std::abs(value));
  if (greatest < readable) return;
  data.unit = QStringLiteral("만원");
  for (std::vector<double>& values : data.series)
    for (double& value : values) value /= tenThousand;
}

}  // namespace

ChartData chartData(const BriefChart& chart, const std::vector<BriefColumn>& columns,
                    const std::vector<BriefCells>& rows) {
  ChartData data;
  if (chart.kind == BriefChart::Kind::None) return data;
  for (const int col : chart.series) data.names << columns[size_t(col - 1)].header;
  data.series.resize(chart.series.size());
  QHash<QString, qsizetype> places;
  for (const BriefCells& row : rows) {
    const QString& label = row[size_t(chart.label - 1)];
    const auto found = chart.byLabel ? places.constFind(label) : places.constEnd();
    const qsizetype at = found == places.constEnd() ? data.labels.size() : *found;
    if (at == data.labels.size()) {
      places.insert(label, at);
      data.labels << label;
      for (std::vector<double>& values : data.series) values.push_back(0);
    }
    for (size_t each = 0; each < chart.series.size(); ++each)
      data.series[each][size_t(at)] += row[size_t(chart.series[each] - 1)].toDouble();
  }
  if (chart.most > 0 && !data.labels.isEmpty()) keepLargest(data, size_t(chart.most));
  setUnit(data, columns[size_t(chart.series.front() - 1)].look);
  return data;
}
