#include "links/FrmSMS.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/forms/FrmProgress.h"
#include "ui/forms/boxes.h"

using namespace Qt::StringLiterals;

FrmSMS::FrmSMS(FormContext& context, QWidget* parent)
    : TickedForm(u"FrmSMS"_s, u"문자 전송(SMS)"_s, context.session, parent),
      context_(context),
      rules_(context.session) {
  body()->addWidget(buildFilter());
  Spread* const grdList =
      addTickedGrid("grdList", rules_, SmsCol::Tel, u"스페이스나 클릭으로 보낼 거래처를 선택합니다"_s);
  body()->addWidget(buildFoot());
  search();
  if (rules_.list().MaxRows() > 0)
    grdList->setFocus();
  else
    txtName_->setFocus();
}

QWidget* FrmSMS::buildFilter() {
  QGroupBox* const group = addGroup({});
  auto* const row = new QHBoxLayout(group);
  const QString captions[] = {u"거래처명(&N)"_s, u"미수금:(&U)"_s};
  for (int at = 0; at < 2; ++at) {
    optFilter_[at] = new QRadioButton(captions[at], group);
    optFilter_[at]->setObjectName(u"optFilter%1"_s.arg(at));
  }
  optFilter_[0]->setChecked(true);
  txtName_ = new QLineEdit(group);
  txtName_->setObjectName(u"txtName"_s);
  txtName_->setFixedWidth(24 * fontMetrics().horizontalAdvance(u'0'));
  setHelp(txtName_, u"찾을 이름의 일부를 입력합니다. 비우면 모두 나옵니다"_s);
  txtBalance_ = new MoneyBox(group);
  txtBalance_->setObjectName(u"txtBalance"_s);
  txtBalance_->setRange(0, 999'999'999);
  txtBalance_->setValue(0);
  txtBalance_->setFixedWidth(14 * fontMetrics().horizontalAdvance(u'0'));
  setHelp(txtBalance_, u"가스미수금이 이 금액 이상인 거래처를 찾습니다"_s);
  whenLeft(txtBalance_, [this] {
    if (txtBalance_->plainText().isEmpty()) txtBalance_->setValue(0);
  });
  QPushButton* const find = addButton("btnSearch", u"검색(&F)"_s, [this] { search(); });
  connect(optFilter_[0], &QRadioButton::clicked, this, [this] { focus(txtName_); });
  connect(optFilter_[1], &QRadioButton::clicked, this, [this] { focus(txtBalance_); });
  // What is typed into a box is meant to be looked for.
  connect(txtName_, &QLineEdit::textEdited, this, [this] { optFilter_[0]->setChecked(true); });
  connect(txtBalance_, &QLineEdit::textEdited, this, [this] { optFilter_[1]->setChecked(true); });
  row->addWidget(optFilter_[0]);
  row->addWidget(txtName_);
  row->addSpacing(12);
  row->addWidget(optFilter_[1]);
  row->addWidget(txtBalance_);
  row->addWidget(new QLabel(u"원 이상"_s, group));
  row->addStretch(1);
  row->addWidget(find);
  connect(txtName_, &QLineEdit::returnPressed, this, [this] {
    command([this] { search(); });
    focusGrid();
  });
  enterOrder({txtBalance_, find});
  return group;
}

QWidget* FrmSMS::buildFoot() {
  auto* const foot = new QWidget(this);
  auto* const row = new QHBoxLayout(foot);
  row->setContentsMargins(0, 0, 0, 0);
  lblCountRec_ = new QLabel(u"0"_s, foot);
  lblCountRec_->setObjectName(u"lblCountRec"_s);
  row->addWidget(addTickAll(u"전체 선택"_s, foot));
  row->addSpacing(16);
  row->addWidget(new QLabel(u"선택"_s, foot));
  row->addWidget(lblCountRec_);
  row->addWidget(new QLabel(u"건"_s, foot));
  row->addStretch(1);
  const auto sender = [&](const char* name, int tool, const QString& letter) {
    return addButton(name, senderLabel(tool) + letter, [this, tool] { rules_.send(tool); });
  };
  row->addWidget(buttonRow({sender("btnTrans0", TextTool, u"(&S)"_s),
                            sender("btnTrans1", RelayTool, u"(&R)"_s), nullptr, addExit("btnExit")}));
  return foot;
}

SmsFilter FrmSMS::filter() const {
  return optFilter_[1]->isChecked() ? SmsFilter::Balance : SmsFilter::Name;
}

void FrmSMS::search() {
  context_.commands.showStatus(u"자료 검색중..."_s);
  fill([this] {
    const bool found = rules_.search(filter(), txtName_->text(), txtBalance_->value(), [this](int count) {
      return barTeller(u"자료 검색중..."_s, count, this);
    });
    if (found) showHelp(u"거래처 %1건"_s.arg(rules_.list().MaxRows()));
  });
  context_.commands.showStatus({});
}

void FrmSMS::showCounts() {
  lblCountRec_->setText(QString::number(rules_.ticked()));
}
