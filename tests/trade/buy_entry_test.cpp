// Stations, lists and two PCs on the purchase screen; the figures are in buy_cases.txt.
#include "tests/trade/buy_desk.h"

using namespace Qt::StringLiterals;

namespace {

struct Buying : testing::Test, tests::BuyDesk {
  BuyBook book{pc.session};
  BuyEntry entry{book, pickers};

  Buying() { book.FillBuyGrid(true); }
  SpreadModel& cells() { return book.grid(); }
  QString cell(int row, int col) { return cells().text(row, col); }
  /** The bottom row with its station. */
  int begun(const QString& station) {
    pickers.refills.push_back(station);
    const int row = entry.enterKey(cells().MaxRows(), LineCol::Partner, {}).row;
    entry.enteredRow(row);
    return row;
  }
  /** A line of so many pieces at 30,000 won, all on credit; its row. */
  int bought(const QString& station, int pieces) {
    const int row = begun(station);
    entry.enterKey(row, LineCol::Kind, "가스");
    pickers.items.push_back(ItemChoice{"LPG", "20", 30000, 0});
    entry.enterKey(row, LineCol::Item, {});
    pc.prompts.expect("선택된 자료를 변경하시겠습니까?");
    entry.finishCell(row, LineCol::Number, QString::number(pieces));
    entry.onCredit(row);
    entry.makeRoomBelow(row);
    return row;
  }
};

TEST_F(Buying, TheStationIsFoundByNameTelephoneOrAddress) {
  const auto typed = [&](const QString& text) {
    book.FillBuyGrid(true);
    entry.enterKey(1, LineCol::Partner, text);
    return cell(1, LineCol::Code);
  };
  EXPECT_EQ(typed("333-44"), "낙동");
  EXPECT_EQ(typed("강변"), "한강");
  EXPECT_TRUE(pickers.asked.isEmpty());
  EXPECT_EQ(typed("로"), "") << "both addresses: the list opens, and nobody is chosen";
  EXPECT_EQ(pickers.asked.takeLast(), "station");
  run("Insert Into RefillState(Code, Company, Address) Values('0003', '한강2', '낙동')");
  EXPECT_EQ(typed("한강"), "한강") << "the whole name goes before a part of another";
  EXPECT_EQ(typed("낙동"), "낙동");
}

TEST_F(Buying, AStationTypedAndLeftIsTakenToo) {
  EXPECT_EQ(entry.finishCell(1, LineCol::Partner, "낙동").col, LineCol::Kind);
  EXPECT_EQ(cell(1, LineCol::Code), "낙동");
  entry.enterKey(1, LineCol::Kind, "가스");
  EXPECT_EQ(entry.finishCell(1, LineCol::Partner, "없는 곳").end, LineStep::PutBack);
  EXPECT_EQ(cell(1, LineCol::Partner), "낙동") << "a stored line keeps its station";
  pickers.refills.push_back("낙동");
  EXPECT_EQ(entry.search(1, LineCol::Partner, {}).end, LineStep::PutBack) << "the same one asks nothing";
  pc.prompts.expect("선택된 구매처를 수정하시겠습니까?");
  entry.finishCell(1, LineCol::Partner, "강변");
  EXPECT_EQ(rows("Select BuyCompany From Buy"), "한강");
  book.FillBuyGrid(true);
  entry.finishCell(2, LineCol::Partner, "없는 곳");
  EXPECT_EQ(cell(2, LineCol::Partner), "") << "a name only comes from the search";
}

TEST_F(Buying, AChosenStationShowsItsLinesAndEscShowsAll) {
  const int row = bought("한강", 2);
  entry.enteredRow(row + 1);
  bought("낙동", 1);
  EXPECT_EQ(cells().MaxRows(), 2) << "낙동's line and the empty row";
  book.FillBuyGrid(true);
  EXPECT_EQ(cells().MaxRows(), 3);
  EXPECT_EQ(cell(1, LineCol::Partner) + cell(2, LineCol::Partner), "한강낙동");
  EXPECT_EQ(book.panel(1).address + ' ' + book.panel(1).gasOwed + ' ' + book.panel(1).utilOwed,
            "(100-200) 강변로 7 260,000 7,000");
  EXPECT_EQ(book.panel(3).tel, "");
  EXPECT_EQ(book.lastLines(1).front().amount, "60,000");
}

TEST_F(Buying, ANewLineOffersTheStationsLastItemOfTheKind) {
  pc.session.dbBasic.Execute(u"Insert Into Response(Name) Values('홍길동')"_s);
  bought("한강", 2);
  run("Update Buy Set Response = '홍길동'");
  const int row = begun("한강");
  EXPECT_EQ(cells().offer(row, LineCol::Item), "LPG / 20");
  entry.enterKey(row, LineCol::Kind, "가스");
  EXPECT_EQ(entry.enterKey(row, LineCol::Item, {}).col, LineCol::Number);
  EXPECT_EQ(cell(row, LineCol::Paid), "30000");
  EXPECT_EQ(entry.enterKey(row, LineCol::Amount, "30000").col, LineCol::Paid) << "what is paid is asked for";
  EXPECT_EQ(entry.enterKey(row, LineCol::Paid, "30000").col, LineCol::Partner) << "with the person it offers";
  EXPECT_TRUE(line().endsWith("|홍길동"));
}

TEST_F(Buying, MaterialsOpenWithTheirOwnKind) {
  entry.buysMaterials(true);
  const int row = begun("한강");
  EXPECT_EQ(cell(row, LineCol::Kind), "자재");
  entry.enterKey(row, LineCol::Kind, "자재");
  pickers.items.push_back(ItemChoice{"밸브", "15A", 8000, 0});
  entry.enterKey(row, LineCol::Item, {});
  EXPECT_EQ(pickers.asked.last(), "purchase 4");
  EXPECT_EQ(line(), "한강|4|밸브|15A|1|8000|0|8000|0|");
}

TEST_F(Buying, RowsOfAMissingOrDoubledStationStandOnce) {
  bought("한강", 2);
  run("Insert Into RefillState(Code, Company) Values('0003', '한강')");
  book.FillBuyGrid(true);
  EXPECT_EQ(cells().MaxRows(), 2);
  run("Delete * From RefillState");
  book.FillBuyGrid(true);
  EXPECT_EQ(cells().MaxRows(), 2);
  EXPECT_EQ(cell(1, LineCol::Partner), "한강");
  EXPECT_EQ(book.panel(1).gasOwed, "");
}

TEST_F(Buying, MissingCellsAreToldInOrder) {
  const int row = bought("한강", 2);
  const std::pair<int, const char*> order[] = {
      {LineCol::Date, "날짜를 입력하세요"},        {LineCol::Partner, "구매처를 검색하세요"},
      {LineCol::Kind, "판매구분을 검색하세요"},    {LineCol::Item, "품명을 검색하세요"},
      {LineCol::Number, "수량을 입력하세요"},      {LineCol::Unit, "단가를 입력하세요"},
      {LineCol::Discount, "D/C금액을 입력하세요"}, {LineCol::Paid, "입금액을 입력하세요"}};
  QStringList texts;
  for (const auto& [col, told] : order) texts << cell(row, col);
  for (const auto& [col, told] : order) cells().setText(row, col, {});
  for (const auto& [col, told] : order) {
    pc.prompts.expect(told);
    EXPECT_EQ(entry.missingField(row), col);
    EXPECT_TRUE(pc.prompts.seen.last().startsWith("필수입력|"));
    cells().setText(row, col, texts.takeFirst());
  }
  EXPECT_EQ(entry.missingField(row), 0);
  cells().setText(row, LineCol::Kind, "자외");
  for (const int col : {LineCol::Number, LineCol::Unit, LineCol::Discount}) cells().setText(row, col, {});
  EXPECT_EQ(entry.missingField(row), 0) << "a payment has none of them";
}

TEST_F(Buying, TheScreensWords) {
  EXPECT_EQ(labelsOf(buyKinds()).join(' '), "가스 용기 보관 회수 실병 가외 자재 자외");
  QStringList headers;
  for (int col = LineCol::Date; col <= LineCol::Key; ++col) headers << cells().column(col).header;
  EXPECT_EQ(headers.join('|'),
            "일자|구매처|구분|품명/용량|수량|단가|D/C|구매금액|지불금액|외상금액|담당자|코드");
  EXPECT_TRUE(cells().column(LineCol::Key).hidden);
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
  for (int col = LineCol::Date; col <= LineCol::Person; ++col) EXPECT_EQ(entry.help(col), help[col - 1]);
}

/** The same purchases on another PC. */
struct OtherBuyer {
  tests::OtherPc at;
  tests::TradePickers pickers;
  BuyBook book{at.session};
  BuyEntry entry{book, pickers};
  explicit OtherBuyer(Buying& buy) : at(buy.pc) {
    at.pc.clock.set(buy.pc.pc.clock.now());
    at.session.StockEnabled = true;
    book.FillBuyGrid(true);
  }
};
struct BuyOnTwoPcs : Buying {};

TEST_F(BuyOnTwoPcs, ALineChangedThereIsNotWrittenOver) {
  const int row = bought("한강", 2);
  OtherBuyer other(*this);
  other.at.prompts.expect("선택된 자료를 변경하시겠습니까?");
  other.entry.finishCell(1, LineCol::Paid, "10000");
  EXPECT_EQ(owed(), "250000|7000;0|0");

  pc.prompts.expect("선택된 자료를 변경하시겠습니까?");
  pc.prompts.expect("다른 PC에서 먼저 변경한 자료입니다!");
  EXPECT_EQ(entry.finishCell(row, LineCol::Number, "5").end, LineStep::PutBack);
  EXPECT_EQ(cell(row, LineCol::Paid), "10000") << "read again";
  pickers.refills.push_back("낙동");
  pc.prompts.expect("선택된 구매처를 수정하시겠습니까?");
  entry.search(row, LineCol::Partner, {});
  EXPECT_EQ(owed(), "200000|7000;50000|0");
  other.at.prompts.expect("선택된 자료를 변경하시겠습니까?");
  other.at.prompts.expect("다른 PC에서 먼저 변경한 자료입니다!");
  other.entry.finishCell(1, LineCol::Paid, "0");
  EXPECT_EQ(owed(), "200000|7000;50000|0");
}

TEST_F(BuyOnTwoPcs, ANewLineOfAStationThatIsNotThereAnyMoreIsNotBegun) {
  const int row = begun("한강");
  OtherBuyer other(*this);
  other.at.session.dbBasic.Execute(u"Update RefillState Set Company = '한강둘' Where Company = '한강'"_s);
  pc.prompts.expect("삭제했거나 상호를 바꾼 구매처입니다!");
  const LineStep step = entry.enterKey(row, LineCol::Kind, "가스");
  EXPECT_EQ(step.end, LineStep::PutBack);
  EXPECT_EQ(step.col, LineCol::Partner);
  EXPECT_EQ(rows("Select Count(*) From Buy"), "0") << "its debt would be nobody's";
  EXPECT_EQ(cell(1, LineCol::Code), "");
}

}  // namespace
