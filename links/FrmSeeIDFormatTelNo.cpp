#include "links/FrmSeeIDFormatTelNo.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

FrmSeeIDFormatTelNo::FrmSeeIDFormatTelNo(FormContext& context, QWidget* parent)
    : TickedForm(u"FrmSeeIDFormatTelNo"_s, u"전화번호 형식"_s, context.session, parent),
      rules_(context.session) {
  auto* const what = new QLabel(
      u"걸려 온 번호로 고객을 찾으려면 전화번호가 053-123-4567 꼴이어야 합니다.\n"_s
      u"아래는 그 꼴이 아닌 번호입니다. 선택한 번호를 [바꾸기]로 고칩니다."_s,
      this);
  what->setObjectName(u"LblWhat"_s);
  body()->addWidget(what);
  grid_ = addTickedGrid("SpTel", rules_, TidyCol::Name, u"스페이스나 클릭으로 바꿀 번호를 선택합니다"_s);
  auto* const foot = new QWidget(this);
  auto* const row = new QHBoxLayout(foot);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(addTickAll(u"전체 선택"_s, foot));
  row->addSpacing(16);
  lblCount_ = new QLabel(foot);
  lblCount_->setObjectName(u"LblCount"_s);
  row->addWidget(lblCount_);
  row->addStretch(1);
  btnSave_ = addButton("BtnSave", u"바꾸기(&S)"_s, [this] {
    if (rules_.save()) load();
  });
  btnExit_ = addExit("BtnExit");
  row->addWidget(buttonRow({btnSave_, btnExit_}));
  body()->addWidget(foot);
  load();
}

void FrmSeeIDFormatTelNo::load() {
  fill([this] { rules_.load(); });
  const bool any = rules_.list().MaxRows() > 0;
  findChild<QCheckBox*>(u"ChkAll"_s)->setChecked(any);
  btnSave_->setEnabled(any);
  if (any)
    grid_->setFocus();
  else
    btnExit_->setFocus();
  showHelp(any ? QString() : u"모든 전화번호가 찾을 수 있는 꼴입니다"_s);
}

void FrmSeeIDFormatTelNo::showCounts() {
  lblCount_->setText(u"%1개 중 %2개 선택"_s.arg(rules_.list().MaxRows()).arg(rules_.ticked()));
}
