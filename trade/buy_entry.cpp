#include "trade/buy_entry.h"

namespace {

constexpr LineHand buyHand = {
    .side = TradeSide::Purchase,
    .capsMoney = false,  // a station's bill is what it is
    .next = {LineCol::Partner, LineCol::Kind, LineCol::Item, LineCol::Number, LineCol::Amount,
             LineCol::Discount, LineCol::Amount, LineCol::Paid, LineCol::Person, LineCol::Person},
    .help = {"날짜를 변경합니다", "전화, 번지, 상호로 구매처를 검색하세요", "엔터로 구매구분을 선택하세요",
             "상품선택 : 엔터  /  ↓키 : 아래로 이동", "구매수량을 입력합니다", "상품의 단가를 입력합니다",
             "D/C금액을 입력합니다", "구매금액을 입력합니다", "지급액을 입력합니다",
             "미지급액을 나타내며 수정이 불가능합니다", "엔터로 담당자를 선택하세요"},
    .required = {"날짜를 입력하세요", "구매처를 검색하세요", "판매구분을 검색하세요", "품명을 검색하세요",
                 "수량을 입력하세요", "단가를 입력하세요", "D/C금액을 입력하세요", "입금액을 입력하세요"},
    .question = "선택된 구매처를 수정하시겠습니까?",
    .questionTitle = "구매처수정",
};

}  // namespace

BuyEntry::BuyEntry(BuyBook& book, Pickers& pickers) : LineEntry(book, pickers, buyHand), purchases_(book) {}

LineStep BuyEntry::choosePartner(int row, const QString& text) {
  // What is typed and fits one station is that station; the list opens for anything else.
  const QStringList named =
      text == grid().text(row, LineCol::Partner) ? QStringList() : purchases_.stationsNamed(text);
  const std::optional<QString> chosen =
      named.size() == 1 ? named.front() : searching([](Pickers& pickers) { return pickers.searchRefill(); });
  if (!chosen) return nobodyChosen(row);
  if (!grid().text(row, LineCol::Key).isEmpty()) return moveLine(row, *chosen);
  purchases_.setStation(*chosen);
  if (!purchases_.FillBuyGrid(false)) return {LineStep::PutBack};
  return beginLine(grid().MaxRows(), *chosen, *chosen);
}

/** Left without Enter it means the same; a stored line keeps its station where none is meant. */
std::optional<LineStep> BuyEntry::partnerTyped(int row, const QString& typed) {
  const bool stored = !grid().text(row, LineCol::Key).isEmpty();
  if (purchases_.stationsNamed(typed).size() != 1)
    return stored ? std::optional(LineStep{LineStep::PutBack}) : std::nullopt;
  LineStep step = choosePartner(row, typed);
  step.end = LineStep::PutBack;  // the rows may be others by now: the open editor goes
  return step;
}

/** A stored line that was written under the wrong station: it goes to the other one with all that is owed for it. */
LineStep BuyEntry::moveLine(int row, const QString& company) {
  if (company == grid().text(row, LineCol::Code) || !mayChangePartner()) return {LineStep::PutBack};
  return wholly(row, LineCol::Partner, [&] {
    grid().setText(row, LineCol::Partner, company);
    grid().setText(row, LineCol::Code, company);
    return post(row, LineCol::Partner);
  });
}
