#pragma once
// What the statement list does to the ledger: a changed quantity, a deleted line. Every failure is the caller's to tell.
#include "documents/ledger/clsTrade.h"

/** A customer's code as the ledger writes it, six digits. */
QString ledgerCode(const QString& client);

struct LedgerLine {
  QString code, client, date;  ///< the line's code, the customer's, "yyyy-MM-dd"
};

/** Recomputes the line by the trader's choice and the item's, moves it and its book row. The new total in won; nothing
 *  where it failed. */
std::optional<qint64> changeLedgerQuantity(const jet::Database& year, const LedgerLine& line, qint64 quantity,
                                           qint64 price);
/** Takes the line's amounts out of the book, then the line away. */
bool deleteLedgerLine(const jet::Database& year, const LedgerLine& line);
