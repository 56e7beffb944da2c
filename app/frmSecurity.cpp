#include "app/frmSecurity.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "ui/forms/fields.h"
#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

frmSecurity::frmSecurity(Session& session, QWidget* parent)
    : Dialog(u"frmSecurity"_s, u"로그인"_s, session.prompts, parent), profile_(session) {
  addText(profile_.companyName(), "lblCompany")->setFont(look::textFont(12, true));
  txtPassword_ = Fields(addPanel(), 1).text("txtPassword", u"패스워드(&P)"_s);
  txtPassword_->setEchoMode(QLineEdit::Password);
  addDefault("BtnOk", u"확인(&O)"_s, [this] { check(); });
  addLeave("BtnCancel", u"취소(&C)"_s);
  setMinimumWidth(340);
  txtPassword_->setFocus();
}

void frmSecurity::check() {
  if (profile_.checkPassword(txtPassword_->text())) return accept();
  txtPassword_->setFocus();
  txtPassword_->selectAll();
}
