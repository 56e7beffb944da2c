#pragma once
// Chooses the data folder: for the next start by the menu, for this one when the start has not found its own.

#include "app/data_folder.h"
#include "ui/forms/dialog.h"

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;
struct FormContext;

class FrmPath : public Dialog {
 public:
  /** By the menu: what is chosen counts from the next start. */
  explicit FrmPath(FormContext& context, QWidget* parent = nullptr);
  /** Before the program stands: accepted when a folder was chosen and saved. */
  explicit FrmPath(Session& session, QWidget* parent = nullptr);

 private:
  FrmPath(Session& session, std::function<void()> openNetwork, QWidget* parent);
  void fillDrives(const QString& chosen);
  void openFolder(const QString& path);
  void enterChosen();
  void create();
  void remove();
  void set();
  void use();

  DataFolder rules_;
  QString folder_;  ///< the chosen one, as written
  QComboBox* drive1_;
  QListWidget* dir1_;
  QLabel* pnlPath_;
  QLabel* pnlData_;  ///< where the data of the chosen folder would be
  QPushButton* btnSet_;
};
