#pragma once
// Sale and Buy hold the same of a line under other names.
#include <QStringList>

#include "trade/line_kinds.h"

/** The names; DC, Trust and Response are the same in both. */
struct LineTable {
  QString table;
  QString key, date, partner, kind, name, size, number, unit, paid;
  QString partnerGone;         ///< what is told of a new line whose partner is not in the books any more
  bool partnerIsText = false;  ///< a station goes by its name
  QString sheetColumn = {};    ///< what else a row's own sheet is told by; '' for none
  const LineKind& (*kindOf)(int code) = nullptr;

  /** All that a screen writes of a line. */
  QStringList written() const {
    QStringList columns = {date, partner, kind, name, size, number, unit, "DC", paid, "Trust", "Response"};
    if (!sheetColumn.isEmpty()) columns << sheetColumn;
    return columns;
  }
};
