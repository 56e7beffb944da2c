#pragma once
// What a customer had last: shown beside the sale screen's panel, and offered on a new line. Read from the open year's
// file and, where that holds too little, from the year before's.
#include <vector>

#include "store/session.h"
#include "trade/item_text.h"
#include "trade/sale_kinds.h"

/** One of a customer's last lines as it is shown to be looked at: mm-dd, label, item, pieces, what it came to and what
 *  of it is owed; of a collection what was paid and what was left. Money with separators. */
struct SaleLastLine {
  QString date, kind, item, number, amount, trust;
};

/** The newest first, over all sheets, at most so many. client: Client.Code. Throws jet::Error. */
std::vector<SaleLastLine> lastSaleLines(const Session& session, const QString& client, int count);

/** What a new line may repeat. Only shown; it becomes part of a line when the operator takes it. */
struct SaleOffer {
  ItemText item;    ///< of his last line of the kind; empty where the catalogue has it no longer
  double unit = 0;  ///< won a piece, as he paid last
  QString person;   ///< of his last line that names one; '' for one who is no longer with the shop
};

/** Empty for a customer without such lines; a collection has a person alone. Throws jet::Error. */
SaleOffer lastSaleOffer(Session& session, SaleSheet sheet, int kind, const QString& client);
