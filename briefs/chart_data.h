#pragma once
// The figures of a report's picture, taken from its rows.
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
