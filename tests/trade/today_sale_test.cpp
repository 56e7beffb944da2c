#include "trade/today_sale.h"

#include "tests/trade/sale_desk.h"

TEST(TodaySale, SumsEachSheetOfTheDay) {
  tests::SaleDesk desk;
  const QString insert =
      "Insert Into Sale(SaleDate, ClientCode, SaleGubun, Gubun, SaleNum, Income, DC, Trust) Values('2026-03-";
  desk.run(insert + "05', 1, 1, False, 2, 50000, 1000, 29000)");
  desk.run(insert + "05', 1, 4, False, 0, 7000, 0, 93000)");
  desk.run(insert + "05', 3, 1, True, 4, 0, 0, 0)");
  desk.run(insert + "05', 1, 7, False, 3, 900, 0, 100)");
  desk.run(insert + "04', 1, 1, False, 99, 99, 99, 99)");
  desk.pc.session.SaleDay = "2026-03-05";
  TodaySale today(desk.pc.session);
  ASSERT_TRUE(today.load());
  EXPECT_EQ(today.title(), "03/05일의 판매현황");
  const DaySum& general = today.sum(SaleSheet::General);
  EXPECT_EQ(general.pieces, 2);
  EXPECT_EQ(general.income, 57000);
  EXPECT_EQ(general.discount, 1000);
  EXPECT_EQ(general.trust, 122000);
  EXPECT_EQ(today.sum(SaleSheet::Volume).pieces, 4);
  EXPECT_EQ(today.sum(SaleSheet::Material).trust, 100);
  desk.pc.session.SaleDay = "2026-03-01";
  ASSERT_TRUE(today.load());
  EXPECT_EQ(today.sum(SaleSheet::General).income, 0) << "a day without a line";
}
