#pragma once
// The grid's context menu: row height, font size, back to the design, copy and spreadsheet.
class Form;
class QPoint;
class Spread;

void showGridMenu(Form& form, Spread& grid, const QPoint& place);
