#pragma once
// The rows that come with a customer: the customer's own, and for one billed by meter thirteen in the year's meter
// book, the opening row 0 and the months. Everything here throws jet::Error.
#include "store/session.h"

/** Runs the statement that makes a customer and reads the new code back; a metered one's meter rows come with it. */
qint64 addClient(const Session& session, QStringView insertStatement, bool metered);

/** Those of the thirteen meter rows that are not there yet. */
void completeMeterRows(const Session& session, qint64 clientCode);
