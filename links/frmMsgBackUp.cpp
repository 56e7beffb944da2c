#include "links/frmMsgBackUp.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmMsgBackUp::frmMsgBackUp(QWidget* parent) : QDialog(parent) {
  setObjectName(u"frmMsgBackUp"_s);
  setWindowTitle(u"데이터 백업"_s);
  const QString margin(4, u' ');
  auto* text = new QLabel(margin + u"                         [데이터 백업]"_s + u"\n\n"_s + margin +
                          u"※프로그램의 안전한 사용을 위하여 현재까지 작업한"_s + u'\n' + margin +
                          u"데이터를 보관하세요."_s + u"\n\n"_s + margin +
                          u"데이터 문제 발생시 보관한 파일로 복구가 가능합니다."_s);
  text->setObjectName(u"txtMsg"_s);
  text->setTextFormat(Qt::PlainText);

  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  buttons->addStretch();
  int index = 0;
  for (const QString& caption : {u"서버백업"_s, u"하드백업"_s, u"종료"_s, u"취소"_s}) {
    auto* button = new QPushButton(caption);
    button->setObjectName(u"btnResult"_s + QString::number(index));
    connect(button, &QPushButton::clicked, this, [this, index] {
      result_ = index;
      accept();
    });
    buttons->addWidget(button);
    // Enter ends the program, as on the plain question.
    if (index == 2) {
      button->setDefault(true);
      button->setFocus();
    }
    ++index;
  }
  buttons->addStretch();

  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(20, 18, 28, 16);
  rows->setSpacing(16);
  rows->addWidget(text);
  rows->addLayout(buttons);
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}
