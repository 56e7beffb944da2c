#include "pc/paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

#include "pc/network_drive.h"

using namespace Qt::StringLiterals;

namespace pc {

namespace {

constexpr bool hasDriveLetters =
#ifdef Q_OS_WIN
    true;
#else
    false;
#endif

bool startsWithDrive(const QString& path) {
  return path.size() >= 2 && path[1] == u':' && path[0].unicode() < 0x80 && path[0].isLetter();
}

const QString mappedSection = u"drives"_s;

}  // namespace

Paths::Paths(const QString& root) : root_(QDir::cleanPath(root)), mapped_(root_ + u"/drives.ini"_s) {}

QString Paths::defaultRoot() {
  const QString named = qEnvironmentVariable("HAEON_PC");
  if (!named.isEmpty()) return QDir(named).absolutePath();
  return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/haeon"_s;
}

QString Paths::driveFolder(QChar letter) const {
  const QString share = mapped_.value(mappedSection, QString(letter.toUpper()));
  return share.isEmpty() ? root_ + u'/' + letter.toLower() : share;
}

QString Paths::native(const QString& written) const {
  if (hasDriveLetters || !startsWithDrive(written)) return written;
  if (QString known = found_.value(written); !known.isEmpty() && QFileInfo::exists(known)) return known;
  const QString drive = driveFolder(written[0]);
  QString path = drive;
  QString rest = written.sliced(2);
  rest.replace(u'\\', u'/');
  for (const QString& name : rest.split(u'/', Qt::SkipEmptyParts)) {
    if (name == u".") continue;
    if (name == u"..") {  // never above the drive
      if (path != drive) path.truncate(path.lastIndexOf(u'/'));
      continue;
    }
    QString next = path + u'/' + name;
    if (!QFileInfo::exists(next)) {
      const QStringList names =
          QDir(path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
      const auto same = [&](const QString& other) { return other.compare(name, Qt::CaseInsensitive) == 0; };
      if (const auto at = std::find_if(names.begin(), names.end(), same); at != names.end()) {
        next = path + u'/' + *at;
      }
    }
    path = next;
  }
  if (QFileInfo::exists(path)) found_.insert(written, path);
  return path;
}

bool Paths::exists(const QString& written) const {
  return QFileInfo::exists(native(written));
}

QStringList Paths::list(const QString& folder, const QString& pattern) const {
  return QDir(native(folder)).entryList({pattern}, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

QStringList Paths::folders(const QString& folder) const {
  return QDir(native(folder)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
}

bool Paths::makeFolder(const QString& written) const {
  return QDir().mkpath(native(written));
}

bool Paths::copy(const QString& from, const QString& to) const {
  const QString target = native(to), unfinished = target + u".new"_s;
  QFile::remove(unfinished);
  if (!QFileInfo::exists(target) && QFile::copy(native(from), unfinished) &&
      QFile::rename(unfinished, target)) {
    return true;
  }
  QFile::remove(unfinished);
  return false;
}

QStringList Paths::drives() const {
  QStringList letters;
  if (hasDriveLetters) {
    for (const QFileInfo& drive : QDir::drives()) letters << drive.filePath().first(2).toUpper();
    return letters;
  }
  letters << u"C:"_s;
  for (const QString& name : QDir(root_).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    if (name.size() == 1 && name[0].isLetter()) letters << name.toUpper() + u':';
  }
  for (const QString& letter : mapped_.keys(mappedSection)) letters << letter + u':';
  letters.removeDuplicates();
  letters.sort();
  return letters;
}

QString Paths::shareOf(const QString& letter) const {
  return mapped_.value(mappedSection, letter.first(1).toUpper());
}

/** A mapped letter whose folder is gone may be mapped anew. */
bool Paths::isLost(const QString& letter) const {
  const QString share = shareOf(letter);
  return !share.isEmpty() && !QFileInfo(share).isDir();
}

QString Paths::mapNetworkDrive(const QString& share, const QString& letter) {
  const QString wanted = letter.first(std::min<qsizetype>(2, letter.size())).toUpper();
  int failure = 0;
  if (!startsWithDrive(wanted)) {
    failure = netBadDeviceType;
  } else if (drives().contains(wanted) && !isLost(wanted)) {
    failure = netAlreadyAssigned;
  } else {
    const Share found = findShare(share.trimmed(), wanted);
    failure = found.failure;
    if (!failure && !hasDriveLetters && !mapped_.setValue(mappedSection, wanted.first(1), found.folder)) {
      failure = netCannotOpenProfile;
    }
  }
  return networkFailureText(failure);
}

}  // namespace pc
