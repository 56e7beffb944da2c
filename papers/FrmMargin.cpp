#include "papers/FrmMargin.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "master/registers/form_context.h"
#include "papers/form_correction_box.h"
#include "papers/form_document_kinds.h"

using namespace Qt::StringLiterals;

FrmMargin::FrmMargin(FormContext& context, QWidget* parent) : QDialog(parent), context_(context) {
  setObjectName(u"FrmMargin"_s);
  setWindowTitle(u"Margin설정"_s);
  list1_ = documentKindList();
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 14, 16, 14);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(8);
  grid->addWidget(list1_, 0, 0, 4, 1);
  const auto box = [&](int row, const QString& name, const QString& label) {
    auto* made = correctionBox(name);
    connect(made, &QLineEdit::returnPressed, this, [this] { focusNextChild(); });
    auto* words = new QLabel(label);
    words->setBuddy(made);
    grid->addWidget(words, row, 1, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(made, row, 2);
    return made;
  };
  txtTop_ = box(0, u"TxtTop"_s, u"위쪽 여백(&T)"_s);
  txtLeft_ = box(1, u"TxtLeft"_s, u"왼쪽 여백(&L)"_s);
  auto* set = new QPushButton(u"설정(&S)"_s);
  set->setObjectName(u"Cmd설정"_s);
  auto* cancel = new QPushButton(u"취소(&C)"_s);
  cancel->setObjectName(u"Cmd취소"_s);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  buttons->addStretch();
  for (QPushButton* each : {set, cancel}) {
    each->setAutoDefault(false);
    buttons->addWidget(each);
  }
  grid->setRowStretch(2, 1);
  grid->addLayout(buttons, 3, 1, 1, 2);
  grid->setColumnStretch(2, 1);
  connect(list1_, &QListWidget::currentRowChanged, this, [this] { showKind(); });
  connect(set, &QPushButton::clicked, this, [this] { store(); });
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
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
