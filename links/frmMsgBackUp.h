#pragma once
// The reminder at the program's end: back up to the server, to this PC, not at all, or stay.
#include "ui/forms/dialog.h"

class frmMsgBackUp : public Dialog {
 public:
  explicit frmMsgBackUp(Prompts& prompts, QWidget* parent = nullptr);

  /** The index of the button pressed; 3, stay, when the window was closed. */
  int Result() const { return result_; }

 private:
  int result_ = 3;
};
