#pragma once
// Brings old books in: asks for their folder, does the work under a bar, shows the report.
#include "store/session.h"
#include "ui/forms/dialog.h"

class FolderBox;
class QPlainTextEdit;
class QPushButton;

namespace moving {

class FrmMoveIn : public Dialog {
 public:
  /** nativeFolder: where the old books are, when that is known. */
  FrmMoveIn(Session& session, const QString& nativeFolder, QWidget* parent = nullptr);

  /** The books are in their place. */
  bool moved() const { return moved_; }

 private:
  void build();
  void begin();
  bool mayBegin(const QString& folder);
  void work(const QString& folder);

  Session& session_;
  FolderBox* txtFolder_ = nullptr;
  QPlainTextEdit* txtReport_ = nullptr;
  QPushButton* btnBegin_ = nullptr;
  bool moved_ = false;
};

}  // namespace moving
