// What a new line is offered of the customer's last ones.
#include "store/year_file.h"
#include "tests/trade/sale_desk.h"

using namespace Qt::StringLiterals;

namespace {

using tests::SaleDesk;

struct LastOffer : testing::Test {
  SaleDesk desk;
  SaleBook book{desk.pc.session};

  void SetUp() override {
    desk.pc.session.dbBasic.Execute(u"Insert Into Response(Name) Values('홍길동')");
    desk.run("Update LPG Set LPGSelling = 41000 Where Size = '20'");
    desk.run("Update LPG Set LPGSelling = 90000 Where Size = '50'");
  }
  void sold(const char* day, const char* sheet, const char* size, int unit, const char* person) {
    desk.sold(u"'%1', 1, 1, %2, 'LPG', '%3', 1, %4, 0, 0, 0, '%5'"_s.arg(day, sheet, size,
                                                                         QString::number(unit), person));
  }
  /** Item, price and person on a new gas line of the general sheet. */
  QString offered(SaleSheet sheet = SaleSheet::General) {
    book.FillSaleGrid(sheet, true);
    const int row = book.grid().MaxRows();
    book.grid().setText(row, LineCol::Code, "1");
    book.grid().setComboPosition(row, LineCol::Kind, 0);
    const LineOffer offer = book.offer(row, TradeSide::Sale);
    return offer.item.name + '/' + offer.item.size + ' ' + QString::number(offer.unit) + ' ' + offer.person;
  }
};

TEST_F(LastOffer, IsTheNewestLineOfTheSheetWithItsPriceAndPerson) {
  sold("2026-03-01", "False", "50", 85000, "홍길동");
  sold("2026-03-02", "False", "20", 39000, "홍길동");
  EXPECT_EQ(offered(), "LPG/20 39000 홍길동");
  sold("2026-03-03", "True", "50", 0, "홍길동");
  EXPECT_EQ(offered(), "LPG/20 39000 홍길동") << "the meter's lines are another matter";
  EXPECT_EQ(offered(SaleSheet::Volume), "LPG/50 90000 홍길동");
  sold("2026-03-02", "False", "50", 86000, "홍길동");
  EXPECT_EQ(offered(), "LPG/50 86000 홍길동") << "of one day the line entered last";
}

TEST_F(LastOffer, ALineWithoutAPriceIsOfferedAtTheCatalogues) {
  sold("2026-03-02", "False", "20", 0, "홍길동");
  EXPECT_EQ(offered(), "LPG/20 41000 홍길동");
}

TEST_F(LastOffer, TheLastLinesAreTheNewestFiveOfTheTwoYearsTogether) {
  makeYearFile(desk.pc.session, "2025");
  const jet::Database before = openYear(desk.pc.session, "2025");
  for (const char* const day : {"10", "20", "30"})
    SaleDesk::sold(u"'2025-12-%1', 1, 1, False"_s.arg(day), before);
  const auto days = [this] {
    book.FillSaleGrid(SaleSheet::General, true);
    const int row = book.grid().MaxRows();
    book.grid().setText(row, LineCol::Code, "1");
    QStringList shown;
    for (const LastLine& line : book.lastLines(row)) shown << line.date;
    return shown.join(' ');
  };
  EXPECT_EQ(days(), "12-30 12-20 12-10");
  for (const char* const day : {"01", "02", "03"}) desk.sold(u"'2026-02-%1', 1, 1, False"_s.arg(day));
  EXPECT_EQ(days(), "02-03 02-02 02-01 12-30 12-20");
  for (const char* const day : {"04", "05", "06"}) desk.sold(u"'2026-02-%1', 1, 1, False"_s.arg(day));
  EXPECT_EQ(days(), "02-06 02-05 02-04 02-03 02-02");
}

TEST_F(LastOffer, WhoHasLeftIsNotOffered) {
  sold("2026-03-02", "False", "20", 39000, "떠난이");
  EXPECT_EQ(offered(), "LPG/20 39000 ");
}

}  // namespace
