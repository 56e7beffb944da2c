#include "pc/settings.h"

using namespace Qt::StringLiterals;

namespace pc {

IniFile& Settings::fileOf(const QString& application) const {
  QString name = application.toLower();
  for (QChar& c : name) {
    if (u"/\\:*?\"<>|"_s.contains(c)) c = u'_';
  }
  return files_.try_emplace(name, root_ + u"/settings/"_s + name + u".ini"_s).first->second;
}

QString Settings::read(const Setting& setting, const QString& fallback) const {
  return GetSetting(setting.application.toString(), setting.section.toString(), setting.key.toString(),
                    fallback);
}

bool Settings::write(const Setting& setting, const QString& value) {
  return SaveSetting(setting.application.toString(), setting.section.toString(), setting.key.toString(),
                     value);
}

QString Settings::GetSetting(const QString& application, const QString& section, const QString& key,
                             const QString& fallback) const {
  return fileOf(application).value(section, key, fallback);
}

bool Settings::SaveSetting(const QString& application, const QString& section, const QString& key,
                           const QString& value) {
  return fileOf(application).setValue(section, key, value);
}

}  // namespace pc
