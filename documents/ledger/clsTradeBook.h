#pragma once
// The book of one side of the ledger: what was dealt with each trader day by day, and what was paid. A DealDate of day
// "00" is a month's opening balance, told by its TradeKum, and enters no sum.
#include <optional>

#include "store/jet/database.h"

/** The side a ledger object works on. */
enum class LedgerSide { Sale = 1, Purchase = 2 };

/** Won. */
struct LedgerAmounts {
  qint64 TradeKum = 0, DC = 0, VatKum = 0, SumKum = 0;
  /** Of a ledger row that has these columns. */
  static LedgerAmounts of(const jet::Recordset& row);
  LedgerAmounts operator-(const LedgerAmounts& other) const;
};

/** Operations on SaleBook or PurchBook; each fails softly, as clsTrader's do. */
class clsTradeBook {
 public:
  /** db: the year's file. */
  clsTradeBook(jet::Database db, LedgerSide side) : db_(std::move(db)), side_(side) {}

  QString CCode = {}, CName = {}, DealDate = {};
  qint64 TradeKum = 0;

  /** A row of CCode, CName, DealDate and TradeKum. */
  bool Add() const;
  std::optional<jet::Recordset> Read(const QString& code) const;
  /** Moves the row of CCode and DealDate by a difference. False also where there is no such row. */
  bool Adjust(const LedgerAmounts& by) const;
  /** All rows of CCode; with DealDate set that day's alone. */
  bool Delete() const;
  /** What a trader owed when the date's month began: the year's opening row and, from February on, what was dealt and
   *  paid before the month. Nothing where there is no book. */
  std::optional<qint64> PeriodBalance(const QString& code, const QString& date) const;
  std::optional<jet::Recordset> OpeningRows(const QString& year) const;

 private:
  QString table() const { return side_ == LedgerSide::Sale ? "SaleBook" : "PurchBook"; }
  std::optional<jet::Recordset> open(const QString& sql) const;

  jet::Database db_;
  LedgerSide side_;
};
