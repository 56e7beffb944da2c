#include "master/meter_rows.h"

#include <set>

namespace {

constexpr int lastMonth = 12;

void addMeterRow(const Session& session, qint64 clientCode, int month) {
  session.dbYear.Execute("Insert Into Evaporation(ClientCode, Mon) Values(" + QString::number(clientCode) +
                         ", " + QString::number(month) + ")");
}

}  // namespace

void addMeterRows(const Session& session, qint64 clientCode) {
  for (int month = 0; month <= lastMonth; ++month) addMeterRow(session, clientCode, month);
}

void completeMeterRows(const Session& session, qint64 clientCode) {
  std::set<qint64> there;
  jet::Recordset rows = session.dbYear.OpenRecordset("Select Mon From Evaporation Where ClientCode = " +
                                                     QString::number(clientCode));
  for (; !rows.atEnd(); rows.MoveNext()) there.insert(rows["Mon"].toLong());
  for (int month = 0; month <= lastMonth; ++month) {
    if (!there.contains(month)) addMeterRow(session, clientCode, month);
  }
}
