#pragma once
// The progress window of closing and carry.
#include "ui/forms/FrmProgress.h"

class frmNextYear : public FrmProgress {
 public:
  explicit frmNextYear(const QString& caption, QWidget* parent = nullptr);

  /** total 0: not known yet. */
  void tell(const QString& text, int done, int total);
};
