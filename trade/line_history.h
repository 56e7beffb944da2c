#pragma once
// What a customer or a station had last: shown beside the screen's panel, and offered on a new line. Read from the open
// year's file and, where that holds too little, from the year before's.
#include <vector>

#include "master/registers/pickers.h"
#include "store/session.h"
#include "trade/item_text.h"
#include "trade/line_table.h"

/** One of a partner's last lines as it is shown to be looked at: mm-dd, label, item, pieces, what it came to and what
 *  of it is owed; of a payment what was paid and what was left. Money with separators. */
struct LastLine {
  QString date, kind, item, number, amount, trust;
};

/** The newest first, over all sheets, at most so many. partner: what the table holds of him. Throws jet::Error. */
std::vector<LastLine> lastLinesOf(const Session& session, const LineTable& table, const QString& partner,
                                  int count);

/** What a new line may repeat. Only shown; it becomes part of a line when the operator takes it. */
struct LineOffer {
  ItemText item;    ///< of the last line of the kind; empty where the catalogue has it no longer
  double unit = 0;  ///< won a piece, as it was last
  QString person;   ///< of the last line that names one; '' for one who is no longer with the shop
};

/** Empty for a partner without such lines; a payment has a person alone. which: a further condition on the lines whose
 *  item is offered. Throws jet::Error. */
LineOffer lastOffer(Session& session, const LineTable& table, TradeSide side, const LineKind& kind,
                    const QString& partner, QStringView which);
