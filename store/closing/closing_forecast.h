#pragma once
// What a year's closing would do, read before anybody is asked: who is carried with what, and what work in the next
// year's file it would throw away.
#include <QStringList>
#include <vector>

#include "store/session.h"

/** One December row of the meter book. Money in won, the reading in cubic metres. */
struct ForecastLine {
  qint64 code = 0;
  QString name;
  double trust = 0, reading = 0, total = 0;  ///< of December; the total becomes January's arrears
  bool hasJanuary = true;                    ///< without a January row nothing is carried
};

struct ClosingForecast {
  int year = 0;
  int customers = 0;                ///< in the meter book, with or without a December row
  std::vector<ForecastLine> lines;  ///< December, by customer
  double arrears = 0;               ///< won, over all lines that are carried
  int owing = 0;                    ///< lines with arrears

  bool nextStands = false;       ///< there is a file of the next year
  bool nextIsRead = true;        ///< it could be looked into
  int sales = 0, purchases = 0;  ///< lines dated in the next year that only its file holds
  int readings = 0;              ///< meter rows of months 1 to 12 with a use, money or a payment
  double collected = 0;          ///< won, paid on those rows
  QStringList kept;              ///< files that an interrupted closing has left behind

  QString folder;            ///< where the closing works
  bool folderMoved = false;  ///< the data folder is another one

  bool losesWork() const { return sales + purchases + readings > 0; }
};

/** The folder of the closing: fixed, a moved data folder does not reach it. */
QString closingFolder();
/** A year's file there. */
QString closingFile(int year);

/** Writes nothing. Throws jet::Error where the working year's own file cannot be read. */
ClosingForecast forecastClosing(const Session& session);
