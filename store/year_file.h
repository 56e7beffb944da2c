#pragma once
// A year's file "2026Foundation.mdb": its name and path, a look into it, the walk over the years. Nobody else writes the
// name.
#include <QString>
#include <QStringList>
#include <functional>
#include <set>

#include "store/jet/database.h"

struct Session;

/** The empty year file "2002Foundation.mdb" that is copied for a year without one. */
QString yearTemplate();
/** A year's file name, the same in every folder; year as four digits. */
QString yearFileName(const QString& year);
/** A year's file in the data folder. */
QString yearFile(const Session& session, const QString& year);
QString yearFile(const Session& session, int year);

/** The year whose file is open as dbYear: after a change of the PC's year it is not the work year. */
int openedYear(const Session& session);

/** The days whose lines a year's file is read for, "yyyy-MM-dd". A closing makes the new year's file a whole copy of the old
 *  one: a line then stands in the file of its own year and in each that was made after it, and counts in its own alone. */
struct LineDays {
  QString first, last;
};
/** Those of the year; of the open file also those after it where the clock has passed the year, for the screens write into
 *  that file until the program starts anew. */
LineDays lineDays(const Session& session, int year);
/** "Sale.SaleDate >= '2026-01-01' And Sale.SaleDate <= '2026-12-31'" */
QString daysAre(const QString& field, const LineDays& days);

/** The year's file opened; unset where there is none or it does not open. Tells nothing: the caller decides. */
jet::Database openYear(const Session& session, const QString& year);
jet::Database openYear(const Session& session, int year);

/** The files from the clock's year back, up to the first year without one: a file beyond a gap is not reached, and some
 *  rules keep that. Throws jet::Error 3043 where a disk or network does not answer. */
void walkYears(const Session& session, const std::function<void(const QString& file)>& work);
/** The years that have a file in the data folder, in their order; the template's is none. */
std::set<int> yearsThere(const Session& session);
/** Names of the files of a folder that are named as a year's, the template among them, sorted. */
QStringList yearFileNames(const Session& session, const QString& folder);
/** Paths of those that open and hold a table Buy, sorted. */
QStringList yearFiles(const Session& session, const jet::Workspace& workspace, const QString& folder);

/** Copies the template for a year that has no file. Throws jet::Error, 3049 for a damaged template. */
void makeYearFile(Session& session, const QString& year);
