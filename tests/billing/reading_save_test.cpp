// A saved row and what it carries into the next month.
#include "billing/reading_save.h"

#include "tests/billing/meter_desk.h"

namespace {

using tests::MeterDesk;

void total(MeterDesk& desk, double amount, double late, double sum) {
  desk.sheet.setNumber(1, EvaCol::UsePay, amount);
  desk.sheet.setNumber(1, EvaCol::Delay, late);
  desk.sheet.setNumber(1, EvaCol::Total, sum);
  SaveReadingRow(desk.sheet, 1);
}

/** One customer, shown in March. */
struct ReadingSaveInMarch : testing::Test {
  MeterDesk desk;
  const int code = desk.customer("산골식당", 1500);
  void SetUp() override { desk.show(HouseStyle::Individual, 3); }
};

TEST_F(ReadingSaveInMarch, TheWholeRowIsWrittenAndItsTotalGoesOneMonthOn) {
  desk.set(code, 4, "Total = 77, Trust = 5");
  for (int col = EvaCol::UseGage; col <= EvaCol::Pay; ++col) desk.sheet.setNumber(1, col, col * 10 + 0.5);
  desk.sheet.grid.setText(1, EvaCol::Prnt, "1");
  desk.sheet.grid.setText(1, EvaCol::PayDelayed, "1");
  desk.sheet.grid.setText(1, EvaCol::TrustDay, "03/02");
  desk.sheet.grid.setText(1, EvaCol::Manage, "");
  SaveReadingRow(desk.sheet, 1);
  EXPECT_EQ(desk.rows("Select UseGage, UseMuch, UsePay, Trust, Delay, Manage, Total, Pay, Prnt, paydelayed, "
                      "PrntDay, TrustDay From Evaporation Where Mon = 3"),
            "30.5|40.5|50.5|60.5|70.5|0|90.5|100.5|-1|-1|03/05|03/02");
  EXPECT_EQ(desk.rows("Select Mon, Trust, Total From Evaporation Where Mon > 3 And Mon < 6"),
            "4|90.5|77;5|0|0")
      << "the next month's arrears, nothing further";
}

TEST_F(ReadingSaveInMarch, CarryWithAndWithoutTheMonthsLateCharge) {
  total(desk, 10000, 300, 12300);
  EXPECT_EQ(desk.field("Trust", code, 4), "12300");
  desk.session.AfterDueMethod = 1;
  total(desk, 10000, 300, 12300);
  EXPECT_EQ(desk.field("Trust", code, 4), "12000");
  total(desk, 12304, 300, 12300);
  EXPECT_EQ(desk.field("Trust", code, 4), "12300") << "nothing but this month's gas, cut to ten won";
  total(desk, 10000, 300, 0);
  EXPECT_EQ(desk.field("Trust", code, 4), "0");
}

TEST(ReadingSave, DecemberCarriesNothing) {
  MeterDesk desk({2026, 12, 10});
  desk.customer("산골식당", 1500);
  desk.show(HouseStyle::Individual, 12);
  total(desk, 10000, 0, 11000);
  EXPECT_EQ(desk.rows("Select Mon, Trust, Total From Evaporation Where Total <> 0 Or Trust <> 0"),
            "12|0|11000");
}

TEST(ReadingSave, TheOpeningRowFillsTheMonthsBeforeThisOneAndCarriesIntoIt) {
  MeterDesk desk;
  desk.customer("산골식당", 1500);
  desk.customer("들꽃분식", 1500);
  desk.show(HouseStyle::Individual, 0);
  ASSERT_EQ(desk.sheet.grid.text(2, EvaCol::ClientName), "산골식당");
  desk.sheet.setNumber(2, EvaCol::UseGage, 123);
  desk.sheet.setNumber(2, EvaCol::Total, 5000);
  SaveReadingRow(desk.sheet, 2);
  EXPECT_EQ(desk.rows("Select ClientCode, Mon, UseGage, Total, Trust From Evaporation "
                      "Where UseGage <> 0 Or Trust <> 0 Order By Mon"),
            "1|0|123|5000|0;1|1|123|5000|0;1|2|123|5000|0;1|3|0|0|5000");

  MeterDesk january({2026, 1, 10});
  january.customer("산골식당", 1500);
  january.show(HouseStyle::Individual, 0);
  january.sheet.setNumber(1, EvaCol::Total, 900);
  SaveReadingRow(january.sheet, 1);
  EXPECT_EQ(
      january.rows("Select Mon, Total, Trust From Evaporation Where Total <> 0 Or Trust <> 0 Order By Mon"),
      "0|900|0;1|0|900")
      << "in January the opening row alone";
}

TEST_F(ReadingSaveInMarch, ARefusedStatementWritesNeither) {
  desk.sheet.setNumber(1, EvaCol::Total, 900);
  desk.sheet.readingDay = "3'4 5";
  EXPECT_THROW(SaveReadingRow(desk.sheet, 1), jet::Error);
  EXPECT_EQ(desk.field("Total", code, 3) + desk.field("Trust", code, 4), "00");
}

}  // namespace
