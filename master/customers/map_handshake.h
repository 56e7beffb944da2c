#pragma once
// A customer's map: handed to the map editor through the settings store, and its file taken back from there.
#include "store/session.h"

class MapHandshake {
 public:
  enum class State { Waiting, Done };

  explicit MapHandshake(Session& session) : session_(session) {}

  /** Hands the customer over, for the editor and for the map's page; False after telling why not. code 0: no customer is
   *  chosen. */
  bool handOver(qint64 clientCode);
  /** Hands the customer over and starts the editor; False after telling why not. code 0: no customer is chosen. */
  bool start(qint64 clientCode);
  /** Looks for the editor's answer; to be called again and again while Waiting. Stores the map's file with the
   *  customer once the editor has told one that exists. Throws jet::Error. */
  State look();

 private:
  Session& session_;
  qint64 clientCode_ = 0;
};
