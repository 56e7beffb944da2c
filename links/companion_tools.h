#pragma once
// The companion tools: the cash book and the schedule. Found in the program's folder or where their own settings say,
// started with the data folder.
#include "store/session.h"

/** dataFolder as the tool is told it ("C:\rwgas\dbs"). An old cash book of that name in it is converted first; when that
 *  fails the tool is not started. What is missing is told. */
void RunCashbook(Session& session, const QString& dataFolder, const QString& oldFile);
/** Nothing is converted for the schedule. */
void RunSchedule(Session& session, const QString& dataFolder, const QString& oldFile);

/** The data folder as the menu hands it to the tools. */
QString folderForTools(const Session& session);
/** The file of the cash book's old format. */
QString oldCashBook();
