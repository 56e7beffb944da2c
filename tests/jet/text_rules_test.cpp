#include "store/jet/text_rules.h"
#include "store/jet/like_pattern.h"

#include <gmock/gmock.h>

#include <QDateTime>
#include <QFile>

#include "store/jet/error_texts.h"
#include "store/jet/format_rules.h"
#include "store/jet/value.h"
#include "tests/answers.h"

namespace {

using tests::failureOf;

TEST(TextRules, ValTakesWhatNumberAText) {
  EXPECT_EQ(jet::val(u"12kg"), 12);
  EXPECT_EQ(jet::val(u" 1 6 15 St"), 1615);
  EXPECT_EQ(jet::val(u"-3.5e2x"), -350);
  EXPECT_EQ(jet::val(u"1,234"), 1);
  EXPECT_EQ(jet::val(u".5"), 0.5);
  EXPECT_EQ(jet::val(u"1d2"), 100);
  EXPECT_EQ(jet::val(u"&H1F"), 31);
  EXPECT_EQ(jet::val(u"&HFFFF"), -1);
  for (const QString& none : QStringList{"", "kg", "-", ".", "가1"})
    EXPECT_EQ(jet::val(none), 0) << none.toStdString();
}

TEST(TextRules, ANumberIsTheWholeTextOrNothing) {
  EXPECT_EQ(jet::numberOf(u" 1,234.5 "), 1234.5);
  EXPECT_EQ(jet::numberOf(u"(12)"), -12);
  EXPECT_EQ(jet::numberOf(u"12-"), -12);
  EXPECT_EQ(jet::numberOf(u"-₩ 5"), -5);
  EXPECT_EQ(jet::numberOf(u"1e3"), 1000);
  EXPECT_EQ(jet::numberOf(u"&hff"), 255);
  for (const QString& none : QStringList{"", " ", "12호", "1-2", "-", ".", "--1", "1 2", "&H", "101-2"})
    EXPECT_FALSE(jet::numberOf(none)) << none.toStdString();
}

TEST(TextRules, ADoubleShowsFifteenDigits) {
  EXPECT_EQ(jet::textOf(0.1 + 0.2), "0.3");
  EXPECT_EQ(jet::textOf(1234.0), "1234");
  EXPECT_EQ(jet::textOf(999999999999999.0), "999999999999999");
  EXPECT_EQ(jet::textOf(1e15), "1E+15");
  EXPECT_EQ(jet::textOf(0.0001), "0.0001");
  EXPECT_EQ(jet::textOf(-0.0), "0");
  EXPECT_EQ(jet::textOf(-2.0 / 3), "-0.666666666666667");
}

TEST(TextRules, QuickWaysGiveWhatTheFullReadingGives) {
  quint64 dice = 20020101;
  for (int turn = 0; turn < 20000; ++turn) {
    dice = dice * 6364136223846793005ull + 1442695040888963407ull;
    const QString digits = QString::number(dice >> (4 + turn % 56));
    const qsizetype point = qsizetype(dice % 7);
    const QString text = (turn % 3 ? "" : "-") +
                         (point < digits.size() ? digits.left(digits.size() - point) : "0") +
                         (turn % 2 ? "." + digits.right(point) : "");
    ASSERT_EQ(jet::val(text), text.toDouble()) << text.toStdString();
    const double number = text.toDouble() * (turn % 5 == 0 ? 1e-9 : 1) / (turn % 4 == 0 ? 3 : 1);
    if (number != 0) {
      ASSERT_EQ(jet::textOf(number), QString::number(number, 'G', 15)) << text.toStdString();
    }
  }
}

TEST(TextRules, TiesGoToTheEvenNumber) {
  EXPECT_EQ(jet::Value(0.5).toLong(), 0);
  EXPECT_EQ(jet::Value(1.5).toLong(), 2);
  EXPECT_EQ(jet::Value(2.5).toLong(), 2);
  EXPECT_EQ(jet::Value(-2.5).toLong(), -2);
  EXPECT_EQ(jet::Value("12.5kg").toLong(), 12);
  EXPECT_EQ(jet::roundHalfEven(2.345, 2), 2.34);
  EXPECT_EQ(jet::roundHalfEven(2.675, 2), 2.68);
  EXPECT_EQ(jet::Value(-0x1p63).toLong(), std::numeric_limits<qint64>::min());
  EXPECT_EQ(jet::Value(0x1.fffffffffffffp62).toLong(), 9223372036854774784);
  for (const double beyond : {0x1p63, -0x1.0000000000001p63})
    EXPECT_EQ(failureOf([&] { (void)jet::Value(beyond).toLong(); }), 6);
}

TEST(TextRules, TextsCompareWithoutCaseAndTrailingBlanks) {
  EXPECT_EQ(jet::compareText(u"Kim  ", u"kim"), 0);
  EXPECT_EQ(jet::compareText(u"ÀÉ", u"àé"), 0);
  EXPECT_EQ(jet::compareText(u"Ａ동", u"ａ동 "), 0);
  EXPECT_NE(jet::compareText(u" kim", u"kim"), 0);
  EXPECT_LT(jet::compareText(u"가", u"나"), 0);
  EXPECT_LT(jet::compareText(u"", u"가"), 0);
  EXPECT_LT(jet::compareText(u"가", u"가나"), 0);
  EXPECT_LT(jet::compareText(u"2024-01-31", u"2024-02-01"), 0);
  EXPECT_GT(jet::compareText(u"Z", u"a"), 0);
}

TEST(TextRules, BothComparisonsGiveOneOrder) {
  const QStringList texts{"",   " ",    "a",    "A ",         "a\t",    "홍길동",
                          "홍", "가나", "가다", "\U0001F600", "\uFF21", "é"};
  for (const QString& a : texts) {
    for (const QString& b : texts)
      EXPECT_EQ(jet::compareText(a, b), jet::compareUtf8(a.toStdString(), b.toStdString()))
          << a.toStdString() << '|' << b.toStdString();
  }
  // Bytes that are no UTF-8 neither stop nor equal anything else.
  EXPECT_NE(jet::compareUtf8("\xEA\xB0", "가"), 0);
}

TEST(TextRules, LikeKnowsFourMarksAndBrackets) {
  EXPECT_TRUE(jet::like(u"2024-05-00", u"*-00"));
  EXPECT_TRUE(jet::like(u"홍길동", u"홍*동"));
  EXPECT_TRUE(jet::like(u"ABC", u"a?c"));
  EXPECT_TRUE(jet::like(u"a1", u"a#"));
  EXPECT_FALSE(jet::like(u"ab", u"a#"));
  EXPECT_TRUE(jet::like(u"b", u"[a-c]"));
  EXPECT_TRUE(jet::like(u"B", u"[a-c]"));
  EXPECT_FALSE(jet::like(u"b", u"[!a-c]"));
  EXPECT_TRUE(jet::like(u"a*b", u"a[*]b"));
  EXPECT_FALSE(jet::like(u"axb", u"a[*]b"));
  EXPECT_TRUE(jet::like(u"100%_", u"100%_"));
  EXPECT_FALSE(jet::like(u"1000", u"100%"));
  EXPECT_TRUE(jet::like(u"", u"*"));
  EXPECT_TRUE(jet::like(u"", u"[]"));
  EXPECT_FALSE(jet::like(u"abc ", u"abc"));
  EXPECT_TRUE(jet::like(u"aXbXc", u"*x*c"));
  EXPECT_EQ(failureOf([] { (void)jet::like(u"a", u"[a"); }), 93);
}

TEST(TextRules, AReadyPatternAnswersAsTheRule) {
  const QStringList texts{"",    "4567",     "053-123-4567", "4567-1",     "44567",
                          "456", "한빛식당", "한빛",         "빛",         "kim 4567",
                          "KIM", "4567 ",    "\u212Aim",     "456\u20E37", "4 5 6 7"};
  const QStringList patterns{"*4567*", "4567*", "*4567", "4567",  "*",     "**",  "",       "*빛*",
                             "한빛*",  "*kim*", "K*",    "45?7*", "4#6*7", "*-*", "*[4]567"};
  for (const QString& pattern : patterns) {
    const jet::LikePattern ready(pattern);
    for (const QString& text : texts)
      EXPECT_EQ(ready.matches(text.toStdString()), jet::like(text, pattern))
          << text.toStdString() << '|' << pattern.toStdString();
  }
  EXPECT_EQ(failureOf([] { (void)jet::LikePattern("[a").matches("a"); }), 93);
}

TEST(TextRules, PartsOfATextCountCharacters) {
  EXPECT_EQ(jet::leftOf("홍길동", 2), "홍길");
  EXPECT_EQ(jet::rightOf("홍길동", 9), "홍길동");
  EXPECT_EQ(jet::midOf("홍길동", 2), "길동");
  EXPECT_EQ(jet::midOf("홍길동", 2, 1), "길");
  EXPECT_EQ(jet::midOf("홍길동", 4), "");
  EXPECT_EQ(failureOf([] { (void)jet::midOf("a", 0); }), 5);
  EXPECT_EQ(failureOf([] { (void)jet::leftOf("a", -1); }), 5);
}

TEST(ErrorTexts, EachNumberHasItsWords) {
  QFile file(HAEON_TEST_DATA "/jet/errors.txt");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  int count = 0;
  for (; !file.atEnd(); ++count) {
    const QString line = QString::fromUtf8(file.readLine()).remove(u'\n');
    const int number = line.section(u'\t', 0, 0).toInt();
    EXPECT_EQ(line.toStdString(),
              QStringList({QString::number(number), jet::isStoreFailure(number) ? "store" : "",
                           jet::errorOf(number, "x").description(), jet::errorOf(number).description()})
                  .join(u'\t')
                  .toStdString());
  }
  EXPECT_GT(count, 80);
}

TEST(FormatRules, Numbers) {
  const struct {
    double number;
    const char16_t *picture, *text;
  } cases[] = {{1234567, u"#,###,###", u"1,234,567"},
               {12345678901.0, u"#,###", u"12,345,678,901"},
               {0, u"#,###", u""},
               {0, u"#,##0", u"0"},
               {-1234, u"#,###", u"-1,234"},
               {1234.5, u"###,###,###.##", u"1,234.5"},
               {5, u"#.##", u"5."},
               {7, u"0000", u"0007"},
               {7, u"000,000", u"000,007"},
               {2.5, u"0", u"3"},
               {9.995, u"0.00", u"10.00"},
               {0.05, u"0.0", u"0.1"},
               {0.004, u"0.00", u"0.00"},
               {0.256, u"0.0%", u"25.6%"},
               {20261124, u"0000-00-00", u"2026-11-24"},
               {1234567, u"#,##0,", u"1,235"},
               {-5, u"0;(0);\"없음\"", u"(5)"},
               {0, u"0;(0);\"없음\"", u"없음"},
               {3, u"0\\원", u"3원"}};
  for (const auto& [number, picture, text] : cases)
    EXPECT_EQ(jet::formatNumber(number, picture), QString::fromUtf16(text)) << number;
}

TEST(FormatRules, Dates) {
  const QDateTime moment(QDate(2026, 3, 7), QTime(15, 4, 9));
  EXPECT_EQ(jet::formatDate(moment, u"YYYY/MM/DD"), "2026-03-07");
  EXPECT_EQ(jet::formatDate(moment, u"yy.m.d"), "26.3.7");
  EXPECT_EQ(jet::formatDate(moment, u"YYMMDD_HHMMSS"), "260307_150409");
  EXPECT_EQ(jet::formatDate(moment, u"AM/PM h:nn"), "오후 3:04");
  EXPECT_EQ(jet::formatDate(moment, u"ddddd dddd"), "2026-03-07 토요일");
  EXPECT_EQ(jet::formatDate(moment, u"yyyy\"년\""), "2026년");
}

TEST(FormatRules, ThePictureChooses) {
  EXPECT_EQ(jet::format(jet::Value("2026-11-24"), u"mm/dd"), "11-24");
  EXPECT_EQ(jet::format(jet::Value("1234"), u"#,###"), "1,234");
  EXPECT_EQ(jet::format(jet::Value("abc"), u"#,###"), "abc");
  EXPECT_EQ(jet::format(jet::Value(), u"#,###"), "");
}

}  // namespace
