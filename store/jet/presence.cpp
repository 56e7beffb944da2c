#include "store/jet/presence.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QThread>
#include <cerrno>

#include "store/jet/error_texts.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

constexpr int kLook = 8;  // milliseconds between two looks at a lock

/** The lock belongs to the open file and not to the process: two workspaces of one program see each other, and closing
 *  the file gives it back whatever the disk says. */
bool lock(int file, short kind) {
  struct flock whole {};
  whole.l_type = kind;
  whole.l_whence = SEEK_SET;
  return ::fcntl(file, F_OFD_SETLK, &whole) == 0;
}

/** Somebody took the file away when he left, just before it was locked here. */
bool isGone(int file, const char* path) {
  struct stat here {
  }, there{};
  if (::fstat(file, &here) != 0) return false;
  if (::stat(path, &there) != 0) return errno == ENOENT;
  return here.st_dev != there.st_dev || here.st_ino != there.st_ino;
}

}  // namespace

Presence::Presence(const QString& dataFile, int milliseconds) {
  const QFileInfo info(dataFile);
  path_ = (info.path() + u'/' + info.completeBaseName() + u".ldb"_s).toUtf8();
  QElapsedTimer since;
  since.start();
  for (;;) {
    const Try found = tryShared();
    if (found == Try::Impossible) {
      leave();
      return;
    }
    if (found == Try::Held && !isGone(file_, path_.constData())) return;
    leave();
    if (found == Try::Held) continue;
    if (since.hasExpired(milliseconds)) fail(3356, dataFile);
    QThread::msleep(kLook);
  }
}

Presence::Try Presence::tryShared() {
  constexpr mode_t everybody = 0666;
  // A pipe in its place would be waited for.
  file_ = ::open(path_.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, everybody);
  if (file_ < 0)
    file_ = ::open(path_.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);  // another user's: seen at least
  if (file_ < 0) return Try::Impossible;
  if (lock(file_, F_RDLCK)) return Try::Held;
  return errno == EAGAIN || errno == EACCES ? Try::Busy : Try::Impossible;
}

void Presence::leave() {
  if (file_ >= 0) ::close(file_);
  file_ = -1;
}

bool Presence::takeAlone() {
  return isHeld() && lock(file_, F_WRLCK);
}

void Presence::shareAgain() {
  if (isHeld()) lock(file_, F_RDLCK);
}

Presence::~Presence() {
  // Not one of the same name in a folder that has taken this one's place meanwhile.
  if (takeAlone() && !isGone(file_, path_.constData())) ::unlink(path_.constData());
  leave();
}

AloneWith::AloneWith(const QString& dataFile, int milliseconds) {
  QElapsedTimer since;
  since.start();
  for (;;) {
    presence_.emplace(dataFile, milliseconds);
    if (!presence_->isHeld() || presence_->takeAlone()) return;
    presence_.reset();  // two who came at once would keep each other from it as long as both stay
    if (since.hasExpired(milliseconds)) fail(3045, dataFile);
    QThread::msleep(1 + QRandomGenerator::global()->bounded(kLook));
  }
}

}  // namespace jet
