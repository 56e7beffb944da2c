#pragma once
// A grid as a report: its shown columns and the rows that hold data, so that a grid on paper is drawn, numbered and
// refused as every report is.
#include <memory>

#include "pc/report.h"

class SpreadModel;

/** title: on every sheet; today: the date below it. Upright unless the columns are too wide for it. Throws
 *  pc::ReportError when no row holds data. */
std::unique_ptr<pc::Report> gridReport(const SpreadModel& grid, const QString& title, const QString& today);
