#pragma once
// What is the sale screen's own of the hand on a line: its three sheets' customers and a caller's number.
#include "master/customers/calls.h"
#include "master/customers/tel_format.h"
#include "trade/line_entry.h"
#include "trade/sale_book.h"

class SaleEntry : public LineEntry {
 public:
  SaleEntry(SaleBook& book, Pickers& pickers, WaitingCalls& calls);

  /** Whether a call can land: the cursor on an empty customer cell, no search under way. */
  bool canTakeCaller(int col, const QString& cellText) const;
  /** A customer with exactly this number opens a line on his sheet; any other number is dropped into the customer cell
   *  and searched, and PutBack says that nobody was chosen. An empty number fetches the oldest waiting one; nothing
   *  when there is none. A failure leaves that one in the list. */
  std::optional<LineStep> TakeCallerNumber(const QString& number);

 protected:
  LineStep choosePartner(int row, const QString& text) override;

 private:
  bool isMetered(qint64 client);
  LineStep beginAtBottom(const ClientChoice& client, SaleSheet sheet);
  LineStep takeCaller(const TelNumber& tel);
  std::optional<bool> firstMetered(const QString& localPart);

  SaleBook& sales_;
  WaitingCalls& calls_;
};
