#pragma once
// Sale lines become invoices under preparation, a month's file after the other.
#include <QDate>

#include "documents/invoices/clsPrintTax.h"
#include "store/session.h"

/** A part of the range as it was gathered; "yyyy-MM-dd". */
struct TaxPart {
  QString from, to;
};

class TaxGatherer {
 public:
  TaxGatherer(Session& session, clsPrintTax& invoices) : session_(session), invoices_(invoices) {}

  /** Empties what is under preparation and gathers anew; a year without a file is skipped. False after telling that an
   *  insert failed: the run ends there. */
  bool gather(const QDate& from, const QDate& to, TaxGathering kind);

  /** The days whose lines stand behind an invoice of this date ("yyyy-MM" or a day) of the last run; empty when it was
   *  none of it. */
  TaxPart partOf(const QString& date) const;

 private:
  bool gatherPart(const TaxPart& part, TaxGathering kind);

  Session& session_;
  clsPrintTax& invoices_;
  std::vector<TaxPart> parts_;
  QString code_;  ///< the last one given
};
