#include "trade/today_sale.h"

#include "tests/trade/sale_desk.h"

TEST(TodaySale, SumsEachSheetOfTheDay) {
  tests::SaleDesk desk;
  for (const char* const line : {"'2026-03-05', 1, 1, False, 'LPG', '20', 2, 0, 1000, 50000, 29000",
                                 "'2026-03-05', 1, 4, False, '가스수금', '0', 0, 0, 0, 7000, 93000",
                                 "'2026-03-05', 1, 5, False, 'LPG', '20', 10, 0, 0, 0, 0",
                                 "'2026-03-05', 3, 1, True, 'LPG', '20', 4, 0, 6, 8, 9",
                                 "'2026-03-05', 3, 4, True, '가스수금', '0', 0, 0, 0, 60, 70",
                                 "'2026-03-05', 1, 8, False, '자재수금', '0', 0, 0, 0, 300, 20",
                                 "'2026-03-05', 1, 7, False, '밸브', '15A', 3, 0, 40, 900, 100",
                                 "'2026-03-04', 1, 1, False, 'LPG', '20', 99, 99, 99, 99, 99"})
    desk.sold(line);
  desk.pc.session.SaleDay = "2026-03-05";
  TodaySale today(desk.pc.session);
  ASSERT_TRUE(today.load());
  EXPECT_EQ(today.title(), "03/05일의 판매현황");
  const auto sums = [&](SaleSheet sheet) {
    const DaySum& sum = today.sum(sheet);
    return std::vector<qint64>{sum.pieces, sum.income, sum.discount, sum.trust};
  };
  EXPECT_EQ(sums(SaleSheet::General), (std::vector<qint64>{12, 57000, 1000, 122000}));
  EXPECT_EQ(sums(SaleSheet::Volume), (std::vector<qint64>{4, 68, 6, 79}));
  EXPECT_EQ(sums(SaleSheet::Material), (std::vector<qint64>{3, 1200, 40, 120}));
  desk.pc.session.SaleDay = "2026-03-01";
  ASSERT_TRUE(today.load());
  EXPECT_EQ(sums(SaleSheet::General), std::vector<qint64>(4)) << "a day without a line";
}
