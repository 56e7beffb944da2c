#include "ui/grid/excel_export.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>

#include "tests/support.h"
#include "ui/model/spread_model.h"

using namespace Qt::StringLiterals;

namespace {

class ExcelExport : public ::testing::Test {
 protected:
  ExcelExport() {
    at.pc.clock.set(QDateTime(QDate(2026, 6, 15), QTime(9, 5, 7)));
    at.pc.process.setStarter([this](const QString&, const QStringList& arguments, const QString&) {
      opened << arguments;
      return true;
    });
    grid.setColumns({{.header = u"전화번호"_s},
                     {.header = u"코드"_s, .hidden = true},
                     {.header = u"금액"_s, .group = u"가스"_s, .kind = CellKind::Money}});
    grid.setRows({{u"0531234567"_s, u"7"_s, u"1,234,500"_s}, {u"=1+1"_s, u"8"_s, u"없음"_s}, {}});
  }
  tests::TestPc at;
  SpreadModel grid;
  QStringList opened;
};

TEST_F(ExcelExport, NothingToSend) {
  at.prompts.expect(u"엑셀로 보낼 데이터가 없습니다.\n자료 검색후 엑셀로 보내세요."_s);
  SpreadModel empty;
  EXPECT_EQ(ExportToExcelFile(at.session, empty, u"빈 표"_s), QString());
  at.prompts.expect(u"엑셀로 자료를 내보내기 하시겠습니까?"_s, false);
  EXPECT_EQ(ExportToExcelFile(at.session, grid, u"표"_s), QString());
}

TEST_F(ExcelExport, FileIsWrittenNamedByItsTimeAndOpened) {
  at.prompts.expect(u"엑셀로 자료를 내보내기 하시겠습니까?"_s);
  const QString written = ExportToExcelFile(at.session, grid, u"판매관리: [6월]"_s);
  EXPECT_EQ(written, u"C:\\RWGas\\ExpExcel\\Exp260615_090507.xlsx"_s);
  QFile file(at.pc.paths.native(written));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.read(4), QByteArray("PK\3\4"));
  ASSERT_EQ(opened.size(), 1);
  EXPECT_TRUE(opened[0].endsWith(u"Exp260615_090507.xlsx"_s));
  EXPECT_TRUE(at.pc.paths.exists(u"C:\\RWGas\\ExpExcel\\Exp260615_090507LOG.TXT"_s));
  EXPECT_EQ(grid.MaxRows(), 3) << "the grid itself is as before";
}

TEST_F(ExcelExport, AmountsAreNumbersAndTheRestStaysText) {
  const QString written = ExportToExcelFile(at.session, grid, u"표"_s, true);
  const auto part = [&](const QString& name) {
    QProcess unzip;
    unzip.start(u"unzip"_s, {u"-p"_s, at.pc.paths.native(written), name});
    EXPECT_TRUE(unzip.waitForFinished());
    return QString::fromUtf8(unzip.readAllStandardOutput());
  };
  const QString sheet = part(u"xl/worksheets/sheet1.xml"_s), texts = part(u"xl/sharedStrings.xml"_s);
  EXPECT_TRUE(sheet.contains(u"<c r=\"B2\" s=\"2\"><v>1234500</v></c>"_s)) << sheet.toStdString();
  EXPECT_TRUE(sheet.contains(u"<c r=\"A2\" t=\"s\">"_s));
  EXPECT_FALSE(sheet.contains(u"<f>"_s)) << "a text that looks like a formula is none";
  for (const QString& text : {u"전화번호"_s, u"가스 금액"_s, u"0531234567"_s, u"=1+1"_s, u"없음"_s})
    EXPECT_TRUE(texts.contains(u"<t>"_s + text + u"</t>"_s)) << text.toStdString();
  EXPECT_FALSE(texts.contains(u"코드"_s)) << "hidden columns stay at home";
}

TEST_F(ExcelExport, WhereNothingOpensItThePlaceIsTold) {
  at.pc.process.setStarter([](const QString&, const QStringList&, const QString&) { return false; });
  at.prompts.expect(at.pc.paths.native(u"C:\\RWGas\\ExpExcel\\Exp260615_090507.xlsx"_s));
  EXPECT_NE(ExportToExcelFile(at.session, grid, u"표"_s, true), QString());
}

TEST_F(ExcelExport, FolderThatCannotBeWrittenIsTold) {
  QDir().mkpath(at.pc.paths.native(u"C:\\RWGas"_s));
  QFile blocking(at.pc.paths.native(u"C:\\RWGas\\ExpExcel"_s));
  ASSERT_TRUE(blocking.open(QIODevice::WriteOnly));
  at.prompts.expect(u"엑셀로 내보내기에 실패했습니다."_s);
  EXPECT_EQ(ExportToExcelFile(at.session, grid, u"표"_s, true), QString());
  EXPECT_TRUE(opened.isEmpty());
}

}  // namespace
