#pragma once
// Whom a message goes to: customers by name or by what they owe, and which of them are ticked.
#include "links/sms_link.h"
#include "links/ticked_list.h"

namespace SmsCol {
enum { Tick = TickedList::Tick, Name, Tel, Balance };
}

enum class SmsFilter { Name, Balance };

class SmsSearch : public TickedList {
 public:
  using Teller = std::function<bool(int done)>;
  explicit SmsSearch(Session& session);

  /** Reads the list anew, no one ticked. name: part of one, '' for all; balance: won owed for gas at least. The last
   *  column shows what is owed under that filter alone, and its heading follows. beginWork is told the number of rows.
   *  False after a failed query has been told. */
  bool search(SmsFilter filter, const QString& name, qint64 balance,
              const std::function<Teller(int count)>& beginWork = {});
  /** Hands the ticked customers over; True when the tool was started. */
  bool send(int toolIndex);

 private:
  Session& session_;
};
