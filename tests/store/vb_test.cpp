#include "store/vb.h"

#include "store/date_text.h"
#include "tests/answers.h"

namespace {

using tests::failureOf;

TEST(Vb, WholeNumbersTakeTheEvenOneAndTellWhatDoesNotFit) {
  EXPECT_EQ(vb::CLng(2.5), 2);
  EXPECT_EQ(vb::CLng(3.5), 4);
  EXPECT_EQ(vb::CLng(-2.5), -2);
  EXPECT_EQ(vb::CLng(u"1,234.6"), 1235);
  EXPECT_EQ(vb::CInt(32767.4), 32767);
  EXPECT_EQ(failureOf([] { vb::CInt(32767.5); }), 6);
  EXPECT_EQ(vb::CLng(-2147483648.5), -2147483648LL);
  EXPECT_EQ(vb::CLng(2147483647.4), 2147483647);
  EXPECT_EQ(failureOf([] { vb::CLng(-2147483649.0); }), 6);
  EXPECT_EQ(vb::CInt(-32768.5), -32768);
  EXPECT_EQ(failureOf([] { vb::CInt(-32769); }), 6);
  EXPECT_EQ(vb::CInt(u"1,234.5"), 1234);
  for (const double most : {922337203685477.0, -922337203685477.0}) {
    EXPECT_EQ(vb::CCur(most), most);
    EXPECT_EQ(failureOf([&] { vb::CCur(most + std::copysign(1, most)); }), 6);
  }
  EXPECT_TRUE(vb::IsNumeric(u"(1,234)"));
  EXPECT_FALSE(vb::IsNumeric(u"12kg"));
  EXPECT_EQ(vb::CStr(0.1 + 0.2), "0.3");
  EXPECT_EQ(failureOf([] { vb::CLng(2147483648.0); }), 6);
  EXPECT_EQ(failureOf([] { vb::CLng(std::numeric_limits<double>::quiet_NaN()); }), 6);
  EXPECT_EQ(failureOf([] { vb::CLng(u"12kg"); }), 13);
  EXPECT_EQ(failureOf([] { vb::CDbl(u""); }), 13);
  EXPECT_EQ(failureOf([] { vb::CDbl(u"1E400"); }), 6);
  EXPECT_EQ(vb::CCur(1.00005), 1.0);
  EXPECT_EQ(vb::CCur(-2.00015), -2.0002);
  EXPECT_EQ(failureOf([] { vb::CCur(1e15); }), 6);
  EXPECT_EQ(vb::Val(u"12kg"), 12);
}

TEST(Vb, DatesAreReadInTheShortDatesOrder) {
  const std::pair<QDate, QStringList> written[] = {
      {{2026, 11, 24}, {"2026-11-24", "2026.11.24", "2026년 11월 24일", "11-24-2026", "2026-11-24 09:30:00"}},
      {{2026, 1, 2}, {"2026/1/2", "2026.1-2", " 26-01-02 "}},
      {{2029, 1, 1}, {"29-1-1", "2029-1-1 23:59:59", "2029-1-1 9:5", "1-1-2029"}},
      {{100, 1, 1}, {"100-1-1"}},
      {{1930, 1, 1}, {"30-1-1"}},
      {{2024, 11, 24}, {"11-24"}},
      {{2024, 2, 29}, {"2-29"}},
      {{2024, 3, 5}, {"3월 5일"}}};
  for (const auto& [day, texts] : written)
    for (const QString& text : texts) EXPECT_EQ(vb::CDate(text, 2024), day) << text.toStdString();
  for (const char* text : {"",
                           "24",
                           "20261124",
                           "2026-13-01",
                           "2026-02-30",
                           "02-30",
                           "13-01",
                           "0-5",
                           "a-1",
                           "1-2-3-4",
                           "2026--1",
                           "2026-11",
                           "-11-24",
                           "2026-1-2x",
                           "2026-11-24 25:00",
                           "0001-01-01",
                           "099-1-1",
                           "2026-11-24 24:00",
                           "2026-11-24 9:60",
                           "20261-1-1",
                           "  -  ",
                           "내일"}) {
    EXPECT_FALSE(vb::IsDate(QString::fromUtf8(text), 2026)) << text;
  }
}

TEST(Vb, PicturesOfTheProgram) {
  EXPECT_EQ(vb::Format(1234567, "#,###,###"), "1,234,567");
  EXPECT_EQ(vb::Format(0, "#,###"), "");
  EXPECT_EQ(vb::Format(2.5, "0"), "3") << "away from zero, unlike CLng";
  EXPECT_EQ(vb::Format(7, "0000"), "0007");
  EXPECT_EQ(vb::Format(1234.5, "###,###,###.##"), "1,234.5");
  const QDateTime moment(QDate(2026, 3, 5), QTime(9, 7, 2));
  EXPECT_EQ(vb::Format(moment, "YYMMDD_HHMMSS"), "260305_090702");
  EXPECT_EQ(vb::Format(moment.date(), "YYYY/MM/DD"), "2026-03-05") << "/ is the PC's own separator";
  EXPECT_EQ(vb::Format(moment.date(), "mm/dd"), "03-05");
  EXPECT_EQ(vb::Format(moment.date(), "DDDDD"), "2026-03-05");
  EXPECT_EQ(vb::Format(moment.date(), "YYYY"), "2026");
}

TEST(DateText, TypedMonthAndDayBelongToTheYearGiven) {
  pc::Clock clock;
  clock.set(QDateTime(QDate(2026, 11, 24), QTime(12, 0)));
  EXPECT_EQ(checkedMonthDay("02-05", "2026", clock), "2026-02-05");
  EXPECT_EQ(checkedMonthDay("2.5", "2025", clock), "2025-02-05");
  EXPECT_EQ(checkedMonthDay("02-29", "2025", clock), "");
  EXPECT_EQ(checkedMonthDay("02-29", "2024", clock), "2024-02-29");
  for (const char* text : {"", "  -  ", "13-01", "1", "2026-01-02"}) {
    EXPECT_EQ(checkedMonthDay(QString::fromLatin1(text), "2026", clock), "") << text;
  }
  EXPECT_EQ(checkedDate("12-31", clock), "2026-12-31");
  EXPECT_EQ(checkedDate("24.2.29", clock), "2024-02-29");
}

}  // namespace
