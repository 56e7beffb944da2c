#include "ui/grid_print.h"

#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>

#include "tests/support.h"
#include "ui/spread_model.h"

namespace {

class GridPrinting : public ::testing::Test {
 protected:
  void SetUp() override {
    grid.setColumns({{.header = "이름", .width = 20},
                     {.header = "가스미수", .width = 12, .kind = CellKind::Money, .align = CellAlign::Right},
                     {.header = "코드", .hidden = true}});
    printerChooser() = [this](QPrinter& printer, QWidget*) {
      printer.setOutputFormat(QPrinter::PdfFormat);
      printer.setOutputFileName(file);
      return true;
    };
  }
  QString printed() const {
    QProcess reader;
    reader.start("pdftotext", {"-layout", file, "-"});
    reader.waitForFinished();
    // The fonts' blank comes out of the file as a control sign or not at all.
    return QString::fromUtf8(reader.readAllStandardOutput()).remove(u' ').remove(QChar(1));
  }

  tests::TestPc pc;
  const QString file = pc.folder.filePath("grid.pdf");
  SpreadModel grid;
};

TEST_F(GridPrinting, rowsGoOverPagesWithHeaderAndNumbers) {
  std::vector<std::vector<QString>> rows;
  for (int i = 1; i <= 120; ++i)
    rows.push_back({"고객" + QString::number(i), QString::number(i * 1000), "7001"});
  grid.setRows(rows);
  ASSERT_TRUE(PrintGrid(pc.session, grid, "일반고객 현황", nullptr));
  const QString text = printed();
  const QStringList pages = text.split(u'\f', Qt::SkipEmptyParts);
  ASSERT_EQ(pages.size(), 3);
  for (const QString& page : pages) EXPECT_TRUE(page.contains("가스미수"));
  EXPECT_TRUE(pages[0].contains("1/3") && pages[0].contains("일반고객현황")) << pages[0].toStdString();
  EXPECT_TRUE(pages[2].contains("고객120") && pages[2].contains("120,000"));
  EXPECT_FALSE(text.contains("7001")) << "a hidden column stays off the paper";
  for (int i = 1; i <= 120; ++i) {
    const QRegularExpression row(QString("고객%1%2,000\\n").arg(i).arg(i));
    EXPECT_EQ(text.count(row), 1) << i;
  }
}

TEST_F(GridPrinting, tellsWhyNothingIsPrinted) {
  pc.prompts.expect("출력할 자료가 없습니다!");
  EXPECT_FALSE(PrintGrid(pc.session, grid, "현황", nullptr));
  grid.setRows({{"고객", "1", ""}});
  printerChooser() = [](QPrinter&, QWidget*) { return false; };
  EXPECT_FALSE(PrintGrid(pc.session, grid, "현황", nullptr)) << "the operator left";
  printerChooser() = [](QPrinter& printer, QWidget*) {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName("/nowhere/at/all.pdf");
    return true;
  };
  pc.prompts.expect("인쇄를 시작할 수 없습니다!");
  EXPECT_FALSE(PrintGrid(pc.session, grid, "현황", nullptr));
}

}  // namespace
