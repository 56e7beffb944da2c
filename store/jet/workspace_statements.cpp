// How a workspace runs statements: prepared, in groups, and what a failure takes with it.
#include <QFileInfo>
#include <QScopeGuard>
#include <algorithm>

#include "store/jet/error_texts.h"
#include "store/jet/file_system.h"
#include "store/jet/handle_catalogue.h"
#include "store/jet/second_reading.h"
#include "store/jet/workspace_data.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

QString aboutOf(const Prepared& prepared) {
  if (!prepared.compiled.target.name.isEmpty()) return prepared.compiled.target.name;
  for (const ResultColumn& column : *prepared.columns)
    if (!column.table.isEmpty()) return column.table;
  return prepared.files.empty() ? QString() : QFileInfo(prepared.files.front()->path()).fileName();
}

}  // namespace

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
      dropKeptLocks();
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

void WorkspaceData::together(const std::function<void()>& work, const std::vector<FilePtr>& also) {
  // Each once: a long group asks for the same files again with every step.
  for (const FilePtr& file : also)
    if (std::ranges::find(groupFiles_, file) == groupFiles_.end()) groupFiles_.push_back(file);
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

/** What was written stands; but a disk or network that went silent behind that may have kept locks, which would lock
 *  others out. They go with the connection. */
void WorkspaceData::dropKeptLocks() {
  const auto kept = [&](const FilePtr& file) {
    return file->exclusiveHandles == 0 && connection_->isLocked(file->alias());
  };
  if (std::ranges::any_of(files_, kept)) disconnect();
}

void WorkspaceData::commitGroup() {
  if (!connection_ || !connection_->inTransaction()) return;
  try {
    connection_->exec("COMMIT");
    groupBegan_ = false;
    dropKeptLocks();
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
  if (found.number() == 3043 || found.number() == 3051) disconnect();
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

}  // namespace jet
