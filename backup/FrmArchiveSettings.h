#pragma once
// Where archives go, how many stay, how the server's copy is made, whether the main program reminds at its end.
#include "backup/settings.h"
#include "ui/forms/dialog.h"

class FolderBox;
class QCheckBox;
class QLineEdit;
class QSpinBox;

namespace backup {

class FrmArchiveSettings : public Dialog {
 public:
  FrmArchiveSettings(pc::Pc& pc, Prompts& prompts, QWidget* parent = nullptr);

 private:
  void build();
  Settings typed() const;
  void save();

  pc::Pc& pc_;
  FolderBox *txtFolder_ = nullptr, *txtServer_ = nullptr;
  QLineEdit* txtCommand_ = nullptr;
  QSpinBox* numKeep_ = nullptr;
  QCheckBox* chkRemind_ = nullptr;
};

}  // namespace backup
