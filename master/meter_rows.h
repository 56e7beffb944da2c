#pragma once
// The thirteen rows that a customer billed by meter has in the year's meter book: the opening row 0 and the months.
#include "store/session.h"

/** All thirteen rows of a new customer. Throws jet::Error. */
void addMeterRows(const Session& session, qint64 clientCode);

/** Those of the thirteen that are not there yet. Throws jet::Error. */
void completeMeterRows(const Session& session, qint64 clientCode);
