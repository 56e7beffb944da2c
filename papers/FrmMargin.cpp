#include "papers/FrmMargin.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "master/registers/form_context.h"
#include "papers/form_correction_box.h"
#include "papers/form_document_kinds.h"
#include "ui/forms/fields.h"

using namespace Qt::StringLiterals;

FrmMargin::FrmMargin(FormContext& context, QWidget* parent)
    : Dialog(u"FrmMargin"_s, u"Margin설정"_s, context.session.prompts, parent), context_(context) {
  list1_ = documentKindList();
  txtTop_ = correctionBox(u"TxtTop"_s);
  txtLeft_ = correctionBox(u"TxtLeft"_s);
  auto* const panel = new QWidget(this);
  Fields boxes(panel, 1);
  boxes.add(u"위쪽 여백(&T)"_s, txtTop_);
  boxes.add(u"왼쪽 여백(&L)"_s, txtLeft_);
  auto* const parts = new QHBoxLayout;
  parts->setSpacing(10);
  parts->addWidget(list1_);
  parts->addWidget(panel, 1, Qt::AlignTop);
  body()->addLayout(parts);
  allowResize();
  QPushButton* const set = addButton("Cmd설정", u"설정(&S)"_s, [this] { store(); });
  addLeave("Cmd취소", u"취소(&C)"_s);
  enterOrder({txtTop_, txtLeft_, set});
  on(list1_, &QListWidget::currentRowChanged, [this] { showKind(); });
  showKind();
  txtTop_->setFocus();
}

void FrmMargin::showPage(const QString& kind) {
  chooseDocumentKind(*list1_, kind);
}

QString FrmMargin::kind() const {
  return list1_->currentItem()->text();
}

void FrmMargin::showKind() {
  const DocumentMargins margins = documentMargins(context_.session, kind());
  txtTop_->setText(margins.top);
  txtLeft_->setText(margins.left);
}

void FrmMargin::store() {
  setDocumentMargins(context_.session, kind(), {txtTop_->text(), txtLeft_->text()});
  accept();
}
