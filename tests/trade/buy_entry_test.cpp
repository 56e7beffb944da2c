// Stations, lists and two PCs on the purchase screen; the figures are in buy_cases.txt.
#include "tests/trade/buy_desk.h"

using namespace Qt::StringLiterals;

namespace {

struct Buy : tests::BuyDesk {
  BuyBook book{pc.session};
  BuyEntry entry{book, pickers};

  Buy() { book.FillBuyGrid(true); }
  SpreadModel& cells() { return book.grid(); }
  QString cell(int row, int col) { return cells().text(row, col); }
  /** A line of so many pieces at the price, all on credit; its row. */
  int bought(const QString& station, int pieces, double price) {
    pickers.refills.push_back(station);
    const int row = entry.enterKey(cells().MaxRows(), LineCol::Partner, {}).row;
    entry.enteredRow(row);
    entry.enterKey(row, LineCol::Kind, "가스");
    pickers.items.push_back(ItemChoice{"LPG", "20", price, 0});
    entry.enterKey(row, LineCol::Item, {});
    pc.prompts.expect("선택된 자료를 변경하시겠습니까?");
    entry.finishCell(row, LineCol::Number, QString::number(pieces));
    entry.onCredit(row);
    entry.makeRoomBelow(row);
    return row;
  }
};

TEST(BuyEntry, TheStationIsFoundByNameTelephoneOrAddress) {
  Buy buy;
  const auto typed = [&](const QString& text) {
    buy.book.FillBuyGrid(true);
    buy.entry.enterKey(1, LineCol::Partner, text);
    return buy.cell(1, LineCol::Code);
  };
  EXPECT_EQ(typed("333-44"), "낙동");
  EXPECT_EQ(typed("강변"), "한강");
  EXPECT_TRUE(buy.pickers.asked.isEmpty());
  EXPECT_EQ(typed("로"), "") << "both addresses: the list opens, and nobody is chosen";
  EXPECT_EQ(buy.pickers.asked.takeLast(), "station");
  buy.run("Insert Into RefillState(Code, Company, Address) Values('0003', '한강2', '낙동')");
  EXPECT_EQ(typed("한강"), "한강") << "the whole name goes before a part of another";
  EXPECT_EQ(typed("낙동"), "낙동");
}

TEST(BuyEntry, AStationTypedAndLeftIsTakenToo) {
  Buy buy;
  EXPECT_EQ(buy.entry.finishCell(1, LineCol::Partner, "낙동").col, LineCol::Kind);
  EXPECT_EQ(buy.cell(1, LineCol::Code), "낙동");
  buy.entry.enterKey(1, LineCol::Kind, "가스");
  EXPECT_EQ(buy.entry.finishCell(1, LineCol::Partner, "없는 곳").end, LineStep::PutBack);
  EXPECT_EQ(buy.cell(1, LineCol::Partner), "낙동") << "a stored line keeps its station";
  buy.pickers.refills.push_back("낙동");
  EXPECT_EQ(buy.entry.search(1, LineCol::Partner, {}).end, LineStep::PutBack) << "the same one asks nothing";
  buy.pc.prompts.expect("선택된 구매처를 수정하시겠습니까?");
  buy.entry.finishCell(1, LineCol::Partner, "강변");
  EXPECT_EQ(buy.rows("Select BuyCompany From Buy"), "한강");
  buy.book.FillBuyGrid(true);
  buy.entry.finishCell(2, LineCol::Partner, "없는 곳");
  EXPECT_EQ(buy.cell(2, LineCol::Partner), "") << "a name only comes from the search";
}

TEST(BuyEntry, AChosenStationShowsItsLinesAndEscShowsAll) {
  Buy buy;
  const int row = buy.bought("한강", 2, 30000);
  buy.entry.enteredRow(row + 1);
  buy.bought("낙동", 1, 31000);
  EXPECT_EQ(buy.cells().MaxRows(), 2) << "낙동's line and the empty row";
  buy.book.FillBuyGrid(true);
  EXPECT_EQ(buy.cells().MaxRows(), 3);
  EXPECT_EQ(buy.cell(1, LineCol::Partner) + buy.cell(2, LineCol::Partner), "한강낙동");
  EXPECT_EQ(buy.book.panel(1).address, "(100-200) 강변로 7");
  EXPECT_EQ(buy.book.panel(1).gasOwed, "260,000");
  EXPECT_EQ(buy.book.panel(1).utilOwed, "7,000");
  EXPECT_EQ(buy.book.panel(3).tel, "");
  EXPECT_EQ(buy.book.lastLines(1).front().amount, "60,000");
}

TEST(BuyEntry, ANewLineOffersTheStationsLastItemOfTheKind) {
  Buy buy;
  buy.pc.session.dbBasic.Execute(u"Insert Into Response(Name) Values('홍길동')"_s);
  buy.bought("한강", 2, 30000);
  buy.run("Update Buy Set Response = '홍길동'");
  buy.pickers.refills.push_back("한강");
  const int row = buy.entry.enterKey(buy.cells().MaxRows(), LineCol::Partner, {}).row;
  EXPECT_EQ(buy.cells().offer(row, LineCol::Item), "LPG / 20");
  buy.entry.enteredRow(row);
  buy.entry.enterKey(row, LineCol::Kind, "가스");
  EXPECT_EQ(buy.entry.enterKey(row, LineCol::Item, {}).col, LineCol::Number);
  EXPECT_EQ(buy.cell(row, LineCol::Paid), "30000");
  EXPECT_EQ(buy.entry.enterKey(row, LineCol::Amount, "30000").col, LineCol::Paid)
      << "what is paid is asked for";
  EXPECT_EQ(buy.entry.enterKey(row, LineCol::Paid, "30000").col, LineCol::Partner)
      << "with the person it offers";
  EXPECT_TRUE(buy.line().endsWith("|홍길동"));
}

TEST(BuyEntry, MaterialsOpenWithTheirOwnKind) {
  Buy buy;
  buy.entry.buysMaterials(true);
  buy.pickers.refills.push_back("한강");
  const int row = buy.entry.enterKey(1, LineCol::Partner, {}).row;
  buy.entry.enteredRow(row);
  EXPECT_EQ(buy.cell(row, LineCol::Kind), "자재");
  buy.entry.enterKey(row, LineCol::Kind, "자재");
  buy.pickers.items.push_back(ItemChoice{"밸브", "15A", 8000, 0});
  buy.entry.enterKey(row, LineCol::Item, {});
  EXPECT_EQ(buy.pickers.asked.last(), "purchase 4");
  EXPECT_EQ(buy.line(), "한강|4|밸브|15A|1|8000|0|8000|0|");
}

TEST(BuyEntry, RowsOfAMissingOrDoubledStationStandOnce) {
  Buy buy;
  buy.bought("한강", 2, 30000);
  buy.run("Insert Into RefillState(Code, Company) Values('0003', '한강')");
  buy.book.FillBuyGrid(true);
  EXPECT_EQ(buy.cells().MaxRows(), 2);
  buy.run("Delete * From RefillState");
  buy.book.FillBuyGrid(true);
  EXPECT_EQ(buy.cells().MaxRows(), 2);
  EXPECT_EQ(buy.cell(1, LineCol::Partner), "한강");
  EXPECT_EQ(buy.book.panel(1).gasOwed, "");
}

TEST(BuyEntry, MissingCellsAreToldInOrder) {
  Buy buy;
  const int row = buy.bought("한강", 2, 30000);
  const std::pair<int, const char*> order[] = {
      {LineCol::Date, "날짜를 입력하세요"},        {LineCol::Partner, "구매처를 검색하세요"},
      {LineCol::Kind, "판매구분을 검색하세요"},    {LineCol::Item, "품명을 검색하세요"},
      {LineCol::Number, "수량을 입력하세요"},      {LineCol::Unit, "단가를 입력하세요"},
      {LineCol::Discount, "D/C금액을 입력하세요"}, {LineCol::Paid, "입금액을 입력하세요"}};
  QStringList texts;
  for (const auto& [col, told] : order) texts << buy.cell(row, col);
  for (const auto& [col, told] : order) buy.cells().setText(row, col, {});
  for (const auto& [col, told] : order) {
    buy.pc.prompts.expect(told);
    EXPECT_EQ(buy.entry.missingField(row), col);
    EXPECT_TRUE(buy.pc.prompts.seen.last().startsWith("필수입력|"));
    buy.cells().setText(row, col, texts.takeFirst());
  }
  EXPECT_EQ(buy.entry.missingField(row), 0);
  buy.cells().setText(row, LineCol::Kind, "자외");
  for (const int col : {LineCol::Number, LineCol::Unit, LineCol::Discount}) buy.cells().setText(row, col, {});
  EXPECT_EQ(buy.entry.missingField(row), 0) << "a payment has none of them";
}

TEST(BuyEntry, TheScreensWords) {
  Buy buy;
  EXPECT_EQ(labelsOf(buyKinds()).join(' '), "가스 용기 보관 회수 실병 가외 자재 자외");
  QStringList headers;
  for (int col = LineCol::Date; col <= LineCol::Key; ++col) headers << buy.cells().column(col).header;
  EXPECT_EQ(headers.join('|'),
            "일자|구매처|구분|품명/용량|수량|단가|D/C|구매금액|지불금액|외상금액|담당자|코드");
  EXPECT_TRUE(buy.cells().column(LineCol::Key).hidden);
  const QStringList help{"날짜를 변경합니다",
                         "전화, 번지, 상호로 구매처를 검색하세요",
                         "엔터로 구매구분을 선택하세요",
                         "상품선택 : 엔터  /  ↓키 : 아래로 이동",
                         "구매수량을 입력합니다",
                         "상품의 단가를 입력합니다",
                         "D/C금액을 입력합니다",
                         "구매금액을 입력합니다",
                         "지급액을 입력합니다",
                         "미지급액을 나타내며 수정이 불가능합니다",
                         "엔터로 담당자를 선택하세요"};
  for (int col = LineCol::Date; col <= LineCol::Person; ++col) EXPECT_EQ(buy.entry.help(col), help[col - 1]);
}

TEST(BuyEntry, AStoredLineKeepsItsKind) {
  Buy buy;
  const int row = buy.bought("한강", 2, 30000);
  buy.pc.prompts.expect("구분은 변경할 수 없습니다.");
  EXPECT_EQ(buy.entry.finishCell(row, LineCol::Kind, "용기").end, LineStep::PutBack);
  EXPECT_EQ(buy.cell(row, LineCol::Kind), "가스");
}

/** The same purchases on another PC. */
struct OtherBuyer {
  tests::OtherPc at;
  tests::TradePickers pickers;
  BuyBook book{at.session};
  BuyEntry entry{book, pickers};
  explicit OtherBuyer(Buy& buy) : at(buy.pc) {
    at.pc.clock.set(buy.pc.pc.clock.now());
    at.session.StockEnabled = true;
    book.FillBuyGrid(true);
  }
};

TEST(BuyOnTwoPcs, ALineChangedThereIsNotWrittenOver) {
  Buy buy;
  const int row = buy.bought("한강", 2, 30000);
  OtherBuyer other(buy);
  other.at.prompts.expect("선택된 자료를 변경하시겠습니까?");
  other.entry.finishCell(1, LineCol::Paid, "10000");
  EXPECT_EQ(buy.owed(), "250000|7000;0|0");

  buy.pc.prompts.expect("선택된 자료를 변경하시겠습니까?");
  buy.pc.prompts.expect("다른 PC에서 먼저 변경한 자료입니다!");
  EXPECT_EQ(buy.entry.finishCell(row, LineCol::Number, "5").end, LineStep::PutBack);
  EXPECT_EQ(buy.cell(row, LineCol::Paid), "10000") << "read again";
  buy.pickers.refills.push_back("낙동");
  buy.pc.prompts.expect("선택된 구매처를 수정하시겠습니까?");
  buy.entry.search(row, LineCol::Partner, {});
  EXPECT_EQ(buy.owed(), "200000|7000;50000|0");
  other.at.prompts.expect("선택된 자료를 변경하시겠습니까?");
  other.at.prompts.expect("다른 PC에서 먼저 변경한 자료입니다!");
  other.entry.finishCell(1, LineCol::Paid, "0");
  EXPECT_EQ(buy.owed(), "200000|7000;50000|0");
}

TEST(BuyOnTwoPcs, ANewLineOfAStationThatIsNotThereAnyMoreIsNotBegun) {
  Buy buy;
  buy.pickers.refills.push_back("한강");
  const int row = buy.entry.enterKey(1, LineCol::Partner, {}).row;
  OtherBuyer other(buy);
  other.at.session.dbBasic.Execute(u"Update RefillState Set Company = '한강둘' Where Company = '한강'"_s);
  buy.pc.prompts.expect("삭제했거나 상호를 바꾼 구매처입니다!");
  const LineStep step = buy.entry.enterKey(row, LineCol::Kind, "가스");
  EXPECT_EQ(step.end, LineStep::PutBack);
  EXPECT_EQ(step.col, LineCol::Partner);
  EXPECT_EQ(buy.rows("Select Count(*) From Buy"), "0") << "its debt would be nobody's";
  EXPECT_EQ(buy.cell(1, LineCol::Code), "");
}

TEST(BuyOnTwoPcs, ADoubleDeletionTakesTheLineOffOnce) {
  Buy buy;
  const int row = buy.bought("한강", 2, 30000);
  OtherBuyer other(buy);
  other.at.prompts.expect("선택한 자료를 삭제하시겠습니까?");
  EXPECT_TRUE(other.book.deleteRow(1));
  buy.pc.prompts.expect("선택한 자료를 삭제하시겠습니까?");
  buy.pc.prompts.expect("다른 PC에서 이미 삭제한 자료입니다!");
  EXPECT_TRUE(buy.book.deleteRow(row));
  EXPECT_EQ(buy.owed(), "200000|7000;0|0");
  EXPECT_EQ(buy.stock(), "1000|100|10|40|50");
  EXPECT_EQ(buy.cells().MaxRows(), 1);
}

}  // namespace
