#pragma once
// Finding a customer for a document: by telephone, name or address, whatever the text begins with.
#include "store/session.h"
#include "ui/model/spread_model.h"

namespace TraderCol {
enum : int { Room = 1, Name, Tel, Address, Code };
}

class TraderSearch {
 public:
  explicit TraderSearch(Session& session);

  SpreadModel& list() { return list_; }
  /** Fills the list: 0 none found, 1 one, 2 several. */
  int search(QString text);
  /** The line of the list that a ledger's trader found by this beginning of his name stands on; 0 after telling that
   *  there is none. */
  int find(const QString& text);

 private:
  Session& session_;
  SpreadModel list_;
};
