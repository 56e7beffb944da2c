#pragma once
// A report to a printer: the question for printer and pages, progress, a way to stop.
#include <functional>
#include <optional>

#include "pc/report.h"
#include "ui/paper/print_choice.h"

class QWidget;
struct Session;

/** Asks for printer and pages; nothing when the operator leaves. The printer used last for a report is offered first. A
 *  test puts its own in its place. */
using PrintChooser = std::function<std::optional<PrintChoice>(Session& session, int pages, QWidget* parent)>;
PrintChooser& printChooser();

/** False when the operator leaves or stops it. Throws pc::PrintError when the printer does not take it. */
bool askAndPrint(Session& session, const pc::Report& report, const QString& title, QWidget* parent);
bool printTo(Session& session, const pc::Report& report, const QString& title, const QString& printer,
             pc::ReportRange range, QWidget* parent);
