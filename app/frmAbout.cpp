#include "app/frmAbout.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/frame_rules.h"
#include "master/registers/form_context.h"
#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

frmAbout::frmAbout(FormContext& context, QWidget* parent) : QDialog(parent) {
  setObjectName(u"frmAbout"_s);
  setWindowTitle(u"프로그램 정보"_s);
  auto* name = new QLabel(u"해온판매"_s);
  name->setFont(look::textFont(15, true));
  auto* purpose = new QLabel(u"LP가스 판매관리"_s);
  auto* version = new QLabel(u"버전 "_s + QStringLiteral(HAEON_VERSION));
  version->setObjectName(u"lblVersion"_s);
  auto* maker = new QLabel(u"라온웨어  "_s + makerAddress());
  auto* place =
      new QLabel(u"자료 폴더  "_s + context.session.DbPath + u"\n작업년도  "_s + context.session.WorkYear);
  auto* close = new QPushButton(u"확인"_s);
  close->setObjectName(u"BtnOk"_s);
  close->setDefault(true);
  connect(close, &QPushButton::clicked, this, &QDialog::accept);

  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(28, 22, 28, 18);
  rows->setSpacing(6);
  rows->addWidget(name);
  rows->addWidget(purpose);
  rows->addSpacing(8);
  for (QWidget* line : {version, maker, place}) rows->addWidget(line);
  rows->addSpacing(12);
  rows->addWidget(close, 0, Qt::AlignRight);
  setMinimumWidth(360);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}
