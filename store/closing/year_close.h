#pragma once
// The closing of a year: next year's file is made out of this year's, its meter book opens with what December left.
#include <functional>

#include "store/closing/carry_check.h"
#include "store/closing/closing_forecast.h"
#include "store/session.h"

/** How far long work is; total 0: not known yet. */
using YearProgress = std::function<void(const QString& text, int done, int total)>;

/** Of the boxes around the year's end. */
QString yearEndTitle();

/** What a closing shows besides its boxes. */
struct ClosingScreen {
  /** Before the question; False: the operator leaves. */
  std::function<bool(const ClosingForecast& forecast)> forecast;
  YearProgress progress;
  /** December and January differ. kept: the file that was replaced, '' when there was none. True: put it back. */
  std::function<bool(const CarryCheck& check, const QString& kept)> differs;
};

/** Closes the working year. The next year's file takes its place only when it is whole; what it replaces is kept beside
 *  it under a dated name until December and January were compared. Errors are told in boxes; afterwards dbYear is open on
 *  the working year again. Throws jet::Error when it cannot be. */
void closeYear(Session& session, const ClosingScreen& screen);
