#pragma once
// Dates as the document forms take them.
#include "store/session.h"

/** A typed date as "yyyy-MM-dd", eight digits without their dashes too; '' after telling that it is none. */
QString documentDate(Session& session, const QString& typed);
