#include "pc/report_pages.h"

#include <gmock/gmock.h>

#include "tests/pc/layout_refusal.h"

using namespace Qt::StringLiterals;

namespace {

using Kind = pc::ReportBand::Kind;
using testing::ElementsAre;
using testing::HasSubstr;
using tests::refusalOf;

TEST(ExactSumTest, WholeNumbersAndFractionsDoNotDrift) {
  pc::ExactSum won;
  for (int i = 0; i < 3; ++i) won.add(qint64(9'007'199'254'740'993));  // no double holds this number
  EXPECT_EQ(won.text(), "27021597764222979");
  won.add(qint64(-27'021'597'764'222'980));
  EXPECT_EQ(won.text(), "-1");

  pc::ExactSum cubic;
  for (int i = 0; i < 10; ++i) cubic.add(0.1);
  EXPECT_EQ(cubic.text(), "1");
  cubic.add(-2.345);
  EXPECT_EQ(cubic.text(), "-1.345");
  cubic.add(1e-9);
  cubic.add(4e-10);  // half a billionth rounds away from zero, less is nothing
  EXPECT_EQ(cubic.text(), "-1.344999999");
  pc::ExactSum below;
  for (const double part : {-5e-10, -4e-10}) {
    below.add(part);
    EXPECT_EQ(below.text(), "-0.000000001") << part;
  }
  cubic.add(123456789012345.0);
  EXPECT_EQ(cubic.text(), "123456789012343.655000001");
}

TEST(ExactSumTest, WhatItCannotHoldShowsAsSuch) {
  pc::ExactSum sum, with;
  sum.add(1e18);
  EXPECT_EQ(sum.text(), "###");
  with.add(qint64(1));
  with.add(sum);
  EXPECT_EQ(with.text(), "###");
  pc::ExactSum odd;
  odd.add(std::numeric_limits<double>::quiet_NaN());
  EXPECT_EQ(odd.text(), "###");
}

TEST(ReportLayoutTest, ReadsPaperBandsAndColumns) {
  const pc::ReportLayout layout = pc::parseReportLayout(
      "# remark\n"
      "paper A4 landscape\n"
      "margins 25.4 12.7 25.4 12.7\n"
      "font 돋움체 8\n"
      "title center 16 bold \"현황 ({월}\"   # behind\n"
      "title left \"왼쪽 #1\" right 7 \"오른쪽\"\n"
      "column no \"번호\" 4 right\n"
      "column Str01 \"이름\" 20\n"
      "column Lng01 \"금액\" 10 right \"#,##0\" sum\n"
      "column Dbl01 \"양\" 10 right\n"
      "span \"위\" Lng01 Dbl01\n"
      "group Str02 bold \"{Str02} {Lng03} {월}\"\n"
      "total \"[합 계]\"\n");
  EXPECT_DOUBLE_EQ(layout.paper.width, 11.69);
  EXPECT_DOUBLE_EQ(layout.left, 1);
  EXPECT_DOUBLE_EQ(layout.width(), 9.69);
  ASSERT_EQ(layout.title.size(), 2u);
  EXPECT_TRUE(layout.title[0].texts[0].bold);
  EXPECT_DOUBLE_EQ(layout.title[0].height(), 16 * 1.5 / 72);
  EXPECT_EQ(layout.title[1].texts[0].text, "왼쪽 #1");
  EXPECT_EQ(layout.title[1].texts[0].points, 8);
  EXPECT_EQ(layout.title[1].texts[1].align, pc::ReportAlign::Right);
  ASSERT_EQ(layout.columns.size(), 4u);
  EXPECT_TRUE(layout.columns[2].sum);
  EXPECT_EQ(layout.columns[2].picture, "#,##0");
  EXPECT_FALSE(layout.columns[3].sum);
  EXPECT_EQ(layout.spans[0].last, 3);
  EXPECT_EQ(layout.groupField, "Str02");
  EXPECT_EQ(layout.fields(), QStringList({"Str01", "Lng01", "Dbl01", "Str02", "Lng03"}));
}

TEST(ReportLayoutTest, TellsWhereADamagedFileIsWrong) {
  EXPECT_THAT(refusalOf("").toStdString(), HasSubstr("하나도 없습니다"));
  EXPECT_THAT(refusalOf("column Str01 \"이름\" 20\n\ncolum Str02").toStdString(), HasSubstr("3번째 줄"));
  for (const char* line :
       {"column Str14 \"이름\" 20", "column Lng09 \"이름\" 20", "column Str01 \"이름 20", "column Str01",
        "column Str01 \"이름\" 0", "column Str01 \"이름\" nan", "column Str01 \"이름\" 5 sum", "title",
        "title left 10", "paper B5", "margins 10 10 10", "margins 10 10 10 999", "font 굴림체 1e9",
        "span \"위\" Str01 Str02", "row 0"})
    EXPECT_THAT(refusalOf(u"column Lng01 \"금액\" 9\n"_s + line).toStdString(), HasSubstr("2번째 줄"))
        << line;
  // The last size that is taken and the first that is not.
  for (const auto& [line, least, below, most, above] :
       {std::tuple{"row %1", "6", "5.9", "100", "100.1"},
        {"font 굴림체 %1", "5", "4.9", "30", "30.1"},
        {"margins 10 %1 10 10", "0", "-0.1", "80", "80.1"},
        {"column Str02 \"나\" %1", "1", "0.9", "200", "200.1"},
        {"title %1 \"가\"", "5", "4.9", "40", "40.1"}}) {
    const auto refused = [&](const char* size) {
      return !refusalOf("column Lng01 \"금액\" 9\n" + QString(line).arg(size)).isEmpty();
    };
    for (const char* size : {least, most}) EXPECT_FALSE(refused(size)) << line << ' ' << size;
    for (const char* size : {below, above}) EXPECT_TRUE(refused(size)) << line << ' ' << size;
  }
  const QString columns = "column Lng01 \"a\" 9\ncolumn Lng02 \"b\" 9\ncolumn Lng03 \"c\" 9\n";
  EXPECT_THAT(refusalOf(columns + "span \"x\" Lng02 Lng01").toStdString(), HasSubstr("4번째 줄"));
  EXPECT_THAT(refusalOf(columns + "span \"x\" Lng01 Lng02\nspan \"y\" Lng02 Lng03").toStdString(),
              HasSubstr("5번째 줄"));
}

/** Ten rows a page of 1 inch: rows of 0.1 inch below a heading, all measures easy to follow. */
struct ReportPagesTest : testing::Test {
  ReportPagesTest() {
    layout = pc::parseReportLayout("column Str01 \"이름\" 9\ncolumn Lng01 \"금액\" 9 right sum\n");
    layout.rowPoints = 7.2;
    layout.top = layout.bottom = 0;
    layout.paper.height = layout.headingHeight() + 1;
  }
  pc::ReportTable table(int rows) const {
    pc::ReportTable made{.fields = {"Str01", "Lng01"}};
    for (int row = 0; row < rows; ++row) made.rows.push_back({u"고객%1"_s.arg(row / 6), qint64(row + 1)});
    return made;
  }
  /** "heading rows(first-last) total" of each page. */
  QStringList shape(const pc::ReportTable& of) const {
    const pc::ReportPages pages(layout, of);
    QStringList shapes;
    for (int page = 0; page < pages.count(); ++page) {
      QString text;
      int rows = 0;
      double bottom = 0;
      for (const pc::ReportBand& band : pages.bands(page)) {
        if (band.kind != Kind::Foot) {
          EXPECT_GE(band.top, bottom - 1e-9) << "bands do not lie on each other";
          bottom = band.top + band.height;
        }
        text += "TNHGRsSuF"[int(band.kind)];
        rows += band.kind == Kind::Row;
      }
      EXPECT_LE(bottom, layout.paper.height + 1e-9) << "nothing below the paper";
      shapes << text.replace(u"R"_s.repeated(rows), QString::number(rows));
    }
    return shapes;
  }
  /** Every band of each page by a letter. */
  static QString kinds(const pc::ReportPages& pages) {
    QString kinds;
    for (int page = 0; page < pages.count(); ++page) {
      for (const auto& band : pages.bands(page)) kinds += u"TNHGRsSuF"_s[int(band.kind)];
      kinds += ' ';
    }
    return kinds;
  }
  pc::ReportLayout layout;
};

TEST_F(ReportPagesTest, BreaksWhereTheNextRowDoesNotFit) {
  EXPECT_EQ(shape(table(1)), QStringList({"H1"}));
  EXPECT_EQ(shape(table(10)), QStringList({"H10"}));
  EXPECT_EQ(shape(table(11)), QStringList({"H10", "H1"}));
  EXPECT_EQ(shape(table(5000)).size(), 500);
}

TEST_F(ReportPagesTest, TotalsNeverStandAlone) {
  layout.total = "[합 계]";
  EXPECT_EQ(shape(table(9)), QStringList({"H9S"}));
  EXPECT_EQ(shape(table(10)), QStringList({"H9", "H1S"})) << "the last row goes along";
  EXPECT_EQ(shape(table(19)), QStringList({"H10", "H9S"}));
  const pc::ReportTable many = table(5000);
  const pc::ReportPages pages(layout, many);
  EXPECT_EQ(pages.total()[1].text(), "12502500");
  EXPECT_EQ(pages.rowsCounted(), 5000);
  layout.summary = {{{{.points = 9.6, .text = "모두"}}}};  // 0.2 inch
  EXPECT_EQ(shape(table(7)), QStringList({"H7Su"}));
  EXPECT_EQ(shape(table(8)), QStringList({"H7", "H1Su"}));
}

TEST_F(ReportPagesTest, TitleOnceFootOnEveryPage) {
  layout.title = {{{{.points = 9.6, .text = "큰 제목"}}}};  // 0.2 inch
  layout.next = {{{{.points = 4.8, .text = "이어서"}}}};    // 0.1 inch
  layout.foot = {{{{.points = 4.8, .text = "{page}"}}}};    // 0.1 inch and 0.1 above it
  EXPECT_EQ(shape(table(6)), QStringList({"FTH6"}));
  EXPECT_EQ(shape(table(14)), QStringList({"FTH6", "FNH7", "FNH1"}));
}

TEST_F(ReportPagesTest, AGroupThatBeginsAPageIsNamedOnceAndASubtotalTakesItsRowAlong) {
  layout.groupField = "Str01";
  layout.group = {
      {{{.points = 19.2, .text = "{Str01}"}}}};  // 0.4 inch: the second group's first row has no room
  EXPECT_EQ(shape(table(9)), QStringList({"HG6", "HG3"}));
  layout.group = {};
  layout.subtotal = "[소 계]";
  const pc::ReportTable rows = table(18);
  const pc::ReportPages pages(layout, rows);
  // Six rows and their sum, three rows; three rows and their sum, five rows; the last with its sum.
  EXPECT_EQ(kinds(pages), "HGRRRRRRsGRRR HGRRRsGRRRRR HGRs ");
}

TEST_F(ReportPagesTest, GroupsSumUpAndAreNamedAgainOnTheNextPage) {
  layout.groupField = "Str01";
  layout.group = {{{{.points = 4.8, .text = "{Str01}"}}}};
  layout.subtotal = "[소 계]";
  layout.total = "[합 계]";
  const pc::ReportTable rows = table(14);  // groups of 6, 6 and 2
  const pc::ReportPages pages(layout, rows);
  // A group's line stays with its first row, a sum with its last; the group that goes on is named again.
  EXPECT_EQ(kinds(pages), "HGRRRRRRsGR HGRRRRRsGR HGRsS ");
  EXPECT_EQ(pages.subtotal(0)[1].text(), "21");  // 1 to 6
  EXPECT_EQ(pages.subtotal(1)[1].text(), "57");  // 7 to 12
  EXPECT_EQ(pages.subtotal(2)[1].text(), "27");  // 13 and 14
  EXPECT_EQ(pages.total()[1].text(), "105");
}

TEST_F(ReportPagesTest, ABlankRowTakesItsLineButIsNotCounted) {
  pc::ReportTable rows = table(2);
  rows.rows.push_back({QString(), std::monostate{}});
  const pc::ReportPages pages(layout, rows);
  EXPECT_EQ(pages.bands(0).size(), 4u);
  EXPECT_EQ(pages.rowsCounted(), 2);
  EXPECT_EQ(pages.numberOf(1), 2);
  EXPECT_EQ(pages.numberOf(2), 0);
}

TEST_F(ReportPagesTest, PaperThatTakesNoRowIsRefused) {
  layout.paper.height = layout.headingHeight() + 0.05;
  EXPECT_THROW(shape(table(1)), pc::ReportError);
}

}  // namespace
