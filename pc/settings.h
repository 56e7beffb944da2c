#pragma once
// The registry-style store: text values by application, section and key, none of them sensitive to case.
#include <QString>
#include <map>

#include "pc/ini_file.h"

namespace pc {

/** A value's place in the store, and what a missing one counts as. The texts must outlive it. */
struct Setting {
  QStringView application, section, key, fallback = {};
};

/** One ini file an application name below the PC's root; a value is on disk when SaveSetting returns. */
class Settings {
 public:
  explicit Settings(QString root) : root_(std::move(root)) {}
  QString read(const Setting& setting) const { return read(setting, setting.fallback.toString()); }
  /** Where a missing value counts as something that only the running program knows. */
  QString read(const Setting& setting, const QString& fallback) const;
  /** False when the file cannot be written; the value then holds for this run alone. */
  bool write(const Setting& setting, const QString& value);
  bool write(const Setting& setting, bool on) { return write(setting, QString(on ? u'1' : u'0')); }
  bool write(const Setting& setting, const char* value) { return write(setting, QString::fromUtf8(value)); }

  // The store by its texts; the program goes by store/settings_table.
  QString GetSetting(const QString& application, const QString& section, const QString& key,
                     const QString& fallback = {}) const;
  bool SaveSetting(const QString& application, const QString& section, const QString& key,
                   const QString& value);

  /** False when the application's file is there and cannot be read. */
  bool canBeRead(const QString& application) const { return fileOf(application).canBeRead(); }

 private:
  IniFile& fileOf(const QString& application) const;

  QString root_;
  mutable std::map<QString, IniFile> files_;
};

}  // namespace pc
