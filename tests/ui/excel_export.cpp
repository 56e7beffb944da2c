#include "ui/grid/excel_export.h"

#include <QProcess>

#include "tests/support.h"
#include "ui/model/spread_model.h"

namespace {

class ExcelExport : public ::testing::Test {
 protected:
  ExcelExport() {
    at.pc.clock.set(QDateTime(QDate(2026, 6, 15), QTime(9, 5, 7)));
    at.pc.process.setStarter([this](const QString&, const QStringList& arguments, const QString&) {
      opened << arguments;
      return true;
    });
    grid.setColumns({{.header = "전화번호"},
                     {.header = "코드", .hidden = true},
                     {.header = "금액", .group = "가스", .kind = CellKind::Money}});
    grid.setRows({{"0531234567", "7", "1,234,500"}, {"=1+1", "8", "없음"}, {}});
  }
  tests::TestPc at;
  SpreadModel grid;
  QStringList opened;
};

TEST_F(ExcelExport, NothingToSend) {
  at.prompts.expect("엑셀로 보낼 데이터가 없습니다.\n자료 검색후 엑셀로 보내세요.");
  SpreadModel empty;
  EXPECT_EQ(ExportToExcelFile(at.session, empty, "빈 표"), QString());
  at.prompts.expect("엑셀로 자료를 내보내기 하시겠습니까?", false);
  EXPECT_EQ(ExportToExcelFile(at.session, grid, "표"), QString());
}

TEST_F(ExcelExport, FileIsWrittenNamedByItsTimeAndOpened) {
  at.prompts.expect("엑셀로 자료를 내보내기 하시겠습니까?");
  const QString written = ExportToExcelFile(at.session, grid, "판매관리: [6월]");
  EXPECT_EQ(written, "C:\\RWGas\\ExpExcel\\Exp260615_090507.xlsx");
  QFile file(at.pc.paths.native(written));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.read(4), QByteArray("PK\3\4"));
  ASSERT_EQ(opened.size(), 1);
  EXPECT_TRUE(opened[0].endsWith("Exp260615_090507.xlsx"));
  EXPECT_TRUE(at.pc.paths.exists("C:\\RWGas\\ExpExcel\\Exp260615_090507LOG.TXT"));
  EXPECT_EQ(grid.MaxRows(), 3) << "the grid itself is as before";
}

TEST_F(ExcelExport, AmountsAreNumbersAndTheRestStaysText) {
  const QString written = ExportToExcelFile(at.session, grid, "표", true);
  const auto part = [&](const QString& name) {
    QProcess unzip;
    unzip.start("unzip", {"-p", at.pc.paths.native(written), name});
    EXPECT_TRUE(unzip.waitForFinished());
    return QString::fromUtf8(unzip.readAllStandardOutput());
  };
  const QString sheet = part("xl/worksheets/sheet1.xml"), texts = part("xl/sharedStrings.xml");
  EXPECT_TRUE(sheet.contains("<c r=\"B2\" s=\"2\"><v>1234500</v></c>")) << sheet.toStdString();
  EXPECT_TRUE(sheet.contains("<c r=\"A2\" t=\"s\">"));
  EXPECT_FALSE(sheet.contains("<f>")) << "a text that looks like a formula is none";
  for (const QString text : {"전화번호", "가스 금액", "0531234567", "=1+1", "없음"})
    EXPECT_TRUE(texts.contains("<t>" + text + "</t>")) << text.toStdString();
  EXPECT_FALSE(texts.contains("코드")) << "hidden columns stay at home";
}

TEST_F(ExcelExport, WhereNothingOpensItThePlaceIsTold) {
  at.pc.process.setStarter([](const QString&, const QStringList&, const QString&) { return false; });
  at.prompts.expect(at.pc.paths.native("C:\\RWGas\\ExpExcel\\Exp260615_090507.xlsx"));
  EXPECT_NE(ExportToExcelFile(at.session, grid, "표", true), QString());
}

TEST_F(ExcelExport, FolderThatCannotBeWrittenIsTold) {
  QDir().mkpath(at.pc.paths.native("C:\\RWGas"));
  QFile blocking(at.pc.paths.native("C:\\RWGas\\ExpExcel"));
  ASSERT_TRUE(blocking.open(QIODevice::WriteOnly));
  at.prompts.expect("엑셀로 내보내기에 실패했습니다.");
  EXPECT_EQ(ExportToExcelFile(at.session, grid, "표", true), QString());
  EXPECT_TRUE(opened.isEmpty());
}

}  // namespace
