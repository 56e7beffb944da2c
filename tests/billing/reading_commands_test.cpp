// The commands on a shown book.
#include "billing/reading_commands.h"

#include "billing/reading_list.h"
#include "billing/reading_panel.h"
#include "store/year_file.h"
#include "tests/billing/meter_desk.h"
#include "tests/shown_reports.h"

using namespace Qt::StringLiterals;

namespace {

struct ReadingCommands : testing::Test, tests::MeterDesk {
  /** No to the command's question leaves all as it is; then the question comes again. */
  void askedTwice(const QString& question, bool (*command)(ReadingSheet&, const ReadingProgress&)) {
    pc.prompts.expect(question, false);
    EXPECT_FALSE(command(sheet, {}));
    pc.prompts.expect(question);
  }
};
struct ReadingList : ReadingCommands {};

TEST_F(ReadingCommands, ReaderAndCollectorAreAskedForInTheirColumns) {
  const int code = customer("가람", 1500);
  show(HouseStyle::Individual, 3);
  pc.prompts.expectInput("검침담당", "홍길동");
  askPerson(sheet, 1, EvaCol::UseGage);
  pc.prompts.expectInput("수금담당자를 입력하세요", "김수금");
  askPerson(sheet, 1, EvaCol::Pay);
  EXPECT_EQ(rows("Select Mon, ChkMan, CashMan From Evaporation Where ChkMan <> '' Or CashMan <> ''"),
            "3|홍길동|김수금");
  pc.prompts.expectInput("검침담당자를 입력하세요", {});
  askPerson(sheet, 1, EvaCol::UseGage);
  EXPECT_EQ(field("ChkMan", code, 3), "홍길동") << "left without an answer";
  pc.prompts.expectInput("검침담당자를 입력하세요", "");
  askPerson(sheet, 1, EvaCol::UseGage);
  EXPECT_EQ(field("ChkMan", code, 3), "") << "an empty answer is one";

  askPerson(sheet, 1, EvaCol::Delay);
  run("Delete * From Evaporation Where Mon = 3");
  askPerson(sheet, 1, EvaCol::UseGage);
  show(HouseStyle::Individual, 0);
  askPerson(sheet, 1, EvaCol::UseGage);  // no box in any of these
}

TEST_F(ReadingCommands, AChangedMeterKeepsReadingLessPreviousReading) {
  const int code = customer("가람", 1500);
  set(code, 2, "UseGage = 950");
  show(HouseStyle::Individual, 3);
  pc.prompts.expect("당월검침을 먼저 입력하세요.");
  correctUse(sheet, 1);

  set(code, 3, "UseGage = 4, UseMuch = -946, UsePay = -1419000");
  show(HouseStyle::Individual, 3);
  const auto correct = [&](const char* use) {
    pc.prompts.expect("이 기능은 계량기 교체시등에 사용됩니다.");
    pc.prompts.expectInput("변경할 사용량을 입력하세요.", use);
    correctUse(sheet, 1);
  };
  for (const char* nothing : {"0", "", "x"}) correct(nothing);
  EXPECT_EQ(field("UseMuch", code, 3), "-946");
  correct("12.5");
  EXPECT_EQ(cells(1, {EvaCol::PrevUseGage, EvaCol::UseGage}), "-8.5|4");
  EXPECT_EQ(bill(1), "12.5|18750|0|0|1000|19750");
  EXPECT_EQ(field("Trust", code, 4), "19750");
  show(HouseStyle::Individual, 3);
  EXPECT_EQ(cells(1, {EvaCol::PrevUseGage, EvaCol::UseMuch}), "-8.5|12.5") << "a reload keeps it";

  run("Delete * From Evaporation Where Mon = 3");
  pc.prompts.expect("이 기능은 계량기 교체시등에 사용됩니다.");
  pc.prompts.expectInput("사용량 수정", "3");
  pc.prompts.expect("오류가 발생하여 변경에 실패했습니다.");
  correctUse(sheet, 1);
}

TEST_F(ReadingCommands, RecalculationTakesTheRowsThatWereRead) {
  const int a = customer("가람", 1500), b = customer("나라", 1000), c = customer("다솜", 1000);
  for (const int code : {a, b, c}) {
    set(code, 2, "UseGage = 100");
    set(code, 3,
        "UseGage = 110, UseMuch = 10, Trust = 10000, Delay = 7, Manage = 8, PrntDay = '03/0" +
            QString::number(code) + "'");
  }
  set(b, 3, "UseGage = 0, UseMuch = 0");
  set(c, 3, "TrustDay = '03/04'");
  show(HouseStyle::Individual, 3);
  pc.prompts.expect("미수금및 연체료를 재계산 하시겠습니까?", false);
  recalculate(sheet, {});
  EXPECT_EQ(field("Total", a, 3), "0");

  QList<int> shown;
  sheet.showRow = [&](int row) { shown << row; };
  pc.prompts.expect("미수금및 연체료를 재계산 하시겠습니까?");
  pc.prompts.expect("수금일자를 수정 하시겠습니까?");
  recalculate(sheet, {});
  EXPECT_EQ(rows("Select UsePay, Delay, Manage, Total, PrntDay, TrustDay From Evaporation Where Mon = 3"),
            "15000|200|1000|26200|03/01 |;0|7|8|0|03/02|;10000|200|1000|21200|03/03 |03/03 ")
      << "each with its own reading day";
  EXPECT_EQ(rows("Select Trust From Evaporation Where Mon = 4"), "26200;0;21200");
  EXPECT_EQ(rows("Select Max(Trust) From Evaporation Where Mon = 5"), "0") << "one month only";
  EXPECT_EQ(shown, QList<int>{3}) << "the row that is asked about comes into sight";
}

TEST_F(ReadingCommands, LongWorkStopsBetweenTwoRowsAndSaysSo) {
  for (const char* name : {"가", "나", "다"}) {
    const int code = customer(name, 1000);
    set(code, 3, "UseGage = 5, TrustDay = '03/01'");
  }
  show(HouseStyle::Individual, 3);
  pc.prompts.expect("미수금및 연체료를 재계산 하시겠습니까?");
  for (int asked = 0; asked < 2; ++asked) pc.prompts.expect("수금일자를 수정 하시겠습니까?", false);
  pc.prompts.expect("3건 중 2건까지 처리하고 중지하였습니다.");
  recalculate(sheet, [](int done, int count) { return done < 2 && count == 3; });
  EXPECT_EQ(rows("Select Total From Evaporation Where Mon = 3"), "6000;6000;0");
  EXPECT_EQ(rows("Select Trust From Evaporation Where Mon = 4"), "6000;6000;0");
}

TEST_F(ReadingCommands, JanuaryIsRecalculatedOnLastYearsGas) {
  session.DelayCalcFlag = "1";
  makeYearFile(session, "2025");
  for (const char* name : {"가", "나"}) {
    const int code = customer(name, 1000);
    set(code, 1, "UseGage = 5, Trust = 10000");
    session.wsMain.OpenDatabase(yearFile(session, "2025"))
        .Execute(u"Insert Into Evaporation(ClientCode, Mon, UsePay) Values(%1, 12, %2)"_s.arg(code).arg(
            code * 1000));
  }
  show(HouseStyle::Individual, 1);
  pc.prompts.expect("미수금및 연체료를 재계산 하시겠습니까?");
  recalculate(sheet, {});
  EXPECT_EQ(rows("Select Delay, Total From Evaporation Where Mon = 1"), "20|16020;40|16040");
}

TEST_F(ReadingCommands, ClearingTheUseCountsTheRows) {
  customer("가", 1000);
  customer("나", 1000);
  customer("다", 1000, 1, "한빛", "101", "1");
  run("Update Evaporation Set UseMuch = 5, UsePay = 9");
  show(HouseStyle::Individual, 3);
  askedTwice("현재 화면내 모든고객에 대해 당월 사용량을 클리어 하시겠습니까?", clearUse);
  pc.prompts.expect("2건의 자료를 수정하였습니다.");
  EXPECT_TRUE(clearUse(sheet, {}));
  EXPECT_EQ(rows("Select ClientCode, Mon From Evaporation Where UseMuch = 0"), "1|3;2|3");
  EXPECT_EQ(rows("Select Min(UsePay) From Evaporation"), "9");
}

TEST_F(ReadingCommands, AMonthWithoutReadingsRunsOverTheWholeBook) {
  const int a = customer("가", 1000, 1, "한빛", "101", "1");
  const int b = customer("나", 1000, 1, "별빛", "101", "1");
  const int c = customer("다", 1000);
  for (const int code : {a, b, c}) {
    set(code, 2, u"UseGage = %1, Total = %2"_s.arg(code * 10).arg(code * 1000));
    set(code, 3, "UseGage = 999, UseMuch = 9, UsePay = 8, Delay = 7, Manage = 6, Total = 5");
  }
  show(HouseStyle::Apartment, 3, 2);
  ASSERT_EQ(sheet.buildingEntry().toStdString(), "한빛");
  askedTwice("03월 체적아파트 고객 한빛의 검침을 미실시로 처리하시겠습니까?", skipReadings);
  pc.prompts.expect("03월의 체적검침을 미실시로 처리완료했습니다");
  EXPECT_TRUE(skipReadings(sheet, {}));
  EXPECT_EQ(rows("Select ClientCode, Trust, UseGage, UseMuch, UsePay, Delay, Manage, Total From Evaporation "
                 "Where Mon = 3 Order By ClientCode"),
            "1|1000|10|0|8|7|6|5;2|2000|20|0|8|7|6|5;3|0|999|9|8|7|6|5")
      << "also the building that was not named; not the other book";
  EXPECT_EQ(rows("Select ClientCode, Trust From Evaporation Where Mon = 4 Order By ClientCode"),
            "1|1000;2|2000;3|0");

  show(HouseStyle::Individual, 3);
  pc.prompts.expect("입력한 검침수치가 모두 지워지므로 주의하시기 바랍니다.\n03월 체적일반 고객의 검침을",
                    false);
  EXPECT_FALSE(skipReadings(sheet, {}));
  for (const int month : {0, 12}) {
    sheet.month = month;
    EXPECT_FALSE(maySkipReadings(sheet)) << month;
    EXPECT_FALSE(skipReadings(sheet, {}));
  }
}

TEST_F(ReadingList, IsStagedAsItStandsOnTheScreen) {
  tests::ShownReports reports;
  session.reports = &reports;
  const auto formulas = [&] { return reports.asked.back().formulas; };
  for (const char* room : {"1", "2"}) customer("가", 1000, 1, "한빛", "101", room);
  set(1, 3,
      "UseGage = 10.5, UseMuch = 2.25, UsePay = 2250, Trust = 5, Delay = 4, Manage = 3, Total = 2260, Pay = "
      "2, Prnt = -1, TrustDay = '03/02'");
  show(HouseStyle::Apartment, 3, 1);
  sheet.grid.setText(2, EvaCol::UsePay, "77");  // not stored
  printReadingList(sheet);
  const auto staged = [&] {
    return tests::stagedRows(
               session,
               "Str01, Dbl01, Dbl02, Dbl03, Lng01, Lng02, Lng03, Lng04, Lng05, Lng06, Str02, Str03, Str04")
        .join(';');
  };
  EXPECT_EQ(staged(),
            "101동 1호|8.25|10.5|2.25|2250|5|4|3|2260|2|O|03/02|한빛;101동 2호|0|0|0|77|0|0|0|0|0|X||한빛");
  EXPECT_EQ(reports.asked.back().file, "체적검침현황.rpt");
  EXPECT_EQ(formulas(), QStringList({"월= '03월)'", "건물명= '한빛'"}));

  pc.pc.settings.SaveSetting(session.AppTitle, "Config", "체적검침동별보기", "1");
  show(HouseStyle::Apartment, 3, 1);
  printReadingList(sheet);
  EXPECT_EQ(formulas().last(), "건물명= '한빛'") << "without its block";
  show(HouseStyle::Apartment, 3, 0);
  printReadingList(sheet);
  EXPECT_EQ(formulas().last(), "건물명= '아파'") << "the same four characters go";

  sheet.grid.setText(1, EvaCol::Name, "");
  printReadingList(sheet);
  EXPECT_EQ(staged(), "") << "a row without a name ends the list";
  show(HouseStyle::Individual, 3);
  printReadingList(sheet);
  EXPECT_EQ(formulas().last(), "건물명= '일반주택/식당'");
}

}  // namespace
