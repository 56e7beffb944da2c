#pragma once
// What went wrong on this PC, for whoever helps from afar: a text file in the program's folder, a line an error. No word
// of a customer gets in, and nothing that happens to the file is ever a failure of the program.
#include <QString>

namespace jet {
class Error;
}
namespace pc {
struct Pc;
}

namespace support {

/** "C:\RWGas\Log\errors.log". Beyond 256 KB it becomes errors.1.log, in place of the one before. */
QString logFile(const pc::Pc& pc);

/** A statement as it may leave the house: only words of the language and names of our tables and fields stand, all else
 *  (texts, numbers, dates, whatever a stray apostrophe has set free) is "?". At most 600 characters. */
QString statementShape(const QString& sql);

/** One line: time, version, the window's name ("frmSale"; '' or one that is no such name: "-"), the number with its text,
 *  the data file's name, the statement's shape. */
void noteError(const pc::Pc& pc, const QString& window, const jet::Error& error);

/** The program's start and its orderly end; a start behind a start tells of a crash or a power cut. */
enum class Run { Begins, Ends };
void noteRun(const pc::Pc& pc, Run run);

}  // namespace support
