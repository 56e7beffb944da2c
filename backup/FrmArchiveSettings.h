#pragma once
// Where archives go, how many stay, how the server's copy is made, whether the main program reminds at its end.
#include <QDialog>

#include "backup/settings.h"
#include "ui/model/prompts.h"

class QCheckBox;
class QLineEdit;
class QSpinBox;

namespace backup {

class FrmArchiveSettings : public QDialog {
 public:
  FrmArchiveSettings(pc::Pc& pc, Prompts& prompts, QWidget* parent = nullptr);

 private:
  void build();
  QWidget* folderBox(QLineEdit*& box, const char* name);
  Settings typed() const;
  void save();

  pc::Pc& pc_;
  Prompts& prompts_;
  QLineEdit *txtFolder_ = nullptr, *txtServer_ = nullptr, *txtCommand_ = nullptr;
  QSpinBox* numKeep_ = nullptr;
  QCheckBox* chkRemind_ = nullptr;
};

}  // namespace backup
