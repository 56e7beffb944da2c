// A line that the store could not keep: its row must not write on whatever line gets its number.
#include <sqlite3.h>

#include "store/jet/error.h"
#include "store/year_file.h"
#include "tests/trade/sale_desk.h"

namespace {

/** Another PC that reads a file and does not let it go. */
class ReadingPc {
 public:
  explicit ReadingPc(const QString& path) {
    sqlite3_open(path.toUtf8().constData(), &handle_);
    sqlite3_exec(handle_, "BEGIN; SELECT * FROM jet_links;", nullptr, nullptr, nullptr);
  }
  ~ReadingPc() { sqlite3_close(handle_); }

 private:
  sqlite3* handle_ = nullptr;
};

struct SaleLostLine : tests::OpenSale {};

TEST_F(SaleLostLine, ARowWhoseLineWasNotKeptBeginsAnew) {
  Session& session = pc.session;
  // The same files with little patience.
  for (auto* handle : {&session.dbBasic, &session.dbYear, &session.dbTax, &session.dbCommon}) handle->Close();
  session.wsMain =
      jet::Workspace({.mainFile = session.DbPath + "Basic.mdb",
                      .resolvePath = [&](const QString& path) { return session.pc.paths.native(path); },
                      .busyMilliseconds = 50});
  session.dbBasic = session.wsMain.OpenDatabase(session.DbPath + "Basic.mdb");
  session.dbYear = session.wsMain.OpenDatabase(yearFile(session, session.WorkYear));

  posting.FillSaleGrid(SaleSheet::General, true);
  pickers.clients.push_back(ClientChoice{Plain, "산골식당"});
  const int row = entry.enterKey(1, LineCol::Partner, {}).row;
  const auto key = [&] { return posting.grid().text(row, LineCol::Key); };
  const QString yearPath = session.pc.paths.native(yearFile(session, session.WorkYear));
  {
    const ReadingPc other(yearPath);  // the line is written, but the group cannot be committed
    EXPECT_THROW(entry.finishCell(row, LineCol::Kind, "가스"), jet::Error);
    EXPECT_EQ(key(), "");
    pickers.items.push_back(ItemChoice{"LPG", "20", 40000, 0});
    EXPECT_THROW(entry.enterKey(row, LineCol::Item, {}), jet::Error);
    EXPECT_EQ(key(), "") << "begun and filled in one group, lost with it";
  }
  // Meanwhile the number goes to another line.
  run("Insert Into Sale(SaleDate, ClientCode, SaleGubun, SaleNum) Values('2026-03-05', 2, 1, 9)");
  pickers.items.push_back(ItemChoice{"LPG", "20", 40000, 0});
  entry.enterKey(row, LineCol::Item, {});
  EXPECT_EQ(key(), "2");
  EXPECT_EQ(rows("Select ClientCode, SaleNum From Sale Order By SaleID"), "2|9;1|1");
  {
    const ReadingPc other(yearPath);
    pc.prompts.expect("선택된 자료를 변경하시겠습니까?");
    EXPECT_THROW(entry.finishCell(row, LineCol::Number, "3"), jet::Error);
  }
  pc.prompts.expect("선택된 자료를 변경하시겠습니까?");
  EXPECT_EQ(entry.finishCell(row, LineCol::Number, "2").end, LineStep::Done)
      << "what was not kept is not taken for another PC's change";
}

TEST_F(SaleLostLine, ABookThatDoesNotAnswerLeavesAStoredLineItsRow) {
  pickers.clients.push_back(ClientChoice{Plain, "산골식당"});
  const int row = entry.enterKey(1, LineCol::Partner, {}).row;
  pickers.items.assign(2, ItemChoice{"LPG", "20", 40000, 0});
  entry.enterKey(row, LineCol::Item, {});
  ASSERT_EQ(posting.grid().text(row, LineCol::Key), "1");
  pickers.during = [&] { pc.session.dbYear.Close(); };
  EXPECT_THROW(entry.search(row, LineCol::Item, {}), jet::Error);
  EXPECT_EQ(posting.grid().text(row, LineCol::Key), "1") << "else the line would be written once more";
}

}  // namespace
