#pragma once
// A grid on paper.
#include <QString>

class QWidget;
class SpreadModel;
struct Session;

/** Asks for the printer and prints the rows that hold data. False after telling that there is nothing to print or that
 *  the printer does not take it, or when the operator leaves. */
bool PrintGrid(Session& session, const SpreadModel& grid, const QString& title, QWidget* parent);
