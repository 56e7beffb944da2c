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

namespace samples {
namespace {

constexpr int patienceMilliseconds = 30000;

}  // namespace

Stage::Stage(Options options)
    : options_(std::move(options)), environment_(QProcessEnvironment::systemEnvironment()) {
  display_ = std::make_unique<QProcess>();
  display_->start(
      QStringLiteral("Xvfb"),
      {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
       options_.size + QStringLiteral("x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp")});
  if (!display_->waitForReadyRead(patienceMilliseconds)) stop(QStringLiteral("no display"));
  environment_.insert(QStringLiteral("DISPLAY"),
                      u':' + QString::fromLatin1(display_->readAllStandardOutput()).trimmed());

  struct termios raw {};
  cfmakeraw(&raw);
  char name[64];
  if (openpty(&unit_, &unitFarEnd_, name, &raw, nullptr) != 0) stop(QStringLiteral("no pseudo-terminal"));
  environment_.insert(QStringLiteral("HAEON_COM1"), QString::fromLatin1(name));
  environment_.insert(QStringLiteral("HAEON_PC"), options_.pcRoot);
  environment_.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
  environment_.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::number(options_.scale));
  if (!options_.pdf.isEmpty()) environment_.insert(QStringLiteral("HAEON_PDF"), options_.pdf);
  if (!options_.clock.isEmpty()) environment_.insert(QStringLiteral("HAEON_CLOCK"), options_.clock);

  manager_ = std::make_unique<QProcess>();
  manager_->setProcessEnvironment(environment_);
  manager_->setStandardErrorFile(QProcess::nullDevice());
  manager_->start(QStringLiteral("openbox"), QStringList{});
  screen_ = std::make_unique<Display>(environment_.value(QStringLiteral("DISPLAY")));
  await(QStringLiteral("a window manager"), [this] { return screen_->isManaged(); });
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
  program_->start(options_.programs + QStringLiteral("/haeon"), QStringList{});
  if (!program_->waitForStarted()) stop(QStringLiteral("the program does not start"));
}

bool Stage::programRuns() const {
  program_->waitForFinished(0);
  return goesOn_ || program_->state() == QProcess::Running;
}

int Stage::awaitEnd() {
  if (programRuns() && !program_->waitForFinished(patienceMilliseconds))
    stop(QStringLiteral("the program does not end"));
  return program_->exitStatus() == QProcess::NormalExit ? program_->exitCode() : -1;
}

QString Stage::run(const QString& program, const QStringList& arguments) const {
  QProcess process;
  process.setProcessEnvironment(environment_);
  process.start(program, arguments);
  if (!process.waitForFinished(patienceMilliseconds)) stop(program + QStringLiteral(" does not answer"));
  return QString::fromUtf8(process.readAllStandardOutput());
}

void Stage::stop(const QString& wrong) const {
  QString told = wrong;
  if (screen_) {
    const QString picture = takePicture(QStringLiteral("stopped-here"));
    told += QStringLiteral("; in front [") + screen_->titleInFront() + QStringLiteral("], on the screen [") +
            screen_->titles().join(QStringLiteral("] [")) + QStringLiteral("], picture ") + picture;
  }
  if (program_ && !programRuns()) told += QStringLiteral("; the program has ended");
  throw std::runtime_error(told.toStdString());
}

void Stage::await(const QString& what, const std::function<bool()>& come) const {
  QElapsedTimer clock;
  clock.start();
  while (!come()) {
    if (clock.elapsed() > patienceMilliseconds) stop(QStringLiteral("awaited in vain: ") + what);
    QThread::msleep(5);
  }
}

void Stage::keys(const QStringList& names) {
  for (const QString& name : names) {
    if (!programRuns()) stop(QStringLiteral("the program is gone before key ") + name);
    run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("--clearmodifiers"), name});
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
    await(QStringLiteral("an answer from the program"), [&] {
      if (!programRuns()) return true;
      // Asked again where the asked window was closed meanwhile; between two windows there is none to ask.
      if ((!asked.isValid() || asked.hasExpired(250)) && screen_->ping(token)) asked.start();
      return screen_->answered(token);
    });
  }
}

void Stage::type(const QString& digitsAndLetters) {
  run(QStringLiteral("xdotool"),
      {QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("10"), digitsAndLetters});
  awaitHandled();
}

void Stage::awaitWindow(const QString& part) {
  await(QStringLiteral("a window titled ") + part, [&] {
    if (!programRuns()) stop(QStringLiteral("the program ended before the window ") + part);
    return screen_->titleInFront().contains(part);
  });
}

void Stage::callerUnitSends(const QByteArray& bytes) {
  if (::write(unit_, bytes.constData(), size_t(bytes.size())) != bytes.size())
    stop(QStringLiteral("the line takes no bytes"));
  await(QStringLiteral("the program reading the line"), [this] {
    int unread = 0;
    return ::ioctl(unitFarEnd_, FIONREAD, &unread) == 0 && unread == 0;
  });
  awaitHandled();
}

QStringList Stage::query(const QString& file, const QString& statement) const {
  return run(options_.programs + QStringLiteral("/jetsql"),
             {QStringLiteral("C:\\RWGas\\Dbs\\") + file, statement})
      .split(u'\n', Qt::SkipEmptyParts);
}

void Stage::awaitRow(const QString& file, const QString& statement, const QString& line) {
  QString last;
  QElapsedTimer clock;
  clock.start();
  while ((last = query(file, statement).value(0)) != line)
    if (clock.elapsed() > patienceMilliseconds)
      stop(statement + QStringLiteral(" awaited [") + line + QStringLiteral("], last [") + last + u']');
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
  const QString folder =
      options_.pictures.isEmpty() ? QDir::temp().filePath(QStringLiteral("haeon")) : options_.pictures;
  QDir().mkpath(folder);
  const QString file = QDir(folder).filePath(name + QStringLiteral(".png"));
  QProcess import;
  import.setProcessEnvironment(environment_);
  import.start(QStringLiteral("import"), {QStringLiteral("-window"), QStringLiteral("root"), file});
  import.waitForFinished(patienceMilliseconds);
  return file;
}

}  // namespace samples
