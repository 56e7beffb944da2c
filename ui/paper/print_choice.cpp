#include "ui/paper/print_choice.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <algorithm>

#include "ui/forms/dialog.h"
#include "ui/forms/fields.h"

using namespace Qt::StringLiterals;

std::optional<PrintChoice> askPrintChoice(Prompts& prompts, const pc::Printers& printers,
                                          const QString& remembered, int pages, QWidget* parent) {
  Dialog dialog(u"PrintChoice"_s, u"인쇄"_s, prompts, parent);
  auto* const range = new QWidget;
  auto* const parts = new QHBoxLayout(range);
  parts->setContentsMargins(0, 0, 0, 0);
  const auto page = [&](const char* name, int value, const QString& unit) {
    auto* const box = new QSpinBox;
    box->setObjectName(QString::fromLatin1(name));
    box->setRange(1, pages);
    box->setValue(value);
    parts->addWidget(box);
    parts->addWidget(new QLabel(unit));
    return box;
  };
  const QSpinBox* const first = page("SpnFirst", 1, u"쪽부터"_s);
  const QSpinBox* const last = page("SpnLast", pages, u"쪽까지  (전체 %1쪽)"_s.arg(pages));
  parts->addStretch(1);

  Fields boxes(dialog.addPanel(), 1);
  QComboBox* const printer = boxes.combo("CboPrinter", u"프린터"_s, printers.names());
  const int before = printer->findText(remembered);
  printer->setCurrentIndex(std::max(0, before >= 0 ? before : printer->findText(printers.defaultName())));
  boxes.add(u"범위"_s, range);
  dialog.addDefault("BtnPrint", u"인쇄"_s, [&] { dialog.accept(); });
  dialog.addLeave("BtnCancel", u"취소"_s);

  if (dialog.exec() != QDialog::Accepted || printer->currentText().isEmpty()) return {};
  return PrintChoice{printer->currentText(), std::min(first->value(), last->value()),
                     std::max(first->value(), last->value())};
}
