// The safety register: its days as a selection, and the lines that come of it.
#include "links/safe_note.h"

#include "pc/reports.h"
#include "store/report_source.h"
#include "tests/support.h"

namespace {

struct SafeNoteTest : testing::Test, tests::TestPc, pc::Reports {
  std::vector<pc::ReportRequest> shown;
  void show(const pc::ReportRequest& request) override { shown.push_back(request); }

  SafeNoteTest() {
    openBooks(QDate(2026, 3, 16));
    session.reports = this;
    session.dbBasic.Execute(
        "Insert Into Client(Name, Address, Tel) Values('달빛식당', '인천 부평구', '02-1')");
    for (const char* line :
         {"'2026-02-28', 1, 1", "'2026-03-01', 1, 2", "'2026-03-16', 6, 3", "'2026-03-17', 1, 4"})
      session.dbYear.Execute(
          "Insert Into Sale(ClientCode, SaleName, SaleThing, Response, SaleDate, SaleGubun, SaleNum) "
          "Values(1, 'LPG', '20', '김배달', " +
          QString::fromLatin1(line) + ")");
  }
  QString lines() {
    const pc::ReportRequest& request = shown.back();
    const pc::ReportTable table = readLiveRows(session, findReportLayout(session, request.file), request);
    QStringList rows;
    for (int row = 0; row < int(table.rows.size()); ++row) {
      QStringList cells;
      for (const char* field :
           {"Sale.SaleDate", "Client.Name", "Client.Address", "Sale.SaleGubun", "Sale.SaleNum"})
        cells << pc::plainText(table.value(row, QString::fromLatin1(field)));
      rows << cells.join(u'|');
    }
    return rows.join(u'\n');
  }
};

TEST_F(SafeNoteTest, ListsTheSalesOfItsDaysBothEndsIncluded) {
  ASSERT_TRUE(showSafeNote(session, {"2026-03-01", "2026-03-16", "03"}));
  EXPECT_EQ(shown.back().formulas, (QStringList{"DDay= '2026/03/01 ~ 2026/03/16'", "DMon= '03'"}));
  EXPECT_EQ(lines(), "2026-03-01|달빛식당|인천 부평구|가스|2\n2026-03-16|달빛식당|인천 부평구|용회|3");
  ASSERT_TRUE(showSafeNote(session, {"3.1", "2026-03-01", {}}));
  EXPECT_EQ(shown.back().formulas, (QStringList{"DDay= '2026/03/01'", "DMon= ''"})) << "one day is told once";
  EXPECT_EQ(lines(), "2026-03-01|달빛식당|인천 부평구|가스|2");
}

TEST_F(SafeNoteTest, TakesTheFileOfTheFirstDaysYear) {
  prompts.expect("2025년의 자료 파일이 없습니다!");
  EXPECT_FALSE(showSafeNote(session, {"2025-12-01", "2026-03-16", {}}));
  makeYearFile(session, "2025");
  ASSERT_TRUE(showSafeNote(session, {"2025-12-01", "2026-03-16", {}}));
  EXPECT_EQ(shown.back().liveFiles, QStringList{"C:\\RWGas\\Dbs\\2025Foundation.mdb"});
  for (const auto& [from, to] : {std::pair{"2026-02-30", "2026-03-01"}, {"2026-03-01", ""}}) {
    prompts.expect("날짜입력이 잘못되었습니다!");
    EXPECT_FALSE(showSafeNote(session, {QString::fromLatin1(from), QString::fromLatin1(to), {}}));
  }
}

}  // namespace
