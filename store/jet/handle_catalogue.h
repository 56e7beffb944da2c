#pragma once
// Names as one handle sees them: its file's own tables, its links, and tables of files named by their path.
#include <vector>

#include "store/jet/compile.h"
#include "store/jet/workspace_data.h"

namespace jet {

class HandleCatalogue : public Catalogue {
 public:
  HandleCatalogue(WorkspaceData& workspace, FilePtr file) : workspace_(workspace), file_(std::move(file)) {}
  std::optional<TableInfo> table(const QString& name) override { return tableOf(file_, name, 0); }
  std::optional<TableInfo> tableIn(const QString& path, const QString& name) override {
    return tableOf(workspace_.fileAt(path), name, 0);
  }
  /** The files that the names asked for lie in. */
  std::vector<FilePtr> takeFiles() { return std::move(files_); }

 private:
  std::optional<TableInfo> tableOf(const FilePtr& file, const QString& name, int depth);

  WorkspaceData& workspace_;
  FilePtr file_;
  std::vector<FilePtr> files_;
};

/** The path in a link's connect text, ";DATABASE=" + path. */
QString pathOfConnect(const QString& connect);

}  // namespace jet
