#pragma once
// The statements that the ticked lines of the list make: a run of ticked lines of one customer each, their figures and
// who stands on them.
#include "documents/document_party.h"
#include "documents/statements/deal_sheet.h"
#include "documents/vat_split.h"

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
