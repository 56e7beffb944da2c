// The lines of sale_cases.txt, each on books as they were at first.
#include "tests/trade/line_cases.h"

namespace {

using tests::SaleDesk;

/** Stock and balances as the desk begins with them, and no line. */
void clearBooks(SaleDesk& desk) {
  for (const char* const sql :
       {"Delete * From Sale",
        "Update Client Set GasInit = 100000, UtilInit = 5000, LastDate = Null Where Code = 1",
        "Update Client Set GasInit = 30000, UtilInit = 0, LastDate = Null Where Code = 3",
        "Update LPG Set LPGStock = 1000, CANTotalHold = 100, CANLoan = 10, CANEmpty = 40, CANFull = 50",
        "Update Util Set UtilStock = 30"})
    desk.run(sql);
}

TEST(SaleCases, EndAsWritten) {
  tests::eachCase<SaleDesk>("sale_cases.txt", 60, 11, [](SaleDesk& desk, const tests::LineCase& of) {
    clearBooks(desk);
    const bool volume = of.part(0) == "volume";
    const QStringList steps = of.steps(2, desk.pc.session);
    SaleBook book(desk.pc.session);
    SaleEntry entry(book, desk.pickers, desk.calls);
    book.FillSaleGrid(volume                     ? SaleSheet::Volume
                      : of.part(0) == "material" ? SaleSheet::Material
                                                 : SaleSheet::General,
                      true);
    desk.pickers.clients.push_back(volume ? ClientChoice{SaleDesk::Metered, "별빛 3동"}
                                          : ClientChoice{SaleDesk::Plain, "산골식당"});
    tests::CaseHand hand(desk, book, entry);
    hand.begin(of.part(1));
    hand.play(steps);
    const QString client = volume ? "3" : "1";
    EXPECT_EQ(QStringList({hand.cursor(), hand.figures(),
                           desk.rows("Select SaleGubun, Gubun, SaleName, SaleThing, SaleNum, SaleUnit, DC, "
                                     "Income, Trust, Response From Sale"),
                           desk.balance(client.toInt()),
                           desk.rows("Select LastDate From Client Where Code = " + client), desk.stock("20"),
                           desk.stock("50"), desk.rows("Select UtilStock From Util")}),
              of.parts.mid(3));
  });
}

}  // namespace
