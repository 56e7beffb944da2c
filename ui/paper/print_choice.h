#pragma once
// Which printer a report goes to and which of its pages.
#include <QString>

#include <optional>

#include "pc/print_job.h"
#include "ui/model/prompts.h"

class QWidget;

struct PrintChoice {
  QString printer;
  int first = 1, last = 1;  ///< pages, from 1
};

/** Asks; nothing when the operator leaves. remembered: the printer that is offered first when it is there. */
std::optional<PrintChoice> askPrintChoice(Prompts& prompts, const pc::Printers& printers,
                                          const QString& remembered, int pages, QWidget* parent);
