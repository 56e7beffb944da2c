// The law of the bill, every figure worked by hand.
#include "billing/reading_bill.h"

#include "billing/reading_save.h"
#include "store/year_file.h"
#include "tests/billing/meter_desk.h"

namespace {

/** One customer of the individual book at 1500 won, in March; a row is set up, then computed. */
struct ReadingBill : testing::Test, tests::MeterDesk {
  const int code = customer("산골식당", 1500);

  ReadingBill() { show(HouseStyle::Individual, 3); }
  void row(double before, double now, double arrears, double paid = 0) {
    sheet.setNumber(1, EvaCol::PrevUseGage, before);
    sheet.setNumber(1, EvaCol::UseGage, now);
    sheet.setNumber(1, EvaCol::Trust, arrears);
    sheet.setNumber(1, EvaCol::Pay, paid);
  }
  QString computed() {
    CalcReadingRow(sheet, 1);
    return bill(1);
  }
  QString computed(double before, double now, double arrears, double paid = 0) {
    row(before, now, arrears, paid);
    return computed();
  }
  QString late(double arrears) {
    computed(0, 1, arrears);
    return cell(1, EvaCol::Delay);
  }
};

TEST_F(ReadingBill, UseMoneyLateChargeFeeAndTotal) {
  EXPECT_EQ(computed(100.5, 112.2, 10000, 2000), "11.7|17550|10000|200|1000|26750")
      << "17550 + 10000 + 200 + 1000 - 2000";

  // No gas at all, but a reading: still a late charge and a fee.
  EXPECT_EQ(computed(100, 100, 10000), "0|0|10000|200|1000|11200");

  // 0.2 of the meter is 300 won, not 299.99.
  EXPECT_EQ(computed(10.1, 10.3, 0), "0.2|300|0|0|1000|1300");
}

TEST_F(ReadingBill, AMeterThatRunsBackwardGivesANegativeBill) {
  sheet.setNumber(1, EvaCol::VolumeUnit, 1001);
  EXPECT_EQ(computed(100, 93, 0), "-7|-7007|0|0|1000|-6014") << "-6007 less the digit 7: it has no sign";
}

TEST_F(ReadingBill, TheAmountKeepsItsFractionAndTheTotalIsRounded) {
  sheet.setNumber(1, EvaCol::VolumeUnit, 1333);
  const QStringList totals = {"2460", "2470", "2470"};
  for (int rule = 1; rule <= 3; ++rule) {
    payState(rule);
    EXPECT_EQ(computed(5, 6.1, 0), "1.1|1466.3|0|0|1000|" + totals[rule - 1]) << "2466.3 by rule " << rule;
  }
  payState(0);
  CalcReadingRow(sheet, 1);
  EXPECT_EQ(cell(1, EvaCol::Total), "0") << "a setting of nonsense gives no bill";

  // A late charge with a half goes to the even won: 100.5 counts 100, 101.5 counts 102.
  payState(1);
  row(0, 0, 0);
  for (int col : {EvaCol::UsePay, EvaCol::Manage}) sheet.setNumber(1, col, 0);
  sheet.grid.setText(1, EvaCol::Delay, "100.5");
  sheet.setNumber(1, EvaCol::Trust, 19);
  CalcRowTotal(sheet, 1);
  EXPECT_EQ(cell(1, EvaCol::Total), "110") << "119, not 120";
  sheet.grid.setText(1, EvaCol::Delay, "101.5");
  sheet.setNumber(1, EvaCol::Trust, 18);
  CalcRowTotal(sheet, 1);
  EXPECT_EQ(cell(1, EvaCol::Total), "120");
}

TEST_F(ReadingBill, ASinglePrecisionRateKeepsItsError) {
  basic("Update User Set Rate = 2.1, AptRate = 2.1, ManyRate = 2.1");
  ASSERT_TRUE(readRateBook(session));
  const QStringList charges = {"200", "210", "210"};
  for (int rule = 1; rule <= 3; ++rule) {
    payState(rule);
    for (const auto book : {HouseStyle::Individual, HouseStyle::MultiHousehold}) {
      sheet.book = book;
      EXPECT_EQ(late(10000), charges[rule - 1]) << "209.99999... by rule " << rule;
    }
    sheet.book = HouseStyle::Apartment;
    EXPECT_EQ(late(10000), "210") << "the apartments' rate is double";
  }
}

TEST_F(ReadingBill, EachBookHasItsRateAndFeeAndTheBuildingItsOwn) {
  sheet.book = HouseStyle::MultiHousehold;
  EXPECT_EQ(late(10000), "300");
  EXPECT_EQ(cell(1, EvaCol::Manage), "700");
  sheet.book = HouseStyle::Apartment;
  EXPECT_EQ(late(10000), "150");
  EXPECT_EQ(cell(1, EvaCol::Manage), "800");
  basic("Insert Into APT(Name, Dong, delaypay) Values('한빛', '101', 5)");
  basic("Update Client Set BDName = '한빛', Dong = '101'");
  EXPECT_EQ(late(10000), "500");
}

TEST_F(ReadingBill, CumulativeOrOneMonthOnly) {
  set(code, 2, "UsePay = 6000, paydelayed = False");
  EXPECT_EQ(late(10000), "200") << "on all arrears";
  session.DelayCalcFlag = "1";
  EXPECT_EQ(late(10000), "120") << "on last month's gas alone";
  EXPECT_EQ(late(0), "0") << "whatever last month's gas was";
  run("Update Evaporation Set UsePay = Null Where Mon = 2");
  EXPECT_EQ(late(10000), "0");
  run("Delete * From Evaporation Where Mon = 2");
  EXPECT_EQ(late(10000), "200") << "no such row: on the arrears";
}

TEST_F(ReadingBill, PaidLateChargesLastMonthsGasUnlessOneMonthOnly) {
  set(code, 2, "UsePay = 5000, paydelayed = True");
  EXPECT_EQ(late(0), "100");
  session.DelayCalcFlag = "1";
  EXPECT_EQ(late(0), "0") << "the tick has no effect there";

  session.DelayCalcFlag = "0";
  show(HouseStyle::Individual, 1);
  set(code, 0, "UsePay = 4000, paydelayed = True");
  EXPECT_EQ(late(0), "80") << "the month before January is the opening row";
}

TEST_F(ReadingBill, JanuaryLooksIntoLastYearsDecember) {
  show(HouseStyle::Individual, 1);
  session.DelayCalcFlag = "1";
  makeYearFile(session, "2025");
  const jet::Database last = session.wsMain.OpenDatabase(yearFile(session, "2025"));
  last.Execute("Insert Into Evaporation(ClientCode, Mon, UsePay) Values(1, 12, 7000)");
  EXPECT_EQ(late(10000), "140");
  EXPECT_EQ(late(0), "0");
  last.Execute("Update Evaporation Set UsePay = Null");
  EXPECT_EQ(late(10000), "0");
  last.Execute("Delete * From Evaporation");
  EXPECT_EQ(late(10000), "200") << "no December row: on the arrears";
}

TEST_F(ReadingBill, WithoutLastYearTheRestOfTheRowStaysAndIsSavedSo) {
  show(HouseStyle::Individual, 1);
  session.DelayCalcFlag = "1";
  row(10, 12, 10000);
  sheet.setNumber(1, EvaCol::Delay, 11);
  sheet.setNumber(1, EvaCol::Manage, 22);
  sheet.setNumber(1, EvaCol::Total, 33);
  EXPECT_EQ(computed(), "2|3000|10000|11|22|33");
  SaveReadingRow(sheet, 1);
  EXPECT_EQ(rows("Select UseGage, UseMuch, UsePay, Delay, Manage, Total From Evaporation Where Mon = 1"),
            "12|2|3000|11|22|33");
}

TEST_F(ReadingBill, AFailedLookUpIsToldAndStopsTheRow) {
  session.DelayCalcFlag = "1";
  row(10, 12, 10000);
  sheet.grid.setText(1, EvaCol::Code, "x");
  pc.prompts.expect("Select UsePay from Evaporation where ClientCode = x AND Mon = 2");
  EXPECT_EQ(computed(), "2|3000|10000|0|0|0");
}

TEST_F(ReadingBill, AnyCollectionDateMayBecomeTheReadingDay) {
  sheet.readingDay = "03/04";
  row(0, 1, 0);
  sheet.grid.setText(1, EvaCol::TrustDay, "02/28");
  pc.prompts.expect("수금일자를 수정 하시겠습니까?", false);
  CalcReadingRow(sheet, 1);
  EXPECT_EQ(cell(1, EvaCol::TrustDay), "02/28");
  pc.prompts.expect("수금일자를 수정 하시겠습니까?");
  CalcReadingRow(sheet, 1);
  EXPECT_EQ(cell(1, EvaCol::TrustDay), "03/04");
  sheet.grid.setText(1, EvaCol::TrustDay, " ");
  CalcReadingRow(sheet, 1);
  EXPECT_EQ(cell(1, EvaCol::TrustDay), " ") << "nothing to ask about";
}

}  // namespace
