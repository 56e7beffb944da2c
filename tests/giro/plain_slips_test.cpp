// The papers without a scan line, text by text, and in what their rules differ.
#include "store/options.h"
#include "tests/giro/slip_desk.h"

using namespace Qt::StringLiterals;

namespace {

struct PlainSlips : testing::Test, tests::SlipDesk {
  PlainSlips() {
    input.banks = {{"가람은행", "123-45-678", "해온가스"}};
    screen.add("달빛식당", "1234", "60590");
  }
  void print(GiroPaper paper) {
    giro.setPaper(paper);
    EXPECT_EQ(giro.print(input, GiroSelection::All), screen.rows.MaxRows());
  }
};

// Arrears 12,000 at 2% make 240 late. By the company's method the charge is on 45,000 + 1,500: 930.
TEST_F(PlainSlips, JiroOnThePlainPaper) {
  set("TOP", "1");
  set("LEFT", "-2.5");
  session.AfterDueMethod = 1;
  print(GiroPaper::Jiro);
  expectPage(1, {R"(
1.8 | 30 02월분
3.0 | 22 2026.02.01  ~  2026.02.28 | 66 02월분 | 126 02월분 | 174 #60,590
4.2 | 34 #930 | 174 #61,520
5.4 | 9 #60,590 | 34 #61,520 | 76 #60,590 | 126 은행명 : 가람은행
6.6 | 6 2026 | 13 03 | 18 31 | 76 2026 | 83 03 | 88 31 | 126 123-45-678
7.8 | 126 예금주 : 해온가스
8.1 | 10 #130 | 28 은행명 : 가람은행 | 76 0001234
9.3 | 10 #100 | 28 123-45-678 | 66 달빛식당
10.5 | 10 #30 | 28 예금주 : 해온가스
11.1 | 126 0001234 | 164 달빛식당
11.7 | 10 #45,000 | 66 은행명 : 가람은행
12.9 | 10 #1,500 | 66 123-45-678
13.1 | 126 가람시 장터길 7
14.1 | 10 #12,000 | 66 예금주 : 해온가스
15.3 | 10 #240
16.1 | 126 2026 | 136 03 | 146 31
16.5 | 10 #60,590
18.5 | 6 0001234 | 17 달빛식당
19.8 | 6 가람시 장터길 7)"},
             {1, -2.5});
}

// 1% of the total: 605, down to 600; 1% of the arrears.
TEST_F(PlainSlips, JiroOnTheMicrPaper) {
  screen.shownBook = HouseStyle::MultiHousehold;
  screen.entry = "별빛빌라";
  screen.rows.setText(1, EvaCol::Name, "1동 203호");
  screen.rows.setText(1, EvaCol::PayWay, "3");
  print(GiroPaper::JiroMicr);
  expectPage(1, {QString(R"(
1.6 | 8 02월분 | 24 2026.02.01  ~  2026.02.28 | 76 02월분 | 92 2026.02.01  ~  2026.02.28
2.8 | 24 %1 | 92 %1
4.3 | 8 0001234 | 20 1동 203호 | 76 0001234 | 90 1동 203호
5.5 | 8 별빛빌라 1동  203호 | 76 별빛빌라 1동  203호
7.3 | 12 #100 | 44 #45,000 | 108 (자동이체)
8.5 | 12 #130 | 44 #1,500 | 108 #61,190
9.7 | 12 #30 | 44 #12,000
10.9 | 44 #120 | 76 은행명 : 가람은행 | 108 123-45-678
12.1 | 76 예금주 : 해온가스
12.7 | 12 #60,590 | 44 (자동이체)
13.9 | 12 #600 | 44 #61,190
15.9 | 8 은행명 : 가람은행 | 40 123-45-678
17.1 | 8 예금주 : 해온가스)")
                     .arg("2026년 03월 31일 ")});
}

// 2% of 60,590: 1,211, down to 1,210.
TEST_F(PlainSlips, GeneralGiroOnContinuousPaper) {
  print(GiroPaper::JiroOrg);
  expectPage(1, {R"(
2 | 10 2026 | 19 02 | 30 2026.02.01 - 2026.02.28 | 78 2026 | 87 02
3.6 | 8 0001234 | 20 달빛식당 님 | 76 0001234 | 90 달빛식당 님
4.9 | 8 가람시 장터길 7 | 76 가람시 장터길 7
7 | 14 #130 | 46 #1,210
8.3 | 14 #100 | 46 #61,800 | 110 #60,590
9.6 | 14 #30 | 110 #61,800
10.9 | 14 #45,000
11.6 | 82 2026 | 92 03 | 100 31
12.2 | 14 #1,500
13.5 | 14 #12,000
13.6 | 76 가람은행 | 104 123-45-678
14.8 | 14 #240
14.9 | 76 해온가스
16.1 | 14 #60,590 | 46 #60,590
18 | 14 2026 | 24 03 | 32 31
20 | 8 가람은행 | 32 123-45-678
21.3 | 8 해온가스)"},
             {}, "굴림");
}

TEST_F(PlainSlips, GeneralGiroOnA4WithThreeBanks) {
  input.banks = {{"가람은행", "1-1", "갑"}, {"나루은행", "2-2", "을"}, {"다솜은행", "3-3", "병"}};
  screen.add("별빛식당", "5", "1000");
  screen.add("햇빛식당", "6", "1000");
  print(GiroPaper::JiroOrgA4);
  // 1: name, 2: code, 3: charge, 4: amount after it, 5: total
  const QString slip = R"(
2.0 | 24 2026 | 32 02
3.2 | 18 2026.02.01 - 2026.02.28
4.4 | 31 #%3 | 50 %1 님 | 146 #%5
5.6 | 9 #%5 | 31 #%4 | 60 #%5 | 146 #%4
6.8 | 6 2026 | 13 03 | 18 31 | 60 2026 | 67 03 | 72 31
7.3 | 98 가람은행 | 136 1-1
8.3 | 16 #130 | 60 %2
8.5 | 98 갑
9.5 | 16 #100
10.7 | 16 #30 | 50 가람은행 | 66 1-1
11.3 | 98 %2 | 136 %1 님
11.9 | 16 #45,000 | 50 갑
13.1 | 5 안전관리비 | 16 #1,500
13.3 | 50 나루은행 | 66 2-2 | 98 가람시 장터길 7
14.3 | 16 #12,000
14.5 | 50 을
15.5 | 16 #240
15.9 | 50 다솜은행 | 66 3-3
16.3 | 98 2026 | 108 03 | 118 31
16.7 | 16 #%5
17.1 | 50 병
18.7 | 6 %2 | 17 %1 님 | 50 해온가스
20.0 | 6 가람시 장터길 7 | 50 문의전화 :  | 62 053-700-0000)";
  expectPage(1, {slip.arg(u"달빛식당"_s, u"0001234"_s, u"1,210"_s, u"61,800"_s, u"60,590"_s),
                 slip.arg(u"별빛식당"_s, u"0000005"_s, u"20"_s, u"1,020"_s, u"1,000"_s)});
  EXPECT_EQ(job().pages, 2);
  EXPECT_EQ(at(18.7, 17, 2), "햇빛식당 님");
}

TEST_F(PlainSlips, A4PaperThatIsPrintedAlreadyAndThePaperWithOneLineOfArrears) {
  input.companyPreprinted = true;
  input.banks = {};
  print(GiroPaper::JiroOrgA4);
  EXPECT_EQ(job().at(1, 5 / 15.0, 13.1 / 8)->text, QString(10, ' '));
  EXPECT_EQ(job().at(1, 50 / 15.0, 20.0 / 8)->text, QString(11, ' '));
  for (const QString& text : job().texts()) EXPECT_FALSE(text.contains("053") || text.contains("해온"));
  EXPECT_EQ(at(14.3, 16) + '/' + at(15.5, 16), "12,000/240");
  input.monthsArrearsOnly = true;
  print(GiroPaper::JiroOrgA4);
  EXPECT_EQ(at(14.3, 16) + '/' + at(15.5, 16), "12,000/nothing");
}

TEST_F(PlainSlips, MicrA4) {
  print(GiroPaper::MicrA4);
  expectPage(1, {R"(
10 | 16 02월분 | 60 2026.02.01  ~  2026.02.28
13 | 16 0001234 | 30 달빛식당
15 | 16 가람시 장터길 7
19 | 44 #100
21 | 44 #130
23 | 44 #30
25 | 44 #45,000
27 | 44 #1,500
29 | 44 #12,000
31 | 44 #240
33 | 44 #60,590
35 | 44 #1,210
37 | 44 #61,800
41 | 16 2026.03.31
43 | 16 은행명 : 가람은행 | 66 123-45-678
45 | 16 예금주 : 해온가스
64 | 8 02월분 | 64 02월분
65.5 | 8 0001234 | 18 달빛식당 | 64 0001234 | 74 달빛식당
67 | 8 가람시 장터길 7 | 64 가람시 장터길 7
70 | 26 #60,590 | 96 #60,590
72 | 26 #61,800 | 96 #61,800
75 | 8 2026.03.31 | 64 2026.03.31
77 | 8 은행명 : 가람은행 | 64 은행명 : 가람은행
78.5 | 8 123-45-678 | 64 123-45-678
80 | 8 예금주 : 해온가스 | 64 예금주 : 해온가스)"});
}

// All but the two OCR papers name the building as the list does, on every part.
TEST_F(PlainSlips, TheBuildingIsNamedAsTheListNamesIt) {
  screen.shownBook = HouseStyle::MultiHousehold;
  screen.rows.setText(1, EvaCol::Name, "1동 203호");
  for (const GiroPaper paper :
       {GiroPaper::Jiro, GiroPaper::JiroMicr, GiroPaper::JiroOrg, GiroPaper::JiroOrgA4, GiroPaper::MicrA4}) {
    SCOPED_TRACE(int(paper));
    const auto named = [&](const QString& entry, const QString& address) {
      screen.entry = entry;
      print(paper);
      return job().texts().count(address);
    };
    EXPECT_GE(named("별빛빌라", "별빛빌라 1동  203호"), 2);
    EXPECT_TRUE(job().texts().filter("행복아파트").isEmpty());
    EXPECT_GE(named("다가구 전체", "행복아파트 1동  203호"), 2);
  }
}

TEST_F(PlainSlips, NothingMeetsOnAnyPaper) {
  screen.shownBook = HouseStyle::MultiHousehold;
  screen.entry = "다가구 전체";
  screen.rows.setMaxRows(0);
  for (int i = 0; i < 2; ++i) {
    const int row = screen.add("1234동 아주 긴 이름의 집 5678호 아주 긴 이름의 집", "1234567", "123456780");
    screen.rows.setText(row, EvaCol::BDName,
                        "아주 긴 이름의 다가구 건물이 여기에 하나 서 있습니다 그렇습니다");
  }
  input.banks.assign(3, {QString(30, u'가'), QString(40, '9'), QString(40, u'나')});
  input.notes = QStringList(8, QString(40, u'가'));
  session.dbBasic.Execute("Update User Set Company = '" + QString(25, u'다') + '\'');
  for (const GiroPaper paper : {GiroPaper::OcrA4, GiroPaper::Jiro, GiroPaper::JiroMicr, GiroPaper::JiroOrg,
                                GiroPaper::JiroOrgA4, GiroPaper::MicrA4}) {
    SCOPED_TRACE(int(paper));
    print(paper);
    ASSERT_GT(job().items.size(), 40u);
    expectNothingMeets();
  }
}

TEST_F(PlainSlips, ALongAddressIsWrittenSmallerBeforeItIsCut) {
  const QString address(33, u'가');  // 66 half-width characters where 50 and 72 have room
  screen.rows.setText(1, EvaCol::Address, address);
  print(GiroPaper::Jiro);
  EXPECT_EQ(job().texts().count(address), 2);
  EXPECT_EQ(at(13.1, 126), address) << "in letters of the usual size";
}

TEST_F(PlainSlips, TheChargeAfterTheDueDateGoesByTheCompanysMethod) {
  screen.rows.setText(1, EvaCol::Total, "0");
  screen.rows.setText(1, EvaCol::UsePay, "10000");
  screen.rows.setText(1, EvaCol::Manage, "1000");
  const auto charges = [&](int method) {
    setAfterDueMethod(session, method);
    EXPECT_EQ(pc.settings.GetSetting("해온판매", "Config", "납기후금액계산법"), QString::number(method));
    QStringList all;
    print(GiroPaper::Jiro);
    all << at(4.2, 34) << at(5.4, 34) << at(5.4, 9);
    print(GiroPaper::MicrA4);
    all << at(35, 44);
    print(GiroPaper::JiroOrgA4);
    all << at(4.4, 31);
    return all.join(' ');
  };
  EXPECT_EQ(charges(1), "220 220 0 220 0")
      << "on 11,000, though the total is 0; the general giro takes the total";
  EXPECT_EQ(charges(0), "0 0 0 0 0");
}

// Kept: the two papers of a slip a page that have a sister on A4 ask no building, though that one does.
TEST_F(PlainSlips, WhoAsksTheBuildingForItsRate) {
  screen.shownBook = HouseStyle::Apartment;
  screen.entry = "아파트 전체";
  screen.rows.setText(1, EvaCol::Total, "10000");
  addBuilding({1234}, 5);
  const struct {
    GiroPaper paper;
    double row, column;
    const char* charge;
  } papers[] = {
      {GiroPaper::OcrContinuous, 2, 41, "300"},  // the book's 3%
      {GiroPaper::OcrA4, 4, 31, "500"},         {GiroPaper::Jiro, 4.2, 34, "500"},
      {GiroPaper::JiroMicr, 13.9, 12, "500"},   {GiroPaper::JiroOrg, 7, 46 + 10 * 10.0 / 144 * 15, "300"},
      {GiroPaper::JiroOrgA4, 4.4, 31, "500"},   {GiroPaper::MicrA4, 35, 44, "500"}};
  for (const auto& [paper, row, column, charge] : papers) {
    SCOPED_TRACE(int(paper));
    print(paper);
    EXPECT_EQ(at(row, column), charge);
  }
  session.dbBasic.Execute("Update apt Set delaypay = 0");
  print(GiroPaper::OcrA4);
  EXPECT_EQ(at(4, 31), "300") << "none of its own";
}

// Kept: the general giros read the company's rounding at each figure, the others once a run.
TEST_F(PlainSlips, TheGeneralGiroFollowsARoundingThatChangesInTheRun) {
  screen.rows.setText(1, EvaCol::Total, "10250");  // 2%: 205
  screen.add("별빛식당", "5", "10250");
  const auto charges = [&](GiroPaper paper, double row, double column, double down) {
    session.dbBasic.Execute("Update User Set PayState = 1");
    giro.setPaper(paper);
    giro.print(input, GiroSelection::All, [&](int, int) {
      session.dbBasic.Execute("Update User Set PayState = 2");
      return true;
    });
    return at(row, column) + '/' + at(row + down, column, job().pages);
  };
  EXPECT_EQ(charges(GiroPaper::JiroOrgA4, 4.4, 31, 28), "200/210");
  EXPECT_EQ(charges(GiroPaper::MicrA4, 35, 44, 0), "200/200");
}

TEST_F(PlainSlips, TheOptionChoosesJirosPaper) {
  EXPECT_EQ(jiroPaper(session), GiroPaper::Jiro);
  EXPECT_EQ(GetOption(session, "MICR용지", "x"), "0");
  setJiroPaper(session, GiroPaper::JiroMicr);
  EXPECT_EQ(GetOption(session, "MICR용지", "0"), "1");
  EXPECT_EQ(jiroPaper(session), GiroPaper::JiroMicr);
  SetOption(session, "MICR용지", "2");
  EXPECT_EQ(jiroPaper(session), GiroPaper::JiroMicr) << "whatever is not 0";
  setJiroPaper(session, GiroPaper::Jiro);
  EXPECT_EQ(GetOption(session, "MICR용지", "1"), "0");
}

TEST_F(PlainSlips, PeriodsAndTheOneBankAFormBeginsWith) {
  using Period = std::pair<QString, QString>;
  EXPECT_EQ(giro.lastMonth(), (Period{"2026.02.01", "2026.02.28"}));
  pc.clock.set(QDate(2027, 1, 31).startOfDay());
  EXPECT_EQ(giro.lastMonth(), (Period{"2026.12.01", "2026.12.31"}));
  giro.setPaper(GiroPaper::JiroOrgA4);
  giro.setStartsWithThisMonth(true);
  EXPECT_EQ(pc.settings.GetSetting("해온판매", "환경설정", "A4지로_당월기본"), "1");
  EXPECT_EQ(pc.settings.GetSetting("해온판매", "환경설정", "OCRA4지로_당월기본"), "") << "each its own";

  EXPECT_FALSE(onlyBank(session));
  session.dbBasic.Execute("Insert Into Bank(BName, BNumber, BUser) Values('가람은행', '1-1', '갑')");
  ASSERT_TRUE(onlyBank(session));
  EXPECT_EQ(onlyBank(session)->account + onlyBank(session)->holder, "1-1갑");
  session.dbBasic.Execute("Insert Into Bank(BName, BNumber, BUser) Values('나루은행', '2-2', '을')");
  EXPECT_FALSE(onlyBank(session)) << "there is a choice";
}

TEST_F(PlainSlips, ASlipsFileIsNamedByDayAndCustomer) {
  giro.setPaper(GiroPaper::Jiro);
  const auto run = giro.run(input, GiroSelection::All);
  ASSERT_TRUE(run);
  EXPECT_EQ(run->name(0), "2026-03-31 달빛식당 지로");
  EXPECT_EQ(run->title, "MICR 지로");
}

}  // namespace
