#include "master/buildings/building_units.h"

#include <QHash>

#include <algorithm>

#include "ui/model/column.h"

namespace {

constexpr int firstUnitColumn = 2;
constexpr int twinColour = 0xF8D7D2;

/** Kept: only the last three digits are looked at, and the bounds themselves stay in. So floors 40 to 49 but 44
 *  exist, and so does the 99th unit of floor 4. */
int past4thFloor(int number, bool floor4) {
  const int inThousand = number % 1000;
  return !floor4 && inThousand > 400 && inThousand < 499 ? number + 100 : number;
}

int nextPosition(int number, bool unit4) {
  return number + (!unit4 && number % 10 == 3 ? 2 : 1);
}

}  // namespace

std::vector<std::vector<int>> unitNumbers(const BuildingPlan& plan) {
  std::vector<std::vector<int>> floors(size_t(std::max(0, plan.floors)));
  int first = 101;
  if (plan.staircase) {
    for (int position = 0; position < plan.width; ++position) {
      int number = first;
      for (std::vector<int>& floor : floors) {
        number = past4thFloor(number, plan.floor4);
        floor.push_back(number);
        number += 100;
      }
      first = nextPosition(first, plan.unit4);
    }
    return floors;
  }
  for (std::vector<int>& floor : floors) {
    first = past4thFloor(first, plan.floor4);
    int number = first;
    for (int position = 0; position < plan.width; ++position) {
      number = past4thFloor(number, plan.floor4);
      floor.push_back(number);
      number = nextPosition(number, plan.unit4);
    }
    first += 100;
  }
  return floors;
}

void showUnits(SpreadModel& grid, const std::vector<QStringList>& floorsFromBelow, bool locked) {
  qsizetype width = 0;
  for (const QStringList& floor : floorsFromBelow) width = std::max(width, floor.size());
  std::vector<SpreadColumn> columns{column::locked(column::centred("층", 6))};
  for (qsizetype position = 1; position <= width; ++position) {
    columns.push_back(column::limited(10, column::centred(QString::number(position), 6)));
    columns.back().locked = locked;
  }
  std::vector<std::vector<QString>> rows;
  for (auto floor = floorsFromBelow.rbegin(); floor != floorsFromBelow.rend(); ++floor) {
    const int number = floor->isEmpty() ? 0 : floor->front().toInt() / 100;
    std::vector<QString>& row = rows.emplace_back();
    row.push_back(number > 0 ? QString::number(number) + "층" : QString());
    row.insert(row.end(), floor->begin(), floor->end());
  }
  grid.clear();
  grid.setColumns(std::move(columns));
  grid.setRows(std::move(rows));
  markTwins(grid);
}

void markTwins(SpreadModel& grid) {
  QHash<QString, int> count;
  for (int row = 1; row <= grid.MaxRows(); ++row)
    for (int col = firstUnitColumn; col <= grid.MaxCols(); ++col) ++count[grid.text(row, col).trimmed()];
  count.remove({});
  for (int row = 1; row <= grid.MaxRows(); ++row)
    for (int col = firstUnitColumn; col <= grid.MaxCols(); ++col)
      grid.setBackground(row, col, count.value(grid.text(row, col).trimmed()) > 1 ? twinColour : -1);
}

QStringList unitsAsShown(const SpreadModel& grid, bool staircase) {
  QStringList units;
  const auto take = [&](int row, int col) {
    const QString number = grid.text(row, col).trimmed();
    if (!number.isEmpty()) units << number;
  };
  if (staircase) {
    for (int col = firstUnitColumn; col <= grid.MaxCols(); ++col)
      for (int row = grid.MaxRows(); row >= 1; --row) take(row, col);
  } else {
    for (int row = grid.MaxRows(); row >= 1; --row)
      for (int col = firstUnitColumn; col <= grid.MaxCols(); ++col) take(row, col);
  }
  return units;
}
