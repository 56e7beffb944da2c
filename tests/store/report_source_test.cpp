#include "store/report_source.h"

#include "store/report_staging.h"
#include "tests/support.h"

namespace {

struct ReportSourceTest : testing::Test, tests::TestPc {
  ReportSourceTest() {
    openBooks(QDate(2026, 3, 16));
    session.RptPath = "C:\\RWGas\\RPT\\";
    pc.paths.makeFolder(session.RptPath);
  }
  void ownLayout(const QByteArray& text) {
    QFile file(pc.paths.native(session.RptPath) + "/체적검침현황.layout");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
  QString refusal(const QString& report) {
    try {
      makeReport(session, {report, {}, printFile()});
    } catch (const pc::ReportError& error) {
      return error.text;
    }
    return {};
  }
};

TEST_F(ReportSourceTest, BuiltInLayoutsAreWholeAndTheShopsOwnWins) {
  for (const QString& name : QDir(":/reports").entryList()) {
    SCOPED_TRACE(name.toStdString());
    EXPECT_NO_THROW(findReportLayout(session, QString(name).replace(".layout", ".rpt")));
  }
  EXPECT_EQ(findReportLayout(session, "체적검침현황.rpt").columns.size(), 14u);
  ownLayout("column Str01 \"이름\" 10\n");
  for (const char* name : {"체적검침현황.rpt", "체적검침현황.RPT", "체적검침현황"})
    EXPECT_EQ(findReportLayout(session, name).columns.size(), 1u) << name;
}

TEST_F(ReportSourceTest, StagedRowsComeAsTheyWereStaged) {
  const QStringList rows{"Values('101동 201호', 12.5, -3, Null)", "Values('', 0, 0, '')"};
  stageReport(session, 2,
              [&](int row) { return "Insert Into Print(Str01, Dbl01, Lng02, Str13) " + rows[row - 1]; });
  const pc::ReportTable table =
      readStagedRows(session, printFile(), {"Lng02", "Lng01", "Str01", "Str13", "Dbl01"});
  ASSERT_EQ(table.rows.size(), 2u);
  EXPECT_EQ(pc::plainText(table.value(0, "Str01")), "101동 201호");
  EXPECT_EQ(table.value(0, "Dbl01"), pc::ReportValue(12.5));
  EXPECT_EQ(table.value(0, "Lng02"), pc::ReportValue(qint64(-3)));
  EXPECT_EQ(table.value(0, "Str13"), pc::ReportValue());
  EXPECT_EQ(table.value(0, "Lng01"), pc::ReportValue()) << "not staged";
  EXPECT_FALSE(table.isBlank(1)) << "a nought is something";
}

TEST_F(ReportSourceTest, WhatCannotBeMadeIsToldInKorean) {
  stageReport(session, 1, [](int) { return "Insert Into Print(Str01) Values('')"; });
  EXPECT_TRUE(refusal("없는보고서.rpt").contains("없는보고서.layout"));
  ownLayout("column Str01 \"이름\" 10\ncolumn Str99 \"이름\" 10\n");
  EXPECT_TRUE(refusal("체적검침현황.rpt").contains("2번째 줄"));
  ownLayout("\xff\xfe\x00\x01 nonsense \"");
  EXPECT_TRUE(refusal("체적검침현황.rpt").contains("잘못되었습니다"));
  ownLayout("column Str01 \"이름\" 10\n");
  EXPECT_EQ(refusal("체적검침현황.rpt"), "") << "one blank row is a report";
  stageReport(session, 0, {});
  EXPECT_TRUE(refusal("체적검침현황.rpt").contains("출력할 자료가 없습니다!"));
}

}  // namespace
