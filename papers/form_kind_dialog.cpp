#include "papers/form_kind_dialog.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QVBoxLayout>

#include "papers/paper_printer.h"

using namespace Qt::StringLiterals;

KindDialog::KindDialog(FormContext& context, const QString& name, const QString& caption, QWidget* parent)
    : Dialog(name, caption, context.session.prompts, parent), session_(context.session) {
  list1_ = new QListWidget;
  list1_->setObjectName(u"List1"_s);
  list1_->setSpacing(1);
  list1_->addItems(documentKinds());
  list1_->setCurrentRow(0);
  list1_->setFixedWidth(list1_->sizeHintForColumn(0) + 40);
  list1_->setMinimumHeight(list1_->sizeHintForRow(0) * (list1_->count() + 1));
  panel_ = new QWidget(this);
  auto* const parts = new QHBoxLayout;
  parts->setSpacing(10);
  parts->addWidget(list1_);
  parts->addWidget(panel_, 1, Qt::AlignTop);
  body()->addLayout(parts);
  allowResize();
  on(list1_, &QListWidget::currentRowChanged, [this] { showKind(); });
}

void KindDialog::showPage(const QString& kind) {
  const qsizetype place = documentKinds().indexOf(kind);
  if (place >= 0) list1_->setCurrentRow(int(place));
}

QString KindDialog::kind() const {
  return list1_->currentItem()->text();
}
