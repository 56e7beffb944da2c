#include "master/customers/client_rows.h"

#include <set>
#include <vector>

#include "store/jet/sql.h"

namespace {

constexpr int lastMonth = 12;

void addMeterRow(const Session& session, qint64 clientCode, int month) {
  session.dbYear.Execute(jet::Sql() << u"Insert Into Evaporation(ClientCode, Mon) "
                                       u"Values("
                                    << clientCode << u", " << month << u")");
}

}  // namespace

qint64 addClient(const Session& session, QStringView insertStatement, bool metered) {
  qint64 code = 0;
  std::vector<jet::Database> files{session.dbBasic};
  if (metered) files.push_back(session.dbYear);
  session.wsMain.Together(files, [&] {
    session.dbBasic.Execute(insertStatement);
    code = session.dbBasic.OpenRecordset("Select Max(Code) As MCode From Client")["MCode"].toLong();
    for (int month = 0; metered && month <= lastMonth; ++month) addMeterRow(session, code, month);
  });
  return code;
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
