#pragma once
// Finding customers by name, telephone tail, address or building; every screen's search goes through it.
#include "master/customers/client_entry.h"
#include "master/registers/pickers.h"
#include "store/session.h"
#include "ui/model/spread_model.h"

class ClientSearch {
 public:
  enum class Found { Failed, None, One, Several };
  enum Column { NameCol = 1, TelCol, AddressCol, KindCol, GasCol, MemoCol, CodeCol };

  explicit ClientSearch(Session& session);

  /** The statement for a search text. wholeNumber: a longer number must end the stored one, with or without its
   *  area code. */
  static QString statement(const QString& text, ClientSearchMode mode, bool wholeNumber);

  /** Runs the search and fills the list; Failed when the statement's failure has been told. */
  Found find(const QString& text, ClientSearchMode mode, bool wholeNumber);

  /** Asks whether a customer that was not found shall be registered. */
  bool askToRegister() const;

  SpreadModel& list() { return list_; }
  /** The customer on a row of the list; nothing outside it. */
  std::optional<ClientChoice> choice(int row) const;

 private:
  Session& session_;
  SpreadModel list_;
};
