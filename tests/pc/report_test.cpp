#include "pc/report.h"

#include "store/jet/format_rules.h"
#include "tests/recorded_print.h"
#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

using tests::PrintedItem;

constexpr double inch = 25.4;  // the layouts' margins are millimetres

QString picture(const QString& number, const QString& by) {
  return jet::format(number, by);
}

/** A sheet of ten inches between margins; columns of 1, 4, 2 and 3 inches; letters of 8 points are 1/18 inch wide. */
const char* const layoutText = R"(
paper A4 portrait
margins 12.7 12.7 6.5 12.7
font 굴림체 8
title center 16 bold "현황 ({월}"
title left "{건물명}" right "{today}"
next left "이어서 {page}"
column no "번호" 1 right
column Str01 "이름" 4
column Lng01 "금액" 2 right "#,##0" sum
column Dbl01 "양" 3 right "#,##0.###" sum
span "숫자" Lng01 Dbl01
total "[합 계] {count}건"
summary right bold "모두 {sum Lng01}원"
foot center "{page} / {pages}"
)";

struct ReportTest : testing::Test {
  pc::ReportLayout layout = pc::parseReportLayout(layoutText);
  pc::ReportTable table{.fields = {"Str01", "Str02", "Lng01", "Dbl01"}};
  QStringList formulas{"월= '03월)'", "건물명= '한빛 'A' 동'"};

  void add(const QString& name, qint64 won, double amount) {
    table.rows.push_back({name, QString(), won, amount});
  }
  std::shared_ptr<tests::RecordedJob> print() {
    const pc::Report report(layout, table, formulas, "2026-03-16", picture);
    EXPECT_TRUE(pc::printReport(*printers.open("지로프린터", "현황", layout.paper), report));
    return printers.jobs.back();
  }
  static const PrintedItem* find(const tests::RecordedJob& job, const QString& text, int page = 1) {
    for (const auto& item : job.items)
      if (item.kind == PrintedItem::Text && item.page == page && item.text == text) return &item;
    ADD_FAILURE() << text.toStdString() << " is not on page " << page;
    return nullptr;
  }
  /** Right edge of a text, in inches: half-width letters are half as wide as the font is high. */
  static double rightOf(const PrintedItem* item) {
    return item ? item->x + widthOf(item->text) * item->font.points / 144 : -1;
  }
  tests::RecordedPrinters printers;
};

TEST_F(ReportTest, TextsStandAtTheirPlaces) {
  add("김하나", 1234567, 12.5);
  add("이둘", -890, 3);
  const auto job = print();
  EXPECT_TRUE(job->ended);
  // Printable width: 8.27 - 0.5 - 6.5 / 25.4 = 7.5141 inches, a share of the ten is 0.75141.
  const double share = (8.27 - 0.5 - 6.5 / inch) / 10, pad = 0.04;
  const double amountRight = 0.5 + 7 * share - pad, right = 0.5 + 10 * share - pad;

  const auto* title = find(*job, "현황 (03월)");
  EXPECT_EQ(title->font.points, 16);
  EXPECT_TRUE(title->font.bold);
  EXPECT_NEAR(title->x + rightOf(title), 2 * 0.5 + 10 * share, 1e-6) << "in the middle";
  EXPECT_NEAR(find(*job, "한빛 'A' 동")->x, 0.5 + pad, 1e-6);
  EXPECT_NEAR(rightOf(find(*job, "2026-03-16")), right, 1e-6);

  // Title 16 and 8 points at one and a half lines, heading of two lines of 8 * 1.9 points.
  const double head = 0.5 + (16 * 1.5 + 8 * 1.5 + 2 * 8 * 1.9) / 72, row = 8 * 1.9 / 72;
  const auto* won = find(*job, "1,234,567");
  EXPECT_NEAR(won->y + 8 / 144.0, head + row / 2, 1e-6) << "in the middle of the first row";
  EXPECT_NEAR(rightOf(won), amountRight, 1e-6);
  EXPECT_NEAR(rightOf(find(*job, "-890")), amountRight, 1e-6);
  EXPECT_NEAR(find(*job, "-890")->y - won->y, row, 1e-6);
  EXPECT_NEAR(rightOf(find(*job, "12.5")), right, 1e-6);
  EXPECT_NEAR(rightOf(find(*job, "3")), right, 1e-6) << "a whole amount has no point";
  EXPECT_NEAR(find(*job, "김하나")->x, 0.5 + share + pad, 1e-6);
  EXPECT_NEAR(rightOf(find(*job, "1")), 0.5 + share - pad, 1e-6);

  const auto* total = find(*job, "1,233,677");
  EXPECT_NEAR(total->y - won->y, 2 * row, 1e-6);
  EXPECT_TRUE(total->font.bold);
  EXPECT_NEAR(rightOf(find(*job, "15.5")), right, 1e-6);
  find(*job, "[합 계] 2건");
  EXPECT_NEAR(rightOf(find(*job, "모두 1,233,677원")), right, 1e-6);
  EXPECT_NEAR(find(*job, "1 / 1")->y + 8 / 144.0, 11.69 - 0.5 - 8 * 1.5 / 144, 1e-6);
  EXPECT_LT(find(*job, "숫자")->y, find(*job, "금액")->y);
  const auto lineTop = [&](double x) {
    for (const auto& item : job->items)
      if (item.kind == PrintedItem::Line && qAbs(item.x - x) < 1e-6 && qAbs(item.x2 - x) < 1e-6)
        return item.y;
    return -1.0;
  };
  EXPECT_NEAR(lineTop(0.5 + 5 * share), head - 2 * row, 1e-6);
  EXPECT_NEAR(lineTop(0.5 + 7 * share), head - row, 1e-6) << "not through the caption over both columns";
}

TEST_F(ReportTest, ManyPagesCarryOnAndTheTotalIsRightToTheWon) {
  qint64 sum = 0;
  for (int i = 0; i < 5000; ++i) {
    add(u"고객%1"_s.arg(i + 1), 1'000'001 + i, 0.1);
    sum += 1'000'001 + i;
  }
  ASSERT_EQ(sum, 5'012'502'500);
  const auto job = print();
  const QStringList last = job->texts(job->pages);
  EXPECT_TRUE(last.contains("5,012,502,500"));
  EXPECT_TRUE(last.contains("500")) << "five thousand tenths";
  EXPECT_TRUE(last.contains("[합 계] 5,000건"));
  EXPECT_TRUE(job->texts(2).contains("이어서 2"));
  EXPECT_TRUE(job->texts(2).contains(u"2 / %1"_s.arg(job->pages)));
  int rows = 0;
  for (const auto& item : job->items) {
    rows += item.text.startsWith("고객");
    EXPECT_TRUE(item.y > 0.49 && item.y < 11.2 && item.x > 0.49 && item.x < 8.02) << item.text.toStdString();
  }
  EXPECT_EQ(rows, 5000);
}

TEST_F(ReportTest, TheTotalsLabelStandsWhereItHasRoom) {
  const QString narrow =
      QString(layoutText)
          .replace("column Str01 \"이름\" 4", "column Str02 \"일자\" 1\ncolumn Str01 \"이름\" 3")
          .replace("[합 계]", "[전체 합 계]");
  layout = pc::parseReportLayout(narrow);
  add("김하나", 1, 1);
  const auto job = print();
  EXPECT_GT(find(*job, "[전체 합 계] 1건")->x, find(*job, "김하나")->x) << "in the middle of the second one";
  layout = pc::parseReportLayout(
      QString(narrow).replace("[전체 합 계]", "모두 더하면 더할 나위 없이 많은 이 달의 합 계"));
  const QStringList texts = print()->texts();
  EXPECT_TRUE(std::ranges::any_of(texts, [](const QString& text) {
    return text.startsWith("모두 더하면") && text.endsWith(u'…');
  })) << "cut in the widest one";
}

TEST_F(ReportTest, TextsAreCutFiguresAreSetSmaller) {
  layout.columns[1].width = 1;
  layout.columns[2].width = 1;
  layout.columns[3].width = 7;
  add("아주아주 긴 이름의 고객입니다", 123'456'789'012, 1);
  add("", 1'234'567'890'123'456, 1);
  const auto job = print();
  const QStringList texts = job->texts();
  const auto cut = std::ranges::find_if(texts, [](const QString& text) { return text.endsWith("…"); });
  ASSERT_NE(cut, texts.end());
  EXPECT_TRUE(cut->startsWith("아주"));
  const auto* figure = find(*job, "123,456,789,012");
  EXPECT_LT(figure->font.points, 8);
  EXPECT_NEAR(rightOf(figure), 0.5 + 3 * (8.27 - 0.5 - 6.5 / inch) / 10 - 0.04, 0.01);
  find(*job, "####");
}

TEST_F(ReportTest, PrintsARangeOfPages) {
  for (int i = 0; i < 200; ++i) add("고객", 1, 1);
  const pc::Report report(layout, table, {}, "", picture);
  EXPECT_TRUE(pc::printReport(*printers.open("지로프린터", "현황", layout.paper), report, {1, 2}));
  const auto& job = *printers.jobs.back();
  EXPECT_EQ(job.pages, 2);
  EXPECT_TRUE(job.ended && job.texts(1).contains("이어서 2") && job.texts(2).contains("이어서 3"));
  EXPECT_TRUE(pc::printReport(*printers.open("지로프린터", "현황", layout.paper), report, {2, 99}));
  EXPECT_EQ(printers.jobs.back()->pages, report.pages().count() - 2) << "to the last one that there is";
}

TEST_F(ReportTest, StopsAndRefusesWithoutAnEnd) {
  for (int i = 0; i < 200; ++i) add("고객", 1, 1);
  const pc::Report report(layout, table, {}, "", picture);
  const auto job = printers.open("지로프린터", "현황", layout.paper);
  EXPECT_FALSE(pc::printReport(*job, report, {}, [](int done) { return done < 2; }));
  EXPECT_TRUE(printers.jobs.back()->abandoned && !printers.jobs.back()->ended);
  EXPECT_EQ(printers.jobs.back()->pages, 2);
  EXPECT_FALSE(printers.jobs.back()->texts().contains("{건물명}")) << "a value that was not given is empty";

  table.rows.clear();
  EXPECT_THROW(pc::Report(layout, table, {}, "", picture), pc::ReportError);
}

TEST_F(ReportTest, APictureStandsBelowTheRowsOrOnAPageOfItsOwn) {
  const auto pictures = [this] {
    const pc::Report report(layout, table, formulas, "", picture, QByteArray("png"));
    pc::printReport(*printers.open("지로프린터", "현황", layout.paper), report);
    std::vector<PrintedItem> found;
    for (const PrintedItem& item : printers.jobs.back()->items)
      if (item.kind == PrintedItem::Picture) found.push_back(item);
    return found;
  };
  for (int i = 0; i < 3; ++i) add("고객", 1, 1);
  auto found = pictures();
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].page, 1);
  const PrintedItem* const summary = find(*printers.jobs.back(), "모두 3원");
  ASSERT_TRUE(summary);
  EXPECT_GT(found[0].y, summary->y);
  EXPECT_DOUBLE_EQ(found[0].x, layout.left);
  EXPECT_DOUBLE_EQ(found[0].x2 - found[0].x, layout.width());
  for (int i = 0; i < 35; ++i) add("고객", 1, 1);
  found = pictures();
  const auto& job = *printers.jobs.back();
  EXPECT_EQ(job.pages, 2) << "the rows themselves take one page";
  EXPECT_EQ(found[0].page, 2);
  EXPECT_EQ(job.texts(2).count("이름"), 0) << "no heading over a picture";
  EXPECT_TRUE(job.texts(2).contains("이어서 2") && job.texts(2).contains("2 / 2"));
  EXPECT_LT(found[0].y2, layout.paper.height - layout.bottom);
}

TEST(ReportFormula, NameAndValue) {
  EXPECT_EQ(pc::readFormula("조회월= '03'"), std::make_pair(u"조회월"_s, u"03"_s));
  EXPECT_EQ(pc::readFormula("판매구분= '월 체적)'").second, "월 체적)");
  EXPECT_EQ(pc::readFormula("a = 'x = 'y''").second, "x = 'y'");
  EXPECT_EQ(pc::readFormula("빈= ''").second, "");
}

}  // namespace
