// What stands out in a month's readings: the usual use, the marks, the counts, the way from one to the next.
#include "billing/reading_watch.h"

#include "billing/reading_edit.h"
#include "store/year_file.h"
#include "tests/billing/meter_desk.h"

using namespace Qt::StringLiterals;

namespace {

using From = UsualUse::From;

TEST(ReadingWatch, LastYearsMonthGoesBeforeTheMeanOfTheMonthsInWhichGasWasUsed) {
  struct Case {
    std::optional<double> lastYear;
    std::vector<double> before;
    From from;
    double use;
  };
  for (const Case& each : std::initializer_list<Case>{{12, {1, 2, 3}, From::LastYear, 12},
                                                      {{}, {10, 20, 33}, From::LastMonths, 21},
                                                      {0, {10, 0, 20}, From::LastMonths, 15},
                                                      {-4, {0, -3, 7}, From::LastMonths, 7},
                                                      {{}, {0, 0, 0}, From::Nothing, 0},
                                                      {{}, {}, From::Nothing, 0}}) {
    const UsualUse usual = usualUse(each.lastYear, each.before);
    EXPECT_EQ(usual.from, each.from);
    EXPECT_DOUBLE_EQ(usual.use, each.use);
  }
}

TEST(ReadingWatch, MarksByHand) {
  const UsualUse ten{From::LastYear, 10}, two{From::LastMonths, 2}, none;
  struct Case {
    double reading, use;
    UsualUse usual;
    ReadingMark mark;
  };
  using enum ReadingMark;
  for (const Case& each : std::initializer_list<Case>{
           {0, 0, ten, Unread},
           {0, -100, ten, Backward},  // a reading of 0 after 100
           {95, -5, none, Backward},
           {100, 0, ten, Zero},
           {120, 20, ten, None},  // twice, and not more
           {120.1, 20.1, ten, High},
           {105, 5, ten, None},  // half, and not less
           {104.9, 4.9, ten, Low},
           {104.9, 4.9, two, None},  // more than twice, but 2.9 cubic metres
           {105, 5, two, High},      // 3 of them
           {100.5, 0.5, two, None},
           {900, 500, none, None},
       })
    EXPECT_EQ(int(markOf(each.reading, each.use, each.usual)), int(each.mark)) << each.use;
  const UsualUse six{From::LastMonths, 6}, five9{From::LastMonths, 5.9};
  EXPECT_EQ(int(markOf(100, 2.9, six)), int(Low)) << "3.1 below, less than half";
  EXPECT_EQ(int(markOf(100, 2, {From::LastMonths, 5})), int(Low)) << "3 below are enough";
  EXPECT_EQ(int(markOf(100, 2.94, five9)), int(None)) << "less than half, but 2.96 below";
}

struct Watched : testing::Test, tests::MeterDesk {
  int shop = customer("가람식당", 1500), house = customer("나루집", 1500), empty = customer("다솔집", 1500);

  void lastYear(int code, int month, double use) {
    if (!last.isOpen()) {
      makeYearFile(session, "2025");
      last = session.wsMain.OpenDatabase(yearFile(session, "2025"));
      upgrades::relink(session);
    }
    last.Execute(
        u"Insert Into Evaporation(ClientCode, Mon, UseMuch) Values(%1, %2, %3)"_s.arg(code).arg(month).arg(
            use));
  }
  QString watched(int row) { return cells(row, {EvaCol::Judgement, EvaCol::LastUse, EvaCol::UsualUse}); }
  jet::Database last;
};

TEST_F(Watched, TheSheetIsMarkedFromBothYearsFilesAndNothingOfTheBillMoves) {
  lastYear(shop, 3, 40);
  lastYear(house, 12, 9);
  lastYear(house, 11, 99);
  set(shop, 2, "UseGage = 100, UseMuch = 7");
  set(shop, 3, "UseGage = 185, UseMuch = 85, UsePay = 127500, Total = 127500");
  set(house, 1, "UseGage = 10, UseMuch = 4");
  set(house, 2, "UseGage = 12, UseMuch = 2");
  set(house, 3, "UseGage = 20, UseMuch = 8");
  set(empty, 0, "UseMuch = 1");
  const QString before = rows("Select * From Evaporation Order By ClientCode, Mon");
  show(HouseStyle::Individual, 3);
  EXPECT_EQ(watched(1), "▲ 많음|7|40");
  EXPECT_EQ(watched(2), "|2|5") << "(2 + 4 + 9) / 3; November lies four months back";
  EXPECT_EQ(watched(3), "□ 미검침|0|") << "the opening row's use of 1 is none";
  EXPECT_EQ(sheet.grid.sign(1, EvaCol::UseMuch) + sheet.grid.sign(2, EvaCol::UseMuch), "▲");
  EXPECT_NE(sheet.grid.background(1, EvaCol::UseMuch), sheet.grid.background(2, EvaCol::UseMuch));
  EXPECT_EQ(countsText(markReadings(sheet)), "□ 미검침 1   ▲ 많음 1");
  EXPECT_EQ(useText(sheet, 1), "전월 사용 : 7   예상 : 40 (작년 같은 달)   이번 : 85 ▲ 많음");
  EXPECT_EQ(useText(sheet, 2), "전월 사용 : 2   예상 : 5 (최근 석 달 평균)   이번 : 8");
  EXPECT_EQ(useText(sheet, 3), "전월 사용 : 0   예상 : -   이번 : □ 미검침");
  EXPECT_EQ(useText(sheet, 2, "9"), "전월 사용 : 2   예상 : 5 (최근 석 달 평균)   이번 : -3 ◀ 역회전")
      << "before it is taken";
  EXPECT_EQ(rows("Select * From Evaporation Order By ClientCode, Mon"), before);

  show(HouseStyle::Individual, 1);
  EXPECT_EQ(watched(2), "▼ 적음|9|54") << "January looks at last year: (9 + 99) / 2";
  show(HouseStyle::Individual, 0);
  EXPECT_EQ(countsText(markReadings(sheet)) + useText(sheet, 1), "")
      << "nothing is expected of an opening entry";

  session.dbYear = last;  // the PC's year was changed: the year before has no file
  show(HouseStyle::Individual, 3);
  EXPECT_EQ(watched(1), "||") << "a month is not set against itself";
}

TEST_F(Watched, AFinishedCellMovesItsMarkAndTheWayGoesRound) {
  set(shop, 2, "UseGage = 100");
  set(house, 2, "UseGage = 100");
  show(HouseStyle::Individual, 3);
  EXPECT_EQ(nextMarked(sheet, 1, 1), 2);
  EXPECT_EQ(nextMarked(sheet, 1, -1), 3);
  const auto read = [&](int row, const char* text) {
    pc.prompts.expect("선택된 자료를 수정하시겠습니까?");
    finishReadingCell(sheet, row, EvaCol::UseGage, text);
    markReadings(sheet);
    return sheet.grid.text(row, EvaCol::Judgement) + sheet.grid.sign(row, EvaCol::UseMuch);
  };
  EXPECT_EQ(read(1, "90"), "◀ 역회전◀");
  EXPECT_EQ(read(1, "100"), "○ 사용 없음○");
  EXPECT_EQ(read(1, "104"), "");
  EXPECT_EQ(sheet.grid.background(1, EvaCol::UseMuch), sheet.grid.column(EvaCol::UseMuch).background);
  EXPECT_EQ(nextMarked(sheet, 2, 1), 3);
  EXPECT_EQ(nextMarked(sheet, 3, 1), 2) << "over the end and past the good one";
  EXPECT_EQ(read(2, "101"), "");
  EXPECT_EQ(nextMarked(sheet, 3, 1), 3) << "the only one is its own next";
  EXPECT_EQ(read(3, "1"), "");
  EXPECT_EQ(nextMarked(sheet, 2, 1), 0);
}

}  // namespace
