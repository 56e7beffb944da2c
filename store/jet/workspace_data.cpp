#include "store/jet/workspace_data.h"

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>
#include <algorithm>

#include "store/jet/error_texts.h"
#include "store/jet/handle_catalogue.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

constexpr size_t kAttachedAtMost = 11;  // the main file and SQLite's ten
const char* const kMainAlias = "main";

/** One path for one file, however it was written. */
QString samePath(const QString& path) {
  const QFileInfo info(path);
  const QString canonical = info.canonicalFilePath();
  return canonical.isEmpty() ? info.absoluteFilePath() : canonical;
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
  return samePath(options_.resolvePath ? options_.resolvePath(written) : written);
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
    beginStatement({file});
    file->refresh(*connection_);
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
    if (!QFileInfo::exists(linked)) continue;
    try {
      attach(linked);
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
    commitGroup();
    reconnect();
    file = attached(nativePath);
  }
  if (!file) file = std::make_shared<DataFile>(nativePath);
  ensureAttached(file);
  return file;
}

void WorkspaceData::ensureAttached(const FilePtr& file) {
  if (file->attached) return;
  if (attached(file->path())) fail(3420);
  const QFileInfo info(file->path());
  if (!info.exists()) fail(info.dir().exists() ? 3024 : 3044, file->path());
  if (!info.isFile()) fail(3044, file->path());
  commitGroup();
  if (!connection_) connect(file);
  if (file->attached) return;
  makeRoom();
  file->setAlias("f" + QByteArray::number(++aliases_));
  connection_->attach(file->path(), file->alias());
  try {
    file->load(*connection_);
    file->useRollbackJournal(*connection_);
    connection_->exec("PRAGMA " + file->alias() + ".cache_size = -16000");
  } catch (const Error&) {
    connection_->detach(file->alias());
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
    candidates.push_back(std::make_shared<DataFile>(native(options_.mainFile)));
  candidates.push_back(file);
  for (const FilePtr& candidate : candidates) {
    if (candidate != file && !QFileInfo(candidate->path()).isFile()) continue;
    try {
      connection_ = std::make_unique<Connection>(candidate->path(), options_.busyMilliseconds);
      candidate->setAlias(kMainAlias);
      candidate->load(*connection_);
      candidate->useRollbackJournal(*connection_);
      candidate->attached = true;
      files_ = {candidate};
      return;
    } catch (const Error&) {
      connection_.reset();
      if (candidate == file) throw;  // a broken main file does not keep the others from opening
    }
  }
}

void WorkspaceData::disconnect() {
  prepared_.clear();
  for (const FilePtr& file : files_) file->attached = false;
  files_.clear();
  connection_.reset();
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
      if (file->exclusiveHandles > 0) lockExclusively(*file);
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

// In this mode SQLite keeps whatever lock it has had; a write without a change takes the highest one.
void WorkspaceData::lockExclusively(DataFile& file) {
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
}

// ---- statements

Prepared& WorkspaceData::prepare(const FilePtr& file, QStringView shape, QStringView sql, Keys keys) {
  ensureAttached(file);
  const StatementCache::Key key{file->alias(), keys, shape};
  if (Prepared* const known = file->outdated ? nullptr : prepared_.find(key)) return *known;
  return prepared_.keep(key, compiled(file, sql, keys));
}

Prepared WorkspaceData::compiled(const FilePtr& file, QStringView sql, Keys keys) {
  beginStatement({file});
  file->refresh(*connection_);
  HandleCatalogue catalogue(*this, file);
  Prepared made;
  made.compiled = compile(sql.toString(), catalogue, keys);
  made.columns = std::make_shared<const std::vector<ResultColumn>>(std::move(made.compiled.columns));
  made.files = catalogue.takeFiles();
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
    beginStatement(prepared.files);
    work(*connection_);
  } catch (const Error& error) {
    afterFailure(error);
    throw;
  }
}

/** SQLite takes the main file before all others, but only where the statement reads it. */
void WorkspaceData::readBehindMainFile(const std::function<void(Connection&)>& work) {
  connection_->exec("BEGIN");
  try {
    connection_->exec("SELECT 1 FROM main.jet_links LIMIT 1");
    work(*connection_);
    connection_->exec("COMMIT");
  } catch (const Error& error) {
    connection_->tryExec("ROLLBACK");
    afterFailure(error);
    throw;
  }
}

void WorkspaceData::runOn(const FilePtr& file, const std::function<void(Connection&)>& work) {
  try {
    ensureAttached(file);
    beginStatement({file});
    work(*connection_);
  } catch (const Error& error) {
    afterFailure(error);
    throw;
  }
}

void WorkspaceData::define(const FilePtr& file, const std::function<void(Connection&)>& work) {
  runOn(file, [&](Connection& connection) {
    prepared_.clear();
    file->refresh(connection);
    work(connection);
  });
  tidy();  // a link that went may have been a file's last reason to stay
}

// ---- groups

void WorkspaceData::together(const std::function<void()>& work) {
  ++groupDepth_;
  try {
    work();
  } catch (...) {
    // No undo: what ran before the failure stays. When even that cannot be kept, the first failure is what counts.
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
  commitGroup();
  if (untidy_) tidy();
  if (undoneBy) throw *undoneBy;
}

/** A full disk or a failing one makes SQLite undo the whole transaction, and with it the group's earlier statements.
 *  What the work would still add must not stand alone: every further statement of the group fails in the same way, and
 *  so does the group, although the work may have told the failure in a box and gone on. */
std::optional<Error> WorkspaceData::groupFailure() const {
  if (!groupBegan_ || (connection_ && connection_->inTransaction())) return {};
  return undoneBy_ ? undoneBy_ : errorOf(3043);
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
  } catch (const Error& error) {
    connection_->tryExec("ROLLBACK");
    afterFailure(error);
    throw;
  }
}

/** Some failures (full disk, damaged file) undo the whole transaction; what we know of the files is then old. */
void WorkspaceData::afterFailure(const Error& error) {
  if (!connection_ || connection_->inTransaction()) return;
  if (groupBegan_ && !undoneBy_) undoneBy_ = error;
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
