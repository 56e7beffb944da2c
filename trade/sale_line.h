#pragma once
// One row of a sale sheet read as figures.
#include "trade/item_text.h"
#include "trade/sale_kinds.h"
#include "ui/model/spread_model.h"

/** The thirteen columns of every sale sheet. */
namespace SaleCol {
enum {
  Date = 1,  ///< mm-dd
  Client,    ///< display name
  Kind,
  Item,
  Number,
  Unit,
  Discount,
  Amount,
  Income,
  Trust,
  Person,
  Key,   ///< SaleID, hidden
  Code,  ///< ClientCode, hidden
};
}

struct SaleLine {
  QString date;  ///< "yyyy-mm-dd"
  int kind = SaleGas;
  ItemText item;
  qint64 number = 0;                                     ///< pieces
  double unit = 0, discount = 0, income = 0, trust = 0;  ///< won
  QString person, key, code;
};

/** year: the four digits put before the row's mm-dd. Empty cells read as 0. */
SaleLine readSaleLine(const SpreadModel& grid, int row, SaleSheet sheet, int year);

/** A cell's figure, separators taken off; '' is 0. */
double saleFigure(const QString& cell);
/** The same as a whole number, a half going to the even side. */
qint64 saleWhole(const QString& cell);
/** A figure as the cells and the statements carry it. */
QString saleText(double figure);

/** The item cell of a collection, '' for other kinds. */
QString collectionItem(int kind);
