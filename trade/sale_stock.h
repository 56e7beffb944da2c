#pragma once
// What a sale line does to the stock of the catalogue.
#include "store/session.h"
#include "trade/sale_line.h"

/** Change: the row as it stands now against the stored line, which may be a skeleton without figures.
 *  Delete: the stored line goes. */
enum class StockMode { Change = 2, Delete = 3 };

/**
 * Moves LPG (kilograms and pieces) or Util by the line's effect, nothing with stock management off, for collections
 * and for a line without an item. The item named in the row now is moved; an earlier item of a changed row is
 * on purpose not given its stock back. No check that the item is in the catalogue. Throws jet::Error.
 */
void ApplySaleStock(Session& session, const SaleLine& line, StockMode mode);
