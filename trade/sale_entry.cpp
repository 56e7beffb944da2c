#include "trade/sale_entry.h"

#include "trade/sale_items.h"

namespace {

constexpr qint64 largestSaleFigure = 999999999;  ///< won or pieces in one cell, computed ones too

bool isSaleFigure(int col) {
  return col >= SaleCol::Number && col <= SaleCol::Trust;
}

/** A row's cells before a step, to be put back when a statement fails. The key stays while its line is there: a
 *  skeleton once written is the row's own. Where the store could not keep it, the key goes too, or the row would next
 *  write on whatever line gets that number. */
class SaleRowBefore {
 public:
  SaleRowBefore(SalePosting& posting, int row)
      : posting_(posting), grid_(posting.grid(posting.sheet())), row_(row) {
    for (int col = SaleCol::Date; col < SaleCol::Key; ++col) cells_ << grid_.text(row, col);
    known_ = posting.known(row);
    hadKey_ = !grid_.text(row, SaleCol::Key).isEmpty();
  }
  void putBack() const {
    for (int col = SaleCol::Date; col < SaleCol::Key; ++col) grid_.setText(row_, col, cells_.at(col - 1));
    if (!known_.isEmpty()) posting_.setKnown(row_, known_);
    // A disk that is silent about a stored line has not lost it: without its key it would be written once more.
    if (!posting_.isStored(row_).value_or(hadKey_)) grid_.setText(row_, SaleCol::Key, {});
  }

 private:
  SalePosting& posting_;
  SpreadModel& grid_;
  int row_;
  QStringList cells_;
  QString known_;
  bool hadKey_ = false;
};

struct SaleRequired {
  int col;
  const char* message;
  bool ofCollection;  ///< a collection has no such cell otherwise
};

constexpr SaleRequired requiredCells[] = {
    {SaleCol::Date, "날짜를 입력하세요", true},         {SaleCol::Client, "고객명을 검색하세요", true},
    {SaleCol::Kind, "판매구분을 선택하세요", true},     {SaleCol::Item, "품명을 검색하세요", true},
    {SaleCol::Number, "수량을 입력하세요", false},      {SaleCol::Unit, "단가를 입력하세요", false},
    {SaleCol::Discount, "D/C금액을 입력하세요", false}, {SaleCol::Income, "입금액을 입력하세요", true},
};

}  // namespace

SaleEntry::SaleEntry(SalePosting& posting, Pickers& pickers, WaitingCalls& calls)
    : posting_(posting), pickers_(pickers), calls_(calls) {}

int SaleEntry::kindOf(int row) {
  return saleKindAt(posting_.sheet(), grid().comboPosition(row, SaleCol::Kind));
}

SaleStep SaleEntry::finishCell(int row, int col, const QString& typed) {
  Prompts& prompts = posting_.session().prompts;
  if (!acceptsText(row, col, typed)) return {SaleStep::Refused};
  if (col != SaleCol::Date && !hasDay(row)) return {SaleStep::PutBack, row, SaleCol::Date};
  if (!grid().text(row, SaleCol::Key).isEmpty()) {
    if (col == SaleCol::Kind) {
      prompts.MsgWarn("구분은 변경할 수 없습니다.");
      return {SaleStep::PutBack};
    }
    if (!prompts.MsgAsk("선택된 자료를 변경하시겠습니까?", "자료수정")) return {SaleStep::PutBack};
  }
  const QString before = grid().text(row, col);
  return wholly(row, col, [&] { return applyCell(row, col, before, typed); });
}

/** Runs a step that writes the row. One that is refused, meets another PC's change or fails leaves it as it was. */
SaleStep SaleEntry::wholly(int row, int col, const std::function<SaleStep()>& work) {
  const SaleRowBefore unchanged(posting_, row);
  try {
    const SaleStep step = work();
    if (step.end == SaleStep::Refused) unchanged.putBack();
    return step;
  } catch (const SaleLineMoved& moved) {
    unchanged.putBack();
    posting_.tellMoved(moved);
    return {SaleStep::PutBack, std::min(row, grid().MaxRows()), col};
  } catch (...) {
    unchanged.putBack();
    throw;
  }
}

/** Writes the row and goes on. A figure that follows from the others may be too large for a line: told, not written. */
SaleStep SaleEntry::post(int row, int col) {
  // What a collection shows is the customer's whole balance, however large.
  for (int figure = SaleCol::Number; figure <= SaleCol::Trust && !isCollection(kindOf(row)); ++figure) {
    if (std::abs(saleFigure(grid().text(row, figure))) <= double(largestSaleFigure)) continue;
    posting_.session().prompts.MsgWarn("한 줄의 금액은 999,999,999원을 넘을 수 없습니다!", "입력제한");
    return {SaleStep::Refused};
  }
  const bool begins = grid().text(row, SaleCol::Key).isEmpty();
  posting_.PostSaleRow(row, posting_.sheet());
  if (begins) begun_ = grid().text(row, SaleCol::Key);
  return after(row, col);
}

/** A row in work without a day must get one before anything of it is written: no sheet would ever show it again. */
bool SaleEntry::hasDay(int row) {
  if (grid().text(row, SaleCol::Code).isEmpty() || !grid().text(row, SaleCol::Date).isEmpty()) return true;
  posting_.session().prompts.MsgWarn(requiredCells[0].message, "필수입력");
  return false;
}

bool SaleEntry::acceptsText(int row, int col, const QString& typed) {
  if (col == SaleCol::Item && saleItemsNamed(posting_.session(), kindOf(row), typed).size() != 1) {
    posting_.session().prompts.MsgWarn("등록된 품명이 아닙니다!\n엔터를 눌러 고르거나 용량을 입력하세요.",
                                       "입력제한");
    return false;
  }
  if (!isSaleFigure(col) || typed.isEmpty()) return true;
  bool whole = false;
  const qint64 figure = QString(typed).remove(u',').toLongLong(&whole);
  if (whole && std::abs(figure) <= largestSaleFigure) return true;
  posting_.session().prompts.MsgWarn("999,999,999 이하의 정수로 입력하세요!", "입력제한");
  return false;
}

SaleStep SaleEntry::applyCell(int row, int col, const QString& before, const QString& typed) {
  const SaleSheet sheet = posting_.sheet();
  const bool volume = sheet == SaleSheet::Volume;
  SpreadModel& cells = grid();
  cells.setText(row, col, typed);
  switch (col) {
    case SaleCol::Date:
      return changeDate(row, typed);
    case SaleCol::Client:  // a name only comes from the search
      cells.setText(row, col, {});
      if (cells.text(row, SaleCol::Key).isEmpty()) cells.setText(row, SaleCol::Code, {});
      return {SaleStep::Done, row, col};
    case SaleCol::Kind: {
      const SaleStep step = changeKind(row);
      offerLast(row);
      return step;
    }
    case SaleCol::Number:
      posting_.RecalcSaleRow(row, sheet);
      if (!volume) {  // paid in cash until the operator lowers the income
        cells.setText(row, SaleCol::Income, cells.text(row, SaleCol::Amount));
        cells.setText(row, SaleCol::Trust, "0");
      }
      break;
    case SaleCol::Amount:
      return changeAmount(row, saleFigure(before), saleFigure(typed));
    case SaleCol::Income:
      return changeIncome(row, saleFigure(before), saleFigure(typed));
    case SaleCol::Person:
      cells.setOffer(row, col, {});
      posting_.postPerson(row);
      return after(row, col);
    case SaleCol::Item:
      return changeItem(row, before, typed);
    default:
      if (!volume) posting_.RecalcSaleRow(row, sheet);
  }
  return post(row, col);
}

SaleStep SaleEntry::changeDate(int row, const QString& typed) {
  const bool right = posting_.setDate(typed);
  grid().setText(row, SaleCol::Date, posting_.date());
  if (!right) return {SaleStep::Done, row, SaleCol::Date};  // a line without a day is never written
  return post(row, SaleCol::Date);
}

SaleStep SaleEntry::changeItem(int row, const QString& before, const QString& typed) {
  const ItemChoice item = saleItemsNamed(posting_.session(), kindOf(row), typed).front();
  // A size alone, or the first item of a line, is a choice as from the list; another whole name keeps the figures.
  if (before.isEmpty() || splitItem(typed).size.isEmpty()) return takeItem(row, item);
  grid().setText(row, SaleCol::Item, joinItem({item.name, item.size}));
  posting_.RecalcSaleRow(row, posting_.sheet());
  return post(row, SaleCol::Item);
}

SaleStep SaleEntry::changeKind(int row) {
  grid().setText(row, SaleCol::Item, collectionItem(kindOf(row)));
  posting_.ResetSaleRow(row, posting_.sheet());
  return post(row, SaleCol::Kind);
}

SaleStep SaleEntry::changeAmount(int row, double before, double now) {
  SpreadModel& cells = grid();
  if (posting_.sheet() == SaleSheet::Volume) {
    cells.setText(row, SaleCol::Income, saleText(now));
  } else if (now > before) {
    cells.setText(row, SaleCol::Amount, saleText(before));
    posting_.session().prompts.MsgWarn("실제금액보다 크게 입력할 수 없습니다!", "입력제한");
    return {SaleStep::PutBack};
  } else {  // what is taken off the amount is a discount
    cells.setText(row, SaleCol::Discount,
                  saleText(before + saleFigure(cells.text(row, SaleCol::Discount)) - now));
    cells.setText(row, SaleCol::Income, saleText(now));
    posting_.RecalcSaleRow(row, posting_.sheet());
  }
  return post(row, SaleCol::Amount);
}

SaleStep SaleEntry::changeIncome(int row, double before, double now) {
  SpreadModel& cells = grid();
  const double amount = saleFigure(cells.text(row, SaleCol::Amount));
  if (posting_.sheet() == SaleSheet::Volume) {
    cells.setText(row, SaleCol::Trust, saleText(amount - now));
  } else if (now > amount) {
    cells.setText(row, SaleCol::Income, saleText(before));
    posting_.session().prompts.MsgWarn("실제금액보다 크게 입력할 수 없습니다!", "입력제한");
    return {SaleStep::PutBack};
  } else {
    cells.setText(row, SaleCol::Trust, saleText(before + saleFigure(cells.text(row, SaleCol::Trust)) - now));
    posting_.RecalcSaleRow(row, posting_.sheet());
  }
  return post(row, SaleCol::Income);
}

SaleStep SaleEntry::after(int row, int col) {
  switch (col) {
    case SaleCol::Date:
      return {SaleStep::Done, row, SaleCol::Client};
    case SaleCol::Kind:
      return {SaleStep::Done, row, isCollection(kindOf(row)) ? int(SaleCol::Income) : int(SaleCol::Item)};
    case SaleCol::Item:  // straight to the amount: quantity, price and discount are reached on purpose only
      return {SaleStep::Done, row, SaleCol::Amount};
    case SaleCol::Amount:
    case SaleCol::Income:
    case SaleCol::Trust:
      return {SaleStep::Done, row, SaleCol::Person};
    case SaleCol::Person: {
      if (const int missing = missingField(row)) return {SaleStep::Done, row, missing};
      makeRoomBelow(row);
      return {SaleStep::Done, row + 1, SaleCol::Client};
    }
    default:
      return {SaleStep::Done, row, col + 1};
  }
}

bool SaleEntry::beginsAt(int row) {
  return grid().text(row, SaleCol::Key).isEmpty() && !grid().text(row, SaleCol::Code).isEmpty();
}

void SaleEntry::makeRoomBelow(int row) {
  if (row == grid().MaxRows() && !grid().text(row, SaleCol::Key).isEmpty()) grid().setMaxRows(row + 1);
}

SaleStep SaleEntry::enterKey(int row, int col, const QString& typed) {
  switch (col) {
    case SaleCol::Client:
      if (row == grid().MaxRows()) return chooseClient(row, typed);
      return {SaleStep::Done, row, SaleCol::Kind};
    case SaleCol::Kind:
      // The kind that the cell was opened with is a choice too: the line begins here.
      if (beginsAt(row)) return finishCell(row, col, grid().text(row, col));
      break;
    case SaleCol::Item:
      if (isCollection(kindOf(row))) return {SaleStep::Done, row, SaleCol::Income};
      if (typed != grid().text(row, col)) return findItem(row, typed);
      return grid().offer(row, col).isEmpty() ? chooseItem(row) : takeOfferedItem(row);
    case SaleCol::Amount:
    case SaleCol::Income:
    case SaleCol::Trust:
      // The line is right as it stands, with the person it offers: nothing is left to stop for.
      if (const QString person = grid().offer(row, SaleCol::Person); !person.isEmpty())
        return takePerson(row, person);
      break;
    case SaleCol::Person:
      if (const QString person = grid().offer(row, col); !person.isEmpty() && typed == grid().text(row, col))
        return takePerson(row, person);
      return choosePerson(row);
    default:
      break;
  }
  if (posting_.sheet() == SaleSheet::Volume) return {};
  return {SaleStep::Done, row, col + 1};
}

SaleStep SaleEntry::search(int row, int col, const QString& typed) {
  switch (col) {
    case SaleCol::Client:
      return chooseClient(row, typed);
    case SaleCol::Item:
      return isCollection(kindOf(row)) ? SaleStep{} : chooseItem(row);
    case SaleCol::Person:
      return choosePerson(row);
    default:
      return {};
  }
}

int SaleEntry::missingField(int row) {
  const SpreadModel& cells = grid();
  if (cells.text(row, SaleCol::Key).isEmpty() && cells.text(row, SaleCol::Code).isEmpty()) return 0;
  const bool collection = isCollection(kindOf(row));
  for (const SaleRequired& cell : requiredCells) {
    if ((collection && !cell.ofCollection) || !cells.text(row, cell.col).isEmpty()) continue;
    posting_.session().prompts.MsgWarn(cell.message, "필수입력");
    return cell.col;
  }
  return 0;
}

QString SaleEntry::help(int col) {
  static const QStringList lines = {"날짜를 변경합니다",
                                    "전화, 번지, 상호로 고객을 검색하세요",
                                    "엔터로 판매구분을 선택하세요",
                                    "상품선택 : 엔터  /  ↓키 : 아래로 이동",
                                    "판매수량을 입력합니다",
                                    "상품의 단가를 입력합니다",
                                    "D/C는 금액을 조정해서 입력합니다",
                                    "판매금액을 입력합니다",
                                    "입금액을 입력합니다",
                                    "미수금을 나타내며 수정이 불가능합니다",
                                    "엔터로 담당자를 선택하세요"};
  return lines.value(col - 1);
}
