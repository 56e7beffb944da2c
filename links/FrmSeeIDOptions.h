#pragma once
// The two serial ports of the caller-identification units.
#include <QDialog>
#include <array>

#include "links/caller.h"

class QLineEdit;

class FrmSeeIDOptions : public QDialog {
 public:
  explicit FrmSeeIDOptions(Caller& caller, QWidget* parent = nullptr);

 private:
  std::array<QLineEdit*, 2> txtPortNo_;
};
