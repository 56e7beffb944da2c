#include "master/buildings/building_households.h"

#include <optional>

#include "master/customers/client_rows.h"
#include "master/registers/register_rules.h"
#include "store/data_access.h"
#include "store/jet/error.h"
#include "store/jet/sql.h"
#include "store/long_work.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto registerOfBuildings = "건물관리자";

QString yesNo(bool yes) {
  return yes ? "True" : "False";
}

QString buildingStatement(const Building& b) {
  return "Insert Into APT(Name, PostCode, Address, Dong, Structure, Height, Width, "
         "Evaporation, Gubun, Pressure, Eva, delaypay) Values('" +
         plainText(b.name) + "', '" + plainText(b.postCode) + "', '" + plainText(b.address) + "', '" +
         plainText(b.dong) + "', " + yesNo(b.staircase) + ", " + QString::number(b.floors) + ", " +
         QString::number(b.width) + ", " + yesNo(b.metered) + ", " +
         yesNo(b.houseStyle == HouseStyle::Apartment) + ", '" + plainText(b.pressure) + "', " +
         typedNumber(b.unitPrice) + ", " + typedNumber(b.lateRate) + ")";
}

void putPlace(jet::Sql& sql, const Building& b) {
  sql << int(b.houseStyle) << u", '" << plainText(b.name) << u"', '" << plainText(b.dong) << u"', ";
}

/** What head row and households share behind their place. */
void putShared(jet::Sql& sql, const Session& session, const Building& b) {
  sql << u"'" << plainText(b.postCode) << u"', '" << plainText(b.address) << u"', " << yesNo(b.metered)
      << u", '" << plainText(b.pressure) << u"', " << typedNumber(b.unitPrice) << u", 2, '"
      << plainText(session.pc.clock.dateText()) << u"')";
}

jet::Sql headStatement(const Session& session, const Building& b) {
  jet::Sql sql;
  sql << u"Insert Into Client(Name, HouseStyle, BDName, Dong, PostCode, Address, VolumeYesNo, "
         u"Volume, VolumeUnit, PayWay, AppDate) Values('"
      << plainText(b.name) << u" " << plainText(b.dong) << u"동', ";
  putPlace(sql, b);
  putShared(sql, session, b);
  return sql;
}

jet::Sql householdStatement(const Session& session, const Building& b, const QString& unit) {
  jet::Sql sql;
  sql << u"Insert Into Client(Name, HouseStyle, BDName, Dong, Ho, PostCode, Address, VolumeYesNo, "
         u"Volume, VolumeUnit, PayWay, AppDate) Values('"
      << plainText(b.name) << u" " << plainText(b.dong) << u"동 " << plainText(unit) << u"호', ";
  putPlace(sql, b);
  sql << u"'" << plainText(unit) << u"', ";
  putShared(sql, session, b);
  return sql;
}

QString ofBlock(const QString& name, const QString& dong) {
  return "Where BDName = '" + plainText(name) + "' And Dong = '" + plainText(dong) + "'";
}

/** Codes of the customers under a block, head row included. Asks both files, so that a group is sure of them before it
 *  changes the first. */
QStringList codesOfBlock(const Session& session, const QString& name, const QString& dong) {
  QStringList codes;
  jet::Recordset rows = session.dbYear.OpenRecordset(
      "Select Distinct Client.Code From Client LEFT JOIN Evaporation ON Client.Code = "
      "Evaporation.ClientCode " +
      ofBlock(name, dong));
  for (; !rows.atEnd(); rows.MoveNext()) codes << rows["Code"].toText();
  return codes;
}

/** Customers who stood under the block's name before are not this building's and stay. */
void takeBack(const Session& session, const Building& b, qint64 lastCodeBefore) {
  session.wsMain.Together([&] {
    for (const QString& code : codesOfBlock(session, b.name, b.dong)) {
      if (code.toLongLong() <= lastCodeBefore) continue;
      session.dbYear.Execute("Delete * From Evaporation Where ClientCode = " + plainNumber(code));
      session.dbBasic.Execute("Delete * From Client Where Code = " + plainNumber(code));
    }
    session.dbBasic.Execute("Delete * From APT Where Name = '" + plainText(b.name) + "' And Dong = '" +
                            plainText(b.dong) + "'");
  });
}

}  // namespace

void makeBuilding(const Session& session, const Building& building, const QStringList& units,
                  const std::function<bool(int done)>& tell) {
  std::optional<qint64> lastCodeBefore;  // set when there is something to take back
  const auto clear = [&] {
    if (lastCodeBefore) takeBack(session, building, *lastCodeBefore);
  };
  // Step 0 makes the block and its head row, each further one a household.
  const auto make = [&](int step) {
    if (step > 0) {
      addClient(session, householdStatement(session, building, units[step - 1]), building.metered);
      return;
    }
    const qint64 last = session.dbBasic.OpenRecordset("Select Max(Code) As C From Client")["C"].toLong();
    session.dbBasic.Execute(buildingStatement(building));
    lastCodeBefore = last;
    addClient(session, headStatement(session, building), false);
  };
  try {
    run(session.wsMain, {.count = 1 + int(units.size()),
                         .step =
                             [&](int step) {
                               try {
                                 make(step);
                               } catch (const jet::Error&) {
                                 // Within the group, so that no part of what it has made is ever stored.
                                 try {
                                   clear();
                                 } catch (const jet::Error&) {
                                 }
                                 throw;
                               }
                             },
                         .tell =
                             [&](int done) {
                               if (tell) tell(done - 1);
                               return true;
                             },
                         .whole = units.size() <= wholeBuilding,
                         .files = {session.dbBasic, session.dbYear}});
  } catch (const jet::Error& error) {
    if (!lastCodeBefore) throw;
    QString end = "건물등록을 마치지 못하여 등록하던 자료를 모두 지웠습니다!";
    try {
      clear();  // the groups before, or all when the disk has undone what was done within the group
    } catch (const jet::Error&) {
      end =
          "건물등록을 마치지 못하였고 등록하던 자료를 모두 지우지도 못했습니다!\n"
          "건물이 목록에 있으면 삭제한 후 다시 등록하십시오.";
    }
    session.prompts.MsgWarn(end, registerOfBuildings);
    throw error;
  }
}

void changeBuilding(const Session& session, const Building& b, const QString& code, const QString& oldDong,
                    bool wasMetered) {
  session.wsMain.Together([&] {
    session.dbBasic.Execute(
        "Update APT Set Dong = '" + plainText(b.dong) + "', " + "Structure = " + yesNo(b.staircase) + ", " +
        (b.metered ? "Evaporation = True, Pressure = '" + plainText(b.pressure) + "', " +
                         "Eva = " + typedNumber(b.unitPrice) + ", "
                   : u"EVaporation = False, "_s) +
        "delaypay = " + typedNumber(b.lateRate) + ", " + "Address = '" + plainText(b.address) +
        "', PostCode = '" + plainText(b.postCode) + "' " + "Where Code = " + plainNumber(code));
    session.dbBasic.Execute("Update Client Set Dong = '" + plainText(b.dong) + "', " + "PostCode = '" +
                            plainText(b.postCode) + "', Address = '" + plainText(b.address) + "', " +
                            (b.metered ? "VolumeYesNo = True, Volume = '" + plainText(b.pressure) + "', " +
                                             "VolumeUnit = " + typedNumber(b.unitPrice) + " "
                                       : u"VolumeYesNo = False, Volume = '', VolumeUnit = 0 "_s) +
                            ofBlock(b.name, oldDong));
    if (!b.metered || wasMetered) return;
    // A household that becomes a meter's needs its rows, or no book would list it; the head row has no meter.
    jet::Recordset households = session.dbBasic.OpenRecordset(
        "Select Code From Client " + ofBlock(b.name, b.dong) + " And Ho Is Not Null");
    for (; !households.atEnd(); households.MoveNext())
      completeMeterRows(session, households["Code"].toLong());
  });
}

void removeBuilding(const Session& session, const QString& code, const QString& name, const QString& dong) {
  session.wsMain.Together([&] {
    const QStringList households = codesOfBlock(session, name, dong);
    session.dbBasic.Execute("Delete * From Apt Where Code = " + plainNumber(code));
    for (const QString& household : households)
      session.dbYear.Execute("Delete * From Evaporation Where ClientCode = " + plainNumber(household));
    session.dbBasic.Execute("Delete * From Client " + ofBlock(name, dong));
  });
}
