#pragma once
// The printed safety register: the sales of some days, for the month's safety inspection.
#include "store/session.h"

struct SafeNoteAsk {
  QString from, to;  ///< as typed
  QString month;     ///< of the periodical inspection, as typed
};

/** Hands the register to the report engine. False after a day that is none, or a year without a file, was told. */
bool showSafeNote(Session& session, const SafeNoteAsk& ask);
