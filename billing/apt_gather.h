#pragma once
// Reads the apartments' meter rows, spreads what was paid, and writes the lines into AptBaln.
#include <QString>

#include "store/jet/database.h"

struct Session;

struct AptAsk {
  int month = 1;               ///< the base month, 1 to 12, of the open year
  bool openings = false;       ///< opening rows too
  bool lastYear = false;       ///< the year before as well, from its December on
  QString building, dong, ho;  ///< '' for all
};

/** Empties AptBaln and fills it. note: what the operator should know of these lines, '' for nothing. False after a failed
 *  query has been told. Throws jet::Error. */
bool gatherAptBaln(Session& session, const AptAsk& ask, const jet::Database& scratch, QString& note);
