#include "app/frmAbout.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/frame_rules.h"
#include "master/registers/form_context.h"
#include "ui/forms/style.h"

using namespace Qt::StringLiterals;

frmAbout::frmAbout(FormContext& context, QWidget* parent)
    : Dialog(u"frmAbout"_s, u"프로그램 정보"_s, context.session.prompts, parent) {
  addText(u"해온판매"_s)->setFont(look::textFont(15, true));
  addText(u"LP가스 판매관리"_s);
  body()->addSpacing(6);
  addText(u"버전 "_s + QString::fromLatin1(HAEON_VERSION), "lblVersion");
  addText(u"라온웨어  "_s + makerAddress());
  addText(u"자료 폴더  "_s + context.session.DbPath + u"\n작업년도  "_s + context.session.WorkYear);
  addDefault("BtnOk", u"확인"_s, [this] { accept(); });
  setMinimumWidth(360);
}
