// A saved row and what it carries into the next month.
#include "billing/reading_save.h"

#include "tests/billing/meter_desk.h"

namespace {

/** One customer, shown in March. */
struct ReadingSave : testing::Test, tests::MeterDesk {
  const int code = customer("산골식당", 1500);

  ReadingSave() { show(HouseStyle::Individual, 3); }
  void total(double amount, double late, double sum) {
    sheet.setNumber(1, EvaCol::UsePay, amount);
    sheet.setNumber(1, EvaCol::Delay, late);
    sheet.setNumber(1, EvaCol::Total, sum);
    SaveReadingRow(sheet, 1);
  }
};

TEST_F(ReadingSave, TheWholeRowIsWrittenAndItsTotalGoesOneMonthOn) {
  set(code, 4, "Total = 77, Trust = 5");
  for (int col = EvaCol::UseGage; col <= EvaCol::Pay; ++col) sheet.setNumber(1, col, col * 10 + 0.5);
  sheet.grid.setText(1, EvaCol::Prnt, "1");
  sheet.grid.setText(1, EvaCol::PayDelayed, "1");
  sheet.grid.setText(1, EvaCol::TrustDay, "03/02");
  sheet.grid.setText(1, EvaCol::Manage, "");
  SaveReadingRow(sheet, 1);
  EXPECT_EQ(rows("Select UseGage, UseMuch, UsePay, Trust, Delay, Manage, Total, Pay, Prnt, paydelayed, "
                 "PrntDay, TrustDay From Evaporation Where Mon = 3"),
            "30.5|40.5|50.5|60.5|70.5|0|90.5|100.5|-1|-1|03/05|03/02");
  EXPECT_EQ(rows("Select Mon, Trust, Total From Evaporation Where Mon > 3 And Mon < 6"), "4|90.5|77;5|0|0")
      << "the next month's arrears, nothing further";
}

TEST_F(ReadingSave, CarryWithAndWithoutTheMonthsLateCharge) {
  total(10000, 300, 12300);
  EXPECT_EQ(field("Trust", code, 4), "12300");
  session.AfterDueMethod = 1;
  total(10000, 300, 12300);
  EXPECT_EQ(field("Trust", code, 4), "12000");
  total(12304, 300, 12300);
  EXPECT_EQ(field("Trust", code, 4), "12300") << "nothing but this month's gas, cut to ten won";
  total(10000, 300, 0);
  EXPECT_EQ(field("Trust", code, 4), "0");
}

TEST_F(ReadingSave, DecemberCarriesNothing) {
  show(HouseStyle::Individual, 12);
  total(10000, 0, 11000);
  EXPECT_EQ(rows("Select Mon, Trust, Total From Evaporation Where Total <> 0 Or Trust <> 0"), "12|0|11000");
}

TEST_F(ReadingSave, TheOpeningRowFillsTheMonthsBeforeThisOneAndCarriesIntoIt) {
  customer("들꽃분식", 1500);
  show(HouseStyle::Individual, 0);
  ASSERT_EQ(sheet.grid.text(2, EvaCol::ClientName), "산골식당");
  sheet.setNumber(2, EvaCol::UseGage, 123);
  sheet.setNumber(2, EvaCol::Total, 5000);
  SaveReadingRow(sheet, 2);
  EXPECT_EQ(rows("Select ClientCode, Mon, UseGage, Total, Trust From Evaporation Where UseGage <> 0 Or Trust "
                 "<> 0 Order By Mon"),
            "1|0|123|5000|0;1|1|123|5000|0;1|2|123|5000|0;1|3|0|0|5000");

  tests::MeterDesk january({2026, 1, 10});
  january.customer("산골식당", 1500);
  january.show(HouseStyle::Individual, 0);
  january.sheet.setNumber(1, EvaCol::Total, 900);
  SaveReadingRow(january.sheet, 1);
  EXPECT_EQ(
      january.rows("Select Mon, Total, Trust From Evaporation Where Total <> 0 Or Trust <> 0 Order By Mon"),
      "0|900|0;1|0|900")
      << "in January the opening row alone";
}

TEST_F(ReadingSave, ARefusedStatementWritesNeither) {
  sheet.setNumber(1, EvaCol::Total, 900);
  sheet.readingDay = "3'4 5";
  EXPECT_THROW(SaveReadingRow(sheet, 1), jet::Error);
  EXPECT_EQ(field("Total", code, 3) + field("Trust", code, 4), "00");
}

}  // namespace
