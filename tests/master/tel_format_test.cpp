#include "master/customers/tel_format.h"

struct TelCase {
  const char* typed;
  const char* text;
  const char* local;
  friend void PrintTo(const TelCase& of, std::ostream* out) { *out << of.typed; }
};

class TelFormat : public ::testing::TestWithParam<TelCase> {};

TEST_P(TelFormat, splitsAreaCodeMiddleAndLastFour) {
  const TelNumber number = FormatTel(QString::fromUtf8(GetParam().typed));
  EXPECT_EQ(number.text, GetParam().text);
  EXPECT_EQ(number.localPart, GetParam().local);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, TelFormat,
    ::testing::Values(TelCase{"0531234567", "053-123-4567", "123-4567"},
                      TelCase{"01012345678", "010-1234-5678", "1234-5678"},
                      TelCase{"021234567", "02-123-4567", "123-4567"},  // nine digits of the capital: 2-3-4
                      TelCase{"0212345678", "02-1234-5678", "1234-5678"},  // ten: 2-4-4
                      TelCase{"053123456", "053-12-3456", "12-3456"},
                      TelCase{"1234567", "123-4567", "123-4567"}, TelCase{"123456", "12-3456", "12-3456"},
                      TelCase{"053-123-4567", "053-123-4567",
                              "123-4567"},  // formatting twice changes nothing
                      TelCase{"(053) 123.4567", "053-123-4567", "123-4567"},
                      TelCase{"05312345", "0531-2345", "0531-2345"},  // too short for an area code
                      TelCase{"02-123", "0-2123", "0-2123"},
                      TelCase{"12345", "12345", "12345"},  // five characters stay
                      TelCase{"내선 12번", "12", "12"}, TelCase{"", "", ""}));
