#include "tests/storm/builder.h"

#include <QThread>

#include "store/jet/error.h"
#include "tests/storm/poster.h"

namespace storm {

void Builder::make(int block, int floors, int width) {
  RegisterFields boxes = buildings_.beginNew();
  boxes.insert({{"Name", "달빛"},
                {"Dong", QString::number(block)},
                {"Height", QString::number(floors)},
                {"Width", QString::number(width)},
                {"PostCode", "712-010"},
                {"Address", "장터동 7"},
                {"Evaporation", "-1"},
                {"Pressure", "4"},
                {"Eva", "2450"},
                {"delaypay", "1.5"}});
  buildings_.save(boxes);
}

bool Builder::remove(int block) {
  buildings_.load();
  for (int row = 1; row <= buildings_.list().MaxRows(); ++row) {
    if (buildings_.list().text(row, 2).toInt() != block) continue;
    buildings_.select(row);
    return buildings_.remove().done;
  }
  return false;
}

QMap<int, int> Builder::list() {
  buildings_.load();
  const SpreadModel& rows = buildings_.list();
  QMap<int, int> blocks;
  for (int row = 1; row <= rows.MaxRows(); ++row)
    blocks[rows.text(row, 2).toInt()] = rows.text(row, 6).toInt();
  return blocks;
}

BuildingRows buildingRows(const Session& session) {
  const auto count = [&](const QString& sql) { return int(session.dbYear.OpenRecordset(sql)[0].toLong()); };
  return {count("Select Count(Code) As C From Client Where BDName = '달빛' And Ho Is Null"),
          count("Select Count(Code) As C From Client Where BDName = '달빛' And Ho Is Not Null"),
          count("Select Count(Mon) As C From Evaporation Where ClientCode > " +
                QString::number(clientCount + meteredCount))};
}

int runBuilder(const QStringList& arguments) {
  const auto number = [&](int at) { return arguments.value(at).toInt(); };
  OpenPc here(arguments.at(0));
  Builder builder(here);
  report(word::ready);
  for (int block = number(1) * 10000;; ++block) {
    report(word::at, block);
    builder.make(block, number(2), number(3));
    report(word::made, block);
    if (arguments.value(4) == u"stay") continue;
    if (arguments.value(4) == u"pause") QThread::msleep(100);
    report(word::at, block);
    if (!builder.remove(block)) return 8;
    report(word::razed, block);
    if (arguments.value(4) == u"pause") QThread::msleep(100);
  }
}

}  // namespace storm
