#include "store/report_staging.h"

#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

struct ReportStagingTest : testing::Test, tests::TestPc {
  ReportStagingTest() { openBooks(); }
  QStringList staged() {
    QStringList rows;
    const jet::Database print = session.wsMain.OpenDatabase(printFile());
    jet::Recordset rs = print.OpenRecordset("Select * From Print");
    for (; !rs.atEnd(); rs.MoveNext()) rows << rs["Str01"].toText() + u'/' + rs["Lng01"].toText();
    return rows;
  }
  void stage(int rows) {
    stageReport(session, rows, [](int row) {
      return "Insert Into Print(Str01, Lng01) Values('고객" + QString::number(row) + "', " +
             QString::number(-row) + ")";
    });
  }
};

TEST_F(ReportStagingTest, RowsStandInTheirOrderAndReplaceTheLastReports) {
  stage(5000);
  const QStringList rows = staged();
  ASSERT_EQ(rows.size(), 5000);
  for (int row = 1; row <= 5000; ++row) EXPECT_EQ(rows[row - 1], u"고객%1/-%1"_s.arg(row));
  stage(2);
  EXPECT_EQ(staged(), QStringList({"고객1/-1", "고객2/-2"}));
  stage(0);
  EXPECT_EQ(staged(), QStringList());
}

TEST_F(ReportStagingTest, ScratchIsTheStationsOwnAndMadeAnewWhenMissing) {
  const QString file = pc.paths.native(printFile());
  ASSERT_TRUE(QFile::remove(file));
  session.DbPath = "Z:\\함께\\";
  stage(1);
  EXPECT_TRUE(QFile::exists(file));
  EXPECT_EQ(staged(), QStringList({"고객1/-1"}));
}

TEST_F(ReportStagingTest, AFailedRowGoesOnToTheCallerLeavesNothingAndLetsTheFileGo) {
  EXPECT_THROW(stageReport(session, 3,
                           [](int row) {
                             return row == 2 ? "Insert Into Print(Str01) Values('O'Neil')"
                                             : "Insert Into Print(Str01) Values('A')";
                           }),
               jet::Error);
  EXPECT_EQ(staged(), QStringList()) << "half a report would look like a whole one";
  stage(1);
  EXPECT_EQ(staged(), QStringList({"고객1/-1"}));
}

}  // namespace
