#pragma once
// The cylinders that each delivery person has on the van, by item. Kept by hand; no posting moves it.
#include "master/registers/register_rules.h"

/** Boxes by column name: ResName, LPGName, CANSize (together the key), CANEmpty, CANFull, CANTotal (pieces). */
class CanBook : public KeyedRegister {
 public:
  explicit CanBook(Session& session);

  /** The list on paper. Throws jet::Error. */
  void print();

 protected:
  Outcome erase() override;

 private:
  /** Person, name and size alone decide whether a row is added or changed, in every state. */
  Outcome store(const RegisterFields& boxes) override;
};
