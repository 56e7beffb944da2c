#include "samples/stage.h"

#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <functional>
#include <stdexcept>

namespace samples {
namespace {

constexpr int patienceMilliseconds = 30000;

[[noreturn]] void giveUp(const QString& awaited) {
  throw std::runtime_error(awaited.toStdString());
}

void await(const QString& what, const std::function<bool()>& come) {
  QElapsedTimer clock;
  clock.start();
  while (!come()) {
    if (clock.elapsed() > patienceMilliseconds) giveUp(QStringLiteral("awaited in vain: ") + what);
    QThread::msleep(40);
  }
}

}  // namespace

Stage::Stage(Options options)
    : options_(std::move(options)), environment_(QProcessEnvironment::systemEnvironment()) {
  display_ = std::make_unique<QProcess>();
  display_->start(
      QStringLiteral("Xvfb"),
      {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
       options_.size + QStringLiteral("x24"), QStringLiteral("-nolisten"), QStringLiteral("tcp")});
  if (!display_->waitForReadyRead(patienceMilliseconds)) giveUp(QStringLiteral("no display"));
  environment_.insert(QStringLiteral("DISPLAY"),
                      u':' + QString::fromLatin1(display_->readAllStandardOutput()).trimmed());

  struct termios raw {};
  cfmakeraw(&raw);
  char name[64];
  if (openpty(&unit_, &unitFarEnd_, name, &raw, nullptr) != 0) giveUp(QStringLiteral("no pseudo-terminal"));
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
  if (!manager_->waitForStarted()) giveUp(QStringLiteral("no window manager"));
}

Stage::~Stage() {
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
  if (!program_->waitForStarted()) giveUp(QStringLiteral("the program does not start"));
}

bool Stage::programRuns() const {
  program_->waitForFinished(0);
  return program_->state() == QProcess::Running;
}

int Stage::awaitEnd() {
  if (programRuns() && !program_->waitForFinished(patienceMilliseconds))
    giveUp(QStringLiteral("the program does not end"));
  return program_->exitStatus() == QProcess::NormalExit ? program_->exitCode() : -1;
}

QString Stage::run(const QString& program, const QStringList& arguments) const {
  QProcess process;
  process.setProcessEnvironment(environment_);
  process.start(program, arguments);
  if (!process.waitForFinished(patienceMilliseconds)) giveUp(program + QStringLiteral(" does not answer"));
  return QString::fromUtf8(process.readAllStandardOutput());
}

void Stage::keys(const QStringList& names) {
  for (const QString& name : names) {
    if (!programRuns()) giveUp(QStringLiteral("the program is gone before key ") + name);
    run(QStringLiteral("xdotool"), {QStringLiteral("key"), QStringLiteral("--clearmodifiers"), name});
    awaitRest();
  }
}

void Stage::awaitRest() const {
  qint64 lastTicks = -1;
  int calm = 0;
  await(QStringLiteral("the program at rest"), [&] {
    if (!programRuns()) return true;
    // A key goes through the display and the window manager: none of the three may be at work.
    qint64 ticks = 0;
    bool sleeping = true;
    for (const QProcess* process : {display_.get(), manager_.get(), program_.get()}) {
      QFile stat(QStringLiteral("/proc/%1/stat").arg(process->processId()));
      if (!stat.open(QIODevice::ReadOnly)) continue;
      const QList<QByteArray> fields = stat.readAll().split(')').last().trimmed().split(' ');
      ticks += fields.value(11).toLongLong() + fields.value(12).toLongLong();
      sleeping = sleeping && fields.value(0) == "S";
    }
    calm = sleeping && ticks == lastTicks ? calm + 1 : 0;
    lastTicks = ticks;
    return calm >= 4;
  });
}

void Stage::type(const QString& digitsAndLetters) {
  run(QStringLiteral("xdotool"),
      {QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("30"), digitsAndLetters});
  awaitRest();
}

QString Stage::windowInFront() const {
  return run(QStringLiteral("xdotool"), {QStringLiteral("getactivewindow"), QStringLiteral("getwindowname")})
      .trimmed();
}

void Stage::awaitWindow(const QString& part) {
  await(QStringLiteral("a window titled ") + part, [&] {
    if (!programRuns()) giveUp(QStringLiteral("the program ended before the window ") + part);
    return windowInFront().contains(part);
  });
}

void Stage::callerUnitSends(const QByteArray& bytes) {
  if (::write(unit_, bytes.constData(), size_t(bytes.size())) != bytes.size())
    giveUp(QStringLiteral("the line takes no bytes"));
  QThread::msleep(300);  // 1200 baud are slow
  awaitRest();
}

QStringList Stage::query(const QString& file, const QString& statement) const {
  return run(options_.programs + QStringLiteral("/jetsql"),
             {QStringLiteral("C:\\RWGas\\Dbs\\") + file, statement})
      .split(u'\n', Qt::SkipEmptyParts);
}

void Stage::awaitRow(const QString& file, const QString& statement, const QString& line) {
  QString last;
  try {
    await({}, [&] { return (last = query(file, statement).value(0)) == line; });
  } catch (const std::runtime_error&) {
    giveUp(statement + QStringLiteral(" awaited [") + line + QStringLiteral("], last [") + last + u']');
  }
}

void Stage::picture(const QString& name) {
  if (options_.pictures.isEmpty()) return;
  QDir().mkpath(options_.pictures);
  QThread::msleep(250);
  run(QStringLiteral("import"), {QStringLiteral("-window"), QStringLiteral("root"),
                                 options_.pictures + u'/' + name + QStringLiteral(".png")});
}

}  // namespace samples
