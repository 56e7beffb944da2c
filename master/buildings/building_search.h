#pragma once
// Choosing a household's building: first the building, then, where it has several blocks, the block.
#include "master/customers/client_entry.h"
#include "master/registers/pickers.h"
#include "store/session.h"
#include "ui/model/spread_model.h"

class BuildingSearch {
 public:
  BuildingSearch(Session& session, HouseStyle style);

  /** Buildings of the style, one row each: name, count of blocks, address. False after telling that there are
   *  none, or after a failed query. */
  bool loadBuildings();
  SpreadModel& buildings() { return buildings_; }

  /** Blocks of one building: block, floors, postcode, address. False after a failed query. */
  bool loadBlocks(const QString& name);
  SpreadModel& blocks() { return blocks_; }

  /** What is registered of one block; nothing when there is none. */
  std::optional<BuildingChoice> choice(const QString& name, const QString& dong) const;

 private:
  Session& session_;
  HouseStyle style_;
  SpreadModel buildings_, blocks_;
};
