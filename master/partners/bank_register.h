#pragma once
// The accounts that slips are paid into.
#include "master/registers/register_rules.h"

/** Boxes by column name: BName (the key), BNumber (account), BUser (holder). */
class BankRegister : public KeyedRegister {
 public:
  explicit BankRegister(Session& session);

 protected:
  Outcome erase() override;

 private:
  /** The bank's name alone decides whether a row is added or changed, in every state; kept: a chosen bank under a new
   *  name becomes a further one. A row that is not the chosen one is written over only after a yes. */
  Outcome store(const RegisterFields& boxes) override;
};
