#include "app/FrmNetDrive.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

#include "master/registers/form_context.h"
#include "ui/forms/fields.h"

using namespace Qt::StringLiterals;

FrmNetDrive::FrmNetDrive(FormContext& context, QWidget* parent) : FrmNetDrive(context.session, parent) {}

FrmNetDrive::FrmNetDrive(Session& session, QWidget* parent)
    : Dialog(u"FrmNetDrive"_s, u"네트워크 드라이브 연결"_s, session.prompts, parent), rules_(session) {
  Fields boxes(addPanel(), 1);
  cboDrive_ = boxes.combo("cboDrive", u"드라이브(&D)"_s, NetDrive::letters(), 4);
  cboDrive_->setCurrentText(u"Z:"_s);
  txtPath_ = boxes.text("txtPath", u"네트워크 경로(&P)"_s);
  pnlResult_ = shownValue("pnlResult");
  body()->addWidget(pnlResult_);
  addDefault("btnConnect", u"연결(&O)"_s,
             [this] { pnlResult_->setText(rules_.map(txtPath_->text(), cboDrive_->currentText())); });
  addLeave("btnClose", u"닫기(&X)"_s);
  setMinimumWidth(460);
  txtPath_->setFocus();
}
