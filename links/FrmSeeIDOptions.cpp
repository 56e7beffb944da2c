#include "links/FrmSeeIDOptions.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

FrmSeeIDOptions::FrmSeeIDOptions(Caller& caller, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("FrmSeeIDOptions"));
  setWindowTitle(QStringLiteral("발신번호 표시기 포트설정"));

  auto* form = new QFormLayout;
  const std::array<QString, 2> labels{QStringLiteral("사용포트1:"), QStringLiteral("사용포트2:")};
  const auto ports = caller.ports();
  for (size_t at = 0; at < labels.size(); ++at) {
    txtPortNo_[at] = new QLineEdit(ports[at], this);
    txtPortNo_[at]->setObjectName(QStringLiteral("txtPortNo%1").arg(at));
    txtPortNo_[at]->setMaxLength(3);
    form->addRow(labels[at], txtPortNo_[at]);
  }
  auto* note = new QLabel(QStringLiteral("※포트번호가 0일 경우, 장치사용 안함"), this);

  auto* cmdOK = new QPushButton(QStringLiteral("확인(&O)"), this);
  cmdOK->setObjectName(QStringLiteral("cmdOK"));
  cmdOK->setDefault(true);
  auto* cmdCancel = new QPushButton(QStringLiteral("취소(&C)"), this);
  cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
  connect(cmdOK, &QPushButton::clicked, this, [this, &caller] {
    caller.changePorts({txtPortNo_[0]->text(), txtPortNo_[1]->text()});
    accept();
  });
  connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdOK);
  buttons->addWidget(cmdCancel);
  auto* all = new QVBoxLayout(this);
  all->addLayout(form);
  all->addWidget(note);
  all->addLayout(buttons);
  txtPortNo_[0]->selectAll();
}
