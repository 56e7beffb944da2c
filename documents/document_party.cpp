#include "documents/document_party.h"

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

std::optional<DocumentParty> readSupplier(Session& session) {
  jet::Recordset company;
  if (!OpenSnapshot(session.prompts, session.dbBasic, company, "Select * From User") || company.atEnd())
    return {};
  return DocumentParty::ofCompany(company);
}

DocumentBuyer readBuyer(Session& session, const QString& code, const QString& name) {
  const auto client = code.isEmpty() ? std::nullopt : clsTrader(session.dbBasic).FindClient(code);
  if (!client || client->atEnd()) return {.party = {.company = name}};
  return {.party = DocumentParty::ofCustomer(*client),
          .owed = (*client)["gasinit"].toLong() + (*client)["utilinit"].toLong()};
}

std::vector<QString> partyTexts(int count, const DocumentParty& supplier, const DocumentParty& buyer) {
  std::vector<QString> made;
  made.reserve(size_t(count));
  for (const DocumentParty* who : {&supplier, &buyer})
    for (const QString* text :
         {&who->serial, &who->company, &who->person, &who->address, &who->status, &who->item})
      made.push_back(*text);
  made.resize(size_t(count));
  return made;
}
