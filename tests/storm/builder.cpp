#include "tests/storm/builder.h"

#include <QThread>

#include "store/jet/error.h"
#include "tests/storm/poster.h"

using namespace Qt::StringLiterals;

namespace storm {

void Builder::make(int block, int floors, int width) {
  RegisterFields boxes = buildings_.beginNew();
  boxes.insert({{u"Name"_s, u"달빛"_s},
                {u"Dong"_s, QString::number(block)},
                {u"Height"_s, QString::number(floors)},
                {u"Width"_s, QString::number(width)},
                {u"PostCode"_s, u"712-010"_s},
                {u"Address"_s, u"장터동 7"_s},
                {u"Evaporation"_s, u"-1"_s},
                {u"Pressure"_s, u"4"_s},
                {u"Eva"_s, u"2450"_s},
                {u"delaypay"_s, u"1.5"_s}});
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
  return {count(u"Select Count(Code) As C From Client Where BDName = '달빛' And Ho Is Null"_s),
          count(u"Select Count(Code) As C From Client Where BDName = '달빛' And Ho Is Not Null"_s),
          count(u"Select Count(Mon) As C From Evaporation Where ClientCode > "_s +
                QString::number(clientCount + meteredCount))};
}

int runBuilder(const QStringList& arguments) {
  const auto number = [&](int at) { return arguments.value(at).toInt(); };
  Pc here(arguments.at(0));
  here.open();
  Builder builder(here);
  const auto tell = [](const char* what, int block) {
    report(QLatin1String(what) + u' ' + QString::number(block));
  };
  report(QLatin1String(word::ready));
  for (int block = number(1) * 10000;; ++block) {
    tell(word::at, block);
    builder.make(block, number(2), number(3));
    tell(word::made, block);
    if (arguments.value(4) == u"stay") continue;
    if (arguments.value(4) == u"pause") QThread::msleep(100);
    tell(word::at, block);
    if (!builder.remove(block)) return 8;
    tell(word::razed, block);
    if (arguments.value(4) == u"pause") QThread::msleep(100);
  }
}

}  // namespace storm
