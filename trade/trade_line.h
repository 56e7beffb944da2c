#pragma once
// One row of a sheet of sales or purchases read as figures.
#include "trade/item_text.h"
#include "trade/line_kinds.h"
#include "ui/model/spread_model.h"

/** The thirteen columns of every sheet. */
namespace LineCol {
enum {
  Date = 1,  ///< mm-dd
  Partner,   ///< the customer's display name, the station's name
  Kind,
  Item,
  Number,
  Unit,
  Discount,
  Amount,
  Paid,   ///< received from the customer, paid to the station
  Trust,  ///< left on credit
  Person,
  Key,   ///< SaleID or BuyID, hidden
  Code,  ///< what the line's table holds of the partner: ClientCode, BuyCompany; hidden
};
}

struct TradeLine {
  QString date;  ///< "yyyy-mm-dd"
  const LineKind* kind = nullptr;
  ItemText item;
  qint64 number = 0;                                   ///< pieces
  double unit = 0, discount = 0, paid = 0, trust = 0;  ///< won
  QString person, key, partner;
};

/** year: the four digits put before the row's mm-dd. Empty cells read as 0. */
TradeLine readLine(const SpreadModel& grid, int row, const LineKinds& kinds, int year);

/** A cell's figure, separators taken off; '' is 0. */
double lineFigure(const QString& cell);
/** The same as a whole number, a half going to the even side. */
qint64 lineWhole(const QString& cell);
/** A figure as the cells and the statements carry it. */
QString figureText(double figure);
