#include "giro/giro_slips.h"
#include "tests/giro/slip_desk.h"

namespace {

struct JiroOcrTest : testing::Test, tests::SlipDesk {};

using tests::places13;

TEST_F(JiroOcrTest, ContinuousSlipTextByText) {
  set("TOP", "0.5");
  set("LEFT", "-1.5");
  const int row = screen.add("달빛식당", "1234", "60590");
  screen.rows.setText(row, EvaCol::PrevUseGage, "1100");
  screen.rows.setText(row, EvaCol::UseGage, "1130.5");
  screen.rows.setText(row, EvaCol::UseMuch, "30.5");
  screen.rows.setText(row, EvaCol::UsePay, "45750");
  screen.rows.setText(row, EvaCol::Trust, "12345");
  input.notes = {"첫 줄", "", "셋째 줄", "4", "5", "6", "7", "여덟째 줄", "아홉째는 자리가 없다"};
  EXPECT_EQ(giro.print(input, GiroSelection::All), 1);
  const QString total = places13("60,590");
  // late 2% of 12,345 is 246, down to 240; charge 2% of 60,590 is 1,211, down to 1,210
  // code 1234: check digit 4; 60590: 0 + 27 + 5 + 0 + 18 = 50, check digit 0
  const QString scan = "<1234567+" + QString(16, u' ') + "+12344+" + QString(5, u' ') + "+605900< <11<";
  expectPage(1,
             {{0, 33, "2026"},
              {0, 44, "02"},
              {1, 37, "2026.02.01-2026.02.28"},
              {2, 41, places13("1,210")},
              {3, 41, places13("61,800")},
              {3, 9, total},
              {4, 73, total},
              {5, 4, "2026"},
              {5, 12, "03"},
              {5, 19, "31"},
              {5, 93, "2026"},
              {5, 100, "03"},
              {5, 105, "31"},
              {6, 10, places13("1,130.5")},
              {7, 10, places13("1,100")},
              {7, 67, "0001234"},
              {7, 118, scan, "OCR-B-1", 12},
              {8, 10, places13("30.5")},
              {9, 10, places13("45,750")},
              {10, 10, places13("1,500")},
              {10, 62, "첫 줄", "굴림체", 8},
              {12, 62, "셋째 줄", "굴림체", 8},
              {13, 62, "4", "굴림체", 8},
              {14, 62, "5", "굴림체", 8},
              {15, 62, "6", "굴림체", 8},
              {16, 62, "7", "굴림체", 8},
              {17, 62, "여덟째 줄", "굴림체", 8},
              {11, 126, "0001234"},
              {11, 164, "달빛식당"},
              {12, 10, places13("12,345")},
              {13, 10, places13("240")},
              {13, 127, "가람시 장터길 7"},
              {14, 10, total},
              {16, 7, "0001234"},
              {16, 43, "달빛식당"},
              {16, 126, "2026"},
              {16, 136, "03"},
              {16, 146, "31"},
              {18, 7, "가람시 장터길 7"},
              {2, 174, total}},
             0.5, -1.5);
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

  const auto slip = [&](double offset, const QString& name, const QString& room, const QString& code,
                        const QString& charge, const QString& after, const QString& total,
                        const QString& toPay, const QString& scan) {
    return std::vector<Expected>{{offset + 1.6, 22, "2026"},
                                 {offset + 1.6, 30, "02"},
                                 {offset + 2.8, 22, "2026.02.01-2026.02.28"},
                                 {offset + 4.0, 31, places13(charge)},
                                 {offset + 5.2, 31, places13(after)},
                                 {offset + 5.2, 9, places13(total)},
                                 {offset + 6.4, 6, "2026"},
                                 {offset + 6.4, 13, "03"},
                                 {offset + 6.4, 18, "31"},
                                 {offset + 7.9, 10, places13("130")},
                                 {offset + 9.1, 10, places13("100")},
                                 {offset + 10.3, 10, places13("30")},
                                 {offset + 11.5, 10, places13("45,000")},
                                 {offset + 12.7, 10, places13("1,500")},
                                 {offset + 13.9, 10, places13("12,000")},
                                 {offset + 15.1, 10, places13("360")},  // 3% of the arrears
                                 {offset + 16.3, 10, places13(total)},
                                 {offset + 18.3, 6, code},
                                 {offset + 18.3, 17, name},
                                 {offset + 19.6, 6, "행복아파트 101동 " + room + "호"},
                                 {offset + 5.2, 60, toPay},
                                 {offset + 6.4, 60, "2026"},
                                 {offset + 6.4, 67, "03"},
                                 {offset + 6.4, 72, "31"},
                                 {offset + 7.9, 60, code},
                                 {offset + 11.3, 50, "둘째 줄", "굴림체", 8},
                                 {offset + 4.0, 146, toPay},
                                 {offset + 6.9, 90, scan, "OCR-B-1", 12},
                                 {offset + 10.9, 98, code},
                                 {offset + 10.9, 136, name},
                                 {offset + 12.9, 99, "행복아파트 101동  " + room + "호"},
                                 {offset + 15.9, 98, "2026"},
                                 {offset + 15.9, 108, "03"},
                                 {offset + 15.9, 118, "31"}};
  };
  // 58,500: 3% is 1,755, down to 1,750. Code 5: 9. Total 58500: 0 + 0 + 5 + 56 + 15 = 76: 4
  auto sheet = slip(0, "101동 203호", "203", "0000005", "1,750", "60,250", "58,500", places13("58,500"),
                    "<1234567+" + QString(19, u' ') + "+59+" + QString(5, u' ') + "+585004< <11<");
  // Code 12: 4 + 1 = 5: 5
  const auto lower = slip(28, "101동 204호", "204", "0000012", "0", "0", "0", "(자동이체)",
                          "<1234567+" + QString(18, u' ') + "+125+" + QString(9, u' ') + "+00< <11<");
  sheet.insert(sheet.end(), lower.begin(), lower.end());
  expectPage(1, sheet);
  EXPECT_TRUE(job().at(2, 136 / 15.0, 10.9 / 8)) << "the third slip begins a sheet at its top";
}

TEST_F(JiroOcrTest, NothingOnTheA4SheetMeetsOrLeavesIt) {
  screen.shownBook = HouseStyle::MultiHousehold;
  screen.entry = "다가구 전체";
  for (int i = 0; i < 2; ++i) {
    const int row = screen.add("1234동 아주 긴 이름의 집 5678호 아주 긴 이름의 집", "1234567", "123456780");
    screen.rows.setText(row, EvaCol::BDName,
                        "아주 긴 이름의 다가구 건물이 여기에 하나 서 있습니다 그렇습니다");
  }
  giro.setPaper(GiroPaper::OcrA4);
  input.notes = QStringList(8, QString(40, u'가'));
  giro.print(input, GiroSelection::All);
  ASSERT_GT(job().items.size(), 60u);
  expectNothingMeets();
}

// Kept: only the A4 paper asks the building for its rate.
TEST_F(JiroOcrTest, TheBuildingsOwnRateCountsOnA4Alone) {
  screen.shownBook = HouseStyle::Apartment;
  screen.entry = "아파트 전체";
  screen.add("101동 203호", "5", "10000");
  session.dbBasic.Execute(
      "Insert Into Client(Code, Name, BDName, Dong, HouseStyle) "
      "Values(5, '홍길동', '행복아파트', '101', 1)");
  session.dbBasic.Execute("Insert Into apt(Name, Dong, delaypay) Values('행복아파트', '101', 5)");
  giro.print(input, GiroSelection::All);
  EXPECT_EQ(job().at(1, 41 / 15.0, 2 / 8.0)->text.trimmed(), "300") << "3%";
  giro.setPaper(GiroPaper::OcrA4);
  giro.print(input, GiroSelection::All);
  EXPECT_EQ(job().at(1, 31 / 15.0, 4 / 8.0)->text.trimmed(), "500") << "5%";
  session.dbBasic.Execute("Update apt Set delaypay = 0");
  giro.print(input, GiroSelection::All);
  EXPECT_EQ(job().at(1, 31 / 15.0, 4 / 8.0)->text.trimmed(), "300") << "none of its own";
}

TEST_F(JiroOcrTest, TheSlipsOfARunAgreeWhateverIsChangedMeanwhile) {
  screen.shownBook = HouseStyle::Apartment;
  for (const char* code : {"5", "6", "7"}) screen.add("101동 203호", code, "10100");
  for (const char* code : {"5", "6"})
    session.dbBasic.Execute(
        "Insert Into Client(Code, Name, BDName, Dong, HouseStyle) "
        "Values(" +
        QString(code) + ", '홍길동', '행복아파트', '101', 1)");
  session.dbBasic.Execute("Insert Into apt(Name, Dong, delaypay) Values('행복아파트', '101', 5)");
  giro.setPaper(GiroPaper::OcrA4);
  const auto charges = [&](const std::function<bool(int, int)>& tell) {
    giro.print(input, GiroSelection::All, tell);
    return (job().at(1, 31 / 15.0, 4 / 8.0)->text + job().at(1, 31 / 15.0, 32 / 8.0)->text +
            job().at(2, 31 / 15.0, 4 / 8.0)->text)
        .simplified();
  };
  const auto change = [&](int, int) {
    session.dbBasic.Execute("Update User Set PayState = 2");
    session.dbBasic.Execute("Update apt Set delaypay = 4");
    pc.settings.SaveSetting("해온판매", "Registration", "Ocr", "7654321");
    return true;
  };
  // 5% and, for the one in no building, 3% of 10,100: 505 and 303, down; then 4% and 3%: 404 and 303, up
  EXPECT_EQ(charges(change), "500 500 300");
  EXPECT_TRUE(job().at(2, 90 / 15.0, 6.9 / 8)->text.startsWith("<1234567+"));
  EXPECT_EQ(charges({}), "410 410 310");
  EXPECT_TRUE(job().at(1, 90 / 15.0, 6.9 / 8)->text.startsWith("<7654321+"));
}

TEST_F(JiroOcrTest, WithoutARateNothingIsCharged) {
  session.rates.books[0].rate = 0;
  screen.add("달빛식당", "1", "10000");
  giro.print(input, GiroSelection::All);
  EXPECT_EQ(job().at(1, 10 / 15.0, 13 / 8.0)->text, places13("0")) << "late, though the row says 999";
  EXPECT_EQ(job().at(1, 41 / 15.0, 2 / 8.0)->text, places13("0"));
  EXPECT_EQ(job().at(1, 41 / 15.0, 3 / 8.0)->text, places13("10,000"));
}

TEST_F(JiroOcrTest, AutomaticTransferStandsWhereTheAmountWould) {
  const int row = screen.add("달빛식당", "1234", "15000");
  screen.rows.setText(row, EvaCol::PayWay, "3");
  giro.print(input, GiroSelection::All);
  EXPECT_EQ(job().at(1, 73 / 15.0, 4 / 8.0)->text, "(자동이체)");
  EXPECT_EQ(job().at(1, 174 / 15.0, 2 / 8.0)->text, "(자동이체)");
  EXPECT_EQ(job().at(1, 9 / 15.0, 3 / 8.0)->text, places13("15,000"));
  EXPECT_TRUE(job().at(1, 118 / 15.0, 7 / 8.0)->text.contains("+150002<"));
}

// Kept: the month before the shown one, of the present year, whatever year file is open.
TEST_F(JiroOcrTest, TheSlipNamesTheMonthBeforeTheShownOne) {
  screen.add("달빛식당", "1", "10000");
  const auto issued = [&](int month) {
    screen.shownMonth = month;
    giro.print(input, GiroSelection::All);
    return job().at(1, 33 / 15.0, 0)->text + u'/' + job().at(1, 44 / 15.0, 0)->text;
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
    return job().at(1, 7 / 15.0, 18 / 8.0)->text;
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
    for (int page = 1; page <= job().pages; ++page) found += job().at(page, 7 / 15.0, 2)->text.right(1);
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
