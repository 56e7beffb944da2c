#pragma once
// The delivery staff. Posted lines keep a name as text, so renaming or deleting here leaves them as they are.
#include "master/registers/register_rules.h"

/** Boxes by column name: Name, Tel, AppDate (joined, "yyyy-MM-dd"), IdentyNo, HP, PostCode, Address, Memo. */
class ResponseRegister : public RegisterRules {
 public:
  explicit ResponseRegister(Session& session);

 protected:
  RegisterFields blank() const override;
  Outcome insert(const RegisterFields& boxes) override;
  Outcome change(const RegisterFields& boxes) override;
  Outcome erase() override;

 private:
  /** A name there must be, and a date that is none is refused; a date passes on as "yyyy-MM-dd". */
  Outcome check(RegisterFields& boxes);
};
