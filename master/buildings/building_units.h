#pragma once
// The units of a building by number, floor over floor, and the grid in which the operator corrects them.
#include <QStringList>

#include <vector>

#include "ui/model/spread_model.h"

/** How a building is laid out. */
struct BuildingPlan {
  static constexpr int Most = 99;  ///< floors, and units a floor

  int floors = 0;  ///< built ones: a floor 4 that does not exist is none of them
  int width = 0;   ///< units a floor
  bool staircase =
      true;            ///< households are made position by position from bottom to top, else floor by floor
  bool floor4 = true;  ///< a floor 4 exists; without one the numbers go on with 5
  bool unit4 = true;   ///< unit numbers may end in 4

  bool operator==(const BuildingPlan&) const = default;
};

/** Floors from the lowest, each with its units from the first position: floor x 100 + position. */
std::vector<std::vector<int>> unitNumbers(const BuildingPlan& plan);

/** Shows units as the building stands, the top floor in the first row; column 1 names the floor. A number that stands
 *  twice is marked. */
void showUnits(SpreadModel& grid, const std::vector<QStringList>& floorsFromBelow, bool locked);
/** Marks the numbers that stand more than once, after a correction. */
void markTwins(SpreadModel& grid);
/** The numbers as they stand in the grid, in the order in which their households are made. An emptied cell is a unit
 *  that does not exist. */
QStringList unitsAsShown(const SpreadModel& grid, bool staircase);
