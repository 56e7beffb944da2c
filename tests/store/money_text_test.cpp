#include "store/jet/error.h"
#include "store/rounding.h"
#include "store/text_width.h"

namespace {

TEST(Rounding, StepsOfTenWonByTheCompanysRule) {
  for (int rule : {1, 2, 3}) {
    EXPECT_EQ(roundToTen(0, rule), 0);
    EXPECT_EQ(roundToTen(1230, rule), 1230);
    EXPECT_EQ(roundToTen(0.9, rule), 0);
    EXPECT_EQ(roundToTen(-0.5, rule), 0);
  }
  EXPECT_EQ(roundToTen(1234, 1), 1230);
  EXPECT_EQ(roundToTen(1234, 2), 1240);
  EXPECT_EQ(roundToTen(1234, 3), 1230);
  EXPECT_EQ(roundToTen(1235, 3), 1240);
  EXPECT_EQ(roundToTen(1239, 1), 1230);
  EXPECT_EQ(roundToTen(1231, 2), 1240);
  EXPECT_EQ(roundToTen(1234.9, 1), 1230);
  EXPECT_EQ(roundToTen(1234.9, 3), 1230) << "the fraction never rounds up first";
  EXPECT_EQ(roundToTen(1230.9, 2), 1230);
  EXPECT_EQ(roundToTen(1234.9999999999999, 3), 1240) << "15 digits of the text make it 1235";
  EXPECT_EQ(roundToTen(98765432105.0, 3), 98765432110.0);
}

TEST(Rounding, KeptHabits) {
  EXPECT_EQ(roundToTen(-123, 1), -126);
  EXPECT_EQ(roundToTen(-123, 2), -116);
  EXPECT_EQ(roundToTen(-125, 3), -120);
  EXPECT_EQ(roundToTen(1234, 0), 0);
  EXPECT_EQ(roundToTen(1234, 4), 0);
  EXPECT_EQ(roundToTen(1230, 4), 1230) << "nothing to round, no rule asked";
  EXPECT_EQ(roundToTen(1234.7, std::nullopt), 1230) << "no company row: half up";
  EXPECT_EQ(roundToTen(1235, std::nullopt), 1240);
  EXPECT_EQ(roundToTen(1239.9999999999998, 1), 1240) << "read to 15 digits before the fraction is dropped";
  EXPECT_THROW(roundToTen(1e15, 1), jet::Error);
}

TEST(TextWidth, CutsByColumnsAndFillsTheHalfCharacter) {
  EXPECT_EQ(CutByWidth("가나", 3), "가 ");
  EXPECT_EQ(CutByWidth("가나", 4), "가나");
  EXPECT_EQ(CutByWidth("가나", 9), "가나");
  EXPECT_EQ(CutByWidth("가나", 1), " ");
  EXPECT_EQ(CutByWidth("a가", 2), "a ");
  EXPECT_EQ(CutByWidth("똠ab", 3), "똠a");
  EXPECT_EQ(CutByWidth("", 3), "");
  EXPECT_EQ(CutByWidth("가", 0), "");
  EXPECT_EQ(CutByWidth("가", -1), "");
  EXPECT_EQ(widthOf("가a나"), 5);
  EXPECT_EQ(CutByWidth("가金나", 5), "가金 ") << "what is no Hangul is looked up in the code page";
  EXPECT_EQ(CutByWidth("가鷄\u00e9a", 5), "가鷄?") << "as is what it does not hold";
  EXPECT_EQ(widthOf("金\u00e9"), 3);
}

TEST(TextWidth, NumbersAndMoney) {
  EXPECT_EQ(StripNumber("053-123-4567"), "0531234567");
  EXPECT_EQ(StripNumber("2026.11.24"), "20261124");
  EXPECT_EQ(StripNumber("12-가"), "");
  EXPECT_EQ(StripNumber("-."), "");
  EXPECT_EQ(moneyText(0), "0");
  EXPECT_EQ(moneyText(-1234567), "-1,234,567");
  EXPECT_EQ(moneyText(999), "999");
  EXPECT_EQ(moneyText(1234.5), "1,234.5");
  EXPECT_EQ(moneyText(1234.001), "1,234") << "no point without a digit behind it";
  EXPECT_EQ(moneyText(-0.004), "0");
  EXPECT_EQ(moneyText(0.1 + 0.2 - 0.3), "0");
  EXPECT_EQ(moneyText(1234567890123.0), "1,234,567,890,123");
}

}  // namespace
