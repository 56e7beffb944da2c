#include "pc/process.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QProcess>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace pc {

#ifndef Q_OS_WIN
namespace {

/** The desktop's opener answers after the program has gone on, so it is asked before what it would open the file with. */
bool hasProgramFor(const QString& file) {
  if (QStandardPaths::findExecutable(u"xdg-open"_s).isEmpty()) return false;
  const QString asks = QStandardPaths::findExecutable(u"xdg-mime"_s);
  if (asks.isEmpty()) return true;
  QProcess question;
  question.start(asks, {u"query"_s, u"default"_s,
                        QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).name()});
  constexpr int patience = 3000;  // milliseconds; a desktop that does not answer may still open it
  if (!question.waitForFinished(patience)) return true;
  return !question.readAllStandardOutput().trimmed().isEmpty();
}

}  // namespace
#endif

bool Process::run(const QString& program, const QStringList& arguments, const QString& folder) const {
  if (starter_) return starter_(program, arguments, folder);
  return QProcess::startDetached(program, arguments, folder);
}

bool Process::start(const QString& written, const QStringList& arguments) const {
  QFileInfo program(paths_.native(written));
  const QString ours = paths_.programFolder() + u'\\';
  if (!program.isFile() && written.startsWith(ours, Qt::CaseInsensitive))
    program.setFile(QCoreApplication::applicationDirPath() + u'/' + written.sliced(ours.size()));
  return program.isFile() && run(program.filePath(), arguments, program.path());
}

bool Process::open(const QString& written) const {
  const QFileInfo target(paths_.native(written));
  if (!target.exists()) return false;
#ifdef Q_OS_WIN
  return run(u"explorer"_s, {QString(target.filePath()).replace(u'/', u'\\')}, target.path());
#else
  if (!starter_ && !hasProgramFor(target.filePath())) return false;
  return run(u"xdg-open"_s, {target.filePath()}, target.path());
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
