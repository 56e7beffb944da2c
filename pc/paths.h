#pragma once
// Paths as the texts write them ("C:\RWGas\Dbs\") on a PC that may have no drive letters.
#include <QHash>
#include <QString>
#include <QStringList>

#include "pc/ini_file.h"

namespace pc {

/** Maps a drive letter to a folder below the PC's root and finds names without regard to case. On Windows, and for
 *  a path without a drive letter, a written path is the PC's own. */
class Paths {
 public:
  /** root holds one folder a drive ("c", "d", ...) and drives.ini with mapped network drives. */
  explicit Paths(const QString& root);
  /** The root named by HAEON_PC, else a folder in the user's data folder. */
  static QString defaultRoot();

  const QString& root() const { return root_; }
  /** The PC's own path of a written one; what exists is found without regard to case, what does not keeps the
   *  case written. A path without a drive letter is handed back as it stands. */
  QString native(const QString& written) const;
  bool exists(const QString& written) const;
  /** Names of the files in a folder that match a pattern with * and ?, sorted; names only. */
  QStringList list(const QString& folder, const QString& pattern) const;
  /** Names of the folders in a folder, sorted. */
  QStringList folders(const QString& folder) const;
  /** Makes a folder with those above it; True when it stands afterwards. */
  bool makeFolder(const QString& written) const;
  /** Copies one file to a name that must be free; the name is taken only when the copy is whole. */
  bool copy(const QString& from, const QString& to) const;
  /** The program's own folder as written, "C:\RWGas" */
  QString programFolder() const { return "C:\\RWGas"; }
  /** Drive letters in use, upper case with colon. */
  QStringList drives() const;
  /** The folder behind a mapped letter ("Z:"); '' when the letter is none, or where the PC keeps that itself. */
  QString shareOf(const QString& letter) const;
  /** Maps a network share to a letter ("Z:"). Empty text on success, else the failure's own Korean text. A share is
   *  a folder the PC already reaches, or \\server\share where this PC mounts such shares. */
  QString mapNetworkDrive(const QString& share, const QString& letter);

 private:
  QString driveFolder(QChar letter) const;
  bool isLost(const QString& letter) const;

  QString root_;
  IniFile mapped_;
  /** Paths found before: statements name the same few files over and over. */
  mutable QHash<QString, QString> found_;
};

}  // namespace pc
