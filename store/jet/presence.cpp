#include "store/jet/presence.h"

#include <sqlite3.h>

#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>

#include "store/jet/error_texts.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

constexpr int kLook = 8;  // milliseconds between two looks at a lock

QByteArray besideOf(const QString& dataFile) {
  const QFileInfo info(dataFile);
  return (info.path() + u'/' + info.completeBaseName() + u".ldb"_s).toUtf8();
}

bool hasMoved(sqlite3_file* file) {
  int moved = 0;
  file->pMethods->xFileControl(file, SQLITE_FCNTL_HAS_MOVED, &moved);
  return moved != 0;
}

}  // namespace

void Presence::Closer::operator()(sqlite3_file* file) const {
  if (file->pMethods) file->pMethods->xClose(file);
  delete[] reinterpret_cast<char*>(file);
}

Presence::Presence(QString dataFile, int milliseconds)
    : dataFile_(std::move(dataFile)),
      path_(sqlite3_create_filename(besideOf(dataFile_).constData(), "", "", 0, nullptr),
            [](const char* name) { sqlite3_free_filename(name); }) {
  QElapsedTimer since;
  since.start();
  for (;;) {
    const int code = tryShared();
    if (code == SQLITE_OK) {
      if (!hasMoved(file_.get())) return;
      file_.reset();  // somebody took it away when he left, just before it was locked
      continue;
    }
    file_.reset();
    if ((code & 0xFF) != SQLITE_BUSY) return;
    if (since.hasExpired(milliseconds)) fail(3356, dataFile_);
    sqlite3_sleep(kLook);
  }
}

int Presence::tryShared() {
  sqlite3_vfs* const vfs = sqlite3_vfs_find(nullptr);
  const QFileInfo info(QString::fromUtf8(path_.get()));
  if (info.exists() && !info.isFile()) return SQLITE_CANTOPEN;
  file_.reset(reinterpret_cast<sqlite3_file*>(new char[size_t(vfs->szOsFile)]()));
  int out = 0;
  const int code = vfs->xOpen(vfs, path_.get(), file_.get(),
                              SQLITE_OPEN_MAIN_DB | SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, &out);
  return code == SQLITE_OK ? file_->pMethods->xLock(file_.get(), SQLITE_LOCK_SHARED) : code;
}

bool Presence::takeAlone() {
  if (!file_) return false;
  if (file_->pMethods->xLock(file_.get(), SQLITE_LOCK_EXCLUSIVE) == SQLITE_OK) return true;
  shareAgain();  // a vain try keeps newcomers out until it is taken back
  return false;
}

void Presence::shareAgain() {
  if (file_) file_->pMethods->xUnlock(file_.get(), SQLITE_LOCK_SHARED);
}

Presence::~Presence() {
  if (!file_) return;
  if (takeAlone()) {
    sqlite3_vfs* const vfs = sqlite3_vfs_find(nullptr);
    vfs->xDelete(vfs, path_.get(), 0);
  }
  file_->pMethods->xUnlock(file_.get(), SQLITE_LOCK_NONE);
}

AloneWith::AloneWith(const QString& dataFile, int milliseconds) {
  QElapsedTimer since;
  since.start();
  for (;;) {
    presence_.emplace(dataFile, milliseconds);
    if (!presence_->isHeld() || presence_->takeAlone()) return;
    presence_.reset();  // two who came at once would keep each other from it as long as both stay
    if (since.hasExpired(milliseconds)) fail(3045, dataFile);
    sqlite3_sleep(1 + int(QRandomGenerator::global()->bounded(kLook)));
  }
}

}  // namespace jet
