#include "papers/FrmSetPrinter.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "master/registers/form_context.h"
#include "papers/form_document_kinds.h"

using namespace Qt::StringLiterals;

FrmSetPrinter::FrmSetPrinter(FormContext& context, QWidget* parent) : QDialog(parent), context_(context) {
  setObjectName(u"FrmSetPrinter"_s);
  setWindowTitle(u"프린트 드라이버 설정"_s);
  const pc::Printers* printers = context_.session.printers;
  list1_ = documentKindList();
  auto* standard =
      new QLabel(printers && !printers->defaultName().isEmpty() ? printers->defaultName() : u"없음"_s);
  standard->setObjectName(u"Spn기본프린터"_s);
  standard->setProperty("role", u"value"_s);
  standard->setTextFormat(Qt::PlainText);
  lblChosen_ = new QLabel;
  lblChosen_->setObjectName(u"LblChosen"_s);
  lblChosen_->setProperty("role", u"value"_s);
  lblChosen_->setTextFormat(Qt::PlainText);
  cboPrinter_ = new QComboBox;
  cboPrinter_->setObjectName(u"CboPrinter"_s);
  cboPrinter_->setMinimumWidth(24 * fontMetrics().horizontalAdvance(u'0'));
  if (printers) cboPrinter_->addItems(printers->names());
  auto* choose = new QPushButton(u"프린터선택(&S)"_s);
  choose->setObjectName(u"Command1"_s);
  auto* exit = new QPushButton(u"닫기(&X)"_s);
  exit->setObjectName(u"BtnExit"_s);
  for (QPushButton* each : {choose, exit}) each->setAutoDefault(false);

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 14, 16, 14);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(8);
  grid->addWidget(list1_, 0, 0, 5, 1);
  const auto pair = [&](int row, const QString& label, QWidget* box) {
    grid->addWidget(new QLabel(label), row, 1, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(box, row, 2);
  };
  pair(0, u"기본프린터"_s, standard);
  pair(1, u"현재 설정"_s, lblChosen_);
  pair(2, u"설치된 프린터"_s, cboPrinter_);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(8);
  buttons->addStretch();
  buttons->addWidget(choose);
  buttons->addWidget(exit);
  grid->setRowStretch(3, 1);
  grid->addLayout(buttons, 4, 1, 1, 2);
  grid->setColumnStretch(2, 1);
  connect(list1_, &QListWidget::currentRowChanged, this, [this] { showKind(); });
  connect(choose, &QPushButton::clicked, this, [this] { store(); });
  connect(exit, &QPushButton::clicked, this, &QDialog::reject);
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
