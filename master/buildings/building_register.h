#pragma once
// The register of apartment blocks or of multi-family houses: one row a block, its households made with it.
#include <optional>

#include "master/buildings/building_households.h"
#include "master/buildings/building_units.h"
#include "master/registers/register_rules.h"

/** Boxes by column name: Name, Dong, Structure ("-1" staircase), Height, Width, PostCode, Address, Evaporation ("-1"
 *  metered), Pressure, Eva (won a unit), delaypay (percent a month); Chk4 and Chk4Ho ("-1" when floor 4 and unit
 *  numbers ending in 4 exist) count for a new block alone. */
class BuildingRegister : public RegisterRules {
 public:
  BuildingRegister(Session& session, HouseStyle style);

  HouseStyle houseStyle() const { return style_; }
  /** SpBDAddress: a new block's units, open to correction, or those of the chosen one's households. */
  SpreadModel& units() { return units_; }
  /** Fills the grid for the boxes as they stand. Corrections stay until what decides about the numbers changes. */
  void showUnits(const RegisterFields& boxes);

  /** Long work asks for a teller of the steps done out of so many; unset: nobody watches. */
  std::function<std::function<bool(int done)>(int count)> beginWork;

 protected:
  RegisterFields blank() const override;
  Outcome insert(const RegisterFields& boxes) override;
  Outcome change(const RegisterFields& boxes) override;
  Outcome erase() override;
  Outcome saveWithoutRow(const RegisterFields& boxes) override;
  void dressList() override;

 private:
  Outcome checkRequired(const RegisterFields& boxes);
  Outcome checkTwin(const Building& building);
  Building building(const RegisterFields& boxes) const;
  void showHouseholds();

  HouseStyle style_;
  SpreadModel units_;
  std::optional<BuildingPlan> plan_;  ///< what the shown numbers were made from; none: households are shown
};
