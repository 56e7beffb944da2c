#include "giro/giro_slips.h"
#include "tests/giro/slip_desk.h"

using namespace Qt::StringLiterals;

namespace {

struct JiroOcrTest : testing::Test, tests::SlipDesk {};

TEST_F(JiroOcrTest, ContinuousSlipTextByText) {
  set("TOP", "0.5");
  set("LEFT", "-1.5");
  const int row = screen.add("달빛식당", "1234", "60590");
  const std::pair<int, const char*> cells[] = {{EvaCol::PrevUseGage, "1100"},
                                               {EvaCol::UseGage, "1130.5"},
                                               {EvaCol::UseMuch, "30.5"},
                                               {EvaCol::UsePay, "45750"},
                                               {EvaCol::Trust, "12345"}};
  for (const auto& [col, text] : cells) screen.rows.setText(row, col, text);
  input.notes = {"첫 줄", "", "셋째 줄", "4", "5", "6", "7", "여덟째 줄", "아홉째는 자리가 없다"};
  EXPECT_EQ(giro.print(input, GiroSelection::All), 1);
  // late 2% of 12,345 is 246, down to 240; charge 2% of 60,590 is 1,211, down to 1,210
  // code 1234: check digit 4; 60590: 0 + 27 + 5 + 0 + 18 = 50, check digit 0
  expectPage(1, {R"(
0 | 33 2026 | 44 02
1 | 37 2026.02.01-2026.02.28
2 | 41 #1,210 | 174 #60,590
3 | 9 #60,590 | 41 #61,800
4 | 73 #60,590
5 | 4 2026 | 12 03 | 19 31 | 93 2026 | 100 03 | 105 31
6 | 10 #1,130.5
7 | 10 #1,100 | 67 0001234 | 118 =<1234567+                +12344+     +605900< <11<
8 | 10 #30.5
9 | 10 #45,750
10 | 10 #1,500 | 62 *첫 줄
11 | 126 0001234 | 164 달빛식당
12 | 10 #12,345 | 62 *셋째 줄
13 | 10 #240 | 62 *4 | 127 가람시 장터길 7
14 | 10 #60,590 | 62 *5
15 | 62 *6
16 | 7 0001234 | 43 달빛식당 | 62 *7 | 126 2026 | 136 03 | 146 31
17 | 62 *여덟째 줄
18 | 7 가람시 장터길 7)"},
             {0.5, -1.5});
  EXPECT_TRUE(job().ended);
  EXPECT_EQ(job().paper.width, 14);
}

TEST_F(JiroOcrTest, A4SheetTextByText) {
  screen.shownBook = HouseStyle::Apartment;
  screen.entry = "행복아파트";
  screen.add("101동 203호", "5", "58500");
  const int second = screen.add("101동 204호", "12", "0");
  screen.rows.setText(second, EvaCol::PayWay, "3");
  screen.add("102동 1호", "13", "100");
  giro.setPaper(GiroPaper::OcrA4);
  input.notes = {"", "둘째 줄"};
  EXPECT_EQ(giro.print(input, GiroSelection::All), 3);
  EXPECT_EQ(job().pages, 2);
  EXPECT_GT(job().paper.width, job().paper.height) << "the sheet lies on its side";
  // 1: room, 2: code, 3: charge, 4: amount after it, 5: total, 6: to pay, 7: scan line; 360 is 3% of the arrears
  const QString slip = R"(
1.6 | 22 2026 | 30 02
2.8 | 22 2026.02.01-2026.02.28
4.0 | 31 #%3 | 146 %6
5.2 | 9 #%5 | 31 #%4 | 60 %6
6.4 | 6 2026 | 13 03 | 18 31 | 60 2026 | 67 03 | 72 31
6.9 | 90 =%7
7.9 | 10 #130 | 60 %2
9.1 | 10 #100
10.3 | 10 #30
10.9 | 98 %2 | 136 101동 %1호
11.3 | 50 *둘째 줄
11.5 | 10 #45,000
12.7 | 10 #1,500
12.9 | 98 행복아파트 101동  %1호
13.9 | 10 #12,000
15.1 | 10 #360
15.9 | 98 2026 | 108 03 | 118 31
16.3 | 10 #%5
18.3 | 6 %2 | 17 101동 %1호
19.6 | 6 행복아파트 101동 %1호)";
  // 58,500: 3% is 1,755, down to 1,750. Code 5: 9. Total 58500: 0 + 0 + 5 + 56 + 15 = 76: 4. Code 12: 4 + 1 = 5: 5
  expectPage(1, {slip.arg(u"203"_s, u"0000005"_s, u"1,750"_s, u"60,250"_s, u"58,500"_s, u"#58,500"_s,
                          u"<1234567+                   +59+     +585004< <11<"_s),
                 slip.arg(u"204"_s, u"0000012"_s, u"0"_s, u"0"_s, u"0"_s, u"(자동이체)"_s,
                          u"<1234567+                  +125+         +00< <11<"_s)});
  EXPECT_EQ(at(10.9, 136, 2), "102동 1호") << "the third slip begins a sheet at its top";
}

TEST_F(JiroOcrTest, TheSlipsOfARunAgreeWhateverIsChangedMeanwhile) {
  screen.shownBook = HouseStyle::Apartment;
  for (const char* code : {"5", "6", "7"}) screen.add("101동 203호", code, "10100");
  addBuilding({5, 6}, 5);
  giro.setPaper(GiroPaper::OcrA4);
  const auto charges = [&](const std::function<bool(int, int)>& tell) {
    giro.print(input, GiroSelection::All, tell);
    return QStringList{at(4, 31), at(32, 31), at(4, 31, 2)}.join(' ');
  };
  const auto change = [&](int, int) {
    session.dbBasic.Execute("Update User Set PayState = 2");
    session.dbBasic.Execute("Update apt Set delaypay = 4");
    pc.settings.SaveSetting("해온판매", "Registration", "Ocr", "7654321");
    return true;
  };
  // 5% and, for the one in no building, 3% of 10,100: 505 and 303, down; then 4% and 3%: 404 and 303, up
  EXPECT_EQ(charges(change), "500 500 300");
  EXPECT_TRUE(at(6.9, 90, 2).startsWith("<1234567+"));
  EXPECT_EQ(charges({}), "410 410 310");
  EXPECT_TRUE(at(6.9, 90).startsWith("<7654321+"));
}

TEST_F(JiroOcrTest, WithoutARateNothingIsCharged) {
  session.rates.books[0].rate = 0;
  screen.add("달빛식당", "1", "10000");
  giro.print(input, GiroSelection::All);
  EXPECT_EQ(at(13, 10), "0") << "late, though the row says 999";
  EXPECT_EQ(at(2, 41), "0");
  EXPECT_EQ(at(3, 41), "10,000");
}

TEST_F(JiroOcrTest, AutomaticTransferStandsWhereTheAmountWould) {
  const int row = screen.add("달빛식당", "1234", "15000");
  screen.rows.setText(row, EvaCol::PayWay, "3");
  giro.print(input, GiroSelection::All);
  EXPECT_EQ(at(4, 73), "(자동이체)");
  EXPECT_EQ(at(2, 174), "(자동이체)");
  EXPECT_EQ(at(3, 9), "15,000");
  EXPECT_TRUE(at(7, 118).contains("+150002<"));
}

// Kept: the month before the shown one, of the present year, whatever year file is open.
TEST_F(JiroOcrTest, TheSlipNamesTheMonthBeforeTheShownOne) {
  screen.add("달빛식당", "1", "10000");
  const auto issued = [&](int month) {
    screen.shownMonth = month;
    giro.print(input, GiroSelection::All);
    return at(0, 33) + '/' + at(0, 44);
  };
  EXPECT_EQ(issued(12), "2026/11");
  EXPECT_EQ(issued(1), "2025/12");
}

TEST_F(JiroOcrTest, BuildingLabelFollowsTheList) {
  screen.shownBook = HouseStyle::Apartment;
  screen.add("101동 203호", "1", "10000");
  const auto label = [&](const QString& entry, const QString& blocks) {
    screen.entry = entry;
    pc.settings.SaveSetting("해온판매", "Config", "체적검침동별보기", blocks);
    giro.print(input, GiroSelection::All);
    return at(18, 7);
  };
  EXPECT_EQ(label("푸른마을", "0"), "푸른마을 101동 203호");
  EXPECT_EQ(label("푸른마을 101", "1"), "푸른마을 101동 203호");
  EXPECT_EQ(label("아파트 전체", "1"), "행복아파트 101동 203호") << "the row's building";
  screen.shownBook = HouseStyle::MultiHousehold;
  EXPECT_EQ(label("다가구 전체", "1"), "행복아파트 101동 203호");
}

TEST_F(JiroOcrTest, OptionsChooseTheRows) {
  for (int i = 1; i <= 5; ++i) screen.add("고객" + QString::number(i), QString::number(i), "1000");
  screen.rows.setText(2, EvaCol::Prnt, "1");
  screen.rows.setText(4, EvaCol::Prnt, "1");
  screen.rows.setText(5, EvaCol::Name, "");  // prints as it is
  screen.active = 3;
  const auto codes = [&](GiroSelection selection) {
    giro.print(input, selection);
    QString found;
    for (int page = 1; page <= job().pages; ++page) found += at(16, 7, page).right(1);
    return found;
  };
  EXPECT_EQ(codes(GiroSelection::Active), "3");
  screen.active = 6;
  EXPECT_TRUE(rowsToPrint(screen, GiroSelection::Active).empty()) << "below the last row";
  EXPECT_EQ(codes(GiroSelection::Ticked), "24");
  EXPECT_EQ(codes(GiroSelection::Unticked), "135");
  EXPECT_EQ(codes(GiroSelection::All), "12345");
  EXPECT_EQ(printers.jobs.size(), 4u) << "one job a run";
  EXPECT_EQ(screen.rows.text(1, EvaCol::Prnt), "0") << "printing ticks nothing";
  screen.active = 0;
  prompts.expect("발행할 고객이 없습니다.");
  EXPECT_EQ(giro.print(input, GiroSelection::Active), 0);
}

TEST_F(JiroOcrTest, StopsBetweenSlipsWithThePagesSoFar) {
  for (int i = 1; i <= 5; ++i) screen.add("고객", QString::number(i), "1000");
  std::vector<std::pair<int, int>> told;
  EXPECT_EQ(giro.print(input, GiroSelection::All,
                       [&](int done, int of) {
                         told.push_back({done, of});
                         return done < 2;
                       }),
            2);
  EXPECT_EQ(told, (std::vector<std::pair<int, int>>{{1, 5}, {2, 5}}));
  EXPECT_EQ(job().pages, 2);
  EXPECT_TRUE(job().ended && !job().abandoned);
}

TEST_F(JiroOcrTest, WhatStandsInTheWayIsTold) {
  screen.add("고객", "1", "1000");
  screen.add("고객", "2", "1000");
  set("DEVICENAME", "");
  prompts.expect("지로출력을 위한 프린터가 설정되어 있지 않습니다\n프린터 설정을 해 주시기 바랍니다");
  EXPECT_EQ(giro.print(input, GiroSelection::All), 0);
  EXPECT_TRUE(prompts.seen.last().startsWith("인쇄 관리자|"));
  set("DEVICENAME", "뽑힌 프린터");
  EXPECT_THROW(giro.print(input, GiroSelection::All), pc::PrintError);
  set("DEVICENAME", "지로프린터");
  open = false;
  prompts.expect("체적검침 화면을 먼저 여십시오.");
  EXPECT_EQ(giro.print(input, GiroSelection::All), 0);
  open = true;
  session.dbBasic.Execute("Delete * From User");
  prompts.expect("먼저 사용자 등록을 해 주십시오");
  EXPECT_EQ(giro.print(input, GiroSelection::All), 0);
  EXPECT_TRUE(prompts.seen.last().startsWith("사용자 미등록|"));
  EXPECT_TRUE(printers.jobs.empty());

  session.dbBasic.Execute("Insert Into User(Company, PayState) Values('해온가스', 1)");
  printers.refusal = "꺼져 있습니다.";
  EXPECT_THROW(giro.print(input, GiroSelection::All), pc::PrintError);
  printers.refusal.clear();
  printers.refusesFromPage = 2;
  EXPECT_THROW(giro.print(input, GiroSelection::All), pc::PrintError);
  EXPECT_TRUE(job().abandoned && !job().ended);
}

TEST_F(JiroOcrTest, ADueDateThatIsNoneIsPrintedAfterAYes) {
  screen.add("고객", "1", "1000");
  const std::array<const char*, 3> none[] = {
      {"2026", "02", "29"}, {"2026", "13", "1"}, {"2026", "", ""}, {"", "03", "31"}};
  for (const auto& [year, month, day] : none) {
    input.year = year;
    input.month = month;
    input.day = day;
    prompts.expect("납부마감일이 올바른 날짜가 아닙니다.", false);
    EXPECT_EQ(giro.print(input, GiroSelection::All), 0);
  }
  EXPECT_TRUE(printers.jobs.empty());
  prompts.expect("적힌 그대로 발행하시겠습니까?", true);
  EXPECT_EQ(giro.print(input, GiroSelection::All), 1) << "to be filled in by hand";
  EXPECT_EQ(at(5, 4) + '/' + at(5, 12), "nothing/03");
  input = {.year = "2026", .month = "2", .day = "28", .useFrom = {}, .useTo = {}};
  EXPECT_EQ(giro.print(input, GiroSelection::All), 1);
  EXPECT_EQ(at(5, 12), "2") << "as it stands";
}

TEST_F(JiroOcrTest, UsePeriodBeginsWithTheMonthTheOperatorPrefers) {
  using Period = std::pair<QString, QString>;
  screen.shownMonth = 3;
  EXPECT_EQ(giro.firstUseMonth(), 2);
  giro.setStartsWithThisMonth(true);
  EXPECT_EQ(giro.firstUseMonth(), 3);
  EXPECT_EQ(pc.settings.GetSetting("해온판매", "환경설정", "OCRA4지로_당월기본"), "1");
  EXPECT_EQ(giro.usePeriod(2), (Period{"2026.02.01", "2026.02.28"}));
  EXPECT_EQ(giro.usePeriod(3), (Period{"2026.03.01", "2026.03.31"}));
  EXPECT_EQ(giro.usePeriod(12), (Period{"2025.12.01", "2025.12.31"})) << "not behind the shown month";
  giro.setStartsWithThisMonth(false);
  screen.shownMonth = 1;
  EXPECT_EQ(giro.firstUseMonth(), 12);
}

}  // namespace
