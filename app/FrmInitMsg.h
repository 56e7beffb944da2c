#pragma once
// The notice after sign-in, until its box says not to show it again.
#include "ui/forms/dialog.h"

struct Session;

class FrmInitMsg : public Dialog {
 public:
  explicit FrmInitMsg(Session& session, QWidget* parent = nullptr);
};
