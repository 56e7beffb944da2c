// The arrears statement of the apartments by hand-worked months: 2,450 won a cubic metre, sums cut to ten won.
#include "billing/apt_arrears.h"

#include "billing/apt_baln.h"
#include "briefs/brief_run.h"
#include "store/year_file.h"
#include "tests/billing/meter_desk.h"
#include "tests/shown_reports.h"

using namespace Qt::StringLiterals;

namespace {

/** March, February, January of a household that used gas for 15,000, 10,000 and 20,000 and pays a fee of 800. February's
 *  late charge is 1.5 percent of 20,800, 312 cut to 310; March's of 31,910, 478 cut to 470. */
std::vector<AptMonth> threeMonths(double paidInMarch) {
  return {{.year = 2026,
           .month = 3,
           .usePay = 15000,
           .manage = 800,
           .delay = 470,
           .trust = 31910,
           .pay = paidInMarch,
           .total = 48180 - paidInMarch},
          {.year = 2026,
           .month = 2,
           .usePay = 10000,
           .manage = 800,
           .delay = 310,
           .trust = 20800,
           .total = 31910},
          {.year = 2026, .month = 1, .usePay = 20000, .manage = 800, .total = 20800}};
}

/** Open of each month, "+" what is older. */
QString openOf(const std::vector<AptMonth>& months, const AptRules& rules = {0, 1}) {
  const AptSpread spread = spreadPayments(months, rules);
  QStringList texts;
  double sum = spread.older;
  for (const AptOpen& each : spread.months) {
    texts << QString::number(each.open);
    sum += each.open;
  }
  EXPECT_EQ(sum, months.front().total) << "all of it together is what the month asked for came to";
  return texts.join(' ') + " +" + QString::number(spread.older);
}

TEST(AptArrears, PaymentsGoToTheOldestBillsFirst) {
  EXPECT_EQ(openOf(threeMonths(0)), "16270 11110 20800 +0");
  EXPECT_EQ(openOf(threeMonths(12000)), "16270 11110 8800 +0") << "a part of January";
  EXPECT_EQ(openOf(threeMonths(20800)), "16270 11110 0 +0");
  EXPECT_EQ(openOf(threeMonths(25000)), "16270 6910 0 +0") << "January and a part of February";
  EXPECT_EQ(openOf(threeMonths(31910)), "16270 0 0 +0");
  EXPECT_EQ(openOf(threeMonths(40000)), "8180 0 0 +0") << "and a part of March";
  EXPECT_EQ(openOf(threeMonths(48180)), "0 0 0 +0");
  EXPECT_EQ(openOf(threeMonths(60000)), "-11820 0 0 +0") << "paid too much";
}

TEST(AptArrears, ALateChargeLeftOutOfTheCarryIsOpenInItsOwnMonthAlone) {
  // February goes over without its 310: 31,600; March's charge is 474 cut to 470.
  std::vector<AptMonth> months = threeMonths(0);
  months[0].trust = 31600;
  months[0].total = 47870;
  EXPECT_EQ(openOf(months, {1, 1}), "16270 10800 20800 +0");
  months[0].pay = 22000;
  months[0].total = 25870;
  EXPECT_EQ(openOf(months, {1, 1}), "16270 9600 0 +0");
  EXPECT_EQ(spreadPayments(months, {1, 1}).months[1].billed, 10800);
  EXPECT_EQ(spreadPayments(months, {0, 1}).months[1].billed, 11110);
}

TEST(AptArrears, WhatNoListedMonthWasBilledIsOlder) {
  std::vector<AptMonth> months = threeMonths(0);
  months.pop_back();
  EXPECT_EQ(openOf(months), "16270 11110 +20800");
  months.push_back({.year = 2026, .month = 0, .total = 15000});
  EXPECT_EQ(openOf(months), "16270 11110 15000 +5800") << "an opening row stands for its whole sum";
  EXPECT_EQ(openOf({months[2]}), "15000 +0");
  EXPECT_TRUE(spreadPayments({}, {}).months.empty());
  months = threeMonths(0);
  months[1].usePay = -20000;
  EXPECT_EQ(openOf(months), "16270 0 20800 +11110") << "a month billed below nothing hands the rest on";
}

TEST(AptArrears, AMonthsOwnBillIsRoundedAsTheBillIs) {
  // 3.3 m3 x 2,450 = 8,085; + 800 = 8,885: cut, up, half up.
  const std::vector<AptMonth> months{
      {.year = 2026, .month = 2, .usePay = 0, .trust = 8880, .total = 8880},
      {.year = 2026, .month = 1, .usePay = 8085, .manage = 800, .total = 8880}};
  EXPECT_EQ(spreadPayments(months, {0, 1}).months[1].billed, 8880);
  EXPECT_EQ(spreadPayments(months, {0, 2}).months[1].billed, 8890);
  EXPECT_EQ(spreadPayments(months, {0, 3}).months[1].billed, 8890);
}

struct AptBaln : testing::Test, tests::MeterDesk {
  tests::ShownReports reports;
  BriefRun list{session, aptBalnBrief()};
  int own = 0, general = 0;  ///< households: of a building with its own rate of 3 percent, and of one without

  AptBaln() : MeterDesk({2026, 3, 20}) {
    session.reports = &reports;
    basic("Insert Into APT(Name, Dong, Gubun, Evaporation, delaypay) Values('달빛', '101', True, True, 3)");
    basic("Insert Into APT(Name, Dong, Gubun, Evaporation) Values('한빛', '201', True, True)");
    general = customer("나", 2450, 1, "한빛", "201", "11");
    own = customer("가", 2450, 1, "달빛", "101", "1001");
    customer("다", 2450, 0);
    for (const int code : {own, general}) {
      set(code, 1, "UseGage = 120.5, UseMuch = 8.2, UsePay = 20000, Manage = 800, Total = 20800");
      set(code, 2,
          "UseGage = 124.5, UseMuch = 4, UsePay = 10000, Manage = 800, Delay = 310, Trust = 20800, Total = "
          "31910");
      set(code, 3,
          "UseGage = 130, UseMuch = 5.5, UsePay = 15000, Manage = 800, Delay = 470, Trust = 31910, Pay = "
          "25000, Total = 23180");
    }
  }
  using Answers = QHash<QString, QString>;
  const Answers ofOwn{{"CboBDName", "달빛"}}, ofGeneral{{"CboBDName", "한빛"}};
  bool load(const Answers& answers) {
    BriefAsk ask;
    ask.answers["CboMon"] = {.text = "03"};
    for (auto at = answers.begin(); at != answers.end(); ++at)
      ask.answers[at.key()] = {.text = at.value(), .place = at.key() == "CboBDName" ? 1 : 0};
    return list.load(ask);
  }
  /** The rows without their sum; some columns of each. */
  QStringList lines(const Answers& answers = {},
                    const std::vector<int>& columns = {AptCol::Building, AptCol::Ho, AptCol::Month,
                                                       AptCol::Open}) {
    EXPECT_TRUE(load(answers));
    QStringList texts;
    for (const BriefCells& cells : list.rows(0).rows) {
      QStringList parts;
      for (const int col : columns) parts << cells[size_t(col - 1)];
      texts << parts.join('|');
    }
    return texts;
  }
  QString sum() const { return list.rows(0).figures.value(0); }
};

TEST_F(AptBaln, MonthsOfEachHouseholdInTheOrderOfTheBuilding) {
  EXPECT_EQ(
      lines({}, {AptCol::Building, AptCol::Dong, AptCol::Ho, AptCol::Month, AptCol::Previous, AptCol::Reading,
                 AptCol::Use, AptCol::Fee, AptCol::Manage, AptCol::Billed, AptCol::Open}),
      (QStringList{"달빛|101|1001|2026-01|112.3|120.5|8.2|20000|800|20800|0",
                   "달빛|101|1001|2026-02|120.5|124.5|4|10000|800|11110|6910",
                   "달빛|101|1001|2026-03|124.5|130|5.5|15000|800|16270|16270",
                   "한빛|201|11|2026-01|112.3|120.5|8.2|20000|800|20800|0",
                   "한빛|201|11|2026-02|120.5|124.5|4|10000|800|11110|6910",
                   "한빛|201|11|2026-03|124.5|130|5.5|15000|800|16270|16270"}));
  EXPECT_EQ(sum(), "46360") << "twice 23,180, what March came to";
  set(own, 2, "UseMuch = 0");
  EXPECT_EQ(lines(ofOwn), (QStringList{"달빛|1001|2026-01|6910", "달빛|1001|2026-03|16270"}))
      << "a month without use does not stand there";
  set(own, 3, "UseMuch = 0");
  EXPECT_EQ(lines(ofOwn).last(), "달빛|1001|2026-03|16270") << "the base month does";
  EXPECT_EQ(lines({{"CboMon", "02"}, {"CboBDName", "한빛"}}),
            (QStringList{"한빛|11|2026-01|20800", "한빛|11|2026-02|11110"}));
}

TEST_F(AptBaln, TheLateChargeFollowsTheBuildingsRateAndTheMethod) {
  const std::vector<int> late{AptCol::Month, AptCol::Delay, AptCol::Note};
  // Cumulative: 3 percent of 20,800 and of 31,910 (957.3 cut to 950); the bills had 1.5 percent.
  EXPECT_EQ(lines(ofOwn, late),
            (QStringList{"2026-01|0|", "2026-02|620|청구된 연체료 310", "2026-03|950|청구된 연체료 470"}));
  EXPECT_EQ(lines(ofGeneral, late), (QStringList{"2026-01|0|", "2026-02|310|", "2026-03|470|"}));
  // One month alone: on the gas of the month before, 1.5 percent of 20,000 and of 10,000.
  session.DelayCalcFlag = "1";
  EXPECT_EQ(lines(ofGeneral, late),
            (QStringList{"2026-01|0|", "2026-02|300|청구된 연체료 310", "2026-03|150|청구된 연체료 470"}));
  session.DelayCalcFlag = "0";
  // Paid after the due date: February's gas counts although nothing is open. 1.5 percent of 10,000.
  set(general, 2, "Pay = 31910, Total = 0, paydelayed = True");
  set(general, 3, "Trust = 0, Delay = 150, Pay = 0, Total = 15950");
  EXPECT_EQ(lines(ofGeneral, late).last(), "2026-03|150|");
}

TEST_F(AptBaln, LastYearsMonthsTakeWhatIsOlder) {
  set(general, 1, "Trust = 7500, Delay = 110, Total = 28410");
  set(general, 2, "Trust = 28410, Delay = 420, Total = 39630");
  set(general, 3, "Trust = 39630, Delay = 590, Pay = 0, Total = 56020");
  EXPECT_EQ(lines(ofGeneral, {AptCol::Month, AptCol::Open, AptCol::Note}),
            (QStringList{"2026-01|28410|이전 미수 7,500 포함", "2026-02|11220|", "2026-03|16390|"}));
  set(general, 0, "UseMuch = 1, Total = 7500, Trust = 7500");
  EXPECT_EQ(lines({{"CboBDName", "한빛"}, {"chkBaseAdd", "1"}, {"chkLastYear", "1"}}),
            lines({{"CboBDName", "한빛"}, {"chkBaseAdd", "1"}}))
      << "without last year's file this year's opening row stands";
  EXPECT_TRUE(load({{"chkLastYear", "1"}}));
  EXPECT_EQ(list.rows(0).note, "작년 파일을 읽을 수 없어 올해만 조회했습니다");
  EXPECT_TRUE(load({}));
  EXPECT_EQ(list.rows(0).note, "");
  makeYearFile(session, "2025");
  ASSERT_TRUE(upgrades::relink(session));
  for (const char* row : {"12, 112.3, 2, 4900, 800, 1800, 0, 7500", "11, 110.3, 2, 4900, 800, 0, 3900, 1800",
                          "0, 0, 1, 0, 0, 0, 0, 900"})
    openYear(session, 2025)
        .Execute(
            u"Insert Into Evaporation(ClientCode, Mon, UseGage, UseMuch, UsePay, Manage, Trust, Pay, Total) Values(%1, %2)"_s
                .arg(general)
                .arg(row));
  const Answers longer{{"CboBDName", "한빛"}, {"chkLastYear", "1"}};
  EXPECT_EQ(lines(longer),
            (QStringList{"한빛|11|2025-11|1800", "한빛|11|2025-12|5700", "한빛|11|2026-01|20910",
                         "한빛|11|2026-02|11220", "한빛|11|2026-03|16390"}));
  EXPECT_EQ(sum(), "56020");
  // January's charge by the one-month method runs on December's gas in last year's file: 1.5 percent of 4,900.
  session.DelayCalcFlag = "1";
  EXPECT_EQ(lines(ofGeneral, {AptCol::Delay}).first(), "70");
  session.DelayCalcFlag = "0";
  EXPECT_EQ(lines({{"CboBDName", "한빛"}, {"chkBaseAdd", "1"}}).first(), "한빛|11|2026-00|7500");
  EXPECT_EQ(lines({{"CboBDName", "한빛"}, {"chkBaseAdd", "1"}, {"chkLastYear", "1"}}),
            (QStringList{"한빛|11|2025-00|0", "한빛|11|2025-11|1800", "한빛|11|2025-12|5700",
                         "한빛|11|2026-01|20910", "한빛|11|2026-02|11220", "한빛|11|2026-03|16390"}))
      << "this year's opening row would stand beside the months that it sums up";
}

TEST_F(AptBaln, WhatIsTypedNarrowsTheList) {
  EXPECT_EQ(lines({{"txtHo", "11"}}).size(), 3);
  EXPECT_EQ(lines({{"txtDong", "101"}, {"txtHo", "1001"}}).size(), 3);
  EXPECT_EQ(lines({{"txtFilter", "2026-02"}}),
            (QStringList{"달빛|1001|2026-02|6910", "한빛|11|2026-02|6910"}));
  EXPECT_EQ(sum(), "13820") << "the panel sums what is shown";
  EXPECT_EQ(lines({{"chkOnlyOpen", "1"}}).size(), 4);
  pc.prompts.expect("조회할 아파트의 검침자료가 없습니다!");
  EXPECT_FALSE(load({{"txtFilter", "없는 말"}}));
}

TEST_F(AptBaln, ThePaperNamesTheBuildingAndWhatIsPaidTooMuchIsTold) {
  set(general, 3, "Pay = 60000, Total = -11820");
  EXPECT_EQ(lines(ofGeneral, {AptCol::Open, AptCol::Note}).last(), "-11820|과납");
  list.print(0);
  EXPECT_EQ(reports.asked.back().file, "아파트미수현황.rpt");
  EXPECT_TRUE(reports.asked.back().formulas.contains("아파트= '( 아파트명: 한빛 )    '"));
  EXPECT_TRUE(reports.asked.back().formulas.contains("미수= '-11,820'"));
}

TEST_F(AptBaln, AFileThatCannotBeWrittenIsToldAndTheListStaysEmpty) {
  lines();
  const jet::Workspace other(
      {.mainFile = {}, .resolvePath = [&](const QString& path) { return pc.pc.paths.native(path); }});
  const jet::Database held = other.OpenDatabase(aptBalnFile(), true);
  pc.prompts.expect("데이터를 집계하는 중 오류가 발생했습니다. 3356");
  EXPECT_FALSE(load({}));
}

}  // namespace
