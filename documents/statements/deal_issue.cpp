#include "documents/statements/deal_issue.h"

#include <map>

#include "documents/ledger/softly.h"
#include "store/data_access.h"
#include "store/year_file.h"

namespace {

/** Whether the line was pending and is issued by this statement. */
bool claim(const jet::Database& year, const QString& line, DealMark mark) {
  if (mark == DealMark::LedgerCode) {
    // This system's sale lines have no such column; the line must be marked all the same, or it is issued twice.
    int marked = 0;
    softly([&] {
      marked = year.Execute("update sale set deallist = 1 where code = '" + plainText(line) +
                            "' And deallist = 0");
    });
    if (marked > 0) return true;
  }
  return year.Execute("update sale set deallist = 1 where SaleID = " + plainNumber(line) +
                      " And deallist = 0") > 0;
}

}  // namespace

std::vector<int> claimDeals(Session& session, const SpreadModel& list, const std::vector<int>& rows,
                            DealMark mark) {
  std::vector<jet::Database> files;
  std::map<QString, size_t> places;  // of a year's file among them; none where it does not open
  for (const int row : rows) {
    const QString year = list.text(row, DealCol::Day).left(4);
    if (places.contains(year)) continue;
    const jet::Database file = openYear(session, year);
    places[year] = file.isOpen() ? files.size() : size_t(-1);
    if (file.isOpen()) files.push_back(file);
  }
  std::vector<int> got;
  session.wsMain.Together(files, [&] {
    for (const int row : rows) {
      const size_t place = places.at(list.text(row, DealCol::Day).left(4));
      if (place < files.size() && claim(files[place], list.text(row, DealCol::MainCode), mark))
        got.push_back(row);
    }
  });
  return got;
}

void writeDealHistory(Session& session, const jet::Database& history,
                      const std::vector<DealStatement>& statements) {
  if (statements.empty()) return;
  const auto write = [&] {
    bool all = true;
    for (const DealStatement& statement : statements)
      for (const DealLine& line : statement.lines)
        all &= softly([&] {
          history.Execute(
              "INSERT INTO DealList(DealDate, CCode, CName, PName, PNorm, Quant, UnitCost, SaleKum, "
              "SaleSeq) VALUES('" +
              copiedText(line.date) + "', '" + copiedText(statement.clientCode) + "', '" +
              copiedText(statement.clientName.left(40)) + "', '" + copiedText(line.item.left(40)) + "', '" +
              copiedText(line.norm.left(20)) + "', " + QString::number(line.quantity) + ", " +
              QString::number(line.price) + ", " + QString::number(line.amount) + ", '" +
              copiedText(line.saleId) + "')");
        });
    return all;
  };
  bool all = history.isOpen();
  try {
    if (all) history.Together([&] { all = write(); });
  } catch (
      const jet::Error& error) {  // the lines are issued: their papers come whatever becomes of the history
    session.prompts.noted(error);
    all = false;
  }
  if (!all) session.prompts.MsgWarn("거래명세서 내역을 저장하는 중 오류가 발생했습니다.");
}
