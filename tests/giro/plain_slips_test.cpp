// The papers without a scan line, text by text, and in what their rules differ.
#include "store/options.h"
#include "tests/giro/slip_desk.h"

namespace {

using tests::places13;

struct PlainSlips : testing::Test, tests::SlipDesk {
  PlainSlips() {
    input.banks = {{"가람은행", "123-45-678", "해온가스"}};
    screen.add("달빛식당", "1234", "60590");
  }
  void print(GiroPaper paper) {
    giro.setPaper(paper);
    EXPECT_EQ(giro.print(input, GiroSelection::All), screen.rows.MaxRows());
  }
  /** Where a text of half-width characters of ten points stands when it ends at the right edge of 13. */
  static Expected right13(double row, double column, const QString& text) {
    return {row, column + double(13 - widthOf(text)) * 10 / 144 * 15, text, "굴림"};
  }
  QString at(double row, double column, int page = 1) {
    const auto* item = job().at(page, column / 15, row / 8);
    return item ? item->text.trimmed() : QString("nothing");
  }
};

// Arrears 12,000 at 2% make 240 late. By the company's method the charge is on 45,000 + 1,500 or on the total.
TEST_F(PlainSlips, JiroOnThePlainPaper) {
  set("TOP", "1");
  set("LEFT", "-2.5");
  session.AfterDueMethod = 1;
  print(GiroPaper::Jiro);
  const QString total = places13("60,590"), bank = "은행명 : 가람은행", holder = "예금주 : 해온가스";
  expectPage(1,
             {{1.8, 30, "02월분"},
              {3.0, 22, "2026.02.01  ~  2026.02.28"},
              {4.2, 34, places13("930")},
              {5.4, 34, places13("61,520")},
              {5.4, 9, total},
              {6.6, 6, "2026"},
              {6.6, 13, "03"},
              {6.6, 18, "31"},
              {8.1, 10, places13("130")},
              {9.3, 10, places13("100")},
              {10.5, 10, places13("30")},
              {11.7, 10, places13("45,000")},
              {12.9, 10, places13("1,500")},
              {14.1, 10, places13("12,000")},
              {15.3, 10, places13("240")},
              {16.5, 10, total},
              {8.1, 28, bank},
              {9.3, 28, "123-45-678"},
              {10.5, 28, holder},
              {18.5, 6, "0001234"},
              {18.5, 17, "달빛식당"},
              {19.8, 6, "가람시 장터길 7"},
              {3.0, 66, "02월분"},
              {5.4, 76, total},
              {6.6, 76, "2026"},
              {6.6, 83, "03"},
              {6.6, 88, "31"},
              {8.1, 76, "0001234"},
              {9.3, 66, "달빛식당"},
              {11.7, 66, bank},
              {12.9, 66, "123-45-678"},
              {14.1, 66, holder},
              {3.0, 126, "02월분"},
              {3.0, 174, total},
              {4.2, 174, places13("61,520")},
              {5.4, 126, bank},
              {6.6, 126, "123-45-678"},
              {7.8, 126, holder},
              {11.1, 126, "0001234"},
              {11.1, 164, "달빛식당"},
              {13.1, 127, "가람시 장터길 7"},
              {16.1, 126, "2026"},
              {16.1, 136, "03"},
              {16.1, 146, "31"}},
             1, -2.5);
}

TEST_F(PlainSlips, JiroOnTheMicrPaper) {
  screen.shownBook = HouseStyle::MultiHousehold;
  screen.entry = "별빛빌라";
  screen.rows.setText(1, EvaCol::Name, "1동 203호");
  screen.rows.setText(1, EvaCol::PayWay, "3");
  print(GiroPaper::JiroMicr);
  const QString due = "2026년 03월 31일 ", period = "2026.02.01  ~  2026.02.28", bank = "은행명 : 가람은행",
                holder = "예금주 : 해온가스";
  // 1% of the total: 605, down to 600; 1% of 12,000
  expectPage(1, {{1.6, 8, "02월분"},
                 {1.6, 24, period},
                 {2.8, 24, due},
                 {4.3, 8, "0001234"},
                 {4.3, 20, "1동 203호"},
                 {5.5, 8, "별빛빌라 1동 203호"},
                 {7.3, 12, places13("100")},
                 {8.5, 12, places13("130")},
                 {9.7, 12, places13("30")},
                 {7.3, 44, places13("45,000")},
                 {8.5, 44, places13("1,500")},
                 {9.7, 44, places13("12,000")},
                 {10.9, 44, places13("120")},
                 {12.7, 12, places13("60,590")},
                 {12.7, 44, "(자동이체)"},
                 {13.9, 12, places13("600")},
                 {13.9, 44, places13("61,190")},
                 {15.9, 8, bank},
                 {15.9, 40, "123-45-678"},
                 {17.1, 8, holder},
                 {1.6, 76, "02월분"},
                 {1.6, 92, period},
                 {2.8, 92, due},
                 {4.3, 76, "0001234"},
                 {4.3, 90, "1동 203호"},
                 {5.5, 76, "행복아파트 1동  203호"},
                 {7.3, 108, "(자동이체)"},
                 {8.5, 108, places13("61,190")},
                 {10.9, 76, bank},
                 {10.9, 108, "123-45-678"},
                 {12.1, 76, holder}});
}

TEST_F(PlainSlips, GeneralGiroOnContinuousPaper) {
  print(GiroPaper::JiroOrg);
  const auto letters = [](double row, double column, const QString& text) {
    return Expected{row, column, text, "굴림"};
  };
  // 2% of 60,590: 1,211, down to 1,210
  expectPage(1, {letters(2, 10, "2026"),
                 letters(2, 19, "02"),
                 letters(2, 30, "2026.02.01 - 2026.02.28"),
                 letters(3.6, 8, "0001234"),
                 letters(3.6, 20, "달빛식당 님"),
                 letters(4.9, 8, "가람시 장터길 7"),
                 right13(7, 14, "130"),
                 right13(8.3, 14, "100"),
                 right13(9.6, 14, "30"),
                 right13(10.9, 14, "45,000"),
                 right13(12.2, 14, "1,500"),
                 right13(13.5, 14, "12,000"),
                 right13(14.8, 14, "240"),
                 right13(16.1, 14, "60,590"),
                 right13(7, 46, "1,210"),
                 right13(8.3, 46, "61,800"),
                 right13(16.1, 46, "60,590"),
                 letters(18, 14, "2026"),
                 letters(18, 24, "03"),
                 letters(18, 32, "31"),
                 letters(20, 8, "가람은행"),
                 letters(20, 32, "123-45-678"),
                 letters(21.3, 8, "해온가스"),
                 letters(2, 78, "2026"),
                 letters(2, 87, "02"),
                 letters(3.6, 76, "0001234"),
                 letters(3.6, 90, "달빛식당 님"),
                 letters(4.9, 76, "가람시 장터길 7"),
                 right13(8.3, 110, "60,590"),
                 right13(9.6, 110, "61,800"),
                 letters(11.6, 82, "2026"),
                 letters(11.6, 92, "03"),
                 letters(11.6, 100, "31"),
                 letters(13.6, 76, "가람은행"),
                 letters(13.6, 104, "123-45-678"),
                 letters(14.9, 76, "해온가스")});
}

TEST_F(PlainSlips, GeneralGiroOnA4WithThreeBanks) {
  session.dbBasic.Execute("Update User Set Tel = '053-700-0000'");
  input.banks = {{"가람은행", "1-1", "갑"}, {"나루은행", "2-2", "을"}, {"다솜은행", "3-3", "병"}};
  screen.add("별빛식당", "5", "1000");
  screen.add("햇빛식당", "6", "1000");
  print(GiroPaper::JiroOrgA4);
  const auto slip = [](double top, const QString& name, const QString& code, const QString& charge,
                       const QString& after, const QString& total) {
    return std::vector<Expected>{{top + 2.0, 24, "2026"},
                                 {top + 2.0, 32, "02"},
                                 {top + 3.2, 18, "2026.02.01 - 2026.02.28"},
                                 {top + 4.4, 31, places13(charge)},
                                 {top + 5.6, 31, places13(after)},
                                 {top + 5.6, 9, places13(total)},
                                 {top + 6.8, 6, "2026"},
                                 {top + 6.8, 13, "03"},
                                 {top + 6.8, 18, "31"},
                                 {top + 8.3, 16, places13("130")},
                                 {top + 9.5, 16, places13("100")},
                                 {top + 10.7, 16, places13("30")},
                                 {top + 11.9, 16, places13("45,000")},
                                 {top + 13.1, 5, "안전관리비"},
                                 {top + 13.1, 16, places13("1,500")},
                                 {top + 14.3, 16, places13("12,000")},
                                 {top + 15.5, 16, places13("240")},
                                 {top + 16.7, 16, places13(total)},
                                 {top + 18.7, 6, code},
                                 {top + 18.7, 17, name + " 님"},
                                 {top + 20.0, 6, "가람시 장터길 7"},
                                 {top + 4.4, 50, name + " 님"},
                                 {top + 5.6, 60, places13(total)},
                                 {top + 6.8, 60, "2026"},
                                 {top + 6.8, 67, "03"},
                                 {top + 6.8, 72, "31"},
                                 {top + 8.3, 60, code},
                                 {top + 10.7, 50, "가람은행"},
                                 {top + 10.7, 66, "1-1"},
                                 {top + 11.9, 50, "갑"},
                                 {top + 13.3, 50, "나루은행"},
                                 {top + 13.3, 66, "2-2"},
                                 {top + 14.5, 50, "을"},
                                 {top + 15.9, 50, "다솜은행"},
                                 {top + 15.9, 66, "3-3"},
                                 {top + 17.1, 50, "병"},
                                 {top + 18.7, 50, "해온가스"},
                                 {top + 20.0, 50, "문의전화 : "},
                                 {top + 20.0, 62, "053-700-0000"},
                                 {top + 4.4, 146, places13(total)},
                                 {top + 5.6, 146, places13(after)},
                                 {top + 7.3, 98, "가람은행"},
                                 {top + 7.3, 136, "1-1"},
                                 {top + 8.5, 98, "갑"},
                                 {top + 11.3, 98, code},
                                 {top + 11.3, 136, name + " 님"},
                                 {top + 13.3, 99, "가람시 장터길 7"},
                                 {top + 16.3, 98, "2026"},
                                 {top + 16.3, 108, "03"},
                                 {top + 16.3, 118, "31"}};
  };
  auto sheet = slip(0, "달빛식당", "0001234", "1,210", "61,800", "60,590");
  const auto lower = slip(28, "별빛식당", "0000005", "20", "1,020", "1,000");
  sheet.insert(sheet.end(), lower.begin(), lower.end());
  expectPage(1, sheet);
  EXPECT_EQ(job().pages, 2);
  EXPECT_EQ(at(18.7, 17, 2), "햇빛식당 님");
}

TEST_F(PlainSlips, A4PaperThatIsPrintedAlreadyAndThePaperWithOneLineOfArrears) {
  session.dbBasic.Execute("Update User Set Tel = '053-700-0000'");
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
  const QString bank = "은행명 : 가람은행", holder = "예금주 : 해온가스", total = places13("60,590"),
                after = places13("61,800");
  expectPage(1, {{10, 16, "02월분"},
                 {10, 60, "2026.02.01  ~  2026.02.28"},
                 {13, 16, "0001234"},
                 {13, 30, "달빛식당"},
                 {15, 16, "가람시 장터길 7"},
                 {19, 44, places13("100")},
                 {21, 44, places13("130")},
                 {23, 44, places13("30")},
                 {25, 44, places13("45,000")},
                 {27, 44, places13("1,500")},
                 {29, 44, places13("12,000")},
                 {31, 44, places13("240")},
                 {33, 44, total},
                 {35, 44, places13("1,210")},
                 {37, 44, after},
                 {41, 16, "2026.03.31"},
                 {43, 16, bank},
                 {43, 66, "123-45-678"},
                 {45, 16, holder},
                 {64, 8, "02월분"},
                 {65.5, 8, "0001234"},
                 {65.5, 18, "달빛식당"},
                 {67, 8, "가람시 장터길 7"},
                 {70, 26, total},
                 {72, 26, after},
                 {75, 8, "2026.03.31"},
                 {77, 8, bank},
                 {78.5, 8, "123-45-678"},
                 {80, 8, holder},
                 {64, 64, "02월분"},
                 {65.5, 64, "0001234"},
                 {65.5, 74, "달빛식당"},
                 {67, 64, "가람시 장터길 7"},
                 {70, 96, total},
                 {72, 96, after},
                 {75, 64, "2026.03.31"},
                 {77, 64, bank},
                 {78.5, 64, "123-45-678"},
                 {80, 64, holder}});
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
  session.dbBasic.Execute("Update User Set Company = '" + QString(25, u'다') + "', Tel = '053-700-0000'");
  for (const GiroPaper paper :
       {GiroPaper::Jiro, GiroPaper::JiroMicr, GiroPaper::JiroOrg, GiroPaper::JiroOrgA4, GiroPaper::MicrA4}) {
    SCOPED_TRACE(int(paper));
    print(paper);
    expectNothingMeets();
  }
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

TEST_F(PlainSlips, WhoAsksTheBuildingForItsRate) {
  screen.shownBook = HouseStyle::Apartment;
  screen.entry = "아파트 전체";
  screen.rows.setText(1, EvaCol::Total, "10000");
  session.dbBasic.Execute(
      "Insert Into Client(Code, Name, BDName, Dong, HouseStyle) "
      "Values(1234, '홍길동', '행복아파트', '101', 1)");
  session.dbBasic.Execute("Insert Into apt(Name, Dong, delaypay) Values('행복아파트', '101', 5)");
  const auto charge = [&](GiroPaper paper, double row, double column) {
    print(paper);
    return at(row, column);
  };
  EXPECT_EQ(charge(GiroPaper::Jiro, 4.2, 34), "500");
  EXPECT_EQ(charge(GiroPaper::JiroMicr, 13.9, 12), "500");
  EXPECT_EQ(charge(GiroPaper::MicrA4, 35, 44), "500");
  EXPECT_EQ(charge(GiroPaper::JiroOrgA4, 4.4, 31), "500");
  print(GiroPaper::JiroOrg);
  EXPECT_TRUE(job().texts().contains("300")) << "the book's rate, as on the continuous OCR paper";
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
