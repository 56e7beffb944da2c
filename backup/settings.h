#pragma once
// What the data compressor is told to do, in the application "Backup" of the PC's settings. All PCs of a shop have their
// own.
#include <QString>

namespace pc {
struct Pc;
}

namespace backup {

struct Settings {
  QString folder;         ///< where archives lie, as written, with its last backslash
  int keep = 10;          ///< archives of a kind that are kept, 1 to 99; older ones are deleted
  QString serverFolder;   ///< a folder for the server's copy, as written; '' for none
  QString serverCommand;  ///< a command line that takes the archive's path in place of "%1"; '' for none
  bool remindAtExit = true;

  bool hasServer() const { return !serverFolder.isEmpty() || !serverCommand.isEmpty(); }
  bool operator==(const Settings&) const = default;
};

constexpr int mostKept = 99;

Settings readSettings(const pc::Pc& pc);
/** False when they cannot be written. */
bool writeSettings(pc::Pc& pc, const Settings& settings);
/** The data folder that the main program told at its last start, else the installed one; with its last backslash. */
QString dataFolderToPack(const pc::Pc& pc);

}  // namespace backup
