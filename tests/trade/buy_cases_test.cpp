// The lines of buy_cases.txt, each on books as they were at first.
#include "tests/trade/buy_desk.h"
#include "tests/trade/line_cases.h"

namespace {

TEST(BuyCases, EndAsWritten) {
  tests::eachCase<tests::BuyDesk>(
      "buy_cases.txt", 40, 9, [](tests::BuyDesk& desk, const tests::LineCase& of) {
        desk.clearBooks();
        const QStringList steps = of.steps(1, desk.pc.session);
        BuyBook book(desk.pc.session);
        BuyEntry entry(book, desk.pickers);
        book.FillBuyGrid(true);
        desk.pickers.refills.push_back("한강");
        tests::CaseHand hand(desk, book, entry);
        hand.begin(of.part(0));
        hand.play(steps);
        EXPECT_EQ(QStringList({hand.cursor(), hand.figures(), desk.line(), desk.owed(), desk.stock("20"),
                               desk.stock("50"), desk.rows("Select UtilStock From Util")}),
                  of.parts.mid(2));
      });
}

}  // namespace
