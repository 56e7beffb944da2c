#pragma once
// What the sale screen writes: a grid row becomes a line of Sale, moves the customer's balance and the stock.
// Every finished cell is written at once; no line is ever saved by a button.
#include <array>
#include <functional>
#include <optional>

#include "trade/sale_history.h"
#include "trade/sale_sheet.h"
#include "trade/sale_stock.h"

/** The customer of the current row, as the panel above the grid shows him. Money with separators. */
struct SaleClientPanel {
  qint64 code = 0;
  QString address, tel, gasTrust, utilTrust, lastDate, memo, map;
};

/** Thrown before anything is written: the line is not the one that this screen shows. */
struct SaleLineMoved {
  enum How { Deleted, Changed } how;
};

/** The three sheets with the day they show. Failed statements throw jet::Error unless told otherwise. */
class SalePosting {
 public:
  explicit SalePosting(Session& session);

  Session& session() { return session_; }
  SpreadModel& grid(SaleSheet sheet) { return grids_[size_t(sheet)]; }
  SaleSheet sheet() const { return sheet_; }

  /** The screen's day, mm-dd; '' after a wrong one was typed. */
  const QString& date() const { return date_; }
  /** Takes a typed day; a wrong one is told, and the day becomes ''. */
  bool setDate(const QString& typed);
  /** A typed day as mm-dd; '' after telling that it is wrong. */
  QString checkedDate(const QString& typed);

  /** Loads a sheet and makes it the current one. showDay: the lines of the screen's day, else those of the customer
   *  chosen last. False after a failed query has been told; the current sheet then stays. */
  bool FillSaleGrid(SaleSheet sheet, bool showDay);
  /** The current sheet once more, day or customer as it was. */
  bool refill() { return FillSaleGrid(sheet_, showDay_); }
  void setClient(qint64 code) { client_ = code; }
  /** Runs before a sheet is loaded: no editor may stand open on rows that go, or on a sheet that is left. */
  std::function<void()> beforeFill;

  /** Writes one row: its skeleton the first time and nothing else, from then on its figures, the customer's
   *  balance, the stock and his last date. A step that fails leaves those before it done. Throws SaleLineMoved where
   *  another PC has deleted or changed the line since it was loaded: nothing is then written. */
  void PostSaleRow(int row, SaleSheet sheet);
  void ApplySaleStock(int row, StockMode mode);
  /** Amount and credit from quantity, price, discount and income; on the volume sheet both are 0. */
  void RecalcSaleRow(int row, SaleSheet sheet);
  /** The money cells after a change of kind; a collection opens with the customer's whole balance. */
  void ResetSaleRow(int row, SaleSheet sheet);
  /** Takes the row of the current sheet off its customer's balance. */
  void ReverseSaleBalance(int row, const QString& label);
  /** Asks, takes the line off balance and stock and out of the book, loads the sheet again. False: it stays. A line
   *  that another PC has deleted or changed is told and the sheet loaded again, nothing else. */
  bool deleteRow(int row);
  /** Tells why nothing was written, and loads the sheet again. */
  void tellMoved(const SaleLineMoved& moved);

  /** Whether the row's line is in the book; nothing where the book cannot be asked. Nothing is told. */
  std::optional<bool> isStored(int row);

  /** The delivery person alone; nothing unless line and person are there. Throws as PostSaleRow does. */
  void postPerson(int row);

  /** What this screen knows of the row's line: all that it may write, as it was loaded or last written here. Put
   *  back when the group that wrote it could not be kept. */
  QString known(int row) { return known_.value(keyOf(row)); }
  void setKnown(int row, const QString& line) { known_[keyOf(row)] = line; }

  /** '' texts for a row without a customer. */
  SaleClientPanel panel(int row);
  /** The newest five lines of the row's customer. */
  std::vector<SaleLastLine> lastLines(int row);

 private:
  int year() const { return session_.pc.clock.today().year(); }
  SaleLine lineOf(int row, SaleSheet sheet) { return readSaleLine(grid(sheet), row, sheet, year()); }
  QString keyOf(int row) { return grid(sheet_).text(row, SaleCol::Key); }
  void insertSkeleton(int row, SaleSheet sheet, const SaleLine& line);
  void requireUnmoved(const QString& key);
  void learn(const QString& key);
  void moveBalance(SaleSheet sheet, const SaleLine& line, qint64 oldTrust, qint64 oldIncome);
  void updateLine(SaleSheet sheet, const SaleLine& line);

  Session& session_;
  std::array<SpreadModel, 3> grids_;
  KnownLines known_;  ///< of the current sheet
  SaleSheet sheet_ = SaleSheet::General;
  QString date_;
  bool showDay_ = true;
  qint64 client_ = 0;
};
