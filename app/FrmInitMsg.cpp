#include "app/FrmInitMsg.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

#include "store/session.h"
#include "store/settings_table.h"
#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

FrmInitMsg::FrmInitMsg(Session& session, QWidget* parent)
    : Dialog(u"FrmInitMsg"_s, u"공지"_s, session.prompts, parent) {
  auto* picture = new QLabel;
  picture->setObjectName(u"picMsg"_s);
  const QPixmap notice(
      session.pc.paths.native(session.pc.paths.programFolder() + u"\\Image\\SoftwareInfoMsg.jpg"_s));
  if (!notice.isNull()) {
    picture->setPixmap(notice);
  } else {
    // A PC without the picture still says what counts on the first day.
    picture->setText(
        u"해온판매를 이용해 주셔서 감사합니다.\n\n"
        u"· 처음 사용하실 때에는 [보조관리 - 사용자 등록]에서 상호와 환경설정을 등록해 주십시오.\n"
        u"· 자료는 매일 다른 저장장치에 백업해 두시기 바랍니다.\n"
        u"· 여러 PC에서 함께 쓰실 때에는 모든 PC의 작업경로가 같아야 합니다."_s);
    picture->setContentsMargins(10, 10, 10, 10);
  }
  auto* chkCheck = new QCheckBox(u"다시 보지 않기(&N)"_s);
  chkCheck->setObjectName(u"ChkCheck"_s);
  body()->addWidget(picture);
  foot()->addWidget(chkCheck);
  foot()->addStretch();
  addDefault("BtnOk", u"확인(&O)"_s, [this] { accept(); })->setFocus();
  on(this, &QDialog::finished,
     [&session, chkCheck] { session.pc.settings.write(setting::NoticeHidden, chkCheck->isChecked()); });
}
