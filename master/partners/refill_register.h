#pragma once
// The refill stations and other suppliers that purchases name.
#include "master/registers/register_rules.h"

/** Boxes by column name: Company, User (owner), BusCode, Tel, Fax, PostCode, Address, GasInit, UtilInit (owed, won). */
class RefillRegister : public RegisterRules {
 public:
  explicit RefillRegister(Session& session);

 protected:
  Outcome insert(const RegisterFields& boxes) override;
  Outcome change(const RegisterFields& boxes) override;
  Outcome erase() override;
  QStringList runningColumns() const override { return {"GasInit", "UtilInit"}; }

 private:
  /** False when the operator would rather not have two stations of one name. */
  bool nameAccepted(const QString& company, const QString& ownCode);
  void renameLines(const jet::Database& year, const QString& from, const QString& to) const;
  QString nextCode() const;
  void insertWith(const RegisterFields& boxes, const QString& code);
};
