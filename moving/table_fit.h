#pragma once
// The rows of an old table and the table they go into: its columns found by name, widened where a value would not fit, its
// values made into ours. Nothing is cut, rounded or left out in silence.
#include <QStringList>

#include "moving/jet_file.h"
#include "store/jet/database.h"

namespace moving {

struct FittedTable {
  jet::TableDef table;         ///< ours, wide enough for every value
  std::vector<int> from = {};  ///< by field of ours: the old column, -1 where there was none
  std::vector<std::vector<jet::Value>> rows = {};  ///< by field of ours that has an old column
  QStringList notes = {};
  QStringList renumbered =
      {};  ///< rows whose automatic number was missing or stood before, with their new one
  QStringList unknownColumns = {};  ///< the old table's that we do not know, with how many values they hold
};

FittedTable fit(const jet::TableDef& ours, const OldTable& old, const std::vector<OldRow>& rows);

/** Writes the rows into the new table and compares what is stored with what was read: rows, values that are not Null,
 *  sums of numbers, lengths of texts. Throws jet::Error 3146 where they differ. */
void store(const jet::Database& file, const FittedTable& fitted);

}  // namespace moving
