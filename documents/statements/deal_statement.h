#pragma once
// The statements that the ticked lines of the list make: a run of ticked lines of one customer each, their figures and
// who stands on them.
#include <optional>

#include "documents/statements/deal_sheet.h"
#include "documents/vat_split.h"
#include "store/session.h"

/** One of the two whose names stand on a paper. */
struct DocumentParty {
  QString serial = {};  ///< business number, as stored
  QString company = {}, person = {}, address = {}, status = {}, item = {};
  /** Of a company's or customer's row; each text from the first of the columns that the row has: the ledger's own
   *  names, then this system's. */
  static DocumentParty ofCompany(const jet::Recordset& row);
  static DocumentParty ofCustomer(const jet::Recordset& row);
};

struct DealLine {
  QString date = {}, item = {}, norm = {};
  qint64 quantity = 0, price = 0;  ///< pieces, won
  qint64 amount = 0;               ///< won
  QString saleId = {};
};

struct DealStatement {
  QString clientCode = {}, clientName = {};
  DocumentParty buyer = {};
  std::vector<DealLine> lines = {};
  QString firstDate = {}, lastDate = {};  ///< of its lines
  qint64 total = 0;                       ///< of the lines' amounts
  qint64 before = 0;                      ///< what the customer owed before it; won
};

/** The statements of these rows of the list, in its order; the customers are not read yet. */
std::vector<DealStatement> statementsOf(const SpreadModel& list, const std::vector<int>& rows);

/** Reads who a statement goes to. A customer deleted meanwhile keeps the name that the list shows. */
void readBuyer(Session& session, DealStatement& statement);

/** The company's row; nothing when none was entered. */
std::optional<DocumentParty> readSupplier(Session& session);
