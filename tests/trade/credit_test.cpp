// What is owed, and how old it is.
#include "tests/briefs/brief_desk.h"
#include "trade/briefs/trade_briefs.h"
#include "trade/credit_age.h"

namespace {

using tests::asks;

TEST(CreditAge, TheNewestLinesMakeUpWhatIsOwed) {
  const QDate today(2026, 3, 31);
  const std::vector<CreditDay> days{{{2025, 12, 30}, 7000},  // 91 days
                                    {{2025, 12, 31}, 5000},  // 90
                                    {{2026, 1, 29}, 100},    // 61
                                    {{2026, 1, 30}, 4000},   // 60
                                    {{2026, 2, 28}, 30},     // 31
                                    {{2026, 3, 1}, 2000},    // 30
                                    {{2026, 4, 2}, 1000}};   // to come
  const struct {
    qint64 balance;
    CreditAges ages;
  } cases[] = {{0, {0, 0, 0, 0}},
               {-500, {0, 0, 0, 0}},
               {1, {1, 0, 0, 0}},
               {3000, {3000, 0, 0, 0}},
               {3030, {3000, 30, 0, 0}},
               {7030, {3000, 4030, 0, 0}},
               {7031, {3000, 4030, 1, 0}},
               {12130, {3000, 4030, 5100, 0}},
               {19130, {3000, 4030, 5100, 7000}},
               {20000, {3000, 4030, 5100, 7870}}};  // 870 older than every line
  for (const auto& each : cases) EXPECT_EQ(ageCredit(each.balance, days, today), each.ages) << each.balance;
  EXPECT_EQ(ageCredit(900, {}, today), (CreditAges{0, 0, 0, 900}));
  EXPECT_EQ(ageCredit(900, {{{2026, 3, 1}, -50}, {{2026, 3, 2}, 100}}, today), (CreditAges{100, 0, 0, 800}))
      << "a line that gives back makes nothing older";
}

struct CreditTest : testing::Test, tests::BriefDesk {};

// Kim: 10,000 from before, 35,000 sold of which 5,000 paid at once, 12,000 collected: owes 28,000.
TEST_F(CreditTest, GasCreditByCustomer) {
  run("Update Client Set GasInit = 28000, UtilInit = 700, LastDate = '2026-03-20' Where Code = 1");
  run("Update Client Set GasInit = -1000 Where Code = 2");
  run("Update Client Set UtilInit = 5000 Where Code = 3");
  sale({.day = "2026-01-10", .income = 0, .trust = 9000, .discount = 300});
  sale({.day = "2026-02-10", .income = 5000, .trust = 8000});
  sale({.day = "2026-03-20", .kind = 3, .income = 0, .trust = 13000});
  sale({.day = "2026-03-21", .kind = 4, .pieces = 0, .income = 12000, .trust = 28000});
  sale({.day = "2026-03-22", .kind = 7, .income = 100, .trust = 700});
  BriefRun run(session, trustBrief());
  // 28,000 are the 13,000 of March (11 days), the 8,000 of February (49), 7,000 of the 9,000 of January (80).
  EXPECT_EQ(
      load(run, asks(0)),
      QStringList({"김하나|053-1|2026-03-20|10000|35000|300|5000|12000|28000|700|28700|13000|8000|7000|0",
                   "한빛 101동 202호|053-2||-1000|0|0|0|0|-1000|0|-1000|0|0|0|0",
                   "[합 계]|||9000|35000|300|5000|12000|27000|700|27700|13000|8000|7000|0"}));
  run.print(0);
  EXPECT_EQ(staged("Str01, Lng01, Lng02, Lng03, Lng04, Lng05, Lng06, Lng07, Lng08, Str02"),
            QStringList({"김하나|10000|35000|300|5000|12000|28000|700|28700|",
                         "한빛 101동 202호|-1000|0|0|0|0|-1000|0|-1000|"}));
  EXPECT_EQ(reports.asked.back().file, "가스미수금현황.rpt");
  EXPECT_EQ(reports.asked.back().formulas, QStringList{"판매구분= '(전체)'"});

  EXPECT_EQ(load(run, asks(0, {{"TxtName", {.text = "하"}}})).size(), 2);
  pc.prompts.expect("가스 미수금이 있는 고객이 없습니다!");
  EXPECT_FALSE(run.load(asks(0, {{"OptGubun", {.place = 2}}}))) << "the metered one owes for materials alone";
}

TEST_F(CreditTest, CreditOfLastYearKeepsItsAge) {
  pc.pc.clock.set(QDate(2026, 1, 20).startOfDay());
  run("Update Client Set GasInit = 30000 Where Code = 1");
  const jet::Database last = year("2025");
  sale(last, {.day = "2025-10-21", .trust = 900});    // 91 days
  sale(last, {.day = "2025-10-22", .trust = 2000});   // 90
  sale(last, {.day = "2025-11-20", .trust = 4000});   // 61
  sale(last, {.day = "2025-12-31", .trust = 20000});  // 20
  sale({.day = "2025-12-31", .trust = 20000});        // the copy that a closing leaves
  sale({.day = "2026-01-05", .trust = 1000});
  BriefRun run(session, trustBrief());
  EXPECT_EQ(load(run, asks(0))[0], "김하나|053-1||29000|1000|0|0|0|30000|0|30000|21000|0|6000|3000");

  session.dbYear = last;
  pc.pc.clock.set(
      QDate(2025, 12, 31).startOfDay());  // the PC's year was changed: January's 1,000 is owed all the same
  EXPECT_EQ(load(run, asks(0))[0], "김하나|053-1||2100|27900|0|0|0|30000|0|30000|21000|4000|2900|2100");
  pc.pc.clock.set(QDate(2026, 1, 20).startOfDay());

  session.WorkYear = "2025";  // last year's book is open: what was sold since its beginning is 27,900
  session.dbYear = last;
  EXPECT_EQ(load(run, asks(0))[0], "김하나|053-1||2100|27900|0|0|0|30000|0|30000|21000|0|6000|3000");
}

}  // namespace
