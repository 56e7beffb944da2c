// Supply and tax of an amount, held against fractions worked out another way.
#include "documents/vat_split.h"

#include <gtest/gtest.h>

#include <random>

namespace {

TEST(VatSplit, HandWorkedAmountsTiesSignsAndZero) {
  struct Case {
    qint64 amount;
    Vat vat;
    VatSplit split;
  };
  for (const Case& each :
       {Case{55, Vat::Included, {50, 5, 55}},
        {0, Vat::Included, {0, 0, 0}},
        {1, Vat::Included, {1, 0, 1}},  // 0.909
        {5, Vat::Included, {5, 0, 5}},  // 4.545
        {6, Vat::Included, {5, 1, 6}},  // 5.4545
        {10'000, Vat::Included, {9'091, 909, 10'000}},
        {33'000, Vat::Included, {30'000, 3'000, 33'000}},
        {-55, Vat::Included, {-50, -5, -55}},
        {-10'000, Vat::Included, {-9'091, -909, -10'000}},
        {999'999'999'999, Vat::Included, {909'090'909'090, 90'909'090'909, 999'999'999'999}},
        {5, Vat::OnTop, {5, 0, 5}},     // 0.5 goes to 0
        {15, Vat::OnTop, {15, 2, 17}},  // 1.5 goes to 2
        {25, Vat::OnTop, {25, 2, 27}},  // 2.5 goes to 2
        {635, Vat::OnTop, {635, 64, 699}},
        {-5, Vat::OnTop, {-5, 0, -5}},
        {-15, Vat::OnTop, {-15, -2, -17}},
        {-25, Vat::OnTop, {-25, -2, -27}},
        {14, Vat::OnTop, {14, 1, 15}},
        {0, Vat::OnTop, {0, 0, 0}},
        {12'345, Vat::None, {12'345, 0, 12'345}},
        {-7, Vat::None, {-7, 0, -7}}})
    EXPECT_EQ(splitAmount(each.amount, each.vat), each.split)
        << each.amount << ": " << splitAmount(each.amount, each.vat).supply << " + "
        << splitAmount(each.amount, each.vat).tax;
}

/** The nearest supply is the one whose eleven tenths lie within half a unit: searched, not computed. */
TEST(VatSplit, AgreesWithASearchForTheNearestWon) {
  std::mt19937_64 random(20260331);
  for (int turn = 0; turn < 20'000; ++turn) {
    const qint64 span = turn < 5'000 ? 400 : 1'000'000'000'000;
    const qint64 amount = qint64(random() % quint64(2 * span)) - span;
    const VatSplit in = splitAmount(amount, Vat::Included), on = splitAmount(amount, Vat::OnTop);
    ASSERT_EQ(in.supply + in.tax, amount);
    ASSERT_LT(qAbs(22 * in.supply - 20 * amount), 12) << amount;  // |supply - amount / 1.1| < 1/2
    ASSERT_EQ(on.supply, amount);
    ASSERT_EQ(on.total, amount + on.tax);
    const qint64 off = qAbs(10 * on.tax - amount);
    ASSERT_LE(off, 5) << amount;
    ASSERT_TRUE(off < 5 || on.tax % 2 == 0) << amount;
  }
}

TEST(VatSplit, CodesCaptionsAndWholeWon) {
  EXPECT_EQ(vatCaptions(), (QStringList{"계산안함", "단가/1.1", "단가*0.1"}));
  EXPECT_EQ(vatOf(0), Vat::None);
  EXPECT_EQ(vatOf(1), Vat::Included);
  EXPECT_EQ(vatOf(2), Vat::OnTop);
  EXPECT_EQ(vatOf(9), Vat::None);
  EXPECT_EQ(wholeWon(2.5), 2);
  EXPECT_EQ(wholeWon(3.5), 4);
  EXPECT_EQ(wholeWon(-2.5), -2);
  EXPECT_EQ(wonOrBlank(0), "");
  EXPECT_EQ(wonOrBlank(-1234567), "-1,234,567");
}

}  // namespace
