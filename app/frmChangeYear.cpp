#include "app/frmChangeYear.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/change_year.h"
#include "master/registers/form_context.h"
#include "ui/forms/guard.h"

using namespace Qt::StringLiterals;

frmChangeYear::frmChangeYear(FormContext& context, QWidget* parent) : QDialog(parent), context_(context) {
  setObjectName(u"frmChangeYear"_s);
  setWindowTitle(u"PC년도 변경"_s);
  cmbYY_ = new QComboBox;
  cmbYY_->setObjectName(u"CmbYY"_s);
  cmbYY_->addItems(changeableYears(context.session));
  cmbYY_->setMaxVisibleItems(cmbYY_->count());
  cmbYY_->setCurrentText(QString::number(context.session.pc.clock.today().year()));
  auto* const label = new QLabel(u"작업년도(&Y)"_s);
  label->setBuddy(cmbYY_);
  auto* const note = new QLabel(
      u"고른 해의 자료 파일을 열고 이 프로그램의 날짜를 그 해로 옮깁니다.\n"
      u"프로그램을 다시 시작하면 PC의 날짜로 돌아옵니다."_s);
  note->setProperty("role", u"faint"_s);
  auto* const ok = new QPushButton(u"확인(&O)"_s);
  ok->setObjectName(u"BtnOk"_s);
  ok->setDefault(true);
  auto* const leave = new QPushButton(u"닫기(&X)"_s);
  leave->setObjectName(u"BtnExit"_s);
  leave->setAutoDefault(false);
  connect(ok, &QPushButton::clicked, this, [this] {
    Session& session = context_.session;
    if (guarded(session.prompts, [&] { changeYear(session, cmbYY_->currentText()); })) accept();
  });
  connect(leave, &QPushButton::clicked, this, &QDialog::reject);

  auto* const whole = new QVBoxLayout(this);
  whole->setContentsMargins(20, 16, 20, 14);
  whole->setSpacing(10);
  auto* const line = new QHBoxLayout;
  line->addWidget(label);
  line->addWidget(cmbYY_);
  line->addStretch(1);
  whole->addLayout(line);
  whole->addWidget(note);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(ok);
  buttons->addWidget(leave);
  whole->addLayout(buttons);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
  cmbYY_->setFocus();
}
