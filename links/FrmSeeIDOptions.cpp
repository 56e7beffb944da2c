#include "links/FrmSeeIDOptions.h"

#include <QLineEdit>
#include <QPushButton>

#include "store/session.h"
#include "ui/forms/fields.h"

using namespace Qt::StringLiterals;

FrmSeeIDOptions::FrmSeeIDOptions(Session& session, Caller& caller, QWidget* parent)
    : Dialog(u"FrmSeeIDOptions"_s, u"발신번호 표시기 포트설정"_s, session.prompts, parent) {
  Fields boxes(addPanel(), 1);
  const auto ports = caller.ports();
  txtPortNo_ = {boxes.text("txtPortNo0", u"사용포트1:"_s, 6, 3),
                boxes.text("txtPortNo1", u"사용포트2:"_s, 6, 3)};
  for (size_t at = 0; at < ports.size(); ++at) txtPortNo_[at]->setText(ports[at]);
  addText(u"※포트번호가 0일 경우, 장치사용 안함"_s);
  addDefault("cmdOK", u"확인(&O)"_s, [this, &caller] {
    caller.changePorts({txtPortNo_[0]->text(), txtPortNo_[1]->text()});
    accept();
  });
  addLeave("cmdCancel", u"취소(&C)"_s);
  txtPortNo_[0]->selectAll();
}
