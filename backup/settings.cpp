#include "backup/settings.h"

#include "pc/pc.h"
#include "store/data_files.h"
#include "store/settings_table.h"

using namespace Qt::StringLiterals;

namespace backup {

namespace {

const QString usualFolder = u"C:\\RWGas\\BackUp\\"_s;

QString asFolder(const QString& written) {
  QString text = written.trimmed();
  if (text.isEmpty() || text.endsWith(u'\\') || text.endsWith(u'/')) return text;
  return text + (text.startsWith(u'/') ? u'/' : u'\\');
}

}  // namespace

Settings readSettings(const pc::Pc& pc) {
  Settings settings;
  settings.folder = asFolder(pc.settings.read(setting::ArchiveFolder));
  if (settings.folder.isEmpty()) settings.folder = usualFolder;
  bool isNumber = false;
  const int keep = pc.settings.read(setting::ArchivesKept).toInt(&isNumber);
  if (isNumber) settings.keep = qBound(1, keep, mostKept);
  settings.serverFolder = asFolder(pc.settings.read(setting::ArchiveServerFolder));
  settings.serverCommand = pc.settings.read(setting::ArchiveServerCommand).trimmed();
  settings.remindAtExit = pc.settings.read(setting::BackupRemindedAtExit) != "0"_L1;
  return settings;
}

bool writeSettings(pc::Pc& pc, const Settings& settings) {
  pc::Settings& store = pc.settings;
  return store.write(setting::ArchiveFolder, asFolder(settings.folder)) &&
         store.write(setting::ArchivesKept, QString::number(settings.keep)) &&
         store.write(setting::ArchiveServerFolder, asFolder(settings.serverFolder)) &&
         store.write(setting::ArchiveServerCommand, settings.serverCommand.trimmed()) &&
         store.write(setting::BackupRemindedAtExit, settings.remindAtExit);
}

QString dataFolderToPack(const pc::Pc& pc) {
  const QString told = asFolder(pc.settings.read(setting::BackupFolder));
  return told.isEmpty() ? installedDataFolder() : told;
}

}  // namespace backup
