#include "ui/paper/print_choice.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QSpinBox* pageBox(QDialog& dialog, const char* name, int pages, int value) {
  auto* const box = new QSpinBox(&dialog);
  box->setObjectName(QString::fromLatin1(name));
  box->setRange(1, pages);
  box->setValue(value);
  return box;
}

}  // namespace

std::optional<PrintChoice> askPrintChoice(const pc::Printers& printers, const QString& remembered, int pages,
                                          QWidget* parent) {
  QDialog dialog(parent);
  dialog.setObjectName(u"PrintChoice"_s);
  dialog.setWindowTitle(u"인쇄"_s);
  auto* const printer = new QComboBox(&dialog);
  printer->setObjectName(u"CboPrinter"_s);
  printer->addItems(printers.names());
  const int before = printer->findText(remembered);
  printer->setCurrentIndex(std::max(0, before >= 0 ? before : printer->findText(printers.defaultName())));
  QSpinBox* const first = pageBox(dialog, "SpnFirst", pages, 1);
  QSpinBox* const last = pageBox(dialog, "SpnLast", pages, pages);

  auto* const range = new QHBoxLayout;
  range->addWidget(first);
  range->addWidget(new QLabel(u"쪽부터"_s, &dialog));
  range->addWidget(last);
  range->addWidget(new QLabel(u"쪽까지  (전체 %1쪽)"_s.arg(pages), &dialog));
  range->addStretch(1);
  auto* const fields = new QFormLayout;
  fields->addRow(u"프린터"_s, printer);
  fields->addRow(u"범위"_s, range);

  QDialogButtonBox buttons;
  buttons.addButton(u"인쇄"_s, QDialogButtonBox::AcceptRole)->setDefault(true);
  buttons.addButton(u"취소"_s, QDialogButtonBox::RejectRole);
  QObject::connect(&buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(&buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  auto* const whole = new QVBoxLayout(&dialog);
  whole->addLayout(fields);
  whole->addSpacing(8);
  whole->addWidget(&buttons);

  if (dialog.exec() != QDialog::Accepted || printer->currentText().isEmpty()) return {};
  return PrintChoice{printer->currentText(), std::min(first->value(), last->value()),
                     std::max(first->value(), last->value())};
}
