// The law of the bill, every figure worked by hand.
#include "billing/reading_bill.h"

#include "billing/reading_save.h"
#include "store/year_file.h"
#include "tests/billing/meter_desk.h"

namespace {

using tests::MeterDesk;

/** One customer of the individual book at 1500 won, in March; a row is set up, then computed. */
struct BillDesk : MeterDesk {
  int code;
  explicit BillDesk(const QDate& today = {2026, 3, 5}) : MeterDesk(today), code(customer("산골식당", 1500)) {
    show(HouseStyle::Individual, today.month());
  }
  void row(double before, double now, double arrears, double paid = 0) {
    sheet.setNumber(1, EvaCol::PrevUseGage, before);
    sheet.setNumber(1, EvaCol::UseGage, now);
    sheet.setNumber(1, EvaCol::Trust, arrears);
    sheet.setNumber(1, EvaCol::Pay, paid);
  }
  QString late(double arrears) {
    row(0, 1, arrears);
    CalcReadingRow(sheet, 1);
    return sheet.grid.text(1, EvaCol::Delay);
  }
};

TEST(ReadingBill, UseMoneyLateChargeFeeAndTotal) {
  BillDesk desk;
  desk.row(100.5, 112.2, 10000, 2000);
  CalcReadingRow(desk.sheet, 1);
  EXPECT_EQ(desk.bill(1), "11.7|17550|10000|200|1000|26750") << "17550 + 10000 + 200 + 1000 - 2000";

  // No gas at all, but a reading: still a late charge and a fee.
  desk.row(100, 100, 10000);
  CalcReadingRow(desk.sheet, 1);
  EXPECT_EQ(desk.bill(1), "0|0|10000|200|1000|11200");

  // 0.2 of the meter is 300 won, not 299.99.
  desk.row(10.1, 10.3, 0);
  CalcReadingRow(desk.sheet, 1);
  EXPECT_EQ(desk.bill(1), "0.2|300|0|0|1000|1300");
}

TEST(ReadingBill, AMeterThatRunsBackwardGivesANegativeBill) {
  BillDesk desk;
  desk.sheet.setNumber(1, EvaCol::VolumeUnit, 1001);
  desk.row(100, 93, 0);
  CalcReadingRow(desk.sheet, 1);
  EXPECT_EQ(desk.bill(1), "-7|-7007|0|0|1000|-6014") << "-6007 less the digit 7: it has no sign";
}

TEST(ReadingBill, TheAmountKeepsItsFractionAndTheTotalIsRounded) {
  BillDesk desk;
  desk.sheet.setNumber(1, EvaCol::VolumeUnit, 1333);
  const QStringList totals = {"2460", "2470", "2470"};
  for (int rule = 1; rule <= 3; ++rule) {
    desk.payState(rule);
    desk.row(5, 6.1, 0);
    CalcReadingRow(desk.sheet, 1);
    EXPECT_EQ(desk.bill(1), "1.1|1466.3|0|0|1000|" + totals[rule - 1]) << "2466.3 by rule " << rule;
  }
  desk.payState(0);
  CalcReadingRow(desk.sheet, 1);
  EXPECT_EQ(desk.sheet.grid.text(1, EvaCol::Total), "0") << "a setting of nonsense gives no bill";

  // A late charge with a half goes to the even won: 100.5 counts 100, 101.5 counts 102.
  desk.payState(1);
  desk.row(0, 0, 0);
  for (int col : {EvaCol::UsePay, EvaCol::Manage}) desk.sheet.setNumber(1, col, 0);
  desk.sheet.grid.setText(1, EvaCol::Delay, "100.5");
  desk.sheet.setNumber(1, EvaCol::Trust, 19);
  CalcRowTotal(desk.sheet, 1);
  EXPECT_EQ(desk.sheet.grid.text(1, EvaCol::Total), "110") << "119, not 120";
  desk.sheet.grid.setText(1, EvaCol::Delay, "101.5");
  desk.sheet.setNumber(1, EvaCol::Trust, 18);
  CalcRowTotal(desk.sheet, 1);
  EXPECT_EQ(desk.sheet.grid.text(1, EvaCol::Total), "120");
}

TEST(ReadingBill, ASinglePrecisionRateKeepsItsError) {
  BillDesk desk;
  desk.basic("Update User Set Rate = 2.1, AptRate = 2.1, ManyRate = 2.1");
  ASSERT_TRUE(readRateBook(desk.session));
  const QStringList late = {"200", "210", "210"};
  for (int rule = 1; rule <= 3; ++rule) {
    desk.payState(rule);
    for (const auto book : {HouseStyle::Individual, HouseStyle::MultiHousehold}) {
      desk.sheet.book = book;
      EXPECT_EQ(desk.late(10000), late[rule - 1]) << "209.99999... by rule " << rule;
    }
    desk.sheet.book = HouseStyle::Apartment;
    EXPECT_EQ(desk.late(10000), "210") << "the apartments' rate is double";
  }
}

TEST(ReadingBill, EachBookHasItsRateAndFeeAndTheBuildingItsOwn) {
  BillDesk desk;
  desk.sheet.book = HouseStyle::MultiHousehold;
  EXPECT_EQ(desk.late(10000) + ' ' + desk.sheet.grid.text(1, EvaCol::Manage), "300 700");
  desk.sheet.book = HouseStyle::Apartment;
  EXPECT_EQ(desk.late(10000) + ' ' + desk.sheet.grid.text(1, EvaCol::Manage), "150 800");
  desk.basic("Insert Into APT(Name, Dong, delaypay) Values('한빛', '101', 5)");
  desk.basic("Update Client Set BDName = '한빛', Dong = '101'");
  EXPECT_EQ(desk.late(10000), "500");
}

TEST(ReadingBill, CumulativeOrOneMonthOnly) {
  BillDesk desk;
  desk.set(desk.code, 2, "UsePay = 6000, paydelayed = False");
  EXPECT_EQ(desk.late(10000), "200") << "on all arrears";
  desk.session.DelayCalcFlag = "1";
  EXPECT_EQ(desk.late(10000), "120") << "on last month's gas alone";
  EXPECT_EQ(desk.late(0), "0") << "whatever last month's gas was";
  desk.run("Update Evaporation Set UsePay = Null Where Mon = 2");
  EXPECT_EQ(desk.late(10000), "0");
  desk.run("Delete * From Evaporation Where Mon = 2");
  EXPECT_EQ(desk.late(10000), "200") << "no such row: on the arrears";
}

TEST(ReadingBill, PaidLateChargesLastMonthsGasUnlessOneMonthOnly) {
  BillDesk desk;
  desk.set(desk.code, 2, "UsePay = 5000, paydelayed = True");
  EXPECT_EQ(desk.late(0), "100");
  desk.session.DelayCalcFlag = "1";
  EXPECT_EQ(desk.late(0), "0") << "the tick has no effect there";

  BillDesk january({2026, 1, 20});
  january.set(january.code, 0, "UsePay = 4000, paydelayed = True");
  EXPECT_EQ(january.late(0), "80") << "the month before January is the opening row";
}

TEST(ReadingBill, JanuaryLooksIntoLastYearsDecember) {
  BillDesk desk({2026, 1, 20});
  desk.session.DelayCalcFlag = "1";
  makeYearFile(desk.session, "2025");
  {
    const jet::Database last = desk.session.wsMain.OpenDatabase(yearFile(desk.session, "2025"));
    last.Execute("Insert Into Evaporation(ClientCode, Mon, UsePay) Values(1, 12, 7000)");
  }
  EXPECT_EQ(desk.late(10000), "140");
  EXPECT_EQ(desk.late(0), "0");
  const jet::Database last = desk.session.wsMain.OpenDatabase(yearFile(desk.session, "2025"));
  last.Execute("Update Evaporation Set UsePay = Null");
  EXPECT_EQ(desk.late(10000), "0");
  last.Execute("Delete * From Evaporation");
  EXPECT_EQ(desk.late(10000), "200") << "no December row: on the arrears";
}

TEST(ReadingBill, WithoutLastYearTheRestOfTheRowStaysAndIsSavedSo) {
  BillDesk desk({2026, 1, 20});
  desk.session.DelayCalcFlag = "1";
  desk.row(10, 12, 10000);
  desk.sheet.setNumber(1, EvaCol::Delay, 11);
  desk.sheet.setNumber(1, EvaCol::Manage, 22);
  desk.sheet.setNumber(1, EvaCol::Total, 33);
  CalcReadingRow(desk.sheet, 1);
  EXPECT_EQ(desk.bill(1), "2|3000|10000|11|22|33");
  SaveReadingRow(desk.sheet, 1);
  EXPECT_EQ(desk.rows("Select UseGage, UseMuch, UsePay, Delay, Manage, Total From Evaporation Where Mon = 1"),
            "12|2|3000|11|22|33");
}

TEST(ReadingBill, AFailedLookUpIsToldAndStopsTheRow) {
  BillDesk desk;
  desk.session.DelayCalcFlag = "1";
  desk.row(10, 12, 10000);
  desk.sheet.grid.setText(1, EvaCol::Code, "x");
  desk.pc.prompts.expect("Select UsePay from Evaporation where ClientCode = x AND Mon = 2");
  CalcReadingRow(desk.sheet, 1);
  EXPECT_EQ(desk.bill(1), "2|3000|10000|0|0|0");
}

TEST(ReadingBill, AnyCollectionDateMayBecomeTheReadingDay) {
  BillDesk desk;
  desk.sheet.readingDay = "03/04";
  desk.row(0, 1, 0);
  desk.sheet.grid.setText(1, EvaCol::TrustDay, "02/28");
  desk.pc.prompts.expect("수금일자를 수정 하시겠습니까?", false);
  CalcReadingRow(desk.sheet, 1);
  EXPECT_EQ(desk.sheet.grid.text(1, EvaCol::TrustDay), "02/28");
  desk.pc.prompts.expect("수금일자를 수정 하시겠습니까?");
  CalcReadingRow(desk.sheet, 1);
  EXPECT_EQ(desk.sheet.grid.text(1, EvaCol::TrustDay), "03/04");
  desk.sheet.grid.setText(1, EvaCol::TrustDay, " ");
  CalcReadingRow(desk.sheet, 1);
  EXPECT_EQ(desk.sheet.grid.text(1, EvaCol::TrustDay), " ") << "nothing to ask about";
}

}  // namespace
