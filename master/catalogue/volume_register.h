#pragma once
// The pressure regulators with their price a unit; seven of them are fixed. A changed price goes on to customers.
#include "master/registers/register_rules.h"

/** Boxes by column name: Size, Name, Unit (won a unit). */
class VolumeRegister : public RegisterRules {
 public:
  explicit VolumeRegister(Session& session);

  /** True for the first seven rows, whose size cannot change and which cannot be deleted. */
  bool chosenIsFixed() const;

  /** Sky blue, light enough to read on. */
  static constexpr int fixedColour = 0xCDEAF8;

 protected:
  Outcome insert(const RegisterFields& boxes) override;
  Outcome change(const RegisterFields& boxes) override;
  Outcome erase() override;
  Outcome saveWithoutRow(const RegisterFields& boxes) override;
  void dressList() override;

 private:
  Outcome checkRequired(const RegisterFields& boxes);
  void spreadPrice(const QString& size, const QString& oldUnit, const QString& newUnit);
};
