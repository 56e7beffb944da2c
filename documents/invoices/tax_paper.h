#pragma once
// A tax invoice on paper.
#include "documents/document_party.h"
#include "documents/invoices/clsPrintTax.h"
#include "documents/invoices/tax_layouts.h"
#include "documents/vat_split.h"

/** An invoice as it is printed and registered. */
struct TaxInvoice {
  QString serial = {}, clientCode = {}, clientName = {};
  DocumentParty buyer = {};
  QString dealDate = {}, issueDate = {};  ///< dealDate "yyyy-MM" or a day
  std::vector<TaxLine> lines = {};        ///< their amounts as they are printed
  VatSplit sums = {};
  QString list = {};  ///< what the register calls its items
};

struct TaxPaperChoice {
  DocumentLayout layout = DocumentLayout::FullA4;
  bool drawnForm = true;    ///< FullA4: the form under the texts
  bool withoutTax = false;  ///< ChkVat: nothing stands where the tax would
  bool receipt = false;     ///< "영수", else "청구"
};

class TaxPaper : public DocumentPaper {
 public:
  TaxPaper(TaxPaperChoice choice, DocumentParty supplier, pc::PaperShift margin);

  /** Both copies, on a further sheet where the items are more than four. */
  void put(pc::PrintJob& job, pc::PaperPlaces& places, const TaxInvoice& invoice) const;

 private:
  std::vector<QString> texts(const TaxInvoice& invoice) const;
  QStringList lineTexts(const TaxLine& line) const;

  const TaxPaperChoice choice_;
};

/** Digits of an amount, a minus in front of them; how many of so many cells stay empty. */
int blankCells(qint64 amount, int cells);
/** Whether both amounts fit into their cells. */
bool fitsCells(const VatSplit& sums);
/** "123-45-67890" of a number with or without dashes; any other text as it stands. */
QString businessNumberText(const QString& serial);
