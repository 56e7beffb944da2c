#include "ui/paper/grid_print.h"

#include "tests/recorded_print.h"
#include "tests/support.h"
#include "ui/model/spread_model.h"
#include "ui/paper/print_report.h"

using namespace Qt::StringLiterals;

namespace {

class GridPrinting : public ::testing::Test {
 protected:
  void SetUp() override {
    pc.session.printers = &printers;
    grid.setColumns({{.header = "이름", .width = 20},
                     {.header = "가스미수", .width = 12, .kind = CellKind::Money, .align = CellAlign::Right},
                     {.header = "코드", .hidden = true},
                     {.header = "실병", .group = "보유", .width = 8, .kind = CellKind::Integer},
                     {.header = "공병", .group = "보유", .width = 8, .kind = CellKind::Integer}});
    printChooser() = [](Session&, int pages, QWidget*) { return PrintChoice{"지로프린터", 1, pages}; };
  }
  void TearDown() override { printChooser() = asked; }

  tests::TestPc pc;
  tests::RecordedPrinters printers;
  SpreadModel grid;
  const PrintChooser asked = printChooser();
};

TEST_F(GridPrinting, rowsGoOverPagesWithHeadingAndNumbers) {
  std::vector<std::vector<QString>> rows;
  for (int i = 1; i <= 120; ++i)
    rows.push_back({"고객" + QString::number(i), QString::number(i * 1000), "7001", "3", "4"});
  rows.push_back({});
  grid.setRows(rows);
  grid.setBold(120, true);
  ASSERT_TRUE(PrintGrid(pc.session, grid, "일반고객 현황", nullptr));
  const tests::RecordedJob& job = *printers.jobs.at(0);
  EXPECT_EQ(job.printer, "지로프린터");
  EXPECT_TRUE(job.ended);
  EXPECT_GT(job.paper.height, job.paper.width);
  ASSERT_EQ(job.pages, 3);
  QStringList all;
  for (int page = 1; page <= job.pages; ++page) {
    const QStringList texts = job.texts(page);
    for (const QString& text :
         {u"일반고객 현황"_s, u"이름"_s, u"가스미수"_s, u"보유"_s, u"%1 / 3"_s.arg(page)})
      EXPECT_EQ(texts.count(text), 1) << text.toStdString() << page;
    all << texts;
  }
  EXPECT_FALSE(all.contains("7001") || all.contains("코드")) << "a hidden column stays off the paper";
  for (int i = 1; i <= 120; ++i) EXPECT_EQ(all.count("고객" + QString::number(i)), 1) << i;
  for (const auto& item : job.items) {
    if (item.text.startsWith("고객1")) {
      EXPECT_EQ(item.font.bold, item.text == "고객120") << item.text.toStdString();
    }
  }
  EXPECT_TRUE(all.contains("120,000"));
}

TEST_F(GridPrinting, aWideGridLiesOnItsSideAndOtherThanMoneyStandsAsItIs) {
  grid.setColumns({{.header = "주소", .width = 100},
                   {.header = "금액", .width = 20, .kind = CellKind::Money},
                   {.header = "수량", .width = 8, .kind = CellKind::Number}});
  grid.setRows({{"대구", "1234567", "1234.5"}, {"부산", "미정", ""}});
  ASSERT_TRUE(PrintGrid(pc.session, grid, "현황", nullptr));
  const tests::RecordedJob& job = *printers.jobs.at(0);
  EXPECT_GT(job.paper.width, job.paper.height);
  for (const char* text : {"1,234,567", "미정", "1234.5"})
    EXPECT_EQ(job.texts().count(QString(text)), 1) << text;
}

TEST_F(GridPrinting, tellsWhyNothingIsPrinted) {
  pc.prompts.expect("출력할 자료가 없습니다!");
  EXPECT_FALSE(PrintGrid(pc.session, grid, "현황", nullptr));
  grid.setRows({{"고객", "1", "", "", ""}});
  printers.refusal = "프린터가 꺼져 있습니다.";
  pc.prompts.expect("프린터가 꺼져 있습니다.");
  EXPECT_FALSE(PrintGrid(pc.session, grid, "현황", nullptr));
  printChooser() = [](Session&, int, QWidget*) { return std::nullopt; };
  EXPECT_FALSE(PrintGrid(pc.session, grid, "현황", nullptr)) << "the operator left";
  EXPECT_TRUE(printers.jobs.empty());
}

}  // namespace
