#include "documents/statements/deal_statement.h"

std::vector<DealStatement> statementsOf(const SpreadModel& list, const std::vector<int>& rows) {
  std::vector<DealStatement> statements;
  for (const int row : rows) {
    const QString& client = list.text(row, DealCol::ClientCode);
    const QString& date = list.text(row, DealCol::Day);
    if (statements.empty() || statements.back().clientCode != client)
      statements.push_back(
          {.clientCode = client, .clientName = list.text(row, DealCol::ClientName), .firstDate = date});
    DealStatement& now = statements.back();
    now.lines.push_back({date, list.text(row, DealCol::Item), list.text(row, DealCol::Norm),
                         list.text(row, DealCol::Quantity).toLongLong(),
                         list.text(row, DealCol::Price).toLongLong(),
                         list.text(row, DealCol::Amount).toLongLong(), list.text(row, DealCol::MainCode)});
    now.lastDate = date;
    now.total += now.lines.back().amount;
  }
  return statements;
}
