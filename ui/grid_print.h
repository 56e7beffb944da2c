#pragma once
// A grid on paper: title, header, the shown columns' rows over as many pages as they need, page numbers.
#include <QString>

#include <functional>

class QPrinter;
class QWidget;
class SpreadModel;
struct Session;

/** Lets the operator choose a printer or a PDF file; False when he leaves. A test puts its own in its place. */
using PrinterChooser = std::function<bool(QPrinter& printer, QWidget* parent)>;
PrinterChooser& printerChooser();

/** Prints the rows that hold data, up to the grid's last one. False after telling that there is nothing to print or
 *  that the printer does not take it, or when the operator leaves. */
bool PrintGrid(Session& session, const SpreadModel& grid, const QString& title, QWidget* parent);
