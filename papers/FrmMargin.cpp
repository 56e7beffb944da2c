#include "papers/FrmMargin.h"

#include <QLineEdit>
#include <QPushButton>

#include "papers/form_correction_box.h"
#include "papers/paper_printer.h"
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
    setDocumentMargins(session(), kind(), {txtTop_->text(), txtLeft_->text()});
    accept();
  });
  addLeave("Cmd취소", u"취소(&C)"_s);
  enterOrder({txtTop_, txtLeft_, set});
  showKind();
  txtTop_->setFocus();
}

void FrmMargin::showKind() {
  const DocumentMargins margins = documentMargins(session(), kind());
  txtTop_->setText(margins.top);
  txtLeft_->setText(margins.left);
}
