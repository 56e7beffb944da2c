#include "trade/today_sale.h"

#include "tests/trade/sale_desk.h"

TEST(TodaySale, SumsEachSheetOfTheDay) {
  tests::SaleDesk desk;
  for (const char* const line : {"'2026-03-05', 1, 1, False, 'LPG', '20', 2, 0, 1000, 50000, 29000",
                                 "'2026-03-05', 1, 4, False, '가스수금', '0', 0, 0, 0, 7000, 93000",
                                 "'2026-03-05', 3, 1, True, 'LPG', '20', 4, 0, 0, 0, 0",
                                 "'2026-03-05', 1, 8, False, '자재수금', '0', 0, 0, 0, 300, 20",
                                 "'2026-03-05', 1, 7, False, '밸브', '15A', 3, 0, 0, 900, 100",
                                 "'2026-03-04', 1, 1, False, 'LPG', '20', 99, 99, 99, 99, 99"})
    desk.sold(line);
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
  EXPECT_EQ(today.sum(SaleSheet::Material).trust, 120);
  EXPECT_EQ(today.sum(SaleSheet::Material).income, 1200);
  desk.pc.session.SaleDay = "2026-03-01";
  ASSERT_TRUE(today.load());
  EXPECT_EQ(today.sum(SaleSheet::General).income, 0) << "a day without a line";
}
