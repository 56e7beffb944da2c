#pragma once
// What the hand does on the sale screen: a finished cell, Enter, the three searches, a caller's number. Every step
// ends in where the cursor goes.
#include "master/calls.h"
#include "master/pickers.h"
#include "trade/sale_posting.h"

/** The end of a step. row 0: the cursor stays where it is. */
struct SaleStep {
  /** Refused: the typed text stays open. PutBack: the cell has its old text again. */
  enum End { Done, PutBack, Refused } end = Done;
  int row = 0, col = 0;
};

class SaleEntry {
 public:
  SaleEntry(SalePosting& posting, Pickers& pickers, WaitingCalls& calls);

  /** A cell of the current sheet got another text. Figures come without separators. When a statement fails, the row
   *  is as it was before, and jet::Error goes on. */
  SaleStep finishCell(int row, int col, const QString& typed);

  /** Enter on a cell whose text did not change. typed: what stands in it, or in its open editor. */
  SaleStep enterKey(int row, int col, const QString& typed);
  /** F12: the search of the customer, item or person column; elsewhere nothing. */
  SaleStep search(int row, int col, const QString& typed);

  /** Whether a call can land: the cursor on an empty customer cell, no search under way. */
  bool canTakeCaller(int col, const QString& cellText) const;
  /** Drops a number into the customer cell, on the sheet of its customer, and searches him. An empty number fetches
   *  the oldest waiting one; nothing when there is none. */
  std::optional<SaleStep> TakeCallerNumber(const QString& number);

  /** The first cell that a row in work still needs, told in a box; 0 when it may be left. */
  int missingField(int row);
  /** A row to go to below; the bottom row grows one once it holds a line. */
  void makeRoomBelow(int row);

  /** The help line of a column. */
  static QString help(int col);

 private:
  SpreadModel& grid() { return posting_.grid(posting_.sheet()); }
  int kindOf(int row);
  bool hasDay(int row);
  bool acceptsText(int col, const QString& typed);
  SaleStep applyCell(int row, int col, const QString& before, const QString& typed);
  SaleStep changeDate(int row, const QString& typed);
  SaleStep changeKind(int row);
  SaleStep changeAmount(int row, double before, double now);
  SaleStep changeIncome(int row, double before, double now);
  void recalculate(int row);
  SaleStep after(int row, int col);
  SaleStep chooseClient(int row, const QString& text, bool wholeNumber);
  SaleStep chooseItem(int row);
  SaleStep choosePerson(int row);

  SalePosting& posting_;
  Pickers& pickers_;
  WaitingCalls& calls_;
  bool searching_ = false;
};
