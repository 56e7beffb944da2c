#pragma once
// The cash book of the old format made over into the new one's file, once, before the cash book tool starts.
#include "store/session.h"

/** folder without its last backslash; '' is the program's folder + "\Dbs". True: converted, or nothing to convert. False:
 *  it failed, and why was told; the old file keeps its name, so that the next start goes on. Rows copied before a failure
 *  stay in the new file and are not copied a second time. */
bool ConvCashBook(Session& session, const QString& folder, const QString& oldFile);
