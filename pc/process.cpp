#include "pc/process.h"

#include <QFileInfo>
#include <QProcess>

namespace pc {

bool Process::run(const QString& program, const QStringList& arguments, const QString& folder) const {
  if (starter_) return starter_(program, arguments, folder);
  return QProcess::startDetached(program, arguments, folder);
}

bool Process::start(const QString& written, const QStringList& arguments) const {
  const QFileInfo program(paths_.native(written));
  return program.isFile() && run(program.filePath(), arguments, program.path());
}

bool Process::open(const QString& written) const {
  const QFileInfo target(paths_.native(written));
  if (!target.exists()) return false;
#ifdef Q_OS_WIN
  return run(QStringLiteral("explorer"), {QString(target.filePath()).replace(u'/', u'\\')}, target.path());
#else
  return run(QStringLiteral("xdg-open"), {target.filePath()}, target.path());
#endif
}

bool Process::shell(const QString& line) const {
  const QString file = line.section(u' ', 1);
#ifdef Q_OS_WIN
  return run(line.section(u' ', 0, 0), {paths_.native(file)}, QString());
#else
  return open(file);
#endif
}

}  // namespace pc
