// The stock in and out as it is shown and goes to its report.
#include "tests/briefs/brief_desk.h"
#include "trade/briefs/trade_briefs.h"

namespace {

using tests::asks;
using tests::days;

struct StockBriefs : testing::Test, tests::BriefDesk {
  const BriefAsk period = asks(0, {{"TxtDay", days("2026-03-01", "2026-03-10")}});
  StockBriefs() {
    run("Insert Into LPG(LPGName, Size, CANFull, CANEmpty) Values('LPG', '20', 50, 40)");
    run("Insert Into Util(Name, Size, UtilStock) Values('밸브', '15A', 30)");
  }
};

TEST_F(StockBriefs, GasAndCylinders) {
  sale({.day = "2026-03-02", .pieces = 3});
  sale({.day = "2026-03-03", .kind = 5, .pieces = 2});
  sale({.day = "2026-03-20", .kind = 3, .pieces = 1});
  run("Insert Into Buy(BuyDate, BuyName, BuyThing, PurchaseNum, PurchaseGubun) Values('2026-03-04', 'LPG', "
      "'20', 10, 1)");
  BriefRun brief(session, holdBrief());
  // Full ones 50 + 3 + 1 - 10 = 44, then 44 + 10 - 3 = 51; cylinders 90 + 2 + 1 = 93, then 93 - 2 = 91.
  EXPECT_EQ(load(brief, period), QStringList{"LPG|20|44|10|3|51|93|0|0|2|0|91"});
  brief.print(0);
  EXPECT_EQ(staged("Str01, Str02, Str03, Str04, Str05, Str06, Str07, Str08, Str09, Str10, Str11, Str12"),
            QStringList{"LPG|20|44|10|3|51|93|0|0|2|0|91"});
  EXPECT_EQ(reports.asked.back().file, "재고수불현황.rpt");
  EXPECT_EQ(brief.page(0).working(brief.ask(0)),
            "가스/용기의 2026-03-01 일부터 2026-03-10 일까지의 재고 수불현황을 계산중입니다. 잠시 기다려 "
            "주십시오...");
}

TEST_F(StockBriefs, Materials) {
  sale({.day = "2026-03-02", .kind = 7, .pieces = 4, .item = "밸브", .size = "15A"});
  BriefRun brief(session, utilHoldBrief());
  EXPECT_EQ(load(brief, period), QStringList{"밸브|15A|34|0|4|30"});
  brief.print(0);
  EXPECT_EQ(staged("Str01, Str03, Str06"), QStringList{"밸브|34|30"});
  EXPECT_EQ(reports.asked.back().file, "자재재고수불현황.rpt");
  run("Delete * From Util");
  pc.prompts.expect("등록된 자재가 없습니다!");
  EXPECT_FALSE(brief.load(period));
}

}  // namespace
