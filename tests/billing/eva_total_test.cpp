#include "billing/eva_total.h"

#include "briefs/brief_run.h"
#include "tests/billing/meter_desk.h"
#include "tests/cells.h"
#include "tests/shown_reports.h"

using namespace Qt::StringLiterals;

namespace {

/** The boxes of the form as a test fills them. */
struct EvaTotalAsk {
  HouseStyle book = HouseStyle::Individual;
  bool byCollection = false;
  int fromMonth = 1, toMonth = 1;
  QString fromDay = {}, toDay = {};
  QString building = {}, dong = {}, ho = {};
};

/** The form's rules, with its panels. */
struct EvaTotalTest : testing::Test, tests::MeterDesk {
  EvaTotalTest() : MeterDesk(QDate(2026, 5, 20)) { session.reports = &reports; }
  bool refresh(const EvaTotalAsk& asked) {
    const auto month = [](int each) { return QString::number(each).rightJustified(2, '0'); };
    page = int(asked.book);
    BriefAsk ask{.page = page};
    ask.answers["chkSuKum"] = {.text = asked.byCollection ? "1" : ""};
    ask.answers["CboMon"] = {.text = month(asked.fromMonth), .to = month(asked.toMonth)};
    ask.answers["TxtDay"] = {.text = asked.fromDay, .to = asked.toDay};
    ask.answers["CboGubun"] = {.text = asked.building, .place = asked.building.isEmpty() ? 0 : 1};
    ask.answers["txtDong"] = {.text = asked.dong};
    ask.answers["txtHo"] = {.text = asked.ho};
    return brief.load(ask);
  }
  QStringList buildings(HouseStyle book) { return brief.brief().questions[0].entries(session, int(book)); }
  SpreadModel& grid() { return brief.grid(page); }
  qint64 figure(int at) { return brief.rows(page).figures.value(at).toLongLong(); }
  qint64 prev() { return figure(1); }
  qint64 income() { return figure(2); }
  qint64 remain() { return figure(3); }
  QString period() { return brief.rows(page).figures.value(0); }
  /** One bill a row: arrears, use, late, fee, paid, day; the total as the bill makes it. */
  void bill(int code, int month, double trust, double use, double late, double fee, double pay,
            const char* day = "") {
    set(code, month,
        u"Trust = %1, UsePay = %2, Delay = %3, Manage = %4, Pay = %5, TrustDay = '%6', Total = %7"_s
            .arg(trust)
            .arg(use)
            .arg(late)
            .arg(fee)
            .arg(pay)
            .arg(QString::fromLatin1(day))
            .arg(use + trust + late + fee - pay));
  }
  QStringList lines() { return tests::rowsOf(grid()); }
  /** Without the sum. */
  QStringList names() {
    const QStringList all = tests::columnOf(grid(), TotalCol::Name);
    return all.first(qMax<qsizetype>(0, all.size() - 1));
  }

  tests::ShownReports reports;
  BriefRun brief{session, evaTotalBrief()};
  int page = 0;
};

TEST_F(EvaTotalTest, MonthsOfTheIndividualBook) {
  const int kim = customer("김하나", 1000), lee = customer("이둘", 1000);
  customer("아파트", 1000, 1, "한빛", "101", "201");
  set(kim, 2, "Total = 5000");
  set(lee, 2, "Total = 700");
  bill(kim, 3, 5000, 20000, 100, 1000, 6000, "03/10");  // leaves 20,100
  bill(kim, 4, 20100, 15000, 402, 1000, 0);             // leaves 36,502, shown down to ten: 36,500
  bill(lee, 3, 700, 10000.5, 0, 1000, 0);               // leaves 11,700.5: 11,700
  bill(lee, 4, 11700.5, 0, 0, 1000, 12700, "04/02");    // leaves 0.5: 0
  ASSERT_TRUE(refresh({.fromMonth = 3, .toMonth = 4}));
  EXPECT_EQ(lines(),
            QStringList({"김하나||03|5000|20000|100|1000|6000|03/10|20100",
                         "김하나||04|20100|15000|402|1000|0||36500", "이둘||03|700|10000|0|1000|0||11700",
                         "이둘||04|11700|0|0|1000|12700|04/02|0", "[합 계]||||45000|502|4000|18700||"}));
  EXPECT_EQ(prev(), 5700);
  EXPECT_EQ(income(), 18700);
  EXPECT_EQ(remain(), 36500) << "only each customer's last month is still open";
  EXPECT_EQ(period(), "03월 ~ 04월");
  EXPECT_TRUE(grid().column(TotalCol::Building).hidden);

  ASSERT_TRUE(refresh({.fromMonth = 3, .toMonth = 3}));
  EXPECT_EQ(remain(), 20100 + 11700);
  EXPECT_EQ(period(), "03월");

  set(kim, 0, "Total = 300");
  bill(kim, 1, 300, 0, 0, 0, 0);
  ASSERT_TRUE(refresh({.fromMonth = 1, .toMonth = 1}));
  EXPECT_EQ(prev(), 300) << "before January stands the opening entry";
}

TEST_F(EvaTotalTest, TwoOfOneNameAreBothCounted) {
  const int first = customer("김하나", 1000), second = customer("김하나", 1000);
  bill(first, 3, 0, 10000, 0, 0, 0);
  bill(second, 3, 0, 5000, 0, 0, 0);
  ASSERT_TRUE(refresh({.fromMonth = 3, .toMonth = 3}));
  EXPECT_EQ(remain(), 15000);

  bill(first, 2, 0, 10000, 0, 0, 1000, "02/10");
  bill(second, 3, 0, 5000, 0, 0, 500, "03/10");
  ASSERT_TRUE(refresh({.byCollection = true, .fromDay = "02/01", .toDay = "03/31"}));
  EXPECT_EQ(remain(), 9000 + 4500) << "each one's own last month";
}

TEST_F(EvaTotalTest, BuildingsDongAndHoNarrowTheLinesTheBroughtInSumOnlyTheBuilding) {
  const int a = customer("가", 1000, 1, "한빛", "101", "201"),
            b = customer("나", 1000, 1, "한빛", "102", "201");
  const int c = customer("다", 1000, 1, "새봄", "101", "301");
  customer("라", 1000, 2, "다세대", "가", "1");
  set(a, 4, "Total = 100");
  set(b, 4, "Total = 20");
  set(c, 4, "Total = 3");
  EXPECT_EQ(buildings(HouseStyle::Apartment), QStringList({"전체", "새봄", "한빛"}));
  EXPECT_EQ(buildings(HouseStyle::MultiHousehold), QStringList({"전체", "다세대"}));
  EXPECT_EQ(buildings(HouseStyle::Individual), QStringList());

  EvaTotalAsk ask{.book = HouseStyle::Apartment, .fromMonth = 5, .toMonth = 5};
  ASSERT_TRUE(refresh(ask));
  EXPECT_EQ(names(), QStringList({"101동 201호", "102동 201호", "101동 301호"}));
  EXPECT_EQ(prev(), 123);
  EXPECT_FALSE(grid().column(TotalCol::Building).hidden);
  ask.building = "한빛";
  ASSERT_TRUE(refresh(ask));
  EXPECT_EQ(names(), QStringList({"101동 201호", "102동 201호"}));
  EXPECT_EQ(prev(), 120);
  ask.dong = "102";
  ASSERT_TRUE(refresh(ask));
  EXPECT_EQ(names(), QStringList({"102동 201호"}));
  EXPECT_EQ(prev(), 120) << "kept: of the whole building";
  ask.ho = "999";
  pc.prompts.expect("기간내의 검침자료가 없습니다!");
  EXPECT_FALSE(refresh(ask));
  EXPECT_EQ(grid().MaxRows(), 0);
  EXPECT_TRUE(pc.prompts.seen.last().startsWith("검침 관리자|"));
}

TEST_F(EvaTotalTest, CollectionsByTheirDays) {
  const int kim = customer("김하나", 1000), lee = customer("이둘", 1000), park = customer("박셋", 1000);
  bill(kim, 2, 0, 10000, 0, 0, 4000, "03/31");  // leaves 6,000, collected the month before
  bill(kim, 3, 6000, 10000, 0, 0, 16000, "04/01");
  bill(lee, 3, 0, 9000, 0, 0, 5000, "04/30");     // leaves 4,000
  bill(lee, 4, 4000, 8000, 0, 0, 2000, "05/01");  // a day late
  bill(park, 4, 0, 7000, 0, 0, 0, "04/10");       // nothing collected
  EvaTotalAsk ask{.byCollection = true, .fromDay = "04-01", .toDay = "04-30"};
  ASSERT_TRUE(refresh(ask));
  EXPECT_EQ(lines(), QStringList({"김하나||03|6000|10000|0|0|16000|04/01|0",
                                  "이둘||03|0|9000|0|0|5000|04/30|4000", "[합 계]||||19000|0|0|21000||"}));
  EXPECT_EQ(prev(), 6000) << "what the bills collected in March left";
  EXPECT_EQ(income(), 21000);
  EXPECT_EQ(remain(), 4000);
  EXPECT_EQ(period(), "04/01 ~ 04/30");

  ask.toDay = "04-31";
  pc.prompts.expect("날짜입력이 잘못되었습니다!");
  EXPECT_FALSE(refresh(ask));
  ask = {.byCollection = true, .fromDay = "12-01", .toDay = "12-31"};
  pc.prompts.expect("기간내의 수금자료가 없습니다!");
  EXPECT_FALSE(refresh(ask));
}

// From 5 March to 10 May, whichever of the two shapes a day has; a day beyond a bound is beyond it in both.
TEST_F(EvaTotalTest, DaysOfTheBanksFileAreFoundLikeThoseOfTheGrid) {
  const char* const within[] = {"03/05", "03-05", "03-31", "04/01", "04-30", "05-01", "05/10", "05-10"};
  const char* const beyond[] = {"03/04", "03-04", "02-28", "05/11", "05-11", "05-20", "", "12-01"};
  QStringList found;
  for (const char* day : within) {
    bill(customer(day, 1000), 3, 0, 1000, 0, 0, 100, day);
    found << day;
  }
  for (const char* day : beyond) bill(customer(day, 1000), 3, 0, 1000, 0, 0, 7, day);
  ASSERT_TRUE(refresh({.byCollection = true, .fromDay = "03-05", .toDay = "05-10"}));
  EXPECT_EQ(names(), found);
  EXPECT_EQ(income(), 800);
  EXPECT_EQ(prev(), 993) << "what February left, 02-28 alone";
  EXPECT_EQ(grid().text(2, TotalCol::TrustDay), "03/05") << "one shape on the list";
  ASSERT_TRUE(refresh({.byCollection = true, .fromDay = "03-20", .toDay = "03-31"}));
  EXPECT_EQ(names(), QStringList{"03-31"});
}

TEST_F(EvaTotalTest, ThePrintStagesTheLinesWithoutTheSum) {
  const int a = customer("가", 1000, 1, "한빛", "101", "201");
  bill(a, 3, 5000, 20000, 100, 1000, 6000, "03/10");
  ASSERT_TRUE(refresh({.book = HouseStyle::Apartment, .fromMonth = 3, .toMonth = 3, .building = "한빛"}));
  brief.print(page);
  const auto staged = [this] {
    return tests::stagedRows(session, "Str01, Lng01, Lng02, Str02, Str03, Lng03, Lng04, Str04, Lng05, Lng06");
  };
  EXPECT_EQ(staged(), QStringList({"101동 201호|5000|20000|한빛|03|100|1000|03/10|6000|20100"}));
  ASSERT_EQ(reports.asked.size(), 1u);
  EXPECT_EQ(reports.asked[0].file, "체적검침조회.rpt");
  EXPECT_TRUE(reports.asked[0].formulas.contains("구분= '한빛'"));
  EXPECT_TRUE(reports.asked[0].formulas.contains("잔액= '20,100'"));

  brief.clear(page);
  brief.print(page);
  EXPECT_EQ(staged(), QStringList({"|||||||||"})) << "an empty grid is one blank line";
}

}  // namespace
