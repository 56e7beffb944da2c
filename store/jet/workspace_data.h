#pragma once
// What stands behind a workspace: its one connection, the files attached to it, the prepared statements, the group.
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "store/jet/database.h"
#include "store/jet/statement_cache.h"

namespace jet {

/** The connection's main file is Options.mainFile where that exists, else the first file opened; every other file is
 *  attached under an alias that is never used twice. SQLite can neither attach nor detach within a transaction: a
 *  group that needs a further file is committed so far and goes on, and a file is let go when the group has ended. */
class WorkspaceData {
 public:
  explicit WorkspaceData(Workspace::Options options) : options_(std::move(options)) {}

  /** The PC's own path of a written one; 3044 for an empty one. */
  QString native(const QString& written) const;

  FilePtr open(const QString& written, bool exclusive);
  void create(const QString& written);
  void release(const FilePtr& file, bool exclusive);
  /** The file of a link or of [path].table, attached when needed. */
  FilePtr fileAt(const QString& written);

  Prepared& prepare(const FilePtr& file, QStringView shape, QStringView sql, Keys keys);
  /** Runs work with the statement's files locked as the group asks; work steps and resets. */
  void run(Prepared& prepared, const std::function<void(Connection&)>& work);
  /** A change of tables, fields, indexes or links of one file. */
  void define(const FilePtr& file, const std::function<void(Connection&)>& work);
  bool isSound(const FilePtr& file);
  /** The file's catalogue as it is; another PC may have changed it. */
  void refresh(const FilePtr& file);
  /** A statement of our own on one file, such as a row written back. */
  void runOn(const FilePtr& file, const std::function<void(Connection&)>& work);

  /** also: files that the group is sure of before its first write, besides those its statements name. */
  void together(const std::function<void()>& work, const std::vector<FilePtr>& also = {});
  void keepingFiles(const std::function<void()>& work);

 private:
  FilePtr attach(const QString& nativePath);
  FilePtr attached(const QString& nativePath) const;
  FilePtr fileFor(const QString& nativePath);
  void ensureAttached(const FilePtr& file);
  void tryAttach(const FilePtr& file);
  void connect(const FilePtr& file);
  void disconnect();
  void reconnect();
  bool isMainFile(const FilePtr& file) const;
  void makeRoom();
  void letGo(const FilePtr& file);
  void tidy();
  QStringList linkedPaths() const;
  void lockExclusively(DataFile& file);
  void unlock(DataFile& file);

  void runNow(Prepared& prepared, const std::function<void(Connection&)>& work);
  Prepared compiled(const FilePtr& file, QStringView sql, Keys keys);
  Prepared tryCompile(const FilePtr& file, QStringView sql, Keys keys);
  void readBehindMainFile(const std::function<void(Connection&)>& work);
  void beginStatement(const std::vector<FilePtr>& files);
  void reserve(DataFile& file);
  /** Reads all of it anew. */
  void check(DataFile& file);
  bool isDamaged(DataFile& file);
  void commitGroup();
  void dropKeptLocks();
  void endGroup();
  std::optional<Error> groupFailure() const;
  /** Throws the failure after what it takes with it. files: which may be damaged. */
  [[noreturn]] void failed(const Error& error, std::vector<FilePtr> files);
  void afterFailure(const Error& error);

  Workspace::Options options_;
  std::vector<FilePtr> files_;  ///< the main file first; they outlive the connection
  std::vector<std::weak_ptr<DataFile>> known_;
  std::unique_ptr<Connection> connection_;
  StatementCache prepared_;
  int aliases_ = 0;
  quint64 clock_ = 0;  ///< counts uses, so that the longest unused goes first
  int keeping_ = 0;    ///< depth of keepingFiles
  int groupDepth_ = 0;
  std::vector<FilePtr> groupFiles_;  ///< what the running groups asked for at their beginning
  bool groupBegan_ = false;   ///< a transaction was begun for the group and neither committed nor given up
  bool damageFound_ = false;  ///< a file that could not be attached has been read twice
  std::optional<Error> undoneBy_;  ///< the failure of the store for which it was undone
  bool untidy_ = false;            ///< a file may have become needless, and stays for now
};

/** An open handle's part of a file; the last copy lets the file go. */
class DatabaseData {
 public:
  DatabaseData(std::shared_ptr<WorkspaceData> workspace, FilePtr file, QString written, bool exclusive)
      : workspace_(std::move(workspace)),
        file_(std::move(file)),
        written_(std::move(written)),
        exclusive_(exclusive) {}
  ~DatabaseData();
  DatabaseData(const DatabaseData&) = delete;
  DatabaseData& operator=(const DatabaseData&) = delete;

  WorkspaceData& workspace() const { return *workspace_; }
  const FilePtr& file() const { return file_; }
  const QString& written() const { return written_; }

 private:
  std::shared_ptr<WorkspaceData> workspace_;
  FilePtr file_;
  QString written_;
  bool exclusive_;
};

}  // namespace jet
