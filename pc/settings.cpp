#include "pc/settings.h"

namespace pc {

IniFile& Settings::fileOf(const QString& application) const {
  QString name = application.toLower();
  for (QChar& c : name) {
    if (QStringLiteral("/\\:*?\"<>|").contains(c)) c = u'_';
  }
  return files_.try_emplace(name, root_ + QStringLiteral("/settings/") + name + QStringLiteral(".ini"))
      .first->second;
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
