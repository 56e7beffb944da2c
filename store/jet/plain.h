#pragma once
// Values on their way into the text of a statement, which is joined at the point of use:
//
//   "Delete * From Bank Where BName = '" + plainText(name) + "'"
//
// Nothing is escaped: a value that would not stay in its place makes the statement end in the syntax error (3075),
// before any of it runs and whatever the rest of it says. A text such as  x' Or '1'='1  would otherwise be read as a
// further condition.
#include <QString>

namespace jet {

/** Between the statement's apostrophes. Refused: an apostrophe. */
QString plainText(const QString& text);
/** Standing bare. Refused: anything but one decimal number ("-12.5", "1.5E-05"), '' too. */
QString plainNumber(const QString& text);
/** Between [ and ], as a file's path before its table. Refused: a closing bracket. */
QString plainPath(const QString& path);

/** Between apostrophes as well, its own doubled and so kept: for what is copied from file to file. Nobody typed it, and
 *  the work must not end at it. */
QString copiedText(QString text);

/** Throws 3075, the statement behind it, for a statement joined from a refused value. */
void requirePlain(QStringView sql);
/** The statement as the operator may read it, refused values as they were typed. */
QString shownSql(QStringView sql);

}  // namespace jet
