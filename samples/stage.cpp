#include "samples/stage.h"

#include <pty.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QThread>
#include <stdexcept>

#include "samples/display.h"

using namespace Qt::StringLiterals;

namespace samples {
namespace {

constexpr int patienceMilliseconds = 30000;

}  // namespace

Stage::Stage(Options options)
    : options_(std::move(options)), environment_(QProcessEnvironment::systemEnvironment()) {
  display_ = std::make_unique<QProcess>();
  display_->start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, options_.size + u"x24"_s,
                              u"-nolisten"_s, u"tcp"_s});
  if (!display_->waitForReadyRead(patienceMilliseconds)) stop(u"no display"_s);
  environment_.insert(u"DISPLAY"_s, u':' + QString::fromLatin1(display_->readAllStandardOutput()).trimmed());

  struct termios raw {};
  cfmakeraw(&raw);
  char name[64];
  if (openpty(&unit_, &unitFarEnd_, name, &raw, nullptr) != 0) stop(u"no pseudo-terminal"_s);
  environment_.insert(u"HAEON_COM1"_s, QString::fromLatin1(name));
  environment_.insert(u"HAEON_PC"_s, options_.pcRoot);
  environment_.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
  environment_.insert(u"QT_SCALE_FACTOR"_s, QString::number(options_.scale));
  if (!options_.pdf.isEmpty()) environment_.insert(u"HAEON_PDF"_s, options_.pdf);
  if (!options_.clock.isEmpty()) environment_.insert(u"HAEON_CLOCK"_s, options_.clock);

  manager_ = std::make_unique<QProcess>();
  manager_->setProcessEnvironment(environment_);
  manager_->setStandardErrorFile(QProcess::nullDevice());
  manager_->start(u"openbox"_s, QStringList{});
  screen_ = std::make_unique<Display>(environment_.value(u"DISPLAY"_s));
  await(u"a window manager"_s, [this] { return screen_->isManaged(); });
}

Stage::~Stage() {
  screen_.reset();
  for (QProcess* process : {program_.get(), manager_.get(), display_.get()}) {
    if (!process || process->state() == QProcess::NotRunning) continue;
    process->terminate();
    if (!process->waitForFinished(5000)) process->kill();
    process->waitForFinished(5000);
  }
  ::close(unit_);
  ::close(unitFarEnd_);
}

void Stage::startProgram() {
  program_ = std::make_unique<QProcess>();
  program_->setProcessEnvironment(environment_);
  program_->setProcessChannelMode(QProcess::ForwardedChannels);
  program_->start(options_.programs + u"/haeon"_s, QStringList{});
  if (!program_->waitForStarted()) stop(u"the program does not start"_s);
}

bool Stage::programRuns() const {
  program_->waitForFinished(0);
  return goesOn_ || program_->state() == QProcess::Running;
}

int Stage::awaitEnd() {
  if (programRuns() && !program_->waitForFinished(patienceMilliseconds)) stop(u"the program does not end"_s);
  return program_->exitStatus() == QProcess::NormalExit ? program_->exitCode() : -1;
}

QString Stage::run(const QString& program, const QStringList& arguments) const {
  QProcess process;
  process.setProcessEnvironment(environment_);
  process.start(program, arguments);
  if (!process.waitForFinished(patienceMilliseconds)) stop(program + u" does not answer"_s);
  return QString::fromUtf8(process.readAllStandardOutput());
}

void Stage::stop(const QString& wrong) const {
  QString told = wrong;
  if (screen_) {
    const QString picture = takePicture(u"stopped-here"_s);
    told += u"; in front ["_s + screen_->titleInFront() + u"], on the screen ["_s +
            screen_->titles().join(u"] ["_s) + u"], picture "_s + picture;
  }
  if (program_ && !programRuns()) told += u"; the program has ended"_s;
  throw std::runtime_error(told.toStdString());
}

void Stage::await(const QString& what, const std::function<bool()>& come) const {
  QElapsedTimer clock;
  clock.start();
  while (!come()) {
    if (clock.elapsed() > patienceMilliseconds) stop(u"awaited in vain: "_s + what);
    QThread::msleep(5);
  }
}

void Stage::keys(const QStringList& names) {
  for (const QString& name : names) {
    if (!programRuns()) stop(u"the program is gone before key "_s + name);
    run(u"xdotool"_s, {u"key"_s, u"--clearmodifiers"_s, name});
    awaitHandled();
  }
}

void Stage::awaitHandled() {
  // The toolkit answers when it fetches its events and hands them out afterwards, so one answer says only that the key
  // was fetched. A second one, asked for after the first, says that it was handed out, and a third that what it left
  // for the next round of the loop is done too.
  for (int round = 0; round < 3; ++round) {
    const quint32 token = ++lastToken_;
    QElapsedTimer asked;
    await(u"an answer from the program"_s, [&] {
      if (!programRuns()) return true;
      // Asked again where the asked window was closed meanwhile; between two windows there is none to ask.
      if ((!asked.isValid() || asked.hasExpired(250)) && screen_->ping(token)) asked.start();
      return screen_->answered(token);
    });
  }
}

void Stage::type(const QString& digitsAndLetters) {
  run(u"xdotool"_s, {u"type"_s, u"--delay"_s, u"10"_s, digitsAndLetters});
  awaitHandled();
}

void Stage::awaitWindow(const QString& part) {
  await(u"a window titled "_s + part, [&] {
    if (!programRuns()) stop(u"the program ended before the window "_s + part);
    return screen_->titleInFront().contains(part);
  });
}

void Stage::callerUnitSends(const QByteArray& bytes) {
  if (::write(unit_, bytes.constData(), size_t(bytes.size())) != bytes.size())
    stop(u"the line takes no bytes"_s);
  await(u"the program reading the line"_s, [this] {
    int unread = 0;
    return ::ioctl(unitFarEnd_, FIONREAD, &unread) == 0 && unread == 0;
  });
  awaitHandled();
}

QStringList Stage::query(const QString& file, const QString& statement) const {
  return run(options_.programs + u"/jetsql"_s, {u"C:\\RWGas\\Dbs\\"_s + file, statement})
      .split(u'\n', Qt::SkipEmptyParts);
}

void Stage::awaitRow(const QString& file, const QString& statement, const QString& line) {
  QString last;
  QElapsedTimer clock;
  clock.start();
  while ((last = query(file, statement).value(0)) != line)
    if (clock.elapsed() > patienceMilliseconds)
      stop(statement + u" awaited ["_s + line + u"], last ["_s + last + u']');
}

void Stage::awaitFile(const QString& path) {
  await(path, [&] { return QFileInfo::exists(path); });
}

void Stage::picture(const QString& name) {
  if (options_.pictures.isEmpty()) return;
  awaitHandled();  // painted and sent to the display
  takePicture(name);
}

QString Stage::takePicture(const QString& name) const {
  const QString folder = options_.pictures.isEmpty() ? QDir::temp().filePath(u"haeon"_s) : options_.pictures;
  QDir().mkpath(folder);
  const QString file = QDir(folder).filePath(name + u".png"_s);
  QProcess import;
  import.setProcessEnvironment(environment_);
  import.start(u"import"_s, {u"-window"_s, u"root"_s, file});
  import.waitForFinished(patienceMilliseconds);
  return file;
}

}  // namespace samples
