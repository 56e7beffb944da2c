// Where a line's customer, item and person come from: the searches, what the customer had last, a caller's number.
#include <QScopedValueRollback>

#include "master/customers/caller_search.h"
#include "store/data_access.h"
#include "trade/sale_entry.h"
#include "trade/sale_history.h"
#include "trade/sale_items.h"

// --- searches ------------------------------------------------------------------------------------------------

SaleStep SaleEntry::chooseClient(int row, const QString& text) {
  // The general and material sheets find everyone; whom the meter bills is then taken over to the volume sheet.
  const bool volume = posting_.sheet() == SaleSheet::Volume;
  const auto chosen = search(text, volume ? ClientSearchMode::Volume : ClientSearchMode::All, false);
  if (!chosen) return nobodyChosen(row);
  if (row != grid().MaxRows() &&
      !posting_.session().prompts.MsgAsk("선택된 고객을 수정하시겠습니까?", "고객수정"))
    return {SaleStep::PutBack};
  const SaleSheet sheet = posting_.sheet();
  return beginLine(*chosen,
                   sheet == SaleSheet::General && isMetered(chosen->code) ? SaleSheet::Volume : sheet);
}

std::optional<ClientChoice> SaleEntry::search(const QString& text, ClientSearchMode mode, bool ofCaller) {
  const QScopedValueRollback<bool> busy(searching_, true);
  return pickers_.searchClient(text, mode, ofCaller);
}

/** A name only comes from the search: the cell of a line not yet begun is empty again. */
SaleStep SaleEntry::nobodyChosen(int row) {
  if (grid().text(row, SaleCol::Code).isEmpty()) grid().setText(row, SaleCol::Client, {});
  return {SaleStep::PutBack, row, SaleCol::Client};
}

bool SaleEntry::isMetered(qint64 client) {
  Session& session = posting_.session();
  return DAO_GetValue(session.prompts, session.dbYear, u"VolumeYesNo", u"Client",
                      "Where Code = " + QString::number(client))
      .toBool();
}

/** Opens the sheet's bottom row for a customer, below his lines. */
SaleStep SaleEntry::beginLine(const ClientChoice& client, SaleSheet sheet) {
  posting_.setClient(client.code);
  if (!posting_.FillSaleGrid(sheet, false)) return {SaleStep::PutBack};
  // Kept: a stored line keeps its customer; the chosen one always opens the bottom row.
  const int bottom = grid().MaxRows();
  grid().setText(bottom, SaleCol::Date, posting_.date());
  grid().setText(bottom, SaleCol::Client, client.name);
  grid().setText(bottom, SaleCol::Code, QString::number(client.code));
  grid().setComboPosition(bottom, SaleCol::Kind, 0);
  offerLast(bottom);
  return {SaleStep::Done, bottom, SaleCol::Kind};
}

SaleStep SaleEntry::findItem(int row, const QString& typed) {
  const std::vector<ItemChoice> found = saleItemsNamed(posting_.session(), kindOf(row), typed);
  if (found.size() != 1) return chooseItem(row);
  if (!hasDay(row)) return {SaleStep::Done, row, SaleCol::Date};
  return wholly(row, SaleCol::Item, [&] { return takeItem(row, found.front()); });
}

SaleStep SaleEntry::chooseItem(int row) {
  if (!hasDay(row)) return {SaleStep::Done, row, SaleCol::Date};
  std::optional<ItemChoice> item;
  {
    const QScopedValueRollback<bool> busy(searching_, true);
    item = pickers_.searchSize(saleSearchCode(kindOf(row)), TradeSide::Sale);
  }
  if (!item) return {SaleStep::Done, row, SaleCol::Item};
  return wholly(row, SaleCol::Item, [&] { return takeItem(row, *item); });
}

/** A chosen item: one piece at its price, paid. */
SaleStep SaleEntry::takeItem(int row, const ItemChoice& item) {
  SpreadModel& cells = grid();
  const SaleSheet sheet = posting_.sheet();
  SaleStep step;
  posting_.session().wsMain.Together([&] {
    // A line whose kind was passed over begins here, so that its item is written at once.
    if (beginsAt(row)) changeKind(row);
    cells.setText(row, SaleCol::Item, joinItem({item.name, item.size}));
    cells.setText(row, SaleCol::Number, "1");
    cells.setText(row, SaleCol::Unit, saleText(item.price));
    if (sheet != SaleSheet::Volume) cells.setText(row, SaleCol::Income, saleText(item.price));
    posting_.RecalcSaleRow(row, sheet);
    step = post(row, SaleCol::Item);
  });
  for (const int col : {SaleCol::Item, SaleCol::Unit}) cells.setOffer(row, col, {});
  return step;
}

SaleStep SaleEntry::choosePerson(int row) {
  std::optional<QString> person;
  {
    const QScopedValueRollback<bool> busy(searching_, true);
    person = pickers_.searchResponse();
  }
  if (!person) return {SaleStep::Done, row, SaleCol::Person};
  return takePerson(row, *person);
}

SaleStep SaleEntry::takePerson(int row, const QString& person) {
  return wholly(row, SaleCol::Person, [&] {
    grid().setText(row, SaleCol::Person, person);
    posting_.postPerson(row);
    grid().setOffer(row, SaleCol::Person, {});
    return after(row, SaleCol::Person);
  });
}

// --- what a new line is offered -----------------------------------------------------------------------------

void SaleEntry::offerLast(int row) {
  dropOffer(row);
  SpreadModel& cells = grid();
  const QString client = cells.text(row, SaleCol::Code);
  if (client.isEmpty()) return;
  const SaleOffer offer = lastSaleOffer(posting_.session(), posting_.sheet(), kindOf(row), client);
  cells.setOffer(row, SaleCol::Item, joinItem(offer.item));
  cells.setOffer(row, SaleCol::Unit, offer.item.isEmpty() ? QString() : saleText(offer.unit));
  cells.setOffer(row, SaleCol::Person, offer.person);
  offerRow_ = row;
}

void SaleEntry::dropOffer(int row) {
  for (const int col : {SaleCol::Item, SaleCol::Unit, SaleCol::Person}) grid().setOffer(row, col, {});
}

SaleStep SaleEntry::takeOfferedItem(int row) {
  if (!hasDay(row)) return {SaleStep::Done, row, SaleCol::Date};
  const ItemText item = splitItem(grid().offer(row, SaleCol::Item));
  const double unit = saleFigure(grid().offer(row, SaleCol::Unit));
  return wholly(row, SaleCol::Item, [&] { return takeItem(row, {item.name, item.size, unit, 0}); });
}

void SaleEntry::enteredRow(int row) {
  if (offerRow_ > 0 && offerRow_ != row && offerRow_ <= grid().MaxRows()) dropOffer(offerRow_);
  if (offerRow_ != row) offerRow_ = 0;
  if (grid().text(row, SaleCol::Key) != begun_) begun_.clear();
}

SaleStep SaleEntry::onCredit(int row) {
  const SpreadModel& cells = grid();
  if (posting_.sheet() == SaleSheet::Volume || isCollection(kindOf(row)) ||
      cells.text(row, SaleCol::Key).isEmpty() || cells.text(row, SaleCol::Item).isEmpty())
    return {};
  const QString income = cells.text(row, SaleCol::Income), none = QStringLiteral("0");
  if (saleFigure(income) == 0) return {SaleStep::Done, row, SaleCol::Person};
  if (cells.text(row, SaleCol::Key) != begun_) return finishCell(row, SaleCol::Income, none);
  return wholly(row, SaleCol::Income, [&] { return applyCell(row, SaleCol::Income, income, none); });
}

// --- a caller ------------------------------------------------------------------------------------------------

bool SaleEntry::canTakeCaller(int col, const QString& cellText) const {
  return !searching_ && col == SaleCol::Client && cellText.isEmpty();
}

std::optional<SaleStep> SaleEntry::TakeCallerNumber(const QString& number) {
  const bool waiting = number.isEmpty();
  const QString caller = waiting ? calls_.OldestStanbyNumber() : number;
  if (caller.isEmpty()) return {};
  const SaleStep step = takeCaller(FormatTel(caller));
  // A failure leaves it in the list, whether it is thrown or told (then there is no place to go to).
  if (waiting && step.row > 0) calls_.TakeStanbyNumber();
  return step;
}

SaleStep SaleEntry::takeCaller(const TelNumber& tel) {
  // The whole number decides over all customers. An ending alone may be somebody else's: it makes a list.
  const std::vector<CallingClient> calling = clientsCalling(posting_.session(), tel.text);
  const std::optional<bool> metered =
      calling.empty() ? firstMetered(tel.localPart) : std::optional(calling.front().metered);
  const SaleSheet wanted = metered ? *metered ? SaleSheet::Volume : SaleSheet::General : posting_.sheet();
  if (calling.size() == 1) return beginLine(calling.front().client, wanted);

  if (wanted != posting_.sheet()) posting_.FillSaleGrid(wanted, true);
  const int bottom = grid().MaxRows();
  if (posting_.beforeFill) posting_.beforeFill();
  grid().setText(bottom, SaleCol::Client, tel.text);
  const auto chosen = search(tel.text, ClientSearchMode::All, true);
  if (!chosen) return nobodyChosen(bottom);
  const SaleSheet sheet = posting_.sheet();
  return beginLine(*chosen, isMetered(chosen->code)      ? SaleSheet::Volume
                            : sheet == SaleSheet::Volume ? SaleSheet::General
                                                         : sheet);
}

/** Whether the meter bills the first customer whose number ends so; nothing when there is none. */
std::optional<bool> SaleEntry::firstMetered(const QString& n) {
  const jet::Recordset client = posting_.session().dbYear.OpenRecordset(
      "Select VolumeYesNo From Client Where Tel Like '*" + plainText(n) + "' OR Tel1 Like '*" + plainText(n) +
      "'  OR Tel2 Like '*" + plainText(n) + "' OR UName Like '*" + plainText(n) + "'");
  if (client.atEnd()) return {};
  return client["VolumeYesNo"].toBool();
}
