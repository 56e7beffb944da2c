#pragma once
// Options all PCs share: name and value in the table Options of Basic.mdb.
#include <QString>

struct Session;

/** The option's value, '' for Null. A new name takes the fallback and gets its row; with no open handle or after a
 *  failed query the fallback comes back. */
QString GetOption(Session& session, const QString& name, const QString& fallback);
void SetOption(Session& session, const QString& name, const QString& value);
