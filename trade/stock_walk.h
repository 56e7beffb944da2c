#pragma once
// The stock in and out of a period: from what stands in the catalogue today back through every line since the period's
// first day. It reads the lines and today's counts alone, so it runs with stock management off as well.
#include <functional>
#include <optional>
#include <vector>

#include "store/session.h"

enum class StockWalkOf {
  Gas,       ///< full cylinders, and cylinders of the yard full or empty
  Materials  ///< fittings; the cylinders' figures stay 0
};

/** One item of the catalogue; pieces throughout, of gas full cylinders and never kilograms. */
struct StockInOut {
  QString name, size;
  qint64 opening = 0, bought = 0, sold = 0, closing = 0;
  qint64 canOpening = 0, canBought = 0, canSold = 0, canLent = 0, canReturned = 0, canClosing = 0;
};

/**
 * What moved from start to end ("yyyy-mm-dd"), every item of the catalogue, and both ends of the walk; told says how many
 * items are done. Leaves TmpLPGCAN (the lines) and TmpLPGCANStock (the figures) of the open year's file filled, both
 * emptied first, in one group: another PC's walk does not mix in. A period that begins in an earlier year takes that
 * year's file along. Nothing after a failure has been told; the tables are then empty.
 */
std::optional<std::vector<StockInOut>> walkStock(Session& session, StockWalkOf what, const QString& start,
                                                 const QString& end,
                                                 const std::function<void(int done, int all)>& told = {});
