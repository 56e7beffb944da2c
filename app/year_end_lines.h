#pragma once
// What the operator reads around a closing: the dry run before the question, and what differs after it.
#include "store/closing/year_close.h"
#include "ui/model/spread_model.h"

/** A head, what to mind ('' for nothing) and the lines below. */
struct YearEndPage {
  QString head, warning;
  SpreadModel lines;
};

/** Who goes over with what, and what would be lost. */
void fillForecast(YearEndPage& page, const ClosingForecast& forecast);
/** Whose December and January differ; kept: the files that were replaced, one a line. */
void fillDifferences(YearEndPage& page, const CarryCheck& check, int year, const QString& kept);
