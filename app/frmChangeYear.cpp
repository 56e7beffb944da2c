#include "app/frmChangeYear.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "app/change_year.h"
#include "master/registers/form_context.h"

using namespace Qt::StringLiterals;

frmChangeYear::frmChangeYear(FormContext& context, QWidget* parent)
    : Dialog(u"frmChangeYear"_s, u"PC년도 변경"_s, context.session.prompts, parent) {
  Session& session = context.session;
  auto* const years = new QComboBox;
  years->setObjectName(u"CmbYY"_s);
  years->addItems(changeableYears(session));
  years->setMaxVisibleItems(years->count());
  years->setCurrentText(QString::number(session.pc.clock.today().year()));
  auto* const label = new QLabel(u"작업년도(&Y)"_s);
  label->setBuddy(years);
  auto* const line = new QHBoxLayout;
  line->addWidget(label);
  line->addWidget(years);
  line->addStretch(1);
  body()->addLayout(line);
  addText(
      u"고른 해의 자료 파일을 열고 이 프로그램의 날짜를 그 해로 옮깁니다.\n프로그램을 다시 시작하면 PC의 날짜로 돌아옵니다."_s)
      ->setProperty("role", u"faint"_s);
  addDefault("BtnOk", u"확인(&O)"_s, [this, &session, years] {
    changeYear(session, years->currentText());
    accept();
  });
  addLeave("BtnExit", u"닫기(&X)"_s);
  enterOrder({years});
  years->setFocus();
}
