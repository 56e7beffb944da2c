#pragma once
// Issuing: the sale lines leave the pool, the invoice takes its number in the register, and only then is it printed.
// All of it in one group, so that of two PCs one gets the lines and no number is given twice.
#include "documents/invoices/tax_gathering.h"
#include "documents/invoices/tax_paper.h"
#include "documents/invoices/tax_sheet.h"

struct TaxIssueAsk {
  std::optional<TaxGathering> gathering = TaxGathering::Monthly;  ///< nothing: typed invoices
  Vat vat = Vat::Included;
  QString serial = {};  ///< the number offered; an invoice of another month takes its own month's next one
};

struct TaxIssue {
  std::vector<TaxInvoice> issued = {};
  QString nextSerial = {};
  int moved = 0;   ///< rows whose sale lines are not those of the list any more; they stay pending
  int unfit = 0;   ///< rows whose amounts have more digits than the form has cells; they stay too
  int failed = 0;  ///< rows whose register row was refused; they are gone from what is prepared
};

class TaxIssuer {
 public:
  TaxIssuer(Session& session, clsPrintTax& invoices, const TaxGatherer& gatherer)
      : session_(session), invoices_(invoices), gatherer_(gatherer) {}

  TaxIssue issue(const TaxSheet& sheet, const std::vector<int>& rows, const TaxIssueAsk& ask);
  /** Tells what kept rows from being issued; nothing when all were. */
  void tell(const TaxIssue& issue);

  /** The invoices of these rows as they would be printed, nothing issued: their numbers are the next ones. */
  std::vector<TaxInvoice> preview(const TaxSheet& sheet, const std::vector<int>& rows,
                                  const TaxIssueAsk& ask);
  /** Those of the register, once more. */
  std::vector<TaxInvoice> reprint(const TaxSheet& sheet, const std::vector<int>& rows);
  /** Takes one row out of the register. The sale lines keep their mark. False after telling that it failed. */
  bool deleteIssued(const QString& serial);

 private:
  enum class Claim { Got, Moved, Refused };
  TaxInvoice pendingOf(const TaxSheet& sheet, int row, const TaxIssueAsk& ask) const;
  Claim claim(const jet::Database& year, const TaxInvoice& invoice, const QString& section);
  QString freeSerial(const QString& wanted) const;
  void readBuyer(TaxInvoice& invoice) const;
  bool removeInvoice(const QString& serial);
  bool fileInvoice(const TaxInvoice& invoice, const QString& section);

  Session& session_;
  clsPrintTax& invoices_;
  const TaxGatherer& gatherer_;
};
