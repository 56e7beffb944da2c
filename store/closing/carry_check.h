#pragma once
// Whether a closing carried everybody: what each customer's December came to against what January brings in.
#include <QString>
#include <vector>

#include "store/jet/database.h"

/** Won; nothing where the book has no such row. */
struct CarriedBill {
  qint64 code = 0;
  QString name;
  std::optional<double> december;  ///< Total of month 12
  std::optional<double> january;   ///< Trust of month 1 of the next year
};

struct CarryCheck {
  int customers = 0;  ///< with a December row
  std::vector<CarriedBill> differing;
};

/** By the two years' files. A customer without December has to bring in nothing. Throws jet::Error. */
CarryCheck checkCarry(const jet::Database& year, const jet::Database& next);
