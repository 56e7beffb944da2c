// Cells typed by hand, and what becomes of the row.
#include "billing/reading_edit.h"

#include "tests/billing/meter_desk.h"

using namespace Qt::StringLiterals;

namespace {

using tests::MeterDesk;

/** Two customers in March; the first has arrears of 10,000. */
struct EditDesk : MeterDesk {
  int code = customer("가람", 1500), other = customer("나라", 1000);
  EditDesk() {
    set(code, 2, "UseGage = 100, UsePay = 5000");
    set(code, 3, "Trust = 10000");
    show(HouseStyle::Individual, 3);
  }
  /** "row,col" of the next cell, or "back". */
  QString edit(int col, const char* typed, bool yes = true, int row = 1) {
    if (yes) pc.prompts.expect("선택된 자료를 수정하시겠습니까?");
    return take(col, typed, row);
  }
  QString take(int col, const char* typed, int row = 1) {
    const ReadingEdit edit = finishReadingCell(sheet, row, col, typed);
    if (edit.end == ReadingEdit::PutBack) return "back";
    return u"%1,%2"_s.arg(edit.next.row).arg(edit.next.col);
  }
  QString stored(int month = 3) {
    return rows(
        u"Select UseGage, UseMuch, UsePay, Delay, Manage, Total, Pay From Evaporation "
        u"Where ClientCode = %1 And Mon = %2"_s.arg(code)
            .arg(month));
  }
};

TEST(ReadingEdit, AReadingIsComputedStoredAndCarried) {
  EditDesk desk;
  EXPECT_EQ(desk.edit(EvaCol::UseGage, "110"), "2,3");
  EXPECT_EQ(desk.bill(1), "10|15000|10000|200|1000|26200");
  EXPECT_EQ(desk.stored(), "110|10|15000|200|1000|26200|0");
  EXPECT_EQ(desk.field("Trust", desk.code, 4), "26200");
  EXPECT_EQ(desk.field("PrntDay", desk.code, 3), "03/05");
  EXPECT_EQ(desk.edit(EvaCol::UseGage, "7", true, 2), "2,3") << "below the last row there is nothing";
}

TEST(ReadingEdit, MoneyTypedByHandMovesTheTotalByTheDifference) {
  EditDesk desk;
  desk.edit(EvaCol::UseGage, "110");
  EXPECT_EQ(desk.edit(EvaCol::Delay, "205"), "1,8");
  EXPECT_EQ(desk.bill(1), "10|15000|10000|205|1000|26205") << "not rounded, nothing computed";
  EXPECT_EQ(desk.edit(EvaCol::Manage, "400"), "1,10");
  EXPECT_EQ(desk.edit(EvaCol::Pay, "5000"), "2,10");
  EXPECT_EQ(desk.edit(EvaCol::Pay, "6000"), "2,10");
  EXPECT_EQ(desk.stored(), "110|10|15000|205|400|19605|6000");
  EXPECT_EQ(desk.field("Trust", desk.code, 4), "19605");
  EXPECT_EQ(desk.edit(EvaCol::Pay, ""), "2,10");
  EXPECT_EQ(desk.stored(), "110|10|15000|205|400|25605|0") << "an emptied cell is 0";
}

TEST(ReadingEdit, ANoOrARefusedMonthLeavesTheRowAsLoaded) {
  EditDesk desk;
  const QString before = desk.bill(1);
  desk.pc.prompts.expect("선택된 자료를 수정하시겠습니까?", false);
  EXPECT_EQ(desk.take(EvaCol::UseGage, "110"), "back");
  EXPECT_EQ(desk.pc.prompts.seen.last(), "체적 관리자|선택된 자료를 수정하시겠습니까?");
  EXPECT_EQ(desk.take(EvaCol::Pay, "0"), "back") << "nothing changed, nothing asked";
  desk.show(HouseStyle::Individual, 2);
  desk.pc.prompts.expect("연체료에 대한 수정은 현재달만 가능합니다");
  EXPECT_EQ(desk.take(EvaCol::Delay, "5"), "back");
  EXPECT_EQ(desk.sheet.grid.text(1, EvaCol::Delay), "0");
  desk.show(HouseStyle::Individual, 3);
  EXPECT_EQ(desk.bill(1), before);
}

TEST(ReadingEdit, AFailedStatementPutsTheRowBack) {
  EditDesk desk;
  const QString before = desk.bill(1);
  desk.sheet.readingDay = "3'4/5";
  desk.pc.prompts.expect("선택된 자료를 수정하시겠습니까?");
  EXPECT_THROW(desk.take(EvaCol::UseGage, "110"), jet::Error);
  EXPECT_EQ(desk.bill(1) + desk.sheet.grid.text(1, EvaCol::UseGage), before + '0');
  EXPECT_FALSE(desk.sheet.grid.bold(1)) << "the row stands out no longer";
}

TEST(ReadingEdit, TheOpeningEntryComputesNothingAndItsAmountIsArrears) {
  EditDesk desk;
  desk.show(HouseStyle::Individual, 0);
  EXPECT_EQ(desk.edit(EvaCol::UseGage, "90"), "2,3");
  EXPECT_EQ(desk.bill(1), "0|0|0|0|0|0");
  EXPECT_EQ(desk.edit(EvaCol::Total, "4005"), "1,9");
  EXPECT_EQ(desk.bill(1), "1|0|4005|0|0|4005") << "arrears, and a use of 1";
  EXPECT_EQ(desk.rows("Select Mon, UseGage, UseMuch, Trust, Total From Evaporation "
                      "Where ClientCode = 1 And Mon <= 3 Order By Mon"),
            "0|90|1|4005|4005;1|90|1|4005|4005;2|90|1|4005|4005;3|0|0|4005|0");
}

TEST(ReadingEdit, CollectionDatesAreNormalised) {
  EditDesk desk;
  EXPECT_EQ(desk.edit(EvaCol::TrustDay, "3-2"), "2,3");
  EXPECT_EQ(desk.field("TrustDay", desk.code, 3), "03/02");
  EXPECT_EQ(desk.edit(EvaCol::TrustDay, "2026.02.28"), "2,3");
  EXPECT_EQ(desk.sheet.grid.text(1, EvaCol::TrustDay), "02/28");
  for (const char* bad : {"02/30", "x", ""}) {
    desk.pc.prompts.expect("선택된 자료를 수정하시겠습니까?");
    desk.pc.prompts.expect("날짜입력이 잘못되었습니다!");
    EXPECT_EQ(desk.take(EvaCol::TrustDay, bad), "back");
  }
  EXPECT_EQ(desk.sheet.grid.text(1, EvaCol::TrustDay), "02/28");
  EXPECT_EQ(desk.edit(EvaCol::Prnt, "1"), "1,11");
  EXPECT_EQ(desk.field("Prnt", desk.code, 3), "-1");
}

TEST(ReadingEdit, PaidLateIsTickedOnlyWhereNothingIsLeft) {
  EditDesk desk;
  const auto tick = [&](const char* to, bool refused) {
    if (refused) desk.pc.prompts.expect("당월 최종미수금이 0원이며 납기후에 납부를 한 경우만 체크해 주세요.");
    desk.take(EvaCol::PayDelayed, to);
    return desk.sheet.grid.text(1, EvaCol::PayDelayed) + ' ' + desk.field("paydelayed", desk.code, 3);
  };
  EXPECT_EQ(tick("1", true), "0 0") << "nothing paid";
  desk.sheet.setNumber(1, EvaCol::Pay, 5000);
  desk.sheet.setNumber(1, EvaCol::Total, 10);
  EXPECT_EQ(tick("1", true), "0 0") << "not all is paid";
  desk.sheet.setNumber(1, EvaCol::Total, 0);
  EXPECT_EQ(tick("1", false), "1 -1");
  desk.sheet.setNumber(1, EvaCol::Total, 10);
  EXPECT_EQ(tick("0", false), "0 0") << "taken away whatever is left";
  desk.sheet.setNumber(1, EvaCol::Total, 0);
  tick("1", false);
  desk.sheet.setNumber(1, EvaCol::Pay, 0);
  EXPECT_EQ(tick("0", true), "0 -1") << "the screen says 0, the book keeps the tick";

  desk.run("Update Evaporation Set paydelayed = False");
  desk.show(HouseStyle::Individual, 0);
  desk.sheet.setNumber(1, EvaCol::Pay, 5000);
  desk.take(EvaCol::PayDelayed, "1");
  EXPECT_EQ(desk.rows("Select Mon From Evaporation Where paydelayed And ClientCode = 1 Order By Mon"),
            "0;1;2");
}

TEST(ReadingEdit, TheReadingDayIsReadAsADayOfTheWorkYear) {
  EditDesk desk;
  const auto day = [&](const char* typed) {
    takeReadingDay(desk.sheet, typed);
    return desk.sheet.readingDay;
  };
  EXPECT_EQ(day("3/1"), "03/01");
  EXPECT_EQ(day("03/01 "), "03/01");
  EXPECT_EQ(day("99-99"), "99-99") << "five characters are never checked";
  for (const char* bad : {"2/29", "", "2026-03-01"}) {
    desk.pc.prompts.expect("날짜 입력이 잘못되었습니다!");
    EXPECT_EQ(day(bad), "03/05");
  }
  desk.session.WorkYear = "2024";
  EXPECT_EQ(day("2/29"), "02/29") << "a leap year";
}

}  // namespace
