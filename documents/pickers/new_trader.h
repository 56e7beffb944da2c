#pragma once
// Registering a trader in the ledger.
#include "documents/ledger/clsTradeBook.h"
#include "documents/ledger/clsTrader.h"
#include "store/session.h"

/** What became of a save. */
enum class TraderSaved {
  Stored,     ///< the form closes
  Left,       ///< the operator leaves without storing
  BackToName  ///< he types again
};

/** Stores a new trader and the row of his book with the opening balance (fields.TotNoPay, in won). fields.Section: "1" a
 *  customer, else a supplier. The questions are asked here. */
TraderSaved saveNewTrader(Session& session, const TraderFields& fields);

/** The name of the delivery person with this code or name; nothing when there is none. */
std::optional<QString> responseNamed(Session& session, const QString& typed);
