#pragma once
// The rules of FrmTax around its list.
#include "documents/document_papers.h"
#include "documents/invoices/tax_issue.h"

/** What the form's boxes ask for. */
struct TaxAsk {
  QDate from, to;
  std::optional<TaxGathering> gathering = TaxGathering::Monthly;  ///< nothing: typed invoices
  Vat vat = Vat::Included;
  TaxTab tab = TaxTab::Pending;
};

class TaxDesk {
 public:
  explicit TaxDesk(Session& session);

  SpreadModel& grid() { return sheet_.grid(); }
  const TaxSheet& sheet() const { return sheet_; }
  TickColumn& ticks() { return ticks_; }

  /** Empties what this station prepares. */
  void empty() { invoices_.Empty(); }
  /** Whether it prepares any. */
  bool hasPrepared() const { return !invoices_.List().atEnd(); }
  /** On the pending list anew from the sale lines; False after telling that the dates are no range. */
  bool gather(const TaxAsk& ask);
  /** Whether what is prepared was gathered for this question's days and kind. */
  bool isGatheredFor(const TaxAsk& ask) const;
  void list(const TaxAsk& ask);
  QString nextSerial(const QDate& day) const;
  /** A typed date of issue. False after telling that it is none or was not stored. */
  bool setIssueDate(int row, const QString& typed);
  /** Takes the row out of the register after a question. */
  bool deleteIssued(int row);
  /** The listed invoices as rows of the tax office's bulk form. receipt: they were paid for. */
  void fillBulk(SpreadModel& sheet, bool receipt);

  /** Whether there is anything to print and a company; what is missing is told. */
  bool hasPapers();
  /** Papers of what is ticked: pending ones with their next numbers and nothing issued, or those of the register. */
  DocumentRun papers(const TaxAsk& ask, const QString& serial, const TaxPaperChoice& choice);
  /** Issues what is ticked and gives the papers of what was issued. serial: the number offered, then the one behind. */
  DocumentRun issue(const TaxAsk& ask, QString& serial, const TaxPaperChoice& choice);

 private:
  DocumentRun runOf(std::vector<TaxInvoice> invoices, const TaxPaperChoice& choice);
  /** What is prepared stays of the kind it was gathered as, whatever was chosen since. */
  std::optional<TaxGathering> preparedAs(const TaxAsk& ask) const;

  Session& session_;
  clsPrintTax invoices_;
  TaxGatherer gatherer_;
  TaxIssuer issuer_;
  TaxSheet sheet_;
  TickColumn ticks_;
  TaxAsk gathered_;  ///< the last that was gathered for
};
