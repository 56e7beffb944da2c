#pragma once
// What a text typed in a line's item cell means in the catalogue.
#include <vector>

#include "master/registers/pickers.h"
#include "store/session.h"
#include "trade/line_kinds.h"

/** The items that a line of the kind may name and the text fits: those of exactly this "name / size"; else those of
 *  this size ("50"); else those of this name. Blanks around and case do not count. Empty for kinds without an item and
 *  after a failed query has been told. */
std::vector<ItemChoice> lineItemsNamed(Session& session, const LineKind& kind, TradeSide side,
                                       const QString& typed);
