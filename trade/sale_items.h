#pragma once
// What a text typed in a line's item cell means in the catalogue.
#include <vector>

#include "master/registers/pickers.h"
#include "store/session.h"

/** The items that a sale line of the kind may name and the text fits: those of exactly this "name / size"; else those
 *  of this size ("50"); else those of this name. Blanks around and case do not count. Empty for kinds without an item
 *  and after a failed query has been told. */
std::vector<ItemChoice> saleItemsNamed(Session& session, int kind, const QString& typed);
