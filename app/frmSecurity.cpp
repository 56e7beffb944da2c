#include "app/frmSecurity.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

frmSecurity::frmSecurity(Session& session, QWidget* parent) : QDialog(parent), profile_(session) {
  setObjectName(u"frmSecurity"_s);
  setWindowTitle(u"로그인"_s);
  auto* company = new QLabel(profile_.companyName());
  company->setObjectName(u"lblCompany"_s);
  company->setFont(look::textFont(12, true));
  txtPassword_ = new QLineEdit;
  txtPassword_->setObjectName(u"txtPassword"_s);
  txtPassword_->setEchoMode(QLineEdit::Password);
  auto* label = new QLabel(u"패스워드(&P)"_s);
  label->setBuddy(txtPassword_);
  auto* ok = new QPushButton(u"확인(&O)"_s);
  ok->setObjectName(u"BtnOk"_s);
  ok->setDefault(true);
  auto* cancel = new QPushButton(u"취소(&C)"_s);
  cancel->setObjectName(u"BtnCancel"_s);
  connect(ok, &QPushButton::clicked, this, [this] { check(); });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(ok);
  buttons->addWidget(cancel);
  auto* entry = new QHBoxLayout;
  entry->addWidget(label);
  entry->addWidget(txtPassword_, 1);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(22, 18, 22, 16);
  rows->setSpacing(12);
  rows->addWidget(company);
  rows->addLayout(entry);
  rows->addLayout(buttons);
  setMinimumWidth(340);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  txtPassword_->setFocus();
}

void frmSecurity::check() {
  if (profile_.checkPassword(txtPassword_->text())) return accept();
  txtPassword_->setFocus();
  txtPassword_->selectAll();
}
