#pragma once
// A report's rows as a grid, for the spreadsheet.
#include "ui/model/spread_model.h"

namespace pc {
class Report;
}

/** The layout's columns with all rows and the total. */
SpreadModel reportSheet(const pc::Report& report);
