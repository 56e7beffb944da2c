#pragma once
// The program's name, version and maker.
#include <QDialog>

struct FormContext;

class frmAbout : public QDialog {
 public:
  explicit frmAbout(FormContext& context, QWidget* parent = nullptr);
};
