// Two PCs on one folder and one line: what the other did meanwhile is seen before anything moves.
#include "tests/trade/sale_desk.h"

using namespace Qt::StringLiterals;

namespace {

struct SaleOnTwoPcs : tests::OpenSale {
  /** A stored line of two pieces at 40,000 won, 30,000 of it on credit, open on both screens. */
  SaleOnTwoPcs() {
    sold("'2026-03-05', 1, 1, False, 'LPG', '20', 2, 40000, 0, 50000, 30000, '홍길동'");
    posting.refill();
    other.emplace(*this);
  }
  QString books() {
    return balance() + ' ' + stock() + ' ' +
           rows("Select SaleNum, Income, DC, Trust, Response From Sale Order By SaleID");
  }
  void here(int col, const char* typed) {
    pc.prompts.expect("선택된 자료를 변경하시겠습니까?");
    EXPECT_EQ(entry.finishCell(1, col, typed).end, LineStep::Done);
  }
  void there(int col, const char* typed, LineStep::End end) {
    other->prompts.expect("선택된 자료를 변경하시겠습니까?");
    if (end == LineStep::PutBack) other->prompts.expect(word);
    EXPECT_EQ(other->entry.finishCell(1, col, typed).end, end);
  }

  const char* word = "다른 PC에서 먼저 변경한 자료입니다!";
  std::optional<tests::OtherDesk> other;
};

TEST_F(SaleOnTwoPcs, AChangedLineIsToldAndReadAgainAndNothingMoves) {
  here(LineCol::Paid, "60000");
  here(LineCol::Person, "나대로");
  const QString after = books();
  ASSERT_EQ(after, "90000|5000 1000|100|10|40|50 2|60000|0|20000|나대로");
  for (const int col : {LineCol::Number, LineCol::Unit, LineCol::Amount, LineCol::Paid, LineCol::Person}) {
    other->posting.setKnown(1, "as it was before");
    there(col, "20000", LineStep::PutBack);
    EXPECT_EQ(books(), after);
    EXPECT_EQ(other->posting.sheetGrid(SaleSheet::General).text(1, LineCol::Paid), "60000");
  }
  there(LineCol::Paid, "70000", LineStep::Done);  // on the line as it stands now
  EXPECT_EQ(balance(), "80000|5000")
      << "moved by the difference of the two PCs' figures, one after the other";
}

TEST_F(SaleOnTwoPcs, ALineBegunHereIsWatchedFromItsFirstWriting) {
  pickers.clients = {ClientChoice{Plain, "산골식당"}};
  const int row = entry.enterKey(posting.grid().MaxRows(), LineCol::Partner, {}).row;
  entry.enterKey(row, LineCol::Kind, "가스");
  run("Update Sale Set Response = '남' Where SaleID = 2");
  pickers.items = {ItemChoice{"LPG", "20", 40000, 0}};
  pc.prompts.expect(word);
  EXPECT_EQ(entry.enterKey(row, LineCol::Item, {}).end, LineStep::PutBack);
  EXPECT_EQ(rows("Select SaleName, Response From Sale Where SaleID = 2"), "|남");
}

TEST_F(SaleOnTwoPcs, EveryColumnThatTheScreenWritesIsCompared) {
  for (const char* const change : {"SaleDate = '2026-03-04'", "ClientCode = 2", "SaleGubun = 2",
                                   "Gubun = True", "SaleName = 'LP'", "SaleThing = '50'", "SaleNum = 3",
                                   "SaleUnit = 1", "Income = 1", "DC = 1", "Trust = 1", "Response = ''"}) {
    other->posting.FillSaleGrid(SaleSheet::General, true);
    run(u"Update Sale Set "_s + change);
    const QString after = books();
    other->prompts.expect("삭제하시겠습니까?");
    other->prompts.expect(word);
    EXPECT_TRUE(other->posting.deleteRow(1));
    EXPECT_EQ(books(), after) << change;
    run("Update Sale Set SaleDate = '2026-03-05', ClientCode = 1, SaleGubun = 1, Gubun = False, SaleName = "
        "'LPG', SaleThing = '20', SaleNum = 2, SaleUnit = 40000, Income = 50000, DC = 0, Trust = 30000, "
        "Response = '홍길동'");
  }
  run("Update Sale Set DealList = 3");
  other->posting.FillSaleGrid(SaleSheet::General, true);
  run("Update Sale Set DealList = 4, SaleList = 1");
  other->prompts.expect("삭제하시겠습니까?");
  EXPECT_TRUE(other->posting.deleteRow(1));
  EXPECT_EQ(rows("Select Count(*) From Sale"), "0") << "what other screens note on a line is no change of it";
}

TEST_F(SaleOnTwoPcs, ADeletedLineIsNeitherChangedNorDeletedAgain) {
  pc.prompts.expect("삭제하시겠습니까?");
  ASSERT_TRUE(posting.deleteRow(1));
  const QString after = books();
  EXPECT_EQ(after, "70000|5000 1040|100|10|38|52 ");
  word = "다른 PC에서 이미 삭제한 자료입니다!";
  there(LineCol::Number, "5", LineStep::PutBack);
  EXPECT_EQ(other->posting.sheetGrid(SaleSheet::General).MaxRows(), 1) << "read again";
  EXPECT_EQ(books(), after);
}

TEST_F(SaleOnTwoPcs, ANewLineOfACustomerWhoIsGoneIsNotBegun) {
  pickers.clients.push_back(ClientChoice{2, "한빛 101동 202호"});
  const int row = entry.enterKey(posting.grid().MaxRows(), LineCol::Partner, {}).row;
  other->at.session.dbBasic.Execute(u"Delete * From Client Where Code = 2"_s);
  pc.prompts.expect("다른 PC에서 삭제한 고객입니다!");
  EXPECT_EQ(entry.enterKey(row, LineCol::Kind, "가스").end, LineStep::PutBack);
  EXPECT_EQ(rows("Select Count(*) From Sale"), "1") << "no sheet would ever show it";
}

TEST_F(SaleOnTwoPcs, ADoubleDeletionTakesTheLineOffOnce) {
  pc.prompts.expect("삭제하시겠습니까?");
  posting.deleteRow(1);
  const QString after = books();
  other->prompts.expect("삭제하시겠습니까?");
  other->prompts.expect("다른 PC에서 이미 삭제한 자료입니다!");
  EXPECT_TRUE(other->posting.deleteRow(1));
  EXPECT_EQ(books(), after);
}

TEST_F(SaleOnTwoPcs, LinesOfOneCustomerMoveHisBalanceTogether) {
  other->pickers.clients.push_back(ClientChoice{Plain, "산골식당"});
  const int row = other->entry.enterKey(2, LineCol::Partner, "산골").row;
  other->entry.finishCell(row, LineCol::Kind, "수금");
  here(LineCol::Paid, "80000");  // 30,000 won of credit less
  other->prompts.expect("선택된 자료를");
  other->entry.finishCell(row, LineCol::Paid, "10000");
  EXPECT_EQ(balance(), "60000|5000");
}

}  // namespace
