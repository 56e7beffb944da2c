#pragma once
// The start has not found its data folder: says which drive, network or folder is missing, and goes on only when the
// operator says how.

#include "app/folder_trouble.h"
#include "ui/forms/dialog.h"

struct Session;

class FrmFolderTrouble : public Dialog {
 public:
  FrmFolderTrouble(const FolderTrouble& trouble, Session& session, QWidget* parent = nullptr);

  /** Shows the window until the operator has chosen. True: start again; False: end the program. */
  bool tryAgain() { return exec() == QDialog::Accepted; }
};
