#include "papers/form_document_kinds.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QVBoxLayout>

#include "master/registers/form_context.h"

using namespace Qt::StringLiterals;

DocumentKindDialog::DocumentKindDialog(const QString& name, const QString& caption, FormContext& context,
                                       QWidget* parent)
    : Dialog(name, caption, context.session.prompts, parent),
      session_(context.session),
      list_(new QListWidget(this)),
      panel_(new QWidget(this)) {
  list_->setObjectName(u"List1"_s);
  list_->setSpacing(1);
  list_->addItems(documentKinds());
  list_->setCurrentRow(0);
  list_->setFixedWidth(list_->sizeHintForColumn(0) + 40);
  list_->setMinimumHeight(list_->sizeHintForRow(0) * (list_->count() + 1));
  auto* const parts = new QHBoxLayout;
  parts->setSpacing(10);
  parts->addWidget(list_);
  parts->addWidget(panel_, 1, Qt::AlignTop);
  body()->addLayout(parts);
  allowResize();
}

void DocumentKindDialog::start() {
  on(list_, &QListWidget::currentRowChanged, [this] { showKind(); });
  guard([this] { showKind(); });
}

void DocumentKindDialog::showPage(const QString& kind) {
  const qsizetype place = documentKinds().indexOf(kind);
  if (place >= 0) list_->setCurrentRow(int(place));
}

QString DocumentKindDialog::kind() const {
  return list_->currentItem()->text();
}
