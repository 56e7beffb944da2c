#pragma once
// Files as a test lays them down and looks at them.
#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace tests {

/** A file of these bytes in place of whatever stood there; its folder is made too. */
inline void writeFile(const QString& path, const QByteArray& bytes = {}) {
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
  ASSERT_EQ(file.write(bytes), bytes.size()) << path.toStdString();
}

inline QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
}
inline QString textOf(const QString& path) {
  return QString::fromUtf8(bytesOf(path));
}

/** Every file below a folder by its name there, with its bytes. */
inline QMap<QString, QByteArray> contentsOf(const QString& folder) {
  QMap<QString, QByteArray> all;
  for (QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); it.hasNext();) {
    const QString path = it.next();
    all[QDir(folder).relativeFilePath(path)] = bytesOf(path);
  }
  return all;
}

}  // namespace tests
