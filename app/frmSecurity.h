#pragma once
// Asks for the company's password before a guarded command.
#include "app/company_profile.h"
#include "ui/forms/dialog.h"

class QLineEdit;
struct FormContext;

/** Accepted when the password was given. */
class frmSecurity : public Dialog {
 public:
  explicit frmSecurity(Session& session, QWidget* parent = nullptr);

 private:
  void check();

  CompanyProfile profile_;
  QLineEdit* txtPassword_;
};
