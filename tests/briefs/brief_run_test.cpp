// What every report form does, on a report made up for it.
#include "briefs/chart_data.h"
#include "tests/briefs/brief_desk.h"

using namespace Qt::StringLiterals;

namespace {

using tests::asks;
using tests::BriefDesk;
using tests::days;

/** By item of a period, and by month of a year. */
Brief madeUp() {
  using enum BriefLook;
  BriefPage items{
      .key = "items",
      .grid = "SpItems",
      .columns = {{.header = "품명", .field = "SaleName", .staged = "Str01", .key = true, .missing = "Null"},
                  {.header = "최근", .field = "Last", .look = Centre},
                  {.header = "수량", .field = "Num", .look = Pieces, .staged = "Lng01", .sum = true},
                  {.header = "무게", .field = "Kg", .look = Number, .staged = "Dbl01"}},
      .statement =
          [](const BriefAsk& ask) {
            return "Select SaleName, Max(SaleDate) As Last, Sum(SaleNum) As Num, "
                   "Sum(Val(SaleThing) * SaleNum) As Kg From Sale Where " +
                   briefDays("SaleDate", ask, "TxtDay") + "And SaleName Like '*" + ask.text("TxtName") +
                   "*' Group By SaleName Order By SaleName";
          },
      .period = "TxtDay",
      .reach = BriefReach::Asked,
      .order = {1},
      .emptyText = [](const BriefAsk&) { return u"없습니다!"_s; },
      .report = "시험.rpt",
      .formulas =
          [](const BriefAsk& ask, const BriefRows& rows) {
            return QStringList{"월= '" + ask.from("TxtDay") + "'", QString::number(rows.rows.size())};
          }};
  BriefPage months{
      .key = "months",
      .grid = "SpMonths",
      .columns = {{.header = "월",
                   .key = true,
                   .cell = [](const jet::Recordset& rs) { return rs["SaleDate"].toText().mid(5, 2); }},
                  {.header = "수량", .field = "Num", .look = Pieces, .sum = true}},
      .statement =
          [](const BriefAsk&) {
            return u"Select SaleDate, Sum(SaleNum) As Num From Sale Group By SaleDate"_s;
          },
      .slots_ = {"01", "02", "03"},
      .emptyText = [](const BriefAsk&) { return u"달이 없습니다!"_s; },
      .emptyTitle = "시험 관리자"};
  return {.form = "frmMadeUp",
          .questions = {{.kind = AskKind::Period, .name = "TxtDay", .pages = {0}},
                        {.kind = AskKind::Text, .name = "TxtName", .label = "품명"}},
          .pages = {items, months}};
}

struct BriefRunTest : testing::Test, BriefDesk {
  BriefRun brief{session, madeUp()};
  bool load(const QString& from, const QString& to, const QString& name = {}) {
    return brief.load(asks(0, {{"TxtDay", days(from, to)}, {"TxtName", {.text = name}}}));
  }
  QStringList rows(int page = 0) { return shown(brief, page); }
};

TEST_F(BriefRunTest, APeriodIsAskedForInWords) {
  sale({.day = "2026-03-05"});
  const struct {
    const char *from, *to, *told, *box;
  } wrong[] = {{"", "", "조회기간을 입력해 주십시오", "TxtDayFrom"},
               {"", "2026-03-31", "조회기간의 시작월일을 선택해 주십시오", "TxtDayFrom"},
               {"2026-03-01", "", "조회기간의 마지막월을 입력/선택해 주십시오", "TxtDayTo"},
               {"2026-02-30", "2026-03-31", "날짜 입력이 올바르지 않습니다!", "TxtDayFrom"},
               {"2026-01-01", "2026-02-30", "날짜 입력이 올바르지 않습니다!", "TxtDayTo"},
               {"2026-03-02", "2026-03-01", "조회기간의 시작일이 마지막일보다 늦습니다!", "TxtDayFrom"}};
  ASSERT_TRUE(load("2026-3-1", "2026-03-31")) << "a day is taken as it is written elsewhere";
  for (const auto& each : wrong) {
    BriefAsk ask = asks(0, {{"TxtDay", days(each.from, each.to)}});
    pc.prompts.expect(each.told);
    EXPECT_EQ(brief.check(ask), QString(each.box));
    pc.prompts.expect(each.told);
    EXPECT_FALSE(brief.load(ask));
    EXPECT_EQ(brief.grid(0).MaxRows(), 2) << "what was shown stays";
  }
  pc.prompts.expect("품명에는 작은따옴표");
  EXPECT_FALSE(load("2026-03-01", "2026-03-31", "O'Neil"));
  BriefAsk month = asks(1);
  EXPECT_EQ(brief.check(month), std::nullopt) << "the page asks for no period";
}

TEST_F(BriefRunTest, RowsOfAllYearsAskedForAreOne) {
  const jet::Database last = year("2025");
  sale(last, {.day = "2025-12-30", .pieces = 4, .item = "LPG", .size = "50"});
  sale(last, {.day = "2025-12-31", .pieces = 7, .item = "가스통"});
  sale({.day = "2026-01-02", .pieces = 2, .item = "lpg ", .size = "0.5"});
  sale({.day = "2026-01-03", .pieces = 1, .item = "AAA", .size = "2.5kg"});
  sale({.day = "2026-01-04", .pieces = 100, .item = "AAA"});
  ASSERT_TRUE(load("2025-12-30", "2026-01-03"));
  EXPECT_EQ(rows(), QStringList({"AAA|2026-01-03|1|2.5", "LPG|2026-01-02|6|201", "가스통|2025-12-31|7|140",
                                 "[합 계]||14|"}));
  EXPECT_EQ(brief.rows(0).note, "");
  ASSERT_TRUE(load("2026-01-01", "2026-01-03"));
  EXPECT_EQ(rows().size(), 3);
  ASSERT_TRUE(load("2023-01-01", "2025-12-31"));
  EXPECT_EQ(rows().last(), "[합 계]||11|");
  EXPECT_EQ(brief.rows(0).note, "2023, 2024년은 자료 파일이 없어 빠졌습니다.");
  ASSERT_TRUE(load("2021-12-31", "2025-12-31"));
  EXPECT_EQ(brief.rows(0).note, "2021, 2022, 2023, 2024년은 자료 파일이 없어 빠졌습니다.");
  ASSERT_TRUE(load("1026-01-01", "2026-01-02")) << "a year typed wrongly is no long way";
  EXPECT_EQ(brief.rows(0).note, "1026, 1027, 1028, 1029년 등은 자료 파일이 없어 빠졌습니다.");
  pc.prompts.expect("없습니다!");
  EXPECT_FALSE(load("2020-01-01", "2020-12-31")) << "a year without a file";
  EXPECT_EQ(brief.grid(0).MaxRows(), 0);
  EXPECT_TRUE(pc.prompts.seen.last().startsWith("조회 관리자|"));
}

TEST_F(BriefRunTest, ALineThatAClosingCopiedCountsInItsOwnYearsFileAlone) {
  const jet::Database last = year("2025");
  for (const jet::Database& each : {last, session.dbYear}) sale(each, {.day = "2025-12-30", .pieces = 4});
  sale({.day = "2026-01-02", .pieces = 2});
  const auto pieces = [&](const char* from, const char* to) {
    return load(from, to) ? rows().last() : u"nothing"_s;
  };
  EXPECT_EQ(pieces("2025-12-01", "2026-01-31"), "[합 계]||6|");
  EXPECT_EQ(pieces("2025-12-01", "2025-12-31"), "[합 계]||4|");
  EXPECT_EQ(pieces("2026-01-01", "2026-01-31"), "[합 계]||2|");
  // The change of the PC's year leaves the work year.
  session.dbYear = last;
  pc.pc.clock.set(QDate(2025, 12, 31).startOfDay());
  EXPECT_EQ(pieces("2025-12-01", "2025-12-31"), "[합 계]||4|");
  EXPECT_EQ(pieces("2026-01-01", "2026-01-31"), "[합 계]||2|");
}

TEST_F(BriefRunTest, LinesOfTheClocksYearInAnotherYearsFileAreFound) {
  year("2025");
  session.WorkYear = "2025";
  session.dbYear = openYear(session, "2025");
  sale({.day = "2026-01-05", .pieces = 3});
  ASSERT_TRUE(load("2026-01-01", "2026-12-31"));
  EXPECT_EQ(rows(), QStringList({"LPG|2026-01-05|3|60", "[합 계]||3|"}));
}

TEST_F(BriefRunTest, SlotsStandWhetherFilledOrNot) {
  pc.prompts.expect("달이 없습니다!");
  EXPECT_FALSE(brief.load(asks(1)));
  EXPECT_TRUE(pc.prompts.seen.last().startsWith("시험 관리자|"));
  EXPECT_EQ(brief.grid(1).MaxRows(), 0);
  sale({.day = "2026-03-01", .pieces = 2});
  sale({.day = "2026-01-31", .pieces = 1});
  sale({.day = "2026-03-31", .pieces = 5});
  ASSERT_TRUE(brief.load(asks(1)));
  EXPECT_EQ(rows(1), QStringList({"01|1", "02|0", "03|7", "[합 계]|8"}));
}

TEST_F(BriefRunTest, WhatIsShownIsStaged) {
  brief.print(0);
  EXPECT_EQ(staged("Str01, Lng01, Dbl01"), QStringList({"||"})) << "an empty grid is one blank row";
  sale({.day = "2026-03-01", .pieces = 2, .size = "0.25"});
  run("Update Sale Set SaleName = 'O''Neil'");
  sale({.day = "2026-03-02", .pieces = -1, .item = ""});
  ASSERT_TRUE(load("2026-03-01", "2026-03-31"));
  brief.print(0);
  EXPECT_EQ(staged("Str01, Lng01, Dbl01"), QStringList({"Null|-1|-20", "O'Neil|2|0.5"}));
  EXPECT_EQ(reports.asked.back().file, "시험.rpt");
  EXPECT_EQ(reports.asked.back().formulas, QStringList({"월= '2026-03-01'", "2"}));
  EXPECT_TRUE(load("2026-03-02", "2026-03-02")) << "one day is a period";
  pc.prompts.expect("없습니다!");
  EXPECT_FALSE(load("2026-04-01", "2026-04-30"));
  EXPECT_EQ(staged("Str01").size(), 2) << "nothing is staged before it is printed";
  printBriefRows(session, {{.header = "글", .staged = "Str01"}}, {{QString(300, u'가')}},
                 {.report = "글.rpt"});
  EXPECT_EQ(staged("Str01").first().size(), 255) << "cut to its column";
}

TEST_F(BriefRunTest, AnAddressCarriesItsAnswers) {
  const QString address =
      briefAddress("frmX", "lines", {{"TxtName", "김&이=:?"}, {"TxtDayFrom", "2026-01-01"}});
  ASSERT_TRUE(address.startsWith("frmX:lines?"));
  const BriefAddress read = readBriefAddress(address.section(':', 1));
  EXPECT_EQ(read.page, "lines");
  ASSERT_EQ(read.answers.size(), 2);
  EXPECT_EQ(read.answers[0].second, "김&이=:?");
  EXPECT_EQ(read.answers[1].first, "TxtDayFrom");
  EXPECT_TRUE(readBriefAddress("day").answers.isEmpty());
}

TEST(ChartData, TakesItsFiguresFromTheRows) {
  using enum BriefLook;
  const std::vector<BriefColumn> columns{
      {.header = "고객"}, {.header = "금액", .look = Money}, {.header = "개수", .look = Pieces}};
  const std::vector<BriefCells> rows{
      {"가", "500", "1"}, {"나", "99999", "2"}, {"가", "1000", "30"}, {"다", "-7", ""}};
  ChartData data = chartData({BriefChart::Kind::Bars, "", 1, {2, 3}}, columns, rows);
  EXPECT_EQ(data.labels, QStringList({"가", "나", "가", "다"})) << "each row for itself";
  EXPECT_EQ(data.names, QStringList({"금액", "개수"}));
  EXPECT_EQ(data.unit, "원");
  EXPECT_EQ(data.series[0], (std::vector<double>{500, 99999, 1000, -7}));
  EXPECT_EQ(data.series[1], (std::vector<double>{1, 2, 30, 0}));
  data = chartData({.kind = BriefChart::Kind::Bars, .label = 1, .series = {3, 2}, .byLabel = true, .most = 2},
                   columns, rows);
  EXPECT_EQ(data.labels, QStringList({"가", "나"}))
      << "the greatest by the first series, rows of one name together";
  EXPECT_EQ(data.series[0], (std::vector<double>{31, 2}));
  EXPECT_EQ(data.series[1], (std::vector<double>{1500, 99999}));
  EXPECT_EQ(data.unit, "개");
  EXPECT_EQ(chartData({BriefChart::Kind::Bars, "", 1, {2}}, columns, {{"가", "100000", ""}}).series[0],
            std::vector<double>{10});
  EXPECT_EQ(chartData({BriefChart::Kind::Bars, "", 1, {2}}, columns, {{"가", "-100000", ""}}).unit, "만원");
  const BriefChart parted{
      .kind = BriefChart::Kind::Bars, .label = 1, .series = {2}, .byLabel = true, .apart = 3};
  EXPECT_EQ(chartData(parted, columns, {{"가", "1", "7"}, {"가", "2", "8"}, {"가", "4", "7"}}).series[0],
            (std::vector<double>{5, 2}))
      << "two customers of one name";
  EXPECT_TRUE(chartData({}, columns, rows).labels.isEmpty());
  EXPECT_TRUE(chartData({BriefChart::Kind::Bars, "", 1, {2}, false, 5}, columns, {}).labels.isEmpty());
}

TEST(ChartData, MarksAreRoundAndWhole) {
  const struct {
    double least, greatest;
    int most;
    double from, to;
    int marks;
  } cases[] = {{0, 718, 6, 0, 800, 5},        {0, 718, 3, 0, 1000, 3}, {0, 800000, 6, 0, 800000, 5},
               {0, 800001, 6, 0, 1000000, 6}, {0, 1, 6, 0, 1, 2},      {0, 0, 6, 0, 1, 2},
               {-30, 100, 6, -50, 100, 4},    {-5, 0, 2, -5, 0, 2},    {0, 3, 6, 0, 3, 4},
               {-1, 1, 2, -1, 1, 3},          {-20, -10, 6, -20, 0, 5}};
  for (const auto& each : cases) {
    SCOPED_TRACE(std::to_string(each.least) + " to " + std::to_string(each.greatest));
    const ChartScale scale = chartScale(each.least, each.greatest, each.most);
    EXPECT_EQ(scale.least, each.from);
    EXPECT_EQ(scale.greatest, each.to);
    EXPECT_EQ(scale.marks, each.marks);
  }
}

TEST(ChartData, LabelsHaveRoom) {
  const auto width = [](const QString& text) { return 10.0 * double(text.size()); };
  EXPECT_EQ(chartLabels({"1", "2", "10"}, 20, width), QStringList({"1", "2", "10"}));
  EXPECT_EQ(chartLabels({"1", "2", "3", "10"}, 9, width), QStringList({"1", " ", "  ", "10"}))
      << "every third number";
  EXPECT_EQ(chartLabels({"가나다라", "가나다마", "가나바라", "가"}, 30, width),
            QStringList({"가…라", "가…마", "가…라 ", "가"}))
      << "two customers cut to one text have a bar each";
  EXPECT_EQ(chartLabels({"가나", ""}, 5, width), QStringList({"…나", " "}));
  EXPECT_TRUE(chartLabels({}, 5, width).isEmpty());
}

}  // namespace
