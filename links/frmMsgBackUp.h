#pragma once
// The reminder at the program's end: back up to the server, to this PC, not at all, or stay.
#include <QDialog>

class frmMsgBackUp : public QDialog {
 public:
  explicit frmMsgBackUp(QWidget* parent = nullptr);

  /** The index of the button pressed; 3, stay, when the window was closed. */
  int Result() const { return result_; }

 private:
  int result_ = 3;
};
