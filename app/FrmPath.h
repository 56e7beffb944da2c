#pragma once
// Chooses the data folder for the next start.
#include <QDialog>

#include "app/data_folder.h"

class QComboBox;
class QLabel;
class QListWidget;
struct FormContext;

class FrmPath : public QDialog {
 public:
  explicit FrmPath(FormContext& context, QWidget* parent = nullptr);

 private:
  void fillDrives(const QString& chosen);
  void openFolder(const QString& path);
  void enterChosen();
  void create();
  void remove();
  void set();

  FormContext& context_;
  DataFolder rules_;
  QString folder_;  ///< the chosen one, as written
  QComboBox* drive1_;
  QListWidget* dir1_;
  QLabel* pnlPath_;
};
