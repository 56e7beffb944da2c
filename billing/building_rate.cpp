#include "billing/building_rate.h"

#include "store/data_access.h"
#include "store/session.h"
#include "store/settings_table.h"

using namespace Qt::StringLiterals;

double GetBuildingDelayPay(Session& session, qint64 code) {
  jet::Recordset rs;
  const QString sql =
      u"SELECT delaypay "
      "FROM Client LEFT JOIN apt ON (Client.BDName = apt.Name and client.Dong = apt.Dong )"
      " WHERE client.Code = "_s +
      QString::number(code);
  if (!OpenSnapshot(session.prompts, session.dbBasic, rs, sql) || rs.atEnd()) return 0;
  return rs[0].toDouble();
}

double lateRate(Session& session, HouseStyle book, qint64 code) {
  const double own = book == HouseStyle::Apartment ? GetBuildingDelayPay(session, code) : 0;
  return own != 0 ? own : session.rates.of(book).rate;
}

LateRates::LateRates(Session& session, HouseStyle book, bool buildingsToo)
    : ofBook_(session.rates.of(book).rate) {
  if (!buildingsToo || book != HouseStyle::Apartment) return;
  jet::Recordset rs;
  const QString sql =
      u"SELECT Client.Code, delaypay "
      "FROM apt INNER JOIN Client ON (Client.BDName = apt.Name and client.Dong = apt.Dong )"_s;
  if (!OpenSnapshot(session.prompts, session.dbBasic, rs, sql)) return;
  for (; !rs.atEnd(); rs.MoveNext()) {
    const qint64 code = rs[0].toLong();
    if (!own_.contains(code)) own_.insert(code, rs[1].toDouble());
  }
}

double LateRates::of(qint64 code) const {
  const double own = own_.value(code);
  return own != 0 ? own : ofBook_;
}

bool showsBlocks(const Session& session) {
  return session.pc.settings.read(setting::BlocksShown) != "0"_L1;
}

// Kept: exactly four characters go, also of "아파트 전체" and of a block whose name is not three characters long.
QString BuildingLabelForDong(Session& session, const QString& entry) {
  return showsBlocks(session) ? entry.chopped(qMin<qsizetype>(4, entry.size())) : entry;
}
