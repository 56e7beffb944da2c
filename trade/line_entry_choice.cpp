// Where a line's item and person come from: the searches, and what the partner had last.
#include "trade/line_entry.h"
#include "trade/line_items.h"

using namespace Qt::StringLiterals;

bool LineEntry::mayChangePartner() {
  return session().prompts.MsgAsk(hand_.question, hand_.questionTitle);
}

LineStep LineEntry::nobodyChosen(int row) {
  if (grid().text(row, LineCol::Code).isEmpty()) grid().setText(row, LineCol::Partner, {});
  return {LineStep::PutBack, row, LineCol::Partner};
}

LineStep LineEntry::beginLine(int row, const QString& code, const QString& name) {
  grid().setText(row, LineCol::Date, book_.date());
  grid().setText(row, LineCol::Partner, name);
  grid().setText(row, LineCol::Code, code);
  grid().setComboPosition(row, LineCol::Kind, firstKind());
  offerLast(row);
  return {LineStep::Done, row, LineCol::Kind};
}

LineStep LineEntry::findItem(int row, const QString& typed) {
  const std::vector<ItemChoice> found = lineItemsNamed(session(), kindOf(row), hand_.side, typed);
  if (found.size() != 1) return chooseItem(row);
  if (!hasDay(row)) return {LineStep::Done, row, LineCol::Date};
  return wholly(row, LineCol::Item, [&] { return takeItem(row, found.front()); });
}

LineStep LineEntry::chooseItem(int row) {
  if (!hasDay(row)) return {LineStep::Done, row, LineCol::Date};
  const std::optional<ItemChoice> item =
      searching([&](Pickers& pickers) { return pickers.searchSize(kindOf(row).searchCode, hand_.side); });
  if (!item) return {LineStep::Done, row, LineCol::Item};
  return wholly(row, LineCol::Item, [&] { return takeItem(row, *item); });
}

/** A chosen item: one piece at its price, paid. */
LineStep LineEntry::takeItem(int row, const ItemChoice& item) {
  SpreadModel& cells = grid();
  LineStep step;
  session().wsMain.Together([&] {
    // A line whose kind was passed over begins here, so that its item is written at once.
    if (beginsAt(row)) changeKind(row);
    cells.setText(row, LineCol::Item, joinItem({item.name, item.size}));
    cells.setText(row, LineCol::Number, "1");
    cells.setText(row, LineCol::Unit, figureText(item.price));
    if (!book_.metered()) cells.setText(row, LineCol::Paid, figureText(item.price));
    book_.recalcRow(row);
    step = post(row, LineCol::Item);
  });
  for (const int col : {LineCol::Item, LineCol::Unit}) cells.setOffer(row, col, {});
  return step;
}

LineStep LineEntry::choosePerson(int row) {
  const std::optional<QString> person = searching([](Pickers& pickers) { return pickers.searchResponse(); });
  if (!person) return {LineStep::Done, row, LineCol::Person};
  return takePerson(row, *person);
}

LineStep LineEntry::takePerson(int row, const QString& person) {
  return wholly(row, LineCol::Person, [&] {
    grid().setText(row, LineCol::Person, person);
    book_.postPerson(row);
    grid().setOffer(row, LineCol::Person, {});
    return after(row, LineCol::Person);
  });
}

// --- what a new line is offered -----------------------------------------------------------------------------

void LineEntry::offerLast(int row) {
  dropOffer(row);
  SpreadModel& cells = grid();
  if (cells.text(row, LineCol::Code).isEmpty()) return;
  const LineOffer offer = book_.offer(row, hand_.side);
  cells.setOffer(row, LineCol::Item, joinItem(offer.item));
  cells.setOffer(row, LineCol::Unit, offer.item.isEmpty() ? QString() : figureText(offer.unit));
  cells.setOffer(row, LineCol::Person, offer.person);
  offerRow_ = row;
}

void LineEntry::dropOffer(int row) {
  for (const int col : {LineCol::Item, LineCol::Unit, LineCol::Person}) grid().setOffer(row, col, {});
}

LineStep LineEntry::takeOfferedItem(int row) {
  if (!hasDay(row)) return {LineStep::Done, row, LineCol::Date};
  const ItemText item = splitItem(grid().offer(row, LineCol::Item));
  const double unit = lineFigure(grid().offer(row, LineCol::Unit));
  return wholly(row, LineCol::Item, [&] { return takeItem(row, {item.name, item.size, unit, 0}); });
}

void LineEntry::enteredRow(int row) {
  if (offerRow_ > 0 && offerRow_ != row && offerRow_ <= grid().MaxRows()) dropOffer(offerRow_);
  if (offerRow_ != row) offerRow_ = 0;
  if (grid().text(row, LineCol::Key) != begun_) begun_.clear();
}

LineStep LineEntry::onCredit(int row) {
  const SpreadModel& cells = grid();
  if (book_.metered() || kindOf(row).isPayment() || cells.text(row, LineCol::Key).isEmpty() ||
      cells.text(row, LineCol::Item).isEmpty())
    return {};
  const QString paid = cells.text(row, LineCol::Paid), none = u"0"_s;
  if (lineFigure(paid) == 0) return {LineStep::Done, row, LineCol::Person};
  if (cells.text(row, LineCol::Key) != begun_) return finishCell(row, LineCol::Paid, none);
  return wholly(row, LineCol::Paid, [&] { return applyCell(row, LineCol::Paid, paid, none); });
}
