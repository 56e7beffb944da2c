#pragma once
// The books of the older format brought in: every table and column that this program knows, by name, value by value, into
// fresh data files beside the data folder, which then change places with it. The old folder is only read.
#include <QStringList>

#include <functional>
#include <vector>

#include "backup/work.h"
#include "store/schema.h"

struct Session;

namespace moving {

/** One table that was brought in. */
struct MovedTable {
  QString file, name;
  qint64 rows = 0;
  QStringList notes;  ///< what differs from the table's usual shape, and values that have no place in it
};

struct MoveReport {
  std::vector<MovedTable> tables;
  QStringList unknown;   ///< files, tables and columns this program does not know, with what they hold
  QStringList warnings;  ///< what the operator must look at
  QString keptFolder;    ///< where the data folder of before lies, '' when there was none
  QString file;          ///< the report's own file, as written
  QString text() const;
  qint64 rows() const;
};

/** What a file of this name holds; nothing for a name that is none of ours. */
std::optional<schema::File> kindOfFile(const QString& name);
/** Whether a folder, as written or native, holds a Basic.mdb of the older format. */
bool holdsOldBooks(const QString& nativeFolder);
/** The companion ledger's folder, as written: its files have a place of their own. */
QString ledgerFolder(const Session& session);
/** Where the old files of a folder go, as written: the data folder, the ledger's folder, or '' when there are none. */
QString placeOf(const Session& session, const QString& nativeFolder);
/** Whether customers or sales lie in the data folder, which would be put aside. */
bool holdsWork(Session& session);

/** Reads nativeFolder and puts its books in their place (placeOf), whose files nobody may have open. Throws
 *  jet::Error and backup::Stopped; both folders are then as they were. */
MoveReport moveIn(Session& session, const QString& nativeFolder, const backup::Tell& tell);

}  // namespace moving
