#pragma once
// Facilities and materials: the rows of Util, known by name and size together.
#include "master/registers/register_rules.h"

/** Boxes by column name: Name, Size, SizeSize (unit of measure), UtilPurchase, UtilSelling (won a piece),
 *  UtilStock (pieces). */
class UtilCatalogue : public RegisterRules {
 public:
  explicit UtilCatalogue(Session& session);

 protected:
  Outcome insert(const RegisterFields& boxes) override;
  Outcome change(const RegisterFields& boxes) override;
  Outcome erase() override;
  QStringList runningColumns() const override { return {"UtilStock"}; }

 private:
  Outcome checkRequired(const RegisterFields& boxes);
  static QString whereIs(const RegisterFields& row);
};
