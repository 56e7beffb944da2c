#include "papers/FrmMargin.h"

#include <QLineEdit>
#include <QPushButton>

#include "papers/form_correction_box.h"
#include "ui/forms/fields.h"

using namespace Qt::StringLiterals;

FrmMargin::FrmMargin(FormContext& context, QWidget* parent)
    : KindDialog(context, u"FrmMargin"_s, u"Margin설정"_s, parent) {
  txtTop_ = correctionBox(u"TxtTop"_s);
  txtLeft_ = correctionBox(u"TxtLeft"_s);
  Fields boxes(panel(), 1);
  boxes.add(u"위쪽 여백(&T)"_s, txtTop_);
  boxes.add(u"왼쪽 여백(&L)"_s, txtLeft_);
  QPushButton* const set = addButton("Cmd설정", u"설정(&S)"_s, [this] {
    keepTyped();
    for (const auto& [each, margins] : typed_.asKeyValueRange()) setDocumentMargins(session(), each, margins);
    accept();
  });
  addLeave("Cmd취소", u"취소(&C)"_s);
  enterOrder({txtTop_, txtLeft_, set});
  showKind();
  txtTop_->setFocus();
}

/** What was typed for one kind waits while another one's margins are set. */
void FrmMargin::keepTyped() {
  if (!shown_.isEmpty()) typed_[shown_] = {txtTop_->text(), txtLeft_->text()};
}

void FrmMargin::showKind() {
  keepTyped();
  shown_ = kind();
  const DocumentMargins margins = typed_.value(shown_, documentMargins(session(), shown_));
  txtTop_->setText(margins.top);
  txtLeft_->setText(margins.left);
}
