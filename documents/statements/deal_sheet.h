#pragma once
// The list of sale lines that statements are issued from.
#include "ui/model/spread_model.h"

namespace DealCol {
enum : int {
  Date = 1,  ///< on the first line of a date only
  Client,    ///< on the first line of a date, or of a customer inside it
  Item,
  Norm,
  Quantity,
  Price,
  Amount,
  Tick,
  Code,  ///< the sale line's SaleID; '' on a line that is none
  Day,   ///< on every line
  ClientCode,
  ClientName,
  MainCode,  ///< the SaleID again
  Discount,
};
}

/** tabSection's two pages. */
enum class DealTab { Pending = 1, Issued = 2 };

std::vector<SpreadColumn> dealColumns();
