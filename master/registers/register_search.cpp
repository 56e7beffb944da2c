#include "master/registers/register_search.h"

#include "store/data_access.h"

using namespace Qt::StringLiterals;

RegisterSearch RegisterSearch::volumes() {
  return RegisterSearch(u"frmSearchVolume"_s, u"압력조정기 조회"_s, "SpVolume",
                        {u"Select * From Volume Order By Code"_s,
                         {field::text(u"Size"_s, u"규격"_s, 14), field::text(u"Name"_s, u"명칭"_s, 22),
                          field::money(u"Unit"_s, u"단가"_s)}});
}

RegisterSearch RegisterSearch::responses() {
  return RegisterSearch(u"frmSearchResponse"_s, u"담당자 조회"_s, "SpResponse",
                        {u"Select * From Response"_s,
                         {field::text(u"Name"_s, u"담당자"_s, 14), field::text(u"Tel"_s, u"전화번호"_s, 16),
                          field::text(u"HP"_s, u"휴대폰"_s, 16)}});
}

RegisterSearch RegisterSearch::refills() {
  return RegisterSearch(u"frmSearchRefill"_s, u"거래처 조회"_s, "SpRefill",
                        {u"Select * From RefillState Order By Code"_s,
                         {field::text(u"Company"_s, u"상호"_s, 22), field::text(u"User"_s, u"대표자"_s, 10),
                          field::text(u"Tel"_s, u"전화번호"_s, 15), field::money(u"GasInit"_s, u"가스미불"_s),
                          field::money(u"UtilInit"_s, u"자재미불"_s)}});
}

RegisterSearch RegisterSearch::banks() {
  return RegisterSearch(
      u"frmSearchBank"_s, u"은행 조회"_s, "SpBank",
      {u"Select * From Bank"_s,
       {field::text(u"BName"_s, u"은행명"_s, 16), field::text(u"BNumber"_s, u"계좌번호"_s, 20),
        field::text(u"BUser"_s, u"예금주"_s, 14)}});
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
