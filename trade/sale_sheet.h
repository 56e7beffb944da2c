#pragma once
// A sheet of the sale screen: its columns, and its rows read from the year file.
#include <QHash>

#include <vector>

#include "store/session.h"
#include "trade/sale_line.h"

/** The thirteen columns; key and customer code are hidden. */
std::vector<SpreadColumn> saleColumns(SaleSheet sheet);

/** A collection has no item, quantity, price or discount to type; other kinds have. */
void lockForKind(SpreadModel& grid, int row, SaleSheet sheet);

/** Which lines a sheet shows: those of one day, or those of one customer over this year and the last. */
struct SaleFilter {
  bool showDay = true;
  QString date;       ///< mm-dd
  qint64 client = 0;  ///< Client.Code
};

/** What a stored line holds of all that the sale screen writes, joined into one text: two of one line compare. */
QString storedSaleLine(const jet::Recordset& line);

/** By SaleID. */
using KnownLines = QHash<QString, QString>;

/**
 * Reads the sheet's lines into the grid, in order of date and entry, and leaves one empty row below them. known takes
 * each line as it was read. False after a failed query has been told; the grid is then as it was.
 */
bool loadSaleSheet(Session& session, SpreadModel& grid, SaleSheet sheet, const SaleFilter& filter,
                   KnownLines& known);
