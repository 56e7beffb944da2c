#include "master/registers/register_search.h"

#include "store/data_access.h"

using namespace Qt::StringLiterals;

RegisterSearch::Column RegisterSearch::text(const QString& field, const QString& header, double width) {
  return {field, {.header = header, .width = width, .locked = true}};
}

RegisterSearch::Column RegisterSearch::money(const QString& field, const QString& header, double width) {
  return {
      field,
      {.header = header, .width = width, .kind = CellKind::Money, .align = CellAlign::Right, .locked = true}};
}

RegisterSearch RegisterSearch::volumes() {
  return {u"압력조정기 조회"_s,
          u"Select * From Volume Order By Code"_s,
          {text(u"Size"_s, u"규격"_s, 14), text(u"Name"_s, u"명칭"_s, 22), money(u"Unit"_s, u"단가"_s, 12)}};
}

RegisterSearch RegisterSearch::responses() {
  return {
      u"담당자 조회"_s,
      u"Select * From Response"_s,
      {text(u"Name"_s, u"담당자"_s, 14), text(u"Tel"_s, u"전화번호"_s, 16), text(u"HP"_s, u"휴대폰"_s, 16)}};
}

RegisterSearch RegisterSearch::refills() {
  return {
      u"거래처 조회"_s,
      u"Select * From RefillState Order By Code"_s,
      {text(u"Company"_s, u"상호"_s, 22), text(u"User"_s, u"대표자"_s, 10), text(u"Tel"_s, u"전화번호"_s, 15),
       money(u"GasInit"_s, u"가스미불"_s, 12), money(u"UtilInit"_s, u"자재미불"_s, 12)}};
}

RegisterSearch RegisterSearch::banks() {
  return {u"은행 조회"_s,
          u"Select * From Bank"_s,
          {text(u"BName"_s, u"은행명"_s, 16), text(u"BNumber"_s, u"계좌번호"_s, 20),
           text(u"BUser"_s, u"예금주"_s, 14)}};
}

bool RegisterSearch::load(Session& session, SpreadModel& list) const {
  std::vector<SpreadColumn> looks;
  for (const Column& column : columns_) looks.push_back(column.look);
  list.clear();
  list.setColumns(std::move(looks));
  jet::Recordset rs;
  if (!OpenSnapshot(session.prompts, session.dbBasic, rs, statement_)) return false;
  std::vector<std::vector<QString>> rows;
  for (; !rs.atEnd(); rs.MoveNext()) {
    std::vector<QString> row;
    for (const Column& column : columns_) row.push_back(rs[column.field].toText());
    rows.push_back(std::move(row));
  }
  list.setRows(std::move(rows));
  return true;
}
