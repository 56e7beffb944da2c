#pragma once
// The start has not found its data folder: says which drive, network or folder is missing, and goes on only when the
// operator says how.
#include <QDialog>

#include "app/folder_trouble.h"

struct Session;
class QPushButton;
class QVBoxLayout;

class FrmFolderTrouble : public QDialog {
 public:
  FrmFolderTrouble(const FolderTrouble& trouble, Session& session, QWidget* parent = nullptr);

  /** Shows the window until the operator has chosen. True: start again; False: end the program. */
  bool tryAgain() { return exec() == QDialog::Accepted; }

 private:
  void buildText(const FolderTrouble& trouble, QVBoxLayout& rows);
  QPushButton* button(const QString& caption, const char* name, void (FrmFolderTrouble::*does)());
  void retry() { accept(); }
  void leave() { reject(); }
  void chooseFolder();
  void mapNetwork();

  Session& session_;
};
