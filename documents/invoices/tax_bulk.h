#pragma once
// Issued invoices as the rows of the tax office's bulk form: an invoice a row, four items at most.
#include "documents/invoices/tax_paper.h"
#include "ui/model/spread_model.h"

inline constexpr int bulkItems = 4;

/** Fills a sheet with the form's columns; amounts are numbers, business numbers ten digits. What an invoice has beyond
 *  four items is added up in the fourth. */
void fillBulkSheet(SpreadModel& sheet, const DocumentParty& supplier, const std::vector<TaxInvoice>& invoices,
                   bool receipt);
