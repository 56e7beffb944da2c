#include "links/sms_search.h"

#include "store/data_access.h"
#include "store/vb.h"
#include "ui/model/column.h"

using namespace Qt::StringLiterals;

namespace {

QString clientStatement(SmsFilter filter, const QString& name, qint64 balance) {
  QString sql = u"SELECT Name, Tel, GasInit FROM Client"_s;
  if (filter == SmsFilter::Balance)
    sql += u" Where GasInit >= "_s + QString::number(balance);
  else if (!name.isEmpty())
    sql += u" Where Name Like '*"_s + plainText(name) + u"*'"_s;
  return sql + u" ORDER BY Name"_s;
}

}  // namespace

SmsSearch::SmsSearch(Session& session) : session_(session) {
  list_.setColumns({column::tick(u"선택"_s), column::locked(column::text(u"거래처명"_s, 30)),
                    column::locked(column::text(u"전화 번호"_s, 34)),
                    column::locked(column::right(u"비 고"_s, 14))});
}

bool SmsSearch::search(SmsFilter filter, const QString& name, qint64 balance,
                       const std::function<Teller(int count)>& beginWork) {
  const bool owed = filter == SmsFilter::Balance;
  list_.clear();
  list_.setColumnHeader(SmsCol::Balance, owed ? u"미수금"_s : u"비 고"_s);
  jet::Recordset clients;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, clients, clientStatement(filter, name, balance)))
    return false;
  if (!clients.atEnd()) {
    clients.MoveLast();  // only then the rows are counted
    clients.MoveFirst();
  }
  const Teller tell = beginWork ? beginWork(clients.RecordCount()) : nullptr;
  std::vector<std::vector<QString>> rows;
  for (; !clients.atEnd(); clients.MoveNext()) {
    rows.push_back({u"0"_s, clients[u"Name"_s].toText(), clients[u"Tel"_s].toText(),
                    owed ? vb::Format(clients[u"GasInit"_s].toDouble(), u"#,##0"_s) : QString()});
    if (tell) tell(int(rows.size()));
  }
  list_.setRows(std::move(rows));
  return true;
}

bool SmsSearch::send(int toolIndex) {
  return TransFromSpread(session_, list_, SmsCol::Tick, SmsCol::Name, SmsCol::Tel, toolIndex);
}
