#include "app/FrmNetDrive.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "master/registers/form_context.h"

using namespace Qt::StringLiterals;

FrmNetDrive::FrmNetDrive(FormContext& context, QWidget* parent) : FrmNetDrive(context.session, parent) {}

FrmNetDrive::FrmNetDrive(Session& session, QWidget* parent) : QDialog(parent), rules_(session) {
  setObjectName(u"FrmNetDrive"_s);
  setWindowTitle(u"네트워크 드라이브 연결"_s);
  cboDrive_ = new QComboBox;
  cboDrive_->setObjectName(u"cboDrive"_s);
  cboDrive_->addItems(NetDrive::letters());
  cboDrive_->setCurrentText(u"Z:"_s);
  txtPath_ = new QLineEdit;
  txtPath_->setObjectName(u"txtPath"_s);
  pnlResult_ = new QLabel;
  pnlResult_->setObjectName(u"pnlResult"_s);
  pnlResult_->setProperty("role", u"value"_s);
  auto* connectButton = new QPushButton(u"연결(&O)"_s);
  connectButton->setObjectName(u"btnConnect"_s);
  connectButton->setDefault(true);
  auto* close = new QPushButton(u"닫기(&X)"_s);
  close->setObjectName(u"btnClose"_s);
  close->setAutoDefault(false);
  connect(connectButton, &QPushButton::clicked, this,
          [this] { pnlResult_->setText(rules_.map(txtPath_->text(), cboDrive_->currentText())); });
  connect(close, &QPushButton::clicked, this, &QDialog::accept);

  auto* driveLabel = new QLabel(u"드라이브(&D)"_s);
  driveLabel->setBuddy(cboDrive_);
  auto* pathLabel = new QLabel(u"네트워크 경로(&P)"_s);
  pathLabel->setBuddy(txtPath_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(connectButton);
  buttons->addWidget(close);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(18, 16, 18, 14);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(8);
  grid->addWidget(driveLabel, 0, 0, Qt::AlignRight);
  grid->addWidget(cboDrive_, 0, 1, Qt::AlignLeft);
  grid->addWidget(pathLabel, 1, 0, Qt::AlignRight);
  grid->addWidget(txtPath_, 1, 1);
  grid->addWidget(pnlResult_, 2, 0, 1, 2);
  grid->addLayout(buttons, 3, 0, 1, 2);
  grid->setColumnStretch(1, 1);
  setMinimumWidth(460);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  txtPath_->setFocus();
}
