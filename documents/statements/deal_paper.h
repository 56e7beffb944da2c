#pragma once
// A statement on paper: its sheets and copies in one of the layouts.
#include "documents/statements/deal_layouts.h"
#include "documents/statements/deal_statement.h"

struct DealPaperChoice {
  DocumentLayout layout = DocumentLayout::HalfA4;
  std::optional<Vat> vat = Vat::Included;  ///< nothing: supply and tax are not worked out
  bool drawnForm = true;                   ///< FullA4: the form under the texts
  bool dated = true;                       ///< lines tell their date: the range is more than one day
  QDate issued = {};
};

class DealPaper : public DocumentPaper {
 public:
  /** margin: the operator's correction; HalfA4 moves two columns more to the right. */
  DealPaper(DealPaperChoice choice, DocumentParty supplier, pc::PaperShift margin);

  /** All sheets of one statement, each with both copies; it begins on a sheet of its own. */
  void put(pc::PrintJob& job, pc::PaperPlaces& places, const DealStatement& statement) const;

 private:
  struct Sums {
    qint64 supply = 0, tax = 0, total = 0, page = 0;
  };
  std::vector<QString> texts(const DealStatement& statement, const pc::PaperSheet& sheet,
                             const Sums& sums) const;
  QStringList lineTexts(const DealLine& line, const std::optional<VatSplit>& split) const;

  const DealPaperChoice choice_;
};
