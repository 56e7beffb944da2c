#pragma once
// Blocks with their households, made and deleted by the building register's rules as an operator does.
#include "master/buildings/building_register.h"
#include "tests/storm/books.h"

namespace storm {

/** The building register of one PC. */
class Builder {
 public:
  explicit Builder(Pc& here) : here_(here) {}

  /** Registers a metered block of floors times width households. Throws jet::Error. */
  void make(int block, int floors, int width);
  /** Deletes it from the list; false when it does not stand there. Throws jet::Error. */
  bool remove(int block);
  /** The blocks in the list with the count of households that it shows. */
  QMap<int, int> list();

 private:
  Pc& here_;
  BuildingRegister buildings_{here_.session, HouseStyle::Apartment};
};

/** Whose rows stand in the books, whatever the list shows. */
struct BuildingRows {
  int heads = 0, households = 0;  ///< customers of a building without and with a unit
  int meterRows = 0;              ///< of all of them
  bool operator==(const BuildingRows&) const = default;
};
BuildingRows buildingRows(const Session& session);

/** The process's work: ROOT SEED FLOORS WIDTH: makes a block and deletes it, over and over, until it is killed. A
 *  fifth argument: "stay" leaves them standing, "pause" rests a moment in between, as an operator does. */
int runBuilder(const QStringList& arguments);

}  // namespace storm
