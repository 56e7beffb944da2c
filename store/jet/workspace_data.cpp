#include "store/jet/workspace_data.h"

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>
#include <algorithm>

#include "store/jet/error_texts.h"
#include "store/jet/file_system.h"
#include "store/jet/handle_catalogue.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

constexpr size_t kAttachedAtMost = 11;  // the main file and SQLite's ten
const char* const kMainAlias = "main";

bool isDamage(int number) {
  return number == 3049 || number == 3343;
}

/** Reading, a second time where a disk or a network may have failed once. */
template <typename Work>
void twice(const QString& about, const Work& work) {
  std::optional<Error> first;
  try {
    return work();
  } catch (const Error& error) {
    if (!isDamage(error.number()) && error.number() != 3043) throw;
    first = error;
  }
  try {
    work();
  } catch (const Error& second) {
    if (isDamage(second.number()) && !isDamage(first->number())) fail(3043, about);
    throw;
  }
}

QString aboutOf(const Prepared& prepared) {
  if (!prepared.compiled.target.name.isEmpty()) return prepared.compiled.target.name;
  for (const ResultColumn& column : *prepared.columns)
    if (!column.table.isEmpty()) return column.table;
  return prepared.files.empty() ? QString() : QFileInfo(prepared.files.front()->path()).fileName();
}

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
    tidy();
    if (error.number() == 3261) fail(exclusive ? 3045 : 3356, written);
    throw;
  }
  // What the file's links name is attached at once: within a group it would be too late. A link whose file is missing
  // fails when it is used.
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
    if (const FilePtr file = known.lock(); file && file->path() == nativePath) return file;
  const FilePtr made = std::make_shared<DataFile>(nativePath);
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

void WorkspaceData::letGo(FilePtr file) {
  prepared_.forget(file);
  connection_->detach(file->alias());
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
    if (!path.trimmed().isEmpty()) paths << native(path);
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
    if (file->handles == 0 && !linked.contains(file->path())) letGo(file);
}

/** Our own programs are kept out by the presence lock, other SQLite tools by SQLite's: in this mode it keeps whatever
 *  lock it has had, and a write without a change takes the highest one. */
void WorkspaceData::lockExclusively(DataFile& file) {
  if (!file.takeAlone()) fail(3045, file.path());
  connection_->exec("PRAGMA " + file.alias() + ".locking_mode = EXCLUSIVE");
  try {
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

// ---- statements

Prepared& WorkspaceData::prepare(const FilePtr& file, QStringView shape, QStringView sql, Keys keys) {
  ensureAttached(file);
  const StatementCache::Key key{file->alias(), keys, shape};
  if (Prepared* const known = file->outdated ? nullptr : prepared_.find(key)) return *known;
  return prepared_.keep(key, compiled(file, sql, keys));
}

/** What is read for it is read a second time before a failure counts. Whose damage it then is stands in no error. */
Prepared WorkspaceData::compiled(const FilePtr& file, QStringView sql, Keys keys) {
  damageFound_ = false;
  try {
    std::optional<Prepared> made;
    twice(file->path(), [&] { made = tryCompile(file, sql, keys); });
    return std::move(*made);
  } catch (const Error& error) {
    failed(error, damageFound_ ? std::vector<FilePtr>() : files_);
  }
}

Prepared WorkspaceData::tryCompile(const FilePtr& file, QStringView sql, Keys keys) {
  ensureAttached(file);
  beginStatement({file});
  file->refresh(*connection_);
  HandleCatalogue catalogue(*this, file);
  Prepared made;
  made.compiled = compile(sql.toString(), catalogue, keys);
  made.columns = std::make_shared<const std::vector<ResultColumn>>(std::move(made.compiled.columns));
  made.files = catalogue.takeFiles();
  made.file = file;
  made.about = aboutOf(made);
  if (!made.compiled.sql.isEmpty()) made.statement = SqliteStatement(*connection_, made.compiled.sql, true);
  return made;
}

/** A statement over several files is a group of its own. SQLite would take its files in their order and hold the first
 *  while it waits for the next, and a group whose commit wants the first back waits for it: both would stand until the
 *  time limit. With the main file first neither holds what the other waits for. */
void WorkspaceData::run(Prepared& prepared, const std::function<void(Connection&)>& work) {
  const bool alone = groupDepth_ == 0 && prepared.files.size() > 1;
  if (alone && prepared.compiled.kind != Compiled::Kind::Select)
    together([&] { runNow(prepared, work); });
  else if (alone && std::ranges::count(prepared.files, files_.front()) == 0)
    readBehindMainFile(work);
  else
    runNow(prepared, work);
}

void WorkspaceData::runNow(Prepared& prepared, const std::function<void(Connection&)>& work) {
  try {
    if (groupDepth_ > 0) {
      beginStatement({prepared.file});
      beginStatement(prepared.files);
      work(*connection_);
    } else if (prepared.compiled.kind == Compiled::Kind::Select) {
      twice(prepared.about, [&] { work(*connection_); });
    } else {
      work(*connection_);
    }
  } catch (const Error& error) {
    failed(error, prepared.files);
  }
}

/** SQLite takes the main file before all others, but only where the statement reads it. */
void WorkspaceData::readBehindMainFile(const std::function<void(Connection&)>& work) {
  const auto read = [&] {
    const auto atEnd = qScopeGuard([this] {
      if (connection_->inTransaction()) connection_->tryExec("ROLLBACK");
    });
    connection_->exec("BEGIN");
    connection_->exec("SELECT 1 FROM main.jet_links LIMIT 1");
    work(*connection_);
    connection_->exec("COMMIT");
  };
  try {
    twice({}, read);
  } catch (const Error& error) {
    failed(error, {});
  }
}

void WorkspaceData::runOn(const FilePtr& file, const std::function<void(Connection&)>& work) {
  try {
    ensureAttached(file);
    beginStatement({file});
    work(*connection_);
  } catch (const Error& error) {
    failed(error, {file});
  }
}

void WorkspaceData::refresh(const FilePtr& file) {
  if (groupDepth_ > 0) return runOn(file, [&](Connection& connection) { file->refresh(connection); });
  twice(file->path(), [&] {
    ensureAttached(file);
    file->refresh(*connection_);
  });
}

/** Always within a group: the catalogue is read under the lock under which it is written, or two PCs that define at
 *  once would each write the catalogue without what the other has added. */
void WorkspaceData::define(const FilePtr& file, const std::function<void(Connection&)>& work) {
  together([&] {
    runOn(file, [&](Connection& connection) {
      prepared_.clear();
      file->refresh(connection);
      work(connection);
    });
  });
  tidy();  // a link that went may have been a file's last reason to stay
}

// ---- groups

void WorkspaceData::together(const std::function<void()>& work, std::vector<FilePtr> also) {
  groupFiles_.insert(groupFiles_.end(), also.begin(), also.end());
  ++groupDepth_;
  try {
    work();
  } catch (...) {
    // No undo: what ran before a refused statement stays. When even that cannot be kept, or the store has failed and
    // nothing of it stands, the first failure is what counts.
    if (--groupDepth_ == 0) {
      try {
        endGroup();
      } catch (const Error&) {
      }
    }
    throw;
  }
  if (--groupDepth_ == 0) endGroup();
}

void WorkspaceData::endGroup() {
  const std::optional<Error> undoneBy = groupFailure();
  groupBegan_ = false;
  undoneBy_.reset();
  groupFiles_.clear();
  commitGroup();
  if (untidy_) tidy();
  if (undoneBy) throw *undoneBy;
}

/** A group that the store's failure has undone takes nothing more: what the work would still add must not stand alone.
 *  Every further statement fails in the same way, and so does the group, although the work may have told the failure in
 *  a box and gone on. */
std::optional<Error> WorkspaceData::groupFailure() const {
  if (undoneBy_) return undoneBy_;
  if (!groupBegan_ || (connection_ && connection_->inTransaction())) return {};
  return errorOf(3043);
}

/** Within a group every file that a statement touches, reading too, is reserved for writing first. Two PCs that had
 *  both read and then both wanted to write would stand in each other's way, and SQLite fails one of them at once
 *  without waiting. The main file goes first whatever is touched: two groups that took the same files in another
 *  order would wait for each other until one gives up. Other files that the group does not touch stay free. */
void WorkspaceData::beginStatement(const std::vector<FilePtr>& files) {
  if (groupDepth_ == 0) return;
  if (const auto failure = groupFailure()) throw *failure;
  if (!connection_->inTransaction()) {
    connection_->exec("BEGIN");
    groupBegan_ = true;
    for (const FilePtr& file : files_) file->reserved = false;
    reserve(*files_.front());
  }
  for (const FilePtr& file : groupFiles_)
    if (file->attached) reserve(*file);
  for (const FilePtr& file : files) reserve(*file);
}

void WorkspaceData::reserve(DataFile& file) {
  if (file.reserved || connection_->isReadOnly(file.alias())) return;
  connection_->exec("UPDATE " + file.alias() + ".jet_links SET name = name WHERE 0");
  file.reserved = true;
}

void WorkspaceData::commitGroup() {
  if (!connection_ || !connection_->inTransaction()) return;
  try {
    connection_->exec("COMMIT");
    groupBegan_ = false;
    // All stands; but a disk or network that went silent behind that may have kept locks, which would lock others out.
    const auto left = [&](const FilePtr& file) {
      return file->exclusiveHandles == 0 && connection_->isLocked(file->alias());
    };
    if (std::ranges::any_of(files_, left)) disconnect();
  } catch (const Error& error) {
    connection_->tryExec("ROLLBACK");
    failed(error, files_);
  }
}

void WorkspaceData::check(DataFile& file) {
  if (!answers(file.path())) fail(3043, file.path());
  connection_->forgetPages();
  file.load(*connection_);
  SqliteStatement whole(*connection_, "PRAGMA " + file.alias() + ".integrity_check(1)");
  if (whole.step(file.path()) && whole.text(0) != u"ok") fail(3049, file.path());
}

bool WorkspaceData::isSound(const FilePtr& file) {
  try {
    ensureAttached(file);
    twice(file->path(), [&] { check(*file); });
    return true;
  } catch (const Error& error) {
    if (isDamage(error.number())) return false;
    throw;
  }
}

/** A damage is told when a second reading finds it too; else the disk or the network has not answered. */
bool WorkspaceData::isDamaged(DataFile& file) {
  try {
    check(file);
    return false;
  } catch (const Error& error) {
    return isDamage(error.number());
  }
}

void WorkspaceData::failed(const Error& error, std::vector<FilePtr> files) {
  const bool told = undoneBy_.has_value();
  afterFailure(error);
  if (told || !connection_ || connection_->inTransaction()) throw error;
  Error found = error;
  const auto damaged = [&](const FilePtr& file) { return file->attached && isDamaged(*file); };
  if (isDamage(error.number()) && !files.empty() && std::ranges::none_of(files, damaged)) {
    found = errorOf(3043, QFileInfo(files.front()->path()).fileName());
    if (undoneBy_) undoneBy_ = found;
  }
  // Whatever SQLite could not give back to a silent disk or network, locks above all, goes with the connection. The next
  // statement makes a new one.
  if (found.number() == 3043) disconnect();
  throw found;
}

/** The store's failure takes the whole group back, which SQLite does by itself for some (a full disk) and not for
 *  others (a journal that cannot be opened). What we know of the files is then old. */
void WorkspaceData::afterFailure(const Error& error) {
  if (!connection_) return;
  if (groupDepth_ > 0 && isStoreFailure(error.number())) {
    if (connection_->inTransaction()) connection_->tryExec("ROLLBACK");
    if (!undoneBy_) undoneBy_ = error;
  }
  if (connection_->inTransaction()) return;
  prepared_.clear();
  for (const FilePtr& file : files_) file->outdated = true;
}

DatabaseData::~DatabaseData() {
  // Nothing may leave a destructor; a file that cannot be let go now is let go with the next one.
  try {
    workspace_->release(file_, exclusive_);
  } catch (const Error&) {
  }
}

}  // namespace jet
