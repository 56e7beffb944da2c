#pragma once
// The scratch table Print, from which every report takes its rows.
#include <QString>

#include <functional>

struct Session;

/** The station's own scratch file, "C:\RWGas\Dbs\Print.mdb", wherever the data folder lies: two PCs that print at the
 *  same time would else mix their rows. */
QString printFile();

/** Empties Print, then runs one insert statement a row, 1 to rows, in that order. The file is made when it is missing,
 *  opened for the run (one opening serves all rows) and closed behind it. Throws jet::Error; Print is then
 *  empty. */
void stageReport(Session& session, int rows, const std::function<QString(int row)>& insert);
