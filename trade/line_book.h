#pragma once
// What the screens of sale and purchase share in writing: a grid row becomes a line of the book, moves the partner's
// balance and the stock, all by difference. Every finished cell is written at once; no line is ever saved by a button.
// The statements themselves stand in the books, sale_book and buy_book.
#include <QHash>

#include <optional>
#include <vector>

#include "store/session.h"
#include "trade/line_history.h"
#include "trade/line_stock.h"
#include "trade/line_table.h"
#include "trade/trade_line.h"

/** The thirteen columns of a sheet under their headers; key and partner code are hidden. */
std::vector<SpreadColumn> lineColumns(const LineKinds& kinds, const QStringList& headers);

/** Thrown before anything is written: the line is not the one that this screen shows, or whom a new one is for is no
 *  longer there under that name. */
struct LineMoved {
  enum How { Deleted, Changed, PartnerGone } how;
};

/** A figure that a running balance is moved by: up or down by the text of an expression ("3000 - 2000"). */
struct BalanceMove {
  LineBalance balance;
  bool up;
  QString by;
};

/** One screen's book: its sheets with the day they show. Failed statements throw jet::Error unless told otherwise. */
class LineBook {
 public:
  LineBook(Session& session, LineTable table);
  virtual ~LineBook() = default;
  LineBook(const LineBook&) = delete;
  LineBook& operator=(const LineBook&) = delete;

  Session& session() { return session_; }
  /** The current sheet and what its lines can be. */
  SpreadModel& grid() { return *grid_; }
  const LineKinds& kinds() const { return *kinds_; }
  const LineKind& kindOf(int row) { return kindAt(kinds(), grid().comboPosition(row, LineCol::Kind)); }
  /** Whether the lines of the current sheet carry no amount of their own: the meter bills them. */
  virtual bool metered() const { return false; }

  /** The screen's day, mm-dd; '' after a wrong one was typed. */
  const QString& date() const { return date_; }
  /** Takes a typed day; a wrong one is told, and the day becomes ''. */
  bool setDate(const QString& typed);
  /** A typed day as mm-dd; '' after telling that it is wrong. */
  QString checkedDate(const QString& typed);

  /** The current sheet once more, the same lines as before. False after a failed query has been told. */
  virtual bool refill() = 0;

  /** Writes one row: its skeleton the first time and nothing else, from then on the partner's balance, the stock and
   *  its figures, in one group. Throws LineMoved where another PC has deleted or changed the line since it was loaded:
   *  nothing is then written. */
  void postRow(int row);
  /** The stock by the line against what the book holds of it. */
  void applyStock(const TradeLine& line, StockMode mode);
  /** Amount and credit from quantity, price, discount and payment; both are 0 where the meter bills. */
  void recalcRow(int row);
  /** The money cells after a change of kind; a payment opens with the partner's whole balance. */
  void resetRow(int row);
  /** Asks, takes the line off balance and stock and out of the book, loads the sheet again. False: it stays. A line
   *  that another PC has deleted or changed is told and the sheet loaded again, nothing else. */
  bool deleteRow(int row);
  /** Tells why nothing was written, and loads the sheet again. */
  void tellMoved(const LineMoved& moved);

  /** Whether the row's line is in the book; nothing where the book cannot be asked. Nothing is told. */
  std::optional<bool> isStored(int row);

  /** The person alone; nothing unless line and person are there. Throws as postRow does. */
  void postPerson(int row);

  /** What this screen knows of the row's line: all that it may write, as it was loaded or last written here. Put
   *  back when the group that wrote it could not be kept. */
  QString known(int row) { return known_.value(keyOf(row)); }
  void setKnown(int row, const QString& line) { known_[keyOf(row)] = line; }

  /** The newest five lines of the row's partner. */
  std::vector<LastLine> lastLines(int row);
  /** What a new line of the row's partner and kind may repeat. */
  LineOffer offer(int row, TradeSide side);

 protected:
  /** Makes a sheet the current one, as it stands. */
  void setSheet(SpreadModel& grid, const LineKinds& kinds);
  /** Reads the statement's lines into the grid, one empty row below them, and makes it the current one. False after a
   *  failed query has been told; grid and current sheet are then as they were. */
  bool load(SpreadModel& grid, const LineKinds& kinds, const QString& statement);
  int year() const { return session_.pc.clock.today().year(); }
  jet::Database& db() { return session_.dbYear; }

  // --- the book's own statements; key: SaleID or BuyID -------------------------------------------------------
  /** Of a loaded line, as column 2 shows it. */
  virtual QString partnerName(const jet::Recordset& line) const = 0;
  /** Writes a line without figures. What it answers is the statement that tells the new key. */
  virtual QString insertSkeleton(const TradeLine& line) = 0;
  virtual QString lineStatement(const QString& key) const = 0;
  /** Credit and payment of the stored line. */
  virtual QString moneyStatement(const QString& key) const = 0;
  virtual QString balanceStatement(LineBalance balance, const QString& partner) const = 0;
  virtual void moveBalance(const BalanceMove& move, const QString& partner) = 0;
  virtual void updateLine(const TradeLine& line) = 0;
  virtual void updatePerson(const QString& key, const QString& person) = 0;
  virtual void deleteLine(const QString& key) = 0;
  /** Whether a line is written before it has an item. */
  virtual bool writesWithoutItem() const = 0;
  /** A further condition on the lines whose item a new line of the current sheet is offered. */
  virtual QString offeredFrom() const { return {}; }

  Session& session_;

 private:
  QString keyOf(int row) { return grid().text(row, LineCol::Key); }
  TradeLine lineOf(int row) { return readLine(grid(), row, kinds(), year()); }
  jet::Recordset requireUnmoved(const QString& key);
  void requirePartner(const QString& partner);
  void learn(const QString& key);
  QString written(const jet::Recordset& line) const;
  void moveByDifference(const TradeLine& line, const QString& storedPartner);
  void reverseBalance(int row);
  std::vector<QString> rowOf(const jet::Recordset& line, const LineKinds& kinds) const;
  void lockForKind(SpreadModel& grid, int row, const LineKinds& kinds) const;

  const LineTable table_;
  const QStringList writtenColumns_;
  SpreadModel* grid_ = nullptr;
  const LineKinds* kinds_ = nullptr;
  QHash<QString, QString> known_;  ///< of the current sheet, by key
  QString date_;
};
