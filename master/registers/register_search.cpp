#include "master/registers/register_search.h"

#include "store/data_access.h"

using namespace Qt::StringLiterals;

RegisterSearch RegisterSearch::volumes() {
  return {u"frmSearchVolume"_s,
          u"압력조정기 조회"_s,
          "SpVolume",
          {u"Select * From Volume Order By Code"_s,
           {{u"Size"_s, column::text(u"규격"_s, 14)},
            {u"Name"_s, column::text(u"명칭"_s, 22)},
            {u"Unit"_s, column::money(u"단가"_s)}}}};
}

RegisterSearch RegisterSearch::responses() {
  return {u"frmSearchResponse"_s,
          u"담당자 조회"_s,
          "SpResponse",
          {u"Select * From Response"_s,
           {{u"Name"_s, column::text(u"담당자"_s, 14)},
            {u"Tel"_s, column::text(u"전화번호"_s, 16)},
            {u"HP"_s, column::text(u"휴대폰"_s, 16)}}}};
}

RegisterSearch RegisterSearch::refills() {
  return {u"frmSearchRefill"_s,
          u"거래처 조회"_s,
          "SpRefill",
          {u"Select * From RefillState Order By Code"_s,
           {{u"Company"_s, column::text(u"상호"_s, 22)},
            {u"User"_s, column::text(u"대표자"_s, 10)},
            {u"Tel"_s, column::text(u"전화번호"_s, 15)},
            {u"GasInit"_s, column::money(u"가스미불"_s)},
            {u"UtilInit"_s, column::money(u"자재미불"_s)}}}};
}

RegisterSearch RegisterSearch::banks() {
  return {u"frmSearchBank"_s,
          u"은행 조회"_s,
          "SpBank",
          {u"Select * From Bank"_s,
           {{u"BName"_s, column::text(u"은행명"_s, 16)},
            {u"BNumber"_s, column::text(u"계좌번호"_s, 20)},
            {u"BUser"_s, column::text(u"예금주"_s, 14)}}}};
}

bool RegisterSearch::load(Session& session, SpreadModel& list) const {
  list.clear();
  list.setColumns(looksOf(list_));
  jet::Recordset rs;
  if (!OpenSnapshot(session.prompts, session.dbBasic, rs, list_.statement)) return false;
  std::vector<std::vector<QString>> rows;
  for (; !rs.atEnd(); rs.MoveNext()) rows.push_back(cellsOf(list_, fieldsOf(rs)));
  list.setRows(std::move(rows));
  return true;
}
