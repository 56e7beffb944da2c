#pragma once
// Maps a network folder to a drive letter.
#include "app/data_folder.h"
#include "ui/forms/dialog.h"

class QComboBox;
class QLabel;
class QLineEdit;
struct FormContext;

class FrmNetDrive : public Dialog {
 public:
  explicit FrmNetDrive(FormContext& context, QWidget* parent = nullptr);
  /** Before the program stands. */
  explicit FrmNetDrive(Session& session, QWidget* parent = nullptr);

 private:
  NetDrive rules_;
  QComboBox* cboDrive_;
  QLineEdit* txtPath_;
  QLabel* pnlResult_;
};
