#pragma once
// The data folder: where its files lie, what a new one holds, and whether it can be worked in.
#include <QString>
#include <QStringList>

#include "store/schema.h"

struct Session;
namespace pc {
class Paths;
}

/** "C:\RWGas\Dbs\", where a new PC keeps its files and where some steps look whatever the setting says. */
QString installedDataFolder();
/** The data folder by the setting, with its last backslash. */
QString dataFolder(const Session& session);

/** A workspace on a data folder's files. */
jet::Workspace openWorkspace(const Session& session, const QString& folder);
// A disk or network that does not answer is no answer: both throw jet::Error 3043.
/** Whether a file is there. */
bool isThere(const pc::Paths& paths, const QString& written);
/** Names of a folder's files that match a pattern with * and ?, sorted; none where the folder is missing. */
QStringList filesIn(const pc::Paths& paths, const QString& folder, const QString& pattern);
/** Opens a file into db. False for a file that is none of ours or not there: who asks ends quietly then. */
bool openWhereThere(const Session& session, const jet::Workspace& workspace, jet::Database& db,
                    const QString& path);

/** Milliseconds to wait for another program that makes the same file. */
constexpr int makersPatience = 15000;
/** Makes a data folder that is missing, closed to other accounts of the PC; true when it stands afterwards. */
bool makeDataFolder(const pc::Paths& paths, const QString& folder);
/** Makes a data file with its empty tables (and the rows it starts with); the name is taken only when all is done. False
 *  when another program has made it meanwhile. Throws jet::Error, also where a journal tells that a file was there. */
bool makeDataFile(const Session& session, const QString& path, schema::File kind);

/** Before anything is opened: makes what is missing. An empty folder gets all files (after a question when it is not
 *  the installed one); year files without their Basic.mdb are left alone, because an empty one would take their rows
 *  for orphans. False when the folder cannot be worked in; that has been told. */
bool prepareDataFolder(Session& session);
