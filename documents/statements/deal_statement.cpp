#include "documents/statements/deal_statement.h"

#include "documents/ledger/clsTrader.h"
#include "store/data_access.h"

namespace {

QString firstOf(const jet::Recordset& row, std::initializer_list<const char*> columns) {
  for (const char* column : columns)
    if (row.fieldIndex(column) >= 0) return row[column].toText();
  return {};
}

}  // namespace

DocumentParty DocumentParty::ofCompany(const jet::Recordset& row) {
  return {firstOf(row, {"Serial", "buscode"}),  firstOf(row, {"Company"}),
          firstOf(row, {"Delegate", "User"}),   firstOf(row, {"Addr", "Address"}),
          firstOf(row, {"Status", "BusStyle"}), firstOf(row, {"Item", "BusKind"})};
}

DocumentParty DocumentParty::ofCustomer(const jet::Recordset& row) {
  return {firstOf(row, {"Serial"}),          firstOf(row, {"C_Name", "Name"}),
          firstOf(row, {"U_Name", "UName"}), firstOf(row, {"Addr1", "Address"}),
          firstOf(row, {"Status"}),          firstOf(row, {"Item"})};
}

std::vector<DealStatement> statementsOf(const SpreadModel& list, const std::vector<int>& rows) {
  std::vector<DealStatement> statements;
  for (const int row : rows) {
    const QString client = list.text(row, DealCol::ClientCode), date = list.text(row, DealCol::Day);
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

void readBuyer(Session& session, DealStatement& statement) {
  const auto client = clsTrader(session.dbBasic).FindClient(statement.clientCode);
  if (!client || client->atEnd()) {
    statement.buyer = {.company = statement.clientName};
    return;
  }
  statement.buyer = DocumentParty::ofCustomer(*client);
  statement.before = (*client)["gasinit"].toLong() + (*client)["utilinit"].toLong();
}

std::optional<DocumentParty> readSupplier(Session& session) {
  jet::Recordset company;
  if (!OpenSnapshot(session.prompts, session.dbBasic, company, "Select * From User") || company.atEnd())
    return {};
  return DocumentParty::ofCompany(company);
}
