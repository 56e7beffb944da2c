#include "trade/sale_entry.h"

#include "master/customers/caller_search.h"
#include "store/data_access.h"

namespace {

constexpr LineHand saleHand = {
    .side = TradeSide::Sale,
    .capsMoney = true,
    // After the item straight to the amount: quantity, price and discount are reached on purpose only.
    .next = {LineCol::Partner, LineCol::Kind, LineCol::Item, LineCol::Amount, LineCol::Unit,
             LineCol::Discount, LineCol::Amount, LineCol::Person, LineCol::Person, LineCol::Person},
    .help = {"날짜를 변경합니다", "전화, 번지, 상호로 고객을 검색하세요", "엔터로 판매구분을 선택하세요",
             "상품선택 : 엔터  /  ↓키 : 아래로 이동", "판매수량을 입력합니다", "상품의 단가를 입력합니다",
             "D/C는 금액을 조정해서 입력합니다", "판매금액을 입력합니다", "입금액을 입력합니다",
             "미수금을 나타내며 수정이 불가능합니다", "엔터로 담당자를 선택하세요"},
    .required = {"날짜를 입력하세요", "고객명을 검색하세요", "판매구분을 선택하세요", "품명을 검색하세요",
                 "수량을 입력하세요", "단가를 입력하세요", "D/C금액을 입력하세요", "입금액을 입력하세요"},
    .question = "선택된 고객을 수정하시겠습니까?",
    .questionTitle = "고객수정",
};

}  // namespace

SaleEntry::SaleEntry(SaleBook& book, Pickers& pickers, WaitingCalls& calls)
    : LineEntry(book, pickers, saleHand), sales_(book), calls_(calls) {}

LineStep SaleEntry::choosePartner(int row, const QString& text) {
  // The general and material sheets find everyone; whom the meter bills is then taken over to the volume sheet.
  const auto mode = sales_.metered() ? ClientSearchMode::Volume : ClientSearchMode::All;
  const auto chosen = searching([&](Pickers& pickers) { return pickers.searchClient(text, mode, false); });
  if (!chosen) return nobodyChosen(row);
  if (row != grid().MaxRows() && !mayChangePartner()) return {LineStep::PutBack};
  const SaleSheet sheet = sales_.sheet();
  return beginAtBottom(*chosen,
                       sheet == SaleSheet::General && isMetered(chosen->code) ? SaleSheet::Volume : sheet);
}

bool SaleEntry::isMetered(qint64 client) {
  return DAO_GetValue(session().prompts, session().dbYear, u"VolumeYesNo", u"Client",
                      "Where Code = " + QString::number(client))
      .toBool();
}

/** Opens the sheet's bottom row for a customer, below his lines. */
LineStep SaleEntry::beginAtBottom(const ClientChoice& client, SaleSheet sheet) {
  sales_.setClient(client.code);
  if (!sales_.FillSaleGrid(sheet, false)) return {LineStep::PutBack};
  // Kept: a stored line keeps its customer; the chosen one always opens the bottom row.
  return beginLine(grid().MaxRows(), QString::number(client.code), client.name);
}

// --- a caller ------------------------------------------------------------------------------------------------

bool SaleEntry::canTakeCaller(int col, const QString& cellText) const {
  return !isSearching() && col == LineCol::Partner && cellText.isEmpty();
}

std::optional<LineStep> SaleEntry::TakeCallerNumber(const QString& number) {
  const bool waiting = number.isEmpty();
  const QString caller = waiting ? calls_.OldestStanbyNumber() : number;
  if (caller.isEmpty()) return {};
  const LineStep step = takeCaller(FormatTel(caller));
  // A failure leaves it in the list, whether it is thrown or told (then there is no place to go to).
  if (waiting && step.row > 0) calls_.TakeStanbyNumber();
  return step;
}

LineStep SaleEntry::takeCaller(const TelNumber& tel) {
  // The whole number decides over all customers. An ending alone may be somebody else's: it makes a list.
  const std::vector<CallingClient> calling = clientsCalling(session(), tel.text);
  const std::optional<bool> metered =
      calling.empty() ? firstMetered(tel.localPart) : std::optional(calling.front().metered);
  const SaleSheet wanted = metered ? *metered ? SaleSheet::Volume : SaleSheet::General : sales_.sheet();
  if (calling.size() == 1) return beginAtBottom(calling.front().client, wanted);

  if (wanted != sales_.sheet()) sales_.FillSaleGrid(wanted, true);
  const int bottom = grid().MaxRows();
  grid().dropEdit();
  grid().setText(bottom, LineCol::Partner, tel.text);
  const auto chosen = searching(
      [&](Pickers& pickers) { return pickers.searchClient(tel.text, ClientSearchMode::All, true); });
  if (!chosen) return nobodyChosen(bottom);
  const SaleSheet sheet = sales_.sheet();
  return beginAtBottom(*chosen, isMetered(chosen->code)      ? SaleSheet::Volume
                                : sheet == SaleSheet::Volume ? SaleSheet::General
                                                             : sheet);
}

/** Whether the meter bills the first customer whose number ends so; nothing when there is none. */
std::optional<bool> SaleEntry::firstMetered(const QString& n) {
  const jet::Recordset client = session().dbYear.OpenRecordset(
      "Select VolumeYesNo From Client Where Tel Like '*" + plainText(n) + "' OR Tel1 Like '*" + plainText(n) +
      "'  OR Tel2 Like '*" + plainText(n) + "' OR UName Like '*" + plainText(n) + "'");
  if (client.atEnd()) return {};
  return client["VolumeYesNo"].toBool();
}
