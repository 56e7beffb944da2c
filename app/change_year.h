#pragma once
// The change of the work year: another year's file and the clock in that year.
#include <QStringList>

#include "store/session.h"

/** Five years before the clock's to five after it, four digits. */
QStringList changeableYears(const Session& session);

/** Opens the year's file into dbYear and moves the program's clock into that year, day and time as they are (29 February
 *  becomes the 28th where the year has none). Kept: a year without a file is not looked for beforehand, and WorkYear stays,
 *  so that a closing still closes the year of the start. Throws jet::Error; all stays then as it was. */
void changeYear(Session& session, const QString& year);
