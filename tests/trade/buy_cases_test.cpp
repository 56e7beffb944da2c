// The lines of buy_cases.txt, each on books as they were at first.
#include "tests/trade/buy_desk.h"
#include "tests/trade/line_cases.h"

namespace {

using tests::BuyDesk;
using tests::CaseHand;
using tests::LineCase;

TEST(BuyCases, EndAsWritten) {
  const std::vector<LineCase> cases = tests::lineCases("buy_cases.txt");
  ASSERT_GT(cases.size(), 40u);
  BuyDesk desk;
  for (const LineCase& of : cases) {
    SCOPED_TRACE(of.name());
    ASSERT_EQ(of.parts.size(), 9);
    desk.clearBooks();
    const QStringList steps = of.steps(1, desk.pc.session);
    BuyBook book(desk.pc.session);
    BuyEntry entry(book, desk.pickers);
    book.FillBuyGrid(true);
    desk.pickers.refills.push_back("한강");
    CaseHand hand(desk, book, entry);
    hand.begin(of.part(0));
    hand.play(steps);
    EXPECT_EQ(hand.cursor(), of.part(2));
    EXPECT_EQ(hand.figures(), of.part(3));
    EXPECT_EQ(desk.line(), of.part(4));
    EXPECT_EQ(desk.owed(), of.part(5));
    EXPECT_EQ(desk.stock("20"), of.part(6));
    EXPECT_EQ(desk.stock("50"), of.part(7));
    EXPECT_EQ(desk.rows("Select UtilStock From Util"), of.part(8));
  }
}

}  // namespace
