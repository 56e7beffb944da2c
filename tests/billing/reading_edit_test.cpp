// Cells typed by hand, and what becomes of the row.
#include "billing/reading_edit.h"

#include "tests/billing/meter_desk.h"

using namespace Qt::StringLiterals;

namespace {

/** Two customers in March; the first has arrears of 10,000. */
struct ReadingEditing : testing::Test, tests::MeterDesk {
  int code = customer("가람", 1500), other = customer("나라", 1000);
  ReadingEditing() {
    set(code, 2, "UseGage = 100, UsePay = 5000");
    set(code, 3, "Trust = 10000");
    show(HouseStyle::Individual, 3);
  }
  /** The question is answered with yes. */
  QString edit(int col, const char* typed, int row = 1) {
    pc.prompts.expect("선택된 자료를 수정하시겠습니까?");
    return take(col, typed, row);
  }
  /** "row,col" of the next cell, or "back". */
  QString take(int col, const char* typed, int row = 1) {
    const ReadingEdit edit = finishReadingCell(sheet, row, col, typed);
    if (edit.end == ReadingEdit::PutBack) return "back";
    return u"%1,%2"_s.arg(edit.next.row).arg(edit.next.col);
  }
  QString stored() { return field("UseGage, UseMuch, UsePay, Delay, Manage, Total, Pay", code, 3); }
};

TEST_F(ReadingEditing, AReadingIsComputedStoredAndCarried) {
  EXPECT_EQ(edit(EvaCol::UseGage, "110"), "2,3");
  EXPECT_EQ(bill(1), "10|15000|10000|200|1000|26200");
  EXPECT_EQ(stored(), "110|10|15000|200|1000|26200|0");
  EXPECT_EQ(field("Trust", code, 4), "26200");
  EXPECT_EQ(field("PrntDay", code, 3), "03/05");
  EXPECT_EQ(edit(EvaCol::UseGage, "7", 2), "2,3") << "below the last row there is nothing";
}

TEST_F(ReadingEditing, MoneyTypedByHandMovesTheTotalByTheDifference) {
  edit(EvaCol::UseGage, "110");
  EXPECT_EQ(edit(EvaCol::Delay, "205"), "1,8");
  EXPECT_EQ(bill(1), "10|15000|10000|205|1000|26205") << "not rounded, nothing computed";
  EXPECT_EQ(edit(EvaCol::Manage, "400"), "1,10");
  EXPECT_EQ(edit(EvaCol::Pay, "5000"), "2,10");
  EXPECT_EQ(edit(EvaCol::Pay, "6000"), "2,10");
  EXPECT_EQ(stored(), "110|10|15000|205|400|19605|6000");
  EXPECT_EQ(field("Trust", code, 4), "19605");
  EXPECT_EQ(edit(EvaCol::Pay, ""), "2,10");
  EXPECT_EQ(stored(), "110|10|15000|205|400|25605|0") << "an emptied cell is 0";
}

TEST_F(ReadingEditing, ANoOrARefusedMonthLeavesTheRowAsLoaded) {
  const QString before = bill(1);
  pc.prompts.expect("선택된 자료를 수정하시겠습니까?", false);
  EXPECT_EQ(take(EvaCol::UseGage, "110"), "back");
  EXPECT_EQ(pc.prompts.seen.last(), "체적 관리자|선택된 자료를 수정하시겠습니까?");
  EXPECT_EQ(take(EvaCol::Pay, "0"), "back") << "nothing changed, nothing asked";
  show(HouseStyle::Individual, 2);
  pc.prompts.expect("연체료에 대한 수정은 현재달만 가능합니다");
  EXPECT_EQ(take(EvaCol::Delay, "5"), "back");
  EXPECT_EQ(cell(1, EvaCol::Delay), "0");
  show(HouseStyle::Individual, 3);
  EXPECT_EQ(bill(1), before);
}

TEST_F(ReadingEditing, AFailedStatementPutsTheRowBack) {
  const QString before = bill(1);
  sheet.readingDay = "3'4/5";
  pc.prompts.expect("선택된 자료를 수정하시겠습니까?");
  EXPECT_THROW(take(EvaCol::UseGage, "110"), jet::Error);
  EXPECT_EQ(bill(1) + cell(1, EvaCol::UseGage), before + '0');
  EXPECT_FALSE(sheet.grid.bold(1)) << "the row stands out no longer";
}

TEST_F(ReadingEditing, TheOpeningEntryComputesNothingAndItsAmountIsArrears) {
  show(HouseStyle::Individual, 0);
  EXPECT_EQ(edit(EvaCol::UseGage, "90"), "2,3");
  EXPECT_EQ(bill(1), "0|0|0|0|0|0");
  EXPECT_EQ(edit(EvaCol::Total, "4005"), "1,9");
  EXPECT_EQ(bill(1), "1|0|4005|0|0|4005") << "arrears, and a use of 1";
  EXPECT_EQ(rows("Select Mon, UseGage, UseMuch, Trust, Total From Evaporation Where ClientCode = 1 And Mon "
                 "<= 3 Order By Mon"),
            "0|90|1|4005|4005;1|90|1|4005|4005;2|90|1|4005|4005;3|0|0|4005|0");
}

TEST_F(ReadingEditing, CollectionDatesAreNormalised) {
  EXPECT_EQ(edit(EvaCol::TrustDay, "3-2"), "2,3");
  EXPECT_EQ(field("TrustDay", code, 3), "03/02");
  EXPECT_EQ(edit(EvaCol::TrustDay, "2026.02.28"), "2,3");
  EXPECT_EQ(cell(1, EvaCol::TrustDay), "02/28");
  for (const char* bad : {"02/30", "x", ""}) {
    pc.prompts.expect("선택된 자료를 수정하시겠습니까?");
    pc.prompts.expect("날짜입력이 잘못되었습니다!");
    EXPECT_EQ(take(EvaCol::TrustDay, bad), "back");
  }
  EXPECT_EQ(cell(1, EvaCol::TrustDay), "02/28");
  EXPECT_EQ(edit(EvaCol::Prnt, "1"), "1,11");
  EXPECT_EQ(field("Prnt", code, 3), "-1");
}

TEST_F(ReadingEditing, PaidLateIsTickedOnlyWhereNothingIsLeft) {
  const auto tick = [&](const char* to, bool refused) {
    if (refused) pc.prompts.expect("당월 최종미수금이 0원이며 납기후에 납부를 한 경우만 체크해 주세요.");
    take(EvaCol::PayDelayed, to);
    return cell(1, EvaCol::PayDelayed) + ' ' + field("paydelayed", code, 3);
  };
  EXPECT_EQ(tick("1", true), "0 0") << "nothing paid";
  sheet.setNumber(1, EvaCol::Pay, 5000);
  sheet.setNumber(1, EvaCol::Total, 10);
  EXPECT_EQ(tick("1", true), "0 0") << "not all is paid";
  sheet.setNumber(1, EvaCol::Total, 0);
  EXPECT_EQ(tick("1", false), "1 -1");
  sheet.setNumber(1, EvaCol::Total, 10);
  EXPECT_EQ(tick("0", false), "0 0") << "taken away whatever is left";
  sheet.setNumber(1, EvaCol::Total, 0);
  tick("1", false);
  sheet.setNumber(1, EvaCol::Pay, 0);
  EXPECT_EQ(tick("0", true), "0 -1") << "the screen says 0, the book keeps the tick";

  run("Update Evaporation Set paydelayed = False");
  show(HouseStyle::Individual, 0);
  sheet.setNumber(1, EvaCol::Pay, 5000);
  take(EvaCol::PayDelayed, "1");
  EXPECT_EQ(rows("Select Mon From Evaporation Where paydelayed And ClientCode = 1 Order By Mon"), "0;1;2");
}

TEST_F(ReadingEditing, TheReadingDayIsReadAsADayOfTheWorkYear) {
  const auto day = [&](const char* typed) {
    takeReadingDay(sheet, typed);
    return sheet.readingDay;
  };
  EXPECT_EQ(day("3/1"), "03/01");
  EXPECT_EQ(day("03/01 "), "03/01");
  EXPECT_EQ(day("99-99"), "99-99") << "five characters are never checked";
  for (const char* bad : {"2/29", "", "2026-03-01"}) {
    pc.prompts.expect("날짜 입력이 잘못되었습니다!");
    EXPECT_EQ(day(bad), "03/05");
  }
  session.WorkYear = "2024";
  EXPECT_EQ(day("2/29"), "02/29") << "a leap year";
}

}  // namespace
