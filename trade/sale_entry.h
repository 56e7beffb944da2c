#pragma once
// What the hand does on the sale screen: a finished cell, Enter, the three searches, a caller's number. Every step
// ends in where the cursor goes.
#include <functional>

#include "master/customers/calls.h"
#include "master/customers/tel_format.h"
#include "master/registers/pickers.h"
#include "trade/sale_posting.h"

/** The end of a step. row 0: the cursor stays where it is. */
struct SaleStep {
  /** Refused: the typed text stays open. PutBack: the cell has its old text again, nothing is open. */
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

  /** Nothing of the line has been received: its whole amount is owed. Asks as any change of a stored line does, unless
   *  the line was begun where the cursor still stands. Nothing for collections and on the volume sheet. */
  SaleStep onCredit(int row);
  /** Whether the row has its customer and waits for its kind. */
  bool beginsAt(int row);
  /** The cursor came to a row: what others offered is gone, a line left is no longer one just begun. */
  void enteredRow(int row);

  /** Whether a call can land: the cursor on an empty customer cell, no search under way. */
  bool canTakeCaller(int col, const QString& cellText) const;
  /** A customer with exactly this number opens a line on his sheet; any other number is dropped into the customer cell
   *  and searched, and PutBack says that nobody was chosen. An empty number fetches the oldest waiting one; nothing
   *  when there is none. A failure leaves that one in the list. */
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
  bool acceptsText(int row, int col, const QString& typed);
  SaleStep wholly(int row, int col, const std::function<SaleStep()>& work);
  SaleStep post(int row, int col);
  SaleStep applyCell(int row, int col, const QString& before, const QString& typed);
  SaleStep changeDate(int row, const QString& typed);
  SaleStep changeKind(int row);
  SaleStep changeItem(int row, const QString& before, const QString& typed);
  SaleStep changeAmount(int row, double before, double now);
  SaleStep changeIncome(int row, double before, double now);
  SaleStep after(int row, int col);
  SaleStep chooseClient(int row, const QString& text);
  std::optional<ClientChoice> search(const QString& text, ClientSearchMode mode, bool ofCaller);
  SaleStep nobodyChosen(int row);
  bool isMetered(qint64 client);
  SaleStep beginLine(const ClientChoice& client, SaleSheet sheet);
  SaleStep findItem(int row, const QString& typed);
  SaleStep chooseItem(int row);
  SaleStep takeItem(int row, const ItemChoice& item);
  SaleStep choosePerson(int row);
  SaleStep takePerson(int row, const QString& person);
  void offerLast(int row);
  SaleStep takeOfferedItem(int row);
  void dropOffer(int row);
  SaleStep takeCaller(const TelNumber& tel);
  std::optional<bool> firstMetered(const QString& localPart);

  SalePosting& posting_;
  Pickers& pickers_;
  WaitingCalls& calls_;
  bool searching_ = false;
  int offerRow_ = 0;  ///< whose cells offer something; 0 for none
  QString begun_;     ///< SaleID of the line begun here and not yet left
};
