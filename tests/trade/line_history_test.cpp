// What a new line is offered of the customer's last ones.
#include "store/year_file.h"
#include "tests/trade/sale_desk.h"

using namespace Qt::StringLiterals;

namespace {

struct LastOffer : tests::OpenSale {
  LastOffer() {
    pc.session.dbBasic.Execute(u"Insert Into Response(Name) Values('홍길동')");
    run("Update LPG Set LPGSelling = 41000 Where Size = '20'");
    run("Update LPG Set LPGSelling = 90000 Where Size = '50'");
  }
  void gas(const char* day, const char* sheet, const char* size, int unit, const char* person = "홍길동") {
    sold(u"'%1', 1, 1, %2, 'LPG', '%3', 1, %4, 0, 0, 0, '%5'"_s.arg(day, sheet, size, QString::number(unit),
                                                                    person));
  }
  /** A new line of the customer. */
  int newRow(SaleSheet sheet = SaleSheet::General) {
    posting.FillSaleGrid(sheet, true);
    const int row = posting.grid().MaxRows();
    posting.grid().setText(row, LineCol::Code, "1");
    posting.grid().setComboPosition(row, LineCol::Kind, 0);
    return row;
  }
  /** Item, price and person on a new gas line. */
  QString offered(SaleSheet sheet = SaleSheet::General) {
    const LineOffer offer = posting.offer(newRow(sheet), TradeSide::Sale);
    return offer.item.name + '/' + offer.item.size + ' ' + QString::number(offer.unit) + ' ' + offer.person;
  }
};

TEST_F(LastOffer, IsTheNewestLineOfTheSheetWithItsPriceAndPerson) {
  gas("2026-03-01", "False", "50", 85000);
  gas("2026-03-02", "False", "20", 39000);
  EXPECT_EQ(offered(), "LPG/20 39000 홍길동");
  gas("2026-03-03", "True", "50", 0);
  EXPECT_EQ(offered(), "LPG/20 39000 홍길동") << "the meter's lines are another matter";
  EXPECT_EQ(offered(SaleSheet::Volume), "LPG/50 90000 홍길동");
  gas("2026-03-02", "False", "50", 86000);
  EXPECT_EQ(offered(), "LPG/50 86000 홍길동") << "of one day the line entered last";
  gas("2026-03-04", "False", "20", 0);
  EXPECT_EQ(offered(), "LPG/20 41000 홍길동") << "without a price at the catalogue's";
  EXPECT_EQ(offered(SaleSheet::Volume), "LPG/50 90000 홍길동") << "and the other sheet's are not the meter's";
  gas("2026-03-05", "False", "20", 39000, "떠난이");
  EXPECT_EQ(offered(), "LPG/20 39000 ") << "who has left is not offered";
  run("Insert Into LPG(LPGName, Size) Values('LPG', '20')");
  EXPECT_EQ(offered(), "/ 0 ")
      << "nor an item that stands twice in the catalogue: it is for the operator to choose";
}

TEST_F(LastOffer, TheLastLinesAreTheNewestFiveOfTheTwoYearsTogether) {
  makeYearFile(pc.session, "2025");
  const jet::Database before = openYear(pc.session, "2025");
  for (const char* const day : {"10", "20", "30"})
    for (const jet::Database& each : {before, pc.session.dbYear})  // as a closing copies
      sold(u"'2025-12-%1', 1, 1, False"_s.arg(day), each);
  const auto days = [this] {
    QStringList shown;
    for (const LastLine& line : posting.lastLines(newRow())) shown << line.date;
    return shown.join(' ');
  };
  EXPECT_EQ(days(), "12-30 12-20 12-10");
  for (const char* const day : {"01", "02", "03"}) sold(u"'2026-02-%1', 1, 1, False"_s.arg(day));
  EXPECT_EQ(days(), "02-03 02-02 02-01 12-30 12-20");
  for (const char* const day : {"04", "05", "06"}) sold(u"'2026-02-%1', 1, 1, False"_s.arg(day));
  EXPECT_EQ(days(), "02-06 02-05 02-04 02-03 02-02");
}

}  // namespace
