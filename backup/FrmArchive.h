#pragma once
// The data compressor's window: backups by one key, and the list of what was kept, to put one back.
#include "backup/form_compressor.h"
#include "ui/forms/dialog.h"
#include "ui/model/spread_model.h"

class QLabel;
class Spread;

namespace backup {

class FrmArchive : public Dialog {
 public:
  FrmArchive(pc::Pc& pc, Prompts& prompts, QWidget* parent = nullptr);

  /** With the cursor on the newest archive: it was opened to put one back. */
  void beginWithRestore();
  /** Put back during this run: the main program may be started again. */
  bool restored() const { return restored_; }

 private:
  void build();
  void showShelf();
  void restoreChosen();
  void restoreOther();
  void restore(const QString& archive);
  void backUp(Series series, bool toServer);
  void changeSettings();
  void openFolder();

  pc::Pc& pc_;
  Compressor compressor_;
  QList<ShelfArchive> shelf_;
  SpreadModel rows_;
  Spread* SpArchive_ = nullptr;
  QLabel *pnlData_ = nullptr, *pnlShelf_ = nullptr;
  bool restored_ = false;
};

}  // namespace backup
