#include "giro/scan_line.h"

#include <gtest/gtest.h>

TEST(ScanLine, CheckDigits) {
  EXPECT_EQ(checkDigitOfCode("1234"), 4);  // 8 + 3 + 4 + 1 = 16
  EXPECT_EQ(checkDigitOfCode("5"), 9);     // 10 counts 1
  EXPECT_EQ(checkDigitOfCode("9999"), 4);  // 18 counts 9: 9 + 9 + 9 + 9 = 36
  EXPECT_EQ(checkDigitOfCode("0"), 0);
  EXPECT_EQ(checkDigitOfCode(""), 0);
  EXPECT_EQ(checkDigitOfTotal("15000"), 2);   // 0 + 0 + 0 + 35 + 3 = 38
  EXPECT_EQ(checkDigitOfTotal("123456"), 1);  // 42 + 15 + 4 + 21 + 6 + 1 = 89
  EXPECT_EQ(checkDigitOfTotal("0"), 0);
  EXPECT_EQ(checkDigitOfTotal(""), 0);
  EXPECT_EQ(checkDigitOfTotal("-120"), checkDigitOfTotal("120")) << "the sign counts nothing";
}

TEST(ScanLine, PiecesFillTheirFieldsWithBlanksInFront) {
  const auto blanks = [](int count) { return QString(count, u' '); };
  EXPECT_EQ(scanLine("1234567", "1234", "15000"),
            "<1234567+" + blanks(16) + "+12344+" + blanks(5) + "+150002<" + " <11<");
  EXPECT_EQ(scanLine("0000000", "5", "0"), "<0000000+" + blanks(19) + "+59+" + blanks(9) + "+00<" + " <11<");
}

TEST(ScanLine, APieceTooLongStandsWhole) {
  const QString code = "123456789012345678901", total = "12345678901";
  const QString line = scanLine("7", code, total);
  EXPECT_TRUE(line.startsWith("<7++" + code)) << line.toStdString();
  EXPECT_TRUE(line.contains("++" + total)) << "the customer's closing sign meets the total's opening one";
  EXPECT_EQ(line.size(), 3 + (code.size() + 3) + (total.size() + 3) + 5);
}
