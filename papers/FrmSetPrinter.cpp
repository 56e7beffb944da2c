#include "papers/FrmSetPrinter.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

#include "master/registers/form_context.h"
#include "papers/form_document_kinds.h"
#include "pc/print_job.h"
#include "ui/forms/fields.h"

using namespace Qt::StringLiterals;

FrmSetPrinter::FrmSetPrinter(FormContext& context, QWidget* parent)
    : Dialog(u"FrmSetPrinter"_s, u"프린트 드라이버 설정"_s, context.session.prompts, parent),
      context_(context) {
  const pc::Printers* printers = context_.session.printers;
  list1_ = documentKindList();
  auto* const standard = shownValue(
      "Spn기본프린터", printers && !printers->defaultName().isEmpty() ? printers->defaultName() : u"없음"_s);
  lblChosen_ = shownValue("LblChosen");
  auto* const panel = new QWidget(this);
  Fields boxes(panel, 1);
  boxes.add(u"기본프린터"_s, standard);
  boxes.add(u"현재 설정"_s, lblChosen_);
  cboPrinter_ = boxes.combo("CboPrinter", u"설치된 프린터"_s, printers ? printers->names() : QStringList());
  cboPrinter_->setMinimumWidth(24 * fontMetrics().horizontalAdvance(u'0'));
  auto* const parts = new QHBoxLayout;
  parts->setSpacing(10);
  parts->addWidget(list1_);
  parts->addWidget(panel, 1, Qt::AlignTop);
  body()->addLayout(parts);
  allowResize();
  addButton("Command1", u"프린터선택(&S)"_s, [this] { store(); });
  addLeave("BtnExit", u"닫기(&X)"_s);
  on(list1_, &QListWidget::currentRowChanged, [this] { showKind(); });
  showKind();
  list1_->setFocus();
}

void FrmSetPrinter::showPage(const QString& kind) {
  chooseDocumentKind(*list1_, kind);
}

QString FrmSetPrinter::kind() const {
  return list1_->currentItem()->text();
}

void FrmSetPrinter::showKind() {
  const QString chosen = documentPrinter(context_.session, kind());
  lblChosen_->setText(chosen.isEmpty() ? u"없음 (기본프린터로 출력)"_s : chosen);
  const pc::Printers* printers = context_.session.printers;
  const int place = cboPrinter_->findText(chosen.isEmpty() && printers ? printers->defaultName() : chosen);
  if (place >= 0) cboPrinter_->setCurrentIndex(place);
}

void FrmSetPrinter::store() {
  if (cboPrinter_->currentIndex() < 0) return;
  setDocumentPrinter(context_.session, kind(), cboPrinter_->currentText());
  showKind();
}
