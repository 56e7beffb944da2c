#pragma once
// Who stands on a paper: the company and the customer.
#include <optional>

#include "documents/document_layout.h"
#include "store/session.h"

struct DocumentParty {
  QString serial = {};  ///< business number, as stored
  QString company = {}, person = {}, address = {}, status = {}, item = {};
  /** Of a company's or customer's row; each text from the first of the columns that the row has: the ledger's own
   *  names, then this system's. */
  static DocumentParty ofCompany(const jet::Recordset& row);
  static DocumentParty ofCustomer(const jet::Recordset& row);
};

/** A customer as a paper needs him. */
struct DocumentBuyer {
  DocumentParty party = {};
  qint64 owed = 0;  ///< his opening arrears, gas and other, in won
};

/** The company's row; nothing when none was entered. */
std::optional<DocumentParty> readSupplier(Session& session);
/** A customer deleted meanwhile keeps the name that the list shows. */
DocumentBuyer readBuyer(Session& session, const QString& code, const QString& name);

/** A paper's texts, so many of them, with both parties' in their places. */
std::vector<QString> partyTexts(int count, const DocumentParty& supplier, const DocumentParty& buyer);

/** What every paper stands on: its form, who gives it out, how far the operator moves it. */
class DocumentPaper {
 public:
  const pc::PaperForm& form() const { return form_; }

 protected:
  DocumentPaper(const pc::PaperForm& form, DocumentParty supplier, const pc::PaperShift& margin)
      : form_(form), supplier_(std::move(supplier)), margin_(margin) {}

  const pc::PaperForm& form_;
  const DocumentParty supplier_;
  const pc::PaperShift margin_;
};
