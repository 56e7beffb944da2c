#include "briefs/chart_data.h"

#include <algorithm>
#include <cmath>
#include <numeric>

using namespace Qt::StringLiterals;

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
    kept.reserve(order.size());
    for (const size_t at : order) kept.push_back(values[at]);
    values = std::move(kept);
  }
}

void setUnit(ChartData& data, BriefLook look) {
  data.unit = look == BriefLook::Money ? u"원"_s : u"개"_s;
  if (look != BriefLook::Money) return;
  double greatest = 0;
  for (const std::vector<double>& values : data.series)
    for (const double value : values) greatest = std::max(greatest, std::abs(value));
  if (greatest < readable) return;
  data.unit = u"만원"_s;
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
    const QString key = chart.apart ? label + u'\n' + row[size_t(chart.apart - 1)] : label;
    const auto found = chart.byLabel ? places.constFind(key) : places.constEnd();
    const qsizetype at = found == places.constEnd() ? data.labels.size() : *found;
    if (at == data.labels.size()) {
      places.insert(key, at);
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

ChartScale chartScale(double least, double greatest, int most) {
  least = std::min(least, 0.0);
  greatest = std::max(greatest, 0.0);
  const int gaps = std::max(most, 3) - 1;
  for (double unit =
           std::pow(10, std::max(0.0, std::floor(std::log10(std::max(1.0, (greatest - least) / gaps)))));
       ; unit *= 10)
    for (const double step : {unit, 2 * unit, 5 * unit}) {
      const double from = std::floor(least / step), to = std::max(std::ceil(greatest / step), from + 1);
      if (to - from <= gaps) return {from * step, to * step, int(to - from) + 1};
    }
}

namespace {

/** Cut in its middle: households of one building differ at the end. */
QString cutLabel(const QString& label, double room, const std::function<double(const QString&)>& width) {
  QString cut = label;
  for (qsizetype kept = label.size() - 1; kept > 0 && width(cut) > room; --kept)
    cut = label.left(kept / 2) + u'…' + label.right(kept - kept / 2);
  return cut;
}

}  // namespace

QStringList chartLabels(const QStringList& labels, double room,
                        const std::function<double(const QString&)>& width) {
  const bool numbers = std::ranges::all_of(labels, [](const QString& label) {
    bool whole = false;
    label.toInt(&whole);
    return whole;
  });
  double widest = 1;
  for (const QString& label : labels) widest = std::max(widest, width(label));
  const int every = numbers ? std::max(1, int(std::ceil(widest / std::max(1.0, room)))) : 1;
  QStringList shown;
  for (qsizetype at = 0; at < labels.size(); ++at) {
    QString label = at % every == 0 ? cutLabel(labels[at], numbers ? widest : room, width) : QString();
    while (shown.contains(label) || label.isEmpty()) label += u' ';
    shown << label;
  }
  return shown;
}
