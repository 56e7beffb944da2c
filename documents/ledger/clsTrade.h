#pragma once
// The lines of one side of the ledger, and the one query over this system's own sale lines: what of them is to be
// invoiced.
#include "documents/ledger/clsTradeBook.h"

/** How sale lines are gathered into invoices; also the register's Section. */
enum class TaxGathering { Monthly = 0, Daily = 1, Period = 2 };

/** Operations on Sale or Purchase; each fails softly, as clsTrader's do. */
class clsTrade {
 public:
  clsTrade(jet::Database db, LedgerSide side) : db_(std::move(db)), side_(side) {}

  QString Code = {};

  std::optional<jet::Recordset> Read() const;
  /** The row of Code; empty where there is none. */
  std::optional<jet::Recordset> ReadLine() const;
  bool Delete() const;
  /** The free lines with a price, added up by customer and by month (SDealDate "yyyy-MM") or day. An error of the
   *  statement goes on. */
  jet::Recordset TaxQuery(const QString& from, const QString& to, TaxGathering kind) const;

 private:
  QString table() const { return side_ == LedgerSide::Sale ? "Sale" : "Purchase"; }

  jet::Database db_;
  LedgerSide side_;
};
