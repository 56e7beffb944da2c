#pragma once
// What a line does to the stock of the catalogue.
#include "store/session.h"
#include "trade/trade_line.h"

/** What the book holds of the line: pieces, and kilograms of one. A skeleton has none. */
struct StoredPieces {
  double number = 0, size = 0;
};

/** Whether the line's kind moves the stock at all: not with stock management off, nor for a payment or a line without
 *  an item. */
bool movesStock(const Session& session, const TradeLine& line);

/**
 * Moves LPG (kilograms and pieces) or Util by the effects of such a line's kind. The item named in the row now is moved;
 * an earlier item of a changed row is on purpose not given its stock back. No check that the item is in the catalogue.
 * Throws jet::Error.
 */
void ApplyLineStock(Session& session, const TradeLine& line, const StoredPieces& stored, StockMode mode);
