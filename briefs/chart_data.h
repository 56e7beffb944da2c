#pragma once
// The figures of a report's picture, taken from its rows.
#include <functional>

#include "briefs/brief.h"

struct ChartData {
  QStringList labels;
  QStringList names;                        ///< of the series, as the columns are headed
  std::vector<std::vector<double>> series;  ///< a value a label, in the unit
  QString unit;                             ///< "원", "만원", "개"
};

/** Rows of one label as one where the chart says so; of many the largest of the first series, the greatest first. Money
 *  from a million won on is told in ten thousands. */
ChartData chartData(const BriefChart& chart, const std::vector<BriefColumn>& columns,
                    const std::vector<BriefCells>& rows);

/** An axis of figures: where it begins and ends, and how many marks it has. */
struct ChartScale {
  double least = 0, greatest = 1;
  int marks = 2;
};
/** Round whole marks over all figures, 0 among them; at most so many, but three where there is room for fewer. */
ChartScale chartScale(double least, double greatest, int most);

/** Labels side by side with so much room for each, by the width a text takes: of numbers some are left out, names are
 *  cut in their middle. No two are one text, as an axis wants it; what is left out is blanks. */
QStringList chartLabels(const QStringList& labels, double room,
                        const std::function<double(const QString&)>& width);
