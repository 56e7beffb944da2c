#pragma once
// What the hand does on a line of sale or purchase: a finished cell, Enter, the searches. Every step ends in where the
// cursor goes.
#include <QScopedValueRollback>

#include <array>
#include <functional>

#include "master/registers/pickers.h"
#include "trade/line_book.h"

/** The end of a step: what the form does next. row 0: the cursor stays where it is. */
struct LineStep {
  /** Refused: the typed text stays open. PutBack: the cell has its old text again, nothing is open. */
  enum End { Done, PutBack, Refused } end = Done;
  int row = 0, col = 0;
};

/** What the hand finds different on the two screens. */
struct LineHand {
  TradeSide side;  ///< whose prices the item search shows
  /** An amount above what the line comes to, a payment above its amount: refused, or taken as typed. */
  bool capsMoney;
  std::array<int, 10> next;  ///< where the cursor goes from a finished column 1 to 10; the kind's for an item
  std::array<const char*, 11> help;     ///< by column
  std::array<const char*, 8> required;  ///< what is told of a missing cell, in the order of requiredCells
  const char* question;                 ///< before a stored line gets another partner
  const char* questionTitle;
};

class LineEntry {
 public:
  LineEntry(LineBook& book, Pickers& pickers, const LineHand& hand);
  virtual ~LineEntry() = default;
  LineEntry(const LineEntry&) = delete;
  LineEntry& operator=(const LineEntry&) = delete;

  /** A cell of the current sheet got another text. Figures come without separators. When a statement fails, the row
   *  is as it was before, and jet::Error goes on. */
  LineStep finishCell(int row, int col, const QString& typed);

  /** Enter on a cell whose text did not change. typed: what stands in it, or in its open editor. */
  LineStep enterKey(int row, int col, const QString& typed);
  /** F12: the search of the partner, item or person column; elsewhere nothing. */
  LineStep search(int row, int col, const QString& typed);

  /** Nothing of the line has been paid: its whole amount is owed. Asks as any change of a stored line does, unless
   *  the line was begun where the cursor still stands. Nothing for payments and where the meter bills. */
  LineStep onCredit(int row);
  /** Whether the row has its partner and waits for its kind. */
  bool beginsAt(int row);
  /** The cursor came to a row: what others offered is gone, a line left is no longer one just begun. */
  void enteredRow(int row);

  /** The first cell that a row in work still needs, told in a box; 0 when it may be left. */
  int missingField(int row);
  /** A row to go to below; the bottom row grows one once it holds a line. */
  void makeRoomBelow(int row);

  /** The help line of a column. */
  QString help(int col) const;

 protected:
  SpreadModel& grid() { return book_.grid(); }
  Session& session() { return book_.session(); }
  /** Whose line it is: searched, and then the bottom row opened for him or the line taken to him. */
  virtual LineStep choosePartner(int row, const QString& text) = 0;
  /** A text was typed in the partner's cell and the cell left: what becomes of it, where it is not simply blanked. */
  virtual std::optional<LineStep> partnerTyped(int, const QString&) { return {}; }
  /** Whether a search stands open over the screen. */
  bool isSearching() const { return searching_; }
  /** A search in front of the screen. */
  template <typename Search>
  auto searching(const Search& search) {
    const QScopedValueRollback<bool> busy(searching_, true);
    return search(pickers_);
  }
  /** Asks whether a stored line gets another partner. */
  bool mayChangePartner();
  /** A name only comes from the search: the cell of a line not yet begun is empty again. */
  LineStep nobodyChosen(int row);
  /** Puts a new line's partner into a row: its day, the kind it opens with, what it may repeat. */
  LineStep beginLine(int row, const QString& code, const QString& name);
  /** Place in the combo cell. */
  virtual int firstKind() const { return 0; }
  LineStep wholly(int row, int col, const std::function<LineStep()>& work);
  LineStep post(int row, int col);

 private:
  const LineKind& kindOf(int row) { return book_.kindOf(row); }
  bool hasDay(int row);
  bool acceptsText(int row, int col, const QString& typed);
  LineStep applyCell(int row, int col, const QString& before, const QString& typed);
  LineStep changeDate(int row, const QString& typed);
  LineStep changeKind(int row);
  LineStep changeItem(int row, const QString& before, const QString& typed);
  LineStep changeAmount(int row, double before, double now);
  LineStep changePaid(int row, double before, double now);
  LineStep refuseMoney(int row, int col, double before);
  LineStep after(int row, int col);
  LineStep findItem(int row, const QString& typed);
  LineStep chooseItem(int row);
  LineStep takeItem(int row, const ItemChoice& item);
  LineStep choosePerson(int row);
  LineStep takePerson(int row, const QString& person);
  void offerLast(int row);
  LineStep takeOfferedItem(int row);
  void dropOffer(int row);

  LineBook& book_;
  Pickers& pickers_;
  const LineHand& hand_;
  bool searching_ = false;
  int offerRow_ = 0;  ///< whose cells offer something; 0 for none
  QString begun_;     ///< key of the line begun here and not yet left
};
