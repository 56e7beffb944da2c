#pragma once
// Maps a network folder to a drive letter.
#include <QDialog>

#include "app/data_folder.h"

class QComboBox;
class QLabel;
class QLineEdit;
struct FormContext;

class FrmNetDrive : public QDialog {
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
