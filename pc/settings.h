#pragma once
// The registry-style store: text values by application, section and key, none of them sensitive to case.
#include <QString>
#include <map>

#include "pc/ini_file.h"

namespace pc {

/** One ini file an application name below the PC's root; a value is on disk when SaveSetting returns. */
class Settings {
 public:
  explicit Settings(QString root) : root_(std::move(root)) {}
  QString GetSetting(const QString& application, const QString& section, const QString& key,
                     const QString& fallback = {}) const;
  /** False when the file cannot be written; the value then holds for this run alone. */
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
