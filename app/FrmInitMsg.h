#pragma once
// The notice after sign-in, until its box says not to show it again.
#include <QDialog>

struct Session;

class FrmInitMsg : public QDialog {
 public:
  explicit FrmInitMsg(Session& session, QWidget* parent = nullptr);
};
