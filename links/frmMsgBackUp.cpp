#include "links/frmMsgBackUp.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

frmMsgBackUp::frmMsgBackUp(Prompts& prompts, QWidget* parent)
    : Dialog(u"frmMsgBackUp"_s, u"데이터 백업"_s, prompts, parent) {
  const QString margin(4, u' ');
  addText(margin + u"                         [데이터 백업]"_s + u"\n\n"_s + margin +
              u"※프로그램의 안전한 사용을 위하여 현재까지 작업한"_s + u'\n' + margin +
              u"데이터를 보관하세요."_s + u"\n\n"_s + margin +
              u"데이터 문제 발생시 보관한 파일로 복구가 가능합니다."_s,
          "txtMsg")
      ->setContentsMargins(0, 4, 12, 6);
  const auto answer = [this](const char* name, const QString& caption, int result) {
    return addButton(name, caption, [this, result] {
      result_ = result;
      accept();
    });
  };
  answer("btnResult0", u"서버백업"_s, 0);
  answer("btnResult1", u"하드백업"_s, 1);
  // Enter ends the program, as on the plain question.
  answer("btnResult2", u"종료"_s, 2)->setFocus();
  answer("btnResult3", u"취소"_s, 3);
  foot()->addStretch(1);
}
