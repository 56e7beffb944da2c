#include "samples/meter_keys.h"

#include "store/year_file.h"

using namespace Qt::StringLiterals;

namespace samples {
namespace {

QString meterRows(const QString& columns, int ofMonth, const MeterGroup& group) {
  return "Select " + columns +
         " From Evaporation LEFT JOIN Client ON Evaporation.ClientCode = Client.Code Where " + group.where +
         "And Evaporation.Mon = " + QString::number(ofMonth) + " ORDER BY Client." + group.order;
}

}  // namespace

MeterGroup sampleBlock() {
  return {u"Client.BDName = '달빛아파트' And Client.Dong = '101' And isnull(Client.Ho) = False "_s,
          u"Code"_s};
}

MeterGroup sampleShops() {
  return {u"Client.HouseStyle = 0 "_s, u"Name"_s};
}

MeterKeys::MeterKeys(Stage& stage, int year, int month)
    : stage_(stage), yearFile_(yearFileName(QString::number(year))), month_(month) {}

void MeterKeys::openBlock(int placeInList, bool firstTime) {
  stage_.keys({"alt+v", "2"});
  if (firstTime) {
    // From the buildings over the button and the day to the second check box, and back.
    stage_.keys({"Tab", "Tab", "Tab", "Tab", "space", "shift+Tab", "shift+Tab", "shift+Tab", "shift+Tab"});
  }
  for (int step = 0; step <= placeInList; ++step) stage_.keys({"Down"});  // the first stands for all
  stage_.keys({"Return"});
}

void MeterKeys::openShops() {
  stage_.keys({"alt+v", "1"});
}

void MeterKeys::enterReadings(const MeterGroup& group, int (*used)(int place)) {
  const QStringList before = stage_.query(yearFile_, meterRows("UseGage", month_ - 1, group));
  for (int place = 1; place <= before.size(); ++place) {
    stage_.type(QString::number(before[place - 1].toLongLong() + used(place)));
    stage_.keys({"Return"});
    stage_.awaitWindow(u"체적 관리자"_s);  // whether the cell shall be changed
    stage_.keys({"Return"});
  }
  stage_.awaitRow(yearFile_,
                  "Select Count(Evaporation.Mon) From Evaporation LEFT JOIN Client ON Evaporation.ClientCode "
                  "= Client.Code Where " +
                      group.where + "And Evaporation.Mon = " + QString::number(month_) + " And UseGage <> 0",
                  QString::number(before.size()));
}

QList<MonthBill> MeterKeys::bills(const MeterGroup& group) const {
  QList<MonthBill> list;
  const QStringList rows = stage_.query(
      yearFile_,
      meterRows("Client.Code, Client.Name, UseGage, UseMuch, UsePay, Evaporation.Trust, Delay, Manage, Total",
                month_, group));
  for (const QString& row : rows) {
    const QStringList cells = row.split(u'\t');
    const auto whole = [&](int at) { return cells.value(at).toLongLong(); };
    list.push_back(
        {whole(0), cells.value(1), whole(2), whole(3), whole(4), whole(5), whole(6), whole(7), whole(8)});
  }
  return list;
}

}  // namespace samples
