#include "trade/line_entry.h"

#include "trade/line_items.h"
#include "ui/model/row_backup.h"

namespace {

constexpr qint64 largestLineFigure = 999999999;  ///< won or pieces in one cell, computed ones too

bool isLineFigure(int col) {
  return col >= LineCol::Number && col <= LineCol::Trust;
}

/** A row's cells before a step, to be put back when a statement fails. The key stays while its line is there: a
 *  skeleton once written is the row's own. Where the store could not keep it, the key goes too, or the row would next
 *  write on whatever line gets that number. */
class LineRowBefore {
 public:
  LineRowBefore(LineBook& book, int row)
      : book_(book),
        row_(row),
        cells_(book.grid(), row, LineCol::Code),
        known_(book.known(row)),
        hadKey_(!key().isEmpty()) {}
  void keep() { cells_.stored(); }
  void putBack() {
    if (!known_.isEmpty()) book_.setKnown(row_, known_);
    // A disk that is silent about a stored line has not lost it: without its key it would be written once more.
    const QString own = book_.isStored(row_).value_or(hadKey_) ? key() : QString();
    cells_.putBack();
    book_.grid().setText(row_, LineCol::Key, own);
  }

 private:
  const QString& key() const { return book_.grid().text(row_, LineCol::Key); }

  LineBook& book_;
  int row_;
  RowBackup cells_;
  QString known_;
  bool hadKey_;
};

struct RequiredCell {
  int col;
  bool ofPayment;  ///< a payment has no such cell otherwise
};

constexpr RequiredCell requiredCells[] = {
    {LineCol::Date, true},    {LineCol::Partner, true}, {LineCol::Kind, true},      {LineCol::Item, true},
    {LineCol::Number, false}, {LineCol::Unit, false},   {LineCol::Discount, false}, {LineCol::Paid, true},
};

}  // namespace

LineEntry::LineEntry(LineBook& book, Pickers& pickers, const LineHand& hand)
    : book_(book), pickers_(pickers), hand_(hand) {}

LineStep LineEntry::finishCell(int row, int col, const QString& typed) {
  if (!acceptsText(row, col, typed)) return {LineStep::Refused};
  if (col != LineCol::Date && !hasDay(row)) return {LineStep::PutBack, row, LineCol::Date};
  if (col == LineCol::Partner)
    if (const auto step = partnerTyped(row, typed)) return *step;
  if (!grid().text(row, LineCol::Key).isEmpty()) {
    if (col == LineCol::Kind) {
      session().prompts.MsgWarn("구분은 변경할 수 없습니다.");
      return {LineStep::PutBack};
    }
    if (!session().prompts.MsgAsk("선택된 자료를 변경하시겠습니까?", "자료수정")) return {LineStep::PutBack};
  }
  const QString before = grid().text(row, col);
  return wholly(row, col, [&] { return applyCell(row, col, before, typed); });
}

/** Runs a step that writes the row. One that is refused, meets another PC's change or fails leaves it as it was. */
LineStep LineEntry::wholly(int row, int col, const std::function<LineStep()>& work) {
  LineRowBefore unchanged(book_, row);
  try {
    const LineStep step = work();
    if (step.end == LineStep::Refused)
      unchanged.putBack();
    else
      unchanged.keep();
    return step;
  } catch (const LineMoved& moved) {
    unchanged.putBack();
    book_.tellMoved(moved);
    const int at = moved.how == LineMoved::PartnerGone ? int(LineCol::Partner) : col;
    return {LineStep::PutBack, std::min(row, grid().MaxRows()), at};
  } catch (...) {
    unchanged.putBack();
    throw;
  }
}

/** Writes the row and goes on. A figure that follows from the others may be too large for a line: told, not written. */
LineStep LineEntry::post(int row, int col) {
  // What a payment shows is the partner's whole balance, however large.
  for (int figure = LineCol::Number; figure <= LineCol::Trust && !kindOf(row).isPayment(); ++figure) {
    if (std::abs(lineFigure(grid().text(row, figure))) <= double(largestLineFigure)) continue;
    session().prompts.MsgWarn("한 줄의 금액은 999,999,999원을 넘을 수 없습니다!", "입력제한");
    return {LineStep::Refused};
  }
  const bool begins = grid().text(row, LineCol::Key).isEmpty();
  book_.postRow(row);
  if (begins) begun_ = grid().text(row, LineCol::Key);
  return after(row, col);
}

/** A row in work without a day must get one before anything of it is written: no sheet would ever show it again. */
bool LineEntry::hasDay(int row) {
  if (grid().text(row, LineCol::Code).isEmpty() || !grid().text(row, LineCol::Date).isEmpty()) return true;
  session().prompts.MsgWarn(hand_.required[0], "필수입력");
  return false;
}

bool LineEntry::acceptsText(int row, int col, const QString& typed) {
  if (col == LineCol::Item && lineItemsNamed(session(), kindOf(row), hand_.side, typed).size() != 1) {
    session().prompts.MsgWarn("등록된 품명이 아닙니다!\n엔터를 눌러 고르거나 용량을 입력하세요.", "입력제한");
    return false;
  }
  if (!isLineFigure(col) || typed.isEmpty()) return true;
  bool whole = false;
  const qint64 figure = QString(typed).remove(u',').toLongLong(&whole);
  if (whole && std::abs(figure) <= largestLineFigure) return true;
  session().prompts.MsgWarn("999,999,999 이하의 정수로 입력하세요!", "입력제한");
  return false;
}

// --- a finished cell -----------------------------------------------------------------------------------------

LineStep LineEntry::applyCell(int row, int col, const QString& before, const QString& typed) {
  SpreadModel& cells = grid();
  cells.setText(row, col, typed);
  switch (col) {
    case LineCol::Date:
      return changeDate(row, typed);
    case LineCol::Partner:  // a name only comes from the search
      cells.setText(row, col, {});
      if (cells.text(row, LineCol::Key).isEmpty()) cells.setText(row, LineCol::Code, {});
      return {LineStep::Done, row, col};
    case LineCol::Kind: {
      const LineStep step = changeKind(row);
      offerLast(row);
      return step;
    }
    case LineCol::Number:
      book_.recalcRow(row);
      if (!book_.metered()) {  // paid in cash until the operator lowers the payment
        cells.setText(row, LineCol::Paid, cells.text(row, LineCol::Amount));
        cells.setText(row, LineCol::Trust, "0");
      }
      break;
    case LineCol::Amount:
      return changeAmount(row, lineFigure(before), lineFigure(typed));
    case LineCol::Paid:
      return changePaid(row, lineFigure(before), lineFigure(typed));
    case LineCol::Person:
      cells.setOffer(row, col, {});
      book_.postPerson(row);
      return after(row, col);
    case LineCol::Item:
      return changeItem(row, before, typed);
    default:
      if (!book_.metered()) book_.recalcRow(row);
  }
  return post(row, col);
}

LineStep LineEntry::changeDate(int row, const QString& typed) {
  const bool right = book_.setDate(typed);
  grid().setText(row, LineCol::Date, book_.date());
  if (!right) return {LineStep::Done, row, LineCol::Date};  // a line without a day is never written
  return post(row, LineCol::Date);
}

LineStep LineEntry::changeItem(int row, const QString& before, const QString& typed) {
  const ItemChoice item = lineItemsNamed(session(), kindOf(row), hand_.side, typed).front();
  // A size alone, or the first item of a line, is a choice as from the list; another whole name keeps the figures.
  if (before.isEmpty() || splitItem(typed).size.isEmpty()) return takeItem(row, item);
  grid().setText(row, LineCol::Item, joinItem({item.name, item.size}));
  book_.recalcRow(row);
  return post(row, LineCol::Item);
}

LineStep LineEntry::changeKind(int row) {
  grid().setText(row, LineCol::Item, kindOf(row).paymentText);
  book_.resetRow(row);
  return post(row, LineCol::Kind);
}

LineStep LineEntry::changeAmount(int row, double before, double now) {
  SpreadModel& cells = grid();
  if (!book_.metered() && hand_.capsMoney && now > before) return refuseMoney(row, LineCol::Amount, before);
  cells.setText(row, LineCol::Paid, figureText(now));
  if (!book_.metered()) {  // what is taken off the amount is a discount
    cells.setText(row, LineCol::Discount,
                  figureText(before + lineFigure(cells.text(row, LineCol::Discount)) - now));
    book_.recalcRow(row);
  }
  return post(row, LineCol::Amount);
}

LineStep LineEntry::changePaid(int row, double before, double now) {
  SpreadModel& cells = grid();
  const double amount = lineFigure(cells.text(row, LineCol::Amount));
  if (book_.metered()) {
    cells.setText(row, LineCol::Trust, figureText(amount - now));
  } else {
    if (hand_.capsMoney && now > amount) return refuseMoney(row, LineCol::Paid, before);
    cells.setText(row, LineCol::Trust,
                  figureText(before + lineFigure(cells.text(row, LineCol::Trust)) - now));
    book_.recalcRow(row);
  }
  return post(row, LineCol::Paid);
}

LineStep LineEntry::refuseMoney(int row, int col, double before) {
  grid().setText(row, col, figureText(before));
  session().prompts.MsgWarn("실제금액보다 크게 입력할 수 없습니다!", "입력제한");
  return {LineStep::PutBack};
}

// --- where the cursor goes -----------------------------------------------------------------------------------

LineStep LineEntry::after(int row, int col) {
  if (col == LineCol::Person) {
    if (const int missing = missingField(row)) return {LineStep::Done, row, missing};
    makeRoomBelow(row);
    return {LineStep::Done, row + 1, LineCol::Partner};
  }
  if (col == LineCol::Kind && kindOf(row).isPayment()) return {LineStep::Done, row, LineCol::Paid};
  return {LineStep::Done, row, hand_.next[size_t(col - 1)]};
}

bool LineEntry::beginsAt(int row) {
  return grid().text(row, LineCol::Key).isEmpty() && !grid().text(row, LineCol::Code).isEmpty();
}

void LineEntry::makeRoomBelow(int row) {
  if (row == grid().MaxRows() && !grid().text(row, LineCol::Key).isEmpty()) grid().setMaxRows(row + 1);
}

LineStep LineEntry::enterKey(int row, int col, const QString& typed) {
  switch (col) {
    case LineCol::Partner:
      if (row == grid().MaxRows()) return choosePartner(row, typed);
      return {LineStep::Done, row, LineCol::Kind};
    case LineCol::Kind:
      // The kind that the cell was opened with is a choice too: the line begins here.
      if (beginsAt(row)) return finishCell(row, col, grid().text(row, col));
      break;
    case LineCol::Item:
      if (kindOf(row).isPayment()) return {LineStep::Done, row, LineCol::Paid};
      if (typed != grid().text(row, col)) return findItem(row, typed);
      return grid().offer(row, col).isEmpty() ? chooseItem(row) : takeOfferedItem(row);
    case LineCol::Amount:
    case LineCol::Paid:
    case LineCol::Trust:
      // The line is right as it stands, with the person it offers: nothing is left to stop for.
      if (const QString person = grid().offer(row, LineCol::Person);
          !person.isEmpty() && hand_.next[size_t(col - 1)] == LineCol::Person)
        return takePerson(row, person);
      break;
    case LineCol::Person:
      if (const QString person = grid().offer(row, col); !person.isEmpty() && typed == grid().text(row, col))
        return takePerson(row, person);
      return choosePerson(row);
    default:
      break;
  }
  if (book_.metered()) return {};
  return {LineStep::Done, row, col + 1};
}

LineStep LineEntry::search(int row, int col, const QString& typed) {
  switch (col) {
    case LineCol::Partner:
      return choosePartner(row, typed);
    case LineCol::Item:
      return kindOf(row).isPayment() ? LineStep{} : chooseItem(row);
    case LineCol::Person:
      return choosePerson(row);
    default:
      return {};
  }
}

int LineEntry::missingField(int row) {
  const SpreadModel& cells = grid();
  if (cells.text(row, LineCol::Key).isEmpty() && cells.text(row, LineCol::Code).isEmpty()) return 0;
  const bool payment = kindOf(row).isPayment();
  for (size_t at = 0; at < std::size(requiredCells); ++at) {
    const RequiredCell& cell = requiredCells[at];
    if ((payment && !cell.ofPayment) || !cells.text(row, cell.col).isEmpty()) continue;
    session().prompts.MsgWarn(hand_.required[at], "필수입력");
    return cell.col;
  }
  return 0;
}

QString LineEntry::help(int col) const {
  return col >= 1 && size_t(col) <= hand_.help.size() ? hand_.help[size_t(col - 1)] : QString();
}
