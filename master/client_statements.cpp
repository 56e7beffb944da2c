#include "master/client_statements.h"

#include "master/register_rules.h"

namespace {

QString commonValues(const ClientEntry& c) {
  return "'" + c.name + "', '" + c.tel + "', '" + c.tel1 + "', '" + c.tel2 + "', '" + c.postCode + "', '" +
         c.address + "', '" + c.birth + "', '" + c.memo + "', " + QString::number(int(c.houseStyle)) + ", " +
         typedNumber(c.gasInit) + ", " + typedNumber(c.utilInit) + ", '" + c.appDate + "', " +
         QString::number(int(c.payWay));
}

QString householdValues(const ClientEntry& c) {
  return "'" + c.bdName + "', '" + c.dong + "', '" + c.ho + "')";
}

QString plainValues(const ClientEntry& c) {
  return "'" + c.serial + "', '" + c.status + "', '" + c.item + "', '" + c.uname + "')";
}

}  // namespace

QString insertStatement(const ClientEntry& c) {
  const QString start =
      "Insert into Client(Name, Tel, Tel1, Tel2, PostCode, Address, "
      "Birth, Memo, HouseStyle, GasInit, UtilInit, AppDate, PayWay, ";
  const bool household = c.houseStyle != HouseStyle::Plain;
  const QString unit = typedNumber(c.volumeUnit);
  if (household && c.volume) {
    return start + "VolumeYesNo, Volume, VolumeUnit, BDName, Dong, Ho) Values(" + commonValues(c) +
           ", True, '" + c.pressure + "', " + unit + ", " + householdValues(c);
  }
  if (household) {
    return start + "VolumeYesNo, BDName, Dong, Ho) Values(" + commonValues(c) + ", False, " +
           householdValues(c);
  }
  if (c.volume) {
    return start + "VolumeYesNo, VolumeUnit, Volume, Serial, status, item, Uname) Values(" + commonValues(c) +
           ", True, " + unit + ", '" + c.pressure + "', " + plainValues(c);
  }
  return start + "VolumeYesNo, Serial, status, item, Uname) Values(" + commonValues(c) + ", False, " +
         plainValues(c);
}

QString updateStatement(const ClientEntry& c) {
  QString sql = "Update Client Set Name = '" + c.name + "', Tel = '" + c.tel + "', Tel1 = '" + c.tel1 +
                "', Tel2 = '" + c.tel2 + "', PostCode = '" + c.postCode + "', Address = '" + c.address +
                "', " + "Birth = '" + c.birth + "', Memo = '" + c.memo + "', " +
                "HouseStyle = " + QString::number(int(c.houseStyle)) +
                ", GasInit = " + typedNumber(c.gasInit) + ", UtilInit = " + typedNumber(c.utilInit) +
                ", AppDate = '" + c.appDate + "', " + "PayWay = " + QString::number(int(c.payWay));
  if (c.volume) {
    sql +=
        ", VolumeYesNo = True, Volume = '" + c.pressure + "', " + "VolumeUnit = " + typedNumber(c.volumeUnit);
  } else {
    sql += ", VolumeYesNo = False";
  }
  if (c.houseStyle == HouseStyle::Plain) {
    sql += ", Serial = '" + c.serial + "', " + "Status = '" + c.status + "', " + "Item = '" + c.item + "', " +
           "Uname = '" + c.uname + "'";
  } else {
    sql += ", BDName = '" + c.bdName + "', " + "Dong = '" + c.dong + "', Ho = '" + c.ho + "'";
  }
  return sql + " Where Code = " + QString::number(c.code);
}

QString unitSpreadStatement(const ClientEntry& c, const QString& oldUnit) {
  return "Update Client Set VolumeUnit = " + typedNumber(c.volumeUnit) + " Where BDName = '" + c.bdName +
         "' And Dong = '" + c.dong + "' And " + "Ho <> Null and VolumeUnit = " + typedNumber(oldUnit);
}
