#include "backup/settings.h"

#include "pc/pc.h"
#include "store/data_files.h"

using namespace Qt::StringLiterals;

namespace backup {

namespace {

const QString application = u"Backup"_s, section = u"설정"_s;
const QString folderKey = u"백업폴더"_s, keepKey = u"보관개수"_s, serverFolderKey = u"서버폴더"_s,
              serverCommandKey = u"서버명령"_s, remindKey = u"종료알림"_s;
const QString usualFolder = u"C:\\RWGas\\BackUp\\"_s;

QString asFolder(const QString& written) {
  const QString text = written.trimmed();
  if (text.isEmpty() || text.endsWith(u'\\') || text.endsWith(u'/')) return text;
  return text + (text.startsWith(u'/') ? u'/' : u'\\');
}

}  // namespace

Settings readSettings(const pc::Pc& pc) {
  const auto stored = [&](const QString& key, const QString& fallback = {}) {
    return pc.settings.GetSetting(application, section, key, fallback);
  };
  Settings settings;
  settings.folder = asFolder(stored(folderKey));
  if (settings.folder.isEmpty()) settings.folder = usualFolder;
  bool isNumber = false;
  const int keep = stored(keepKey).toInt(&isNumber);
  if (isNumber) settings.keep = qBound(1, keep, mostKept);
  settings.serverFolder = asFolder(stored(serverFolderKey));
  settings.serverCommand = stored(serverCommandKey).trimmed();
  settings.remindAtExit = stored(remindKey, u"1"_s) != "0"_L1;
  return settings;
}

bool writeSettings(pc::Pc& pc, const Settings& settings) {
  const auto store = [&](const QString& key, const QString& value) {
    return pc.settings.SaveSetting(application, section, key, value);
  };
  return store(folderKey, asFolder(settings.folder)) && store(keepKey, QString::number(settings.keep)) &&
         store(serverFolderKey, asFolder(settings.serverFolder)) &&
         store(serverCommandKey, settings.serverCommand.trimmed()) &&
         store(remindKey, settings.remindAtExit ? u"1"_s : u"0"_s);
}

QString dataFolderToPack(const pc::Pc& pc) {
  const QString told = asFolder(pc.settings.GetSetting(application, u"DB경로"_s, u"경로"_s));
  return told.isEmpty() ? installedDataFolder() : told;
}

}  // namespace backup
