#include "store/jet/workspace_data.h"

#include <QFileInfo>
#include <QScopeGuard>
#include <algorithm>

#include "store/jet/error_texts.h"
#include "store/jet/file_system.h"
#include "store/jet/handle_catalogue.h"
#include "store/jet/second_reading.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

constexpr size_t kAttachedAtMost = 11;  // the main file and SQLite's ten
const char* const kMainAlias = "main";

}  // namespace

// ---- files

QString WorkspaceData::native(const QString& written) const {
  if (written.trimmed().isEmpty()) fail(3044, written);
  return onePath(options_.resolvePath ? options_.resolvePath(written) : written);
}

FilePtr WorkspaceData::attached(const QString& nativePath) const {
  const auto at =
      std::find_if(files_.begin(), files_.end(), [&](const FilePtr& f) { return f->path() == nativePath; });
  return at == files_.end() ? nullptr : *at;
}

FilePtr WorkspaceData::open(const QString& written, bool exclusive) {
  const QString path = native(written);
  FilePtr file;
  try {
    file = attach(path);
    ++file->handles;
    twice(path, [&] {
      ensureAttached(file);
      beginStatement({file});
      file->refresh(*connection_);
    });
    if (exclusive && file->exclusiveHandles == 0) lockExclusively(*file);
    file->exclusiveHandles += int(exclusive);
  } catch (const Error& error) {
    if (file) --file->handles;
    // As behind a statement: what a silent disk or network left in the connection, an open transaction too, goes with it.
    if (error.number() == 3043 && groupDepth_ == 0) disconnect();
    tidy();
    if (error.number() == 3261) fail(exclusive ? 3045 : 3356, written);
    throw;
  }
  // What the file's links name is attached at once: within a group it would be too late. A link whose file is missing
  // or does not answer fails when it is used.
  for (const QString& linked : linkedPaths()) {
    try {
      if (isThere(linked)) attach(linked);
    } catch (const Error&) {
    }
  }
  return file;
}

void WorkspaceData::create(const QString& written) {
  const QString path = native(written);
  DataFile::create(path);
}

FilePtr WorkspaceData::fileAt(const QString& written) {
  FilePtr file = attach(native(written));
  file->lastUse = ++clock_;
  beginStatement({file});
  file->refresh(*connection_);
  return file;
}

FilePtr WorkspaceData::attach(const QString& nativePath) {
  FilePtr file = attached(nativePath);
  if (file && connection_->hasMoved(file->alias())) {  // replaced on the disk: everything is read anew
    lookAt(nativePath);                                // silence is no answer
    if (groupDepth_ > 0 && connection_->inTransaction()) failed(errorOf(3043, nativePath), {});
    reconnect();
    file = attached(nativePath);
  }
  if (!file) file = fileFor(nativePath);
  ensureAttached(file);
  return file;
}

/** The one of a handle, also while it is not attached, or a new one. */
FilePtr WorkspaceData::fileFor(const QString& nativePath) {
  std::erase_if(known_, [](const auto& file) { return file.expired(); });
  for (const auto& known : known_)
    if (FilePtr file = known.lock(); file && file->path() == nativePath) return file;
  FilePtr made = std::make_shared<DataFile>(nativePath);
  known_.push_back(made);
  return made;
}

void WorkspaceData::ensureAttached(const FilePtr& file) {
  if (file->attached) return;
  if (attached(file->path())) fail(3420);
  twice(file->path(), [&] { requireFile(file->path()); });
  commitGroup();
  try {
    twice(file->path(), [&] { tryAttach(file); });
  } catch (const Error& error) {
    damageFound_ = isDamage(error.number());
    if (damageFound_ && !answers(file->path())) fail(3043, file->path());
    throw;
  }
  if (file->exclusiveHandles > 0) lockExclusively(*file);  // it was let go with a broken connection
}

void WorkspaceData::tryAttach(const FilePtr& file) {
  if (!connection_) connect(file);
  if (file->attached) return;
  makeRoom();
  file->arrive(options_.busyMilliseconds);
  file->setAlias("f" + QByteArray::number(++aliases_));
  try {
    connection_->attach(file->path(), file->alias());
    file->load(*connection_);
    file->useRollbackJournal(*connection_);
    connection_->exec("PRAGMA " + file->alias() + ".cache_size = -16000");
  } catch (const Error&) {
    connection_->tryExec("DETACH " + file->alias());
    file->leave();
    throw;
  }
  file->attached = true;
  if (groupDepth_ > 0) untidy_ = true;
  files_.push_back(file);
  if (isMainFile(file)) {  // it was made only now
    ++file->handles;       // so that it is kept, whoever asks for it
    reconnect();
    --file->handles;
  }
}

bool WorkspaceData::isMainFile(const FilePtr& file) const {
  return !options_.mainFile.isEmpty() && file->path() == native(options_.mainFile);
}

void WorkspaceData::connect(const FilePtr& file) {
  std::vector<FilePtr> candidates;
  if (!options_.mainFile.isEmpty() && !isMainFile(file))
    candidates.push_back(fileFor(native(options_.mainFile)));
  candidates.push_back(file);
  const auto tryConnect = [&](const FilePtr& candidate) {
    candidate->arrive(options_.busyMilliseconds);
    connection_ = std::make_unique<Connection>(candidate->path(), options_.busyMilliseconds);
    candidate->setAlias(kMainAlias);
    candidate->load(*connection_);
    candidate->useRollbackJournal(*connection_);
    candidate->attached = true;
    files_ = {candidate};
  };
  for (const FilePtr& candidate : candidates) {
    if (candidate != file && !isThere(candidate->path())) continue;
    try {
      return twice(candidate->path(), [&] { tryConnect(candidate); });
    } catch (const Error&) {
      connection_.reset();
      candidate->leave();
      if (candidate == file) throw;  // a broken main file does not keep the others from opening
    }
  }
}

void WorkspaceData::disconnect() {
  prepared_.clear();
  connection_.reset();
  for (const FilePtr& file : files_) {
    file->attached = false;
    file->leave();
  }
  files_.clear();
}

/** The same files on a new connection. One that cannot be had any more fails when its handle is used. */
void WorkspaceData::reconnect() {
  std::vector<FilePtr> files = files_;
  disconnect();
  std::erase_if(files, [](const FilePtr& file) { return file->handles == 0; });
  std::stable_partition(files.begin(), files.end(), [&](const FilePtr& file) { return isMainFile(file); });
  for (const FilePtr& file : files) {
    try {
      ensureAttached(file);
    } catch (const Error&) {
    }
  }
}

void WorkspaceData::makeRoom() {
  if (files_.size() < kAttachedAtMost) return;
  // The longest unused goes. Who keeps files walks over them again and again: there it would be the one that is wanted
  // next, and the last used goes.
  const auto goesBefore = [this](const FilePtr& one, const FilePtr& other) {
    return keeping_ > 0 ? one->lastUse > other->lastUse : one->lastUse < other->lastUse;
  };
  FilePtr first;
  for (const FilePtr& file : files_)
    if (file->handles == 0 && file != files_.front() && (!first || goesBefore(file, first))) first = file;
  if (!first) fail(3048);
  letGo(first);
}

void WorkspaceData::letGo(const FilePtr& file) {
  prepared_.forget(file);
  try {
    connection_->detach(file->alias());
  } catch (const Error&) {
    if (groupDepth_ > 0) throw;
    return reconnect();  // a failure of the disk left it busy; it goes with the connection
  }
  file->attached = false;
  file->leave();
  std::erase(files_, file);
}

void WorkspaceData::release(const FilePtr& file, bool exclusive) {
  --file->handles;
  file->lastUse = ++clock_;
  if (exclusive && --file->exclusiveHandles == 0 && file->attached) unlock(*file);
  if (keeping_ > 0 && connection_)
    connection_->forgetPages();  // the file stays, what was read of it need not
  tidy();
}

QStringList WorkspaceData::linkedPaths() const {
  QStringList written, paths;
  for (const FilePtr& file : files_) {
    if (file->handles == 0) continue;
    for (const TableDef& table : file->tables())
      if (table.isLink() && !written.contains(table.connect)) written << table.connect;
  }
  for (const QString& connect : written) {
    const QString path = pathOfConnect(connect);
    if (path.trimmed().isEmpty()) continue;
    try {  // what does not answer fails when the link is used, and nothing else fails for it
      paths << native(path);
    } catch (const Error&) {
    }
  }
  return paths;
}

void WorkspaceData::keepingFiles(const std::function<void()>& work) {
  ++keeping_;
  const auto atEnd = qScopeGuard([this] {
    --keeping_;
    try {
      tidy();
    } catch (const Error&) {  // a file that cannot be let go now is let go with the next one
    }
  });
  work();
}

/** Lets go what no handle and no link of an open file needs. Within a group, or while files are kept, that waits for
 *  the end. */
void WorkspaceData::tidy() {
  untidy_ = true;
  if (!connection_ || groupDepth_ > 0 || keeping_ > 0) return;
  untidy_ = false;
  if (std::none_of(files_.begin(), files_.end(), [](const FilePtr& file) { return file->handles > 0; }))
    return disconnect();
  if (files_.front()->handles == 0 && !isMainFile(files_.front())) reconnect();
  const QStringList linked = linkedPaths();
  const std::vector<FilePtr> others(files_.begin() + 1, files_.end());
  for (const FilePtr& file : others)
    if (file->attached && file->handles == 0 && !linked.contains(file->path())) letGo(file);
}

/** Our own programs are kept out by the presence lock, other SQLite tools by SQLite's: in this mode it keeps whatever
 *  lock it has had, and a write without a change takes the highest one. */
void WorkspaceData::lockExclusively(DataFile& file) {
  if (!file.takeAlone()) fail(3045, file.path());
  try {
    connection_->exec("PRAGMA " + file.alias() + ".locking_mode = EXCLUSIVE");
    connection_->exec("UPDATE " + file.alias() + ".jet_links SET name = name WHERE 0");
  } catch (const Error&) {
    unlock(file);
    throw;
  }
}

void WorkspaceData::unlock(DataFile& file) {
  connection_->tryExec("PRAGMA " + file.alias() + ".locking_mode = NORMAL");
  connection_->tryExec("SELECT 1 FROM " + file.alias() + ".jet_links");
  file.shareAgain();
}

DatabaseData::~DatabaseData() {
  // Nothing may leave a destructor; a file that cannot be let go now is let go with the next one.
  try {
    workspace_->release(file_, exclusive_);
  } catch (const Error&) {
  }
}

}  // namespace jet
