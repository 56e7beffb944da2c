#pragma once
// The rules of FrmDealList around its list: ticks, a changed quantity, deleting, and the papers of what is ticked.
#include "documents/document_papers.h"
#include "documents/statements/deal_paper.h"
#include "documents/statements/deal_search.h"

/** What the form's boxes say when something is printed. */
struct DealPrint {
  DocumentLayout layout = DocumentLayout::HalfA4;
  std::optional<Vat> vat = Vat::Included;
  bool drawnForm = true;
};

class DealDesk {
 public:
  explicit DealDesk(Session& session);

  SpreadModel& grid() { return search_.grid(); }
  TickColumn& ticks() { return ticks_; }
  const DealSearch& found() const { return search_; }

  bool search(const DealAsk& ask);
  /** What the list is of. */
  DealTab tab() const { return asked_.tab; }
  /** "yyyy-mm-00": the opening balance of the newest month in a year's file; '' when it holds no sale. */
  QString openingKey(const QString& year) const;

  /** A quantity typed in the list. False after telling that the ledger did not take it. */
  bool changeQuantity(int row, const QString& text);
  /** Deletes what is ticked after a question; True when the list is to be read anew. */
  bool deleteTicked();

  /** Whether there is anything to print and a company; what is missing is told. */
  bool hasPapers();
  /** The papers of what is ticked, nothing issued. */
  DocumentRun papers(const DealPrint& print);
  /** On the pending list the lines become issued, each once whatever other PCs do, and only those that did are on the
   *  papers; of an issued list the papers alone. */
  DocumentRun issue(const DealPrint& print);

 private:
  DocumentRun runOf(std::vector<DealStatement> statements, const DealPrint& print);
  std::vector<DealStatement> statementsOfRows(const std::vector<int>& rows, const DealPrint& print);
  bool deleteRow(int row);

  Session& session_;
  jet::Database history_;  ///< dbDetail.mdb, open as long as the form
  DealSearch search_;
  TickColumn ticks_;
  DealAsk asked_;
};
