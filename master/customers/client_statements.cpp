#include "master/customers/client_statements.h"

#include "master/registers/register_rules.h"
#include "store/data_access.h"

namespace {

QString commonValues(const ClientEntry& c) {
  return "'" + plainText(c.name) + "', '" + plainText(c.tel) + "', '" + plainText(c.tel1) + "', '" +
         plainText(c.tel2) + "', '" + plainText(c.postCode) + "', '" + plainText(c.address) + "', '" +
         plainText(c.birth) + "', '" + plainText(c.memo) + "', " + QString::number(int(c.houseStyle)) + ", " +
         typedNumber(c.gasInit) + ", " + typedNumber(c.utilInit) + ", '" + plainText(c.appDate) + "', " +
         QString::number(int(c.payWay));
}

QString householdValues(const ClientEntry& c) {
  return "'" + plainText(c.bdName) + "', '" + plainText(c.dong) + "', '" + plainText(c.ho) + "')";
}

QString plainValues(const ClientEntry& c) {
  return "'" + plainText(c.serial) + "', '" + plainText(c.status) + "', '" + plainText(c.item) + "', '" +
         plainText(c.uname) + "')";
}

}  // namespace

QString insertStatement(const ClientEntry& c) {
  const QString start =
      "Insert into Client(Name, Tel, Tel1, Tel2, PostCode, Address, "
      "Birth, Memo, HouseStyle, GasInit, UtilInit, AppDate, PayWay, ";
  const bool household = c.houseStyle != HouseStyle::Individual;
  const QString unit = typedNumber(c.volumeUnit);
  if (household && c.volume) {
    return start + "VolumeYesNo, Volume, VolumeUnit, BDName, Dong, Ho) Values(" + commonValues(c) +
           ", True, '" + plainText(c.pressure) + "', " + unit + ", " + householdValues(c);
  }
  if (household) {
    return start + "VolumeYesNo, BDName, Dong, Ho) Values(" + commonValues(c) + ", False, " +
           householdValues(c);
  }
  if (c.volume) {
    return start + "VolumeYesNo, VolumeUnit, Volume, Serial, status, item, Uname) Values(" + commonValues(c) +
           ", True, " + unit + ", '" + plainText(c.pressure) + "', " + plainValues(c);
  }
  return start + "VolumeYesNo, Serial, status, item, Uname) Values(" + commonValues(c) + ", False, " +
         plainValues(c);
}

QString updateStatement(const ClientEntry& c, const QString& movedBalances, bool sameUnit) {
  QString sql = "Update Client Set Name = '" + plainText(c.name) + "', Tel = '" + plainText(c.tel) +
                "', Tel1 = '" + plainText(c.tel1) + "', Tel2 = '" + plainText(c.tel2) + "', PostCode = '" +
                plainText(c.postCode) + "', Address = '" + plainText(c.address) + "', " + "Birth = '" +
                plainText(c.birth) + "', Memo = '" + plainText(c.memo) + "', " +
                "HouseStyle = " + QString::number(int(c.houseStyle)) + movedBalances + ", AppDate = '" +
                plainText(c.appDate) + "', " + "PayWay = " + QString::number(int(c.payWay));
  if (c.volume) {
    sql += ", VolumeYesNo = True, Volume = '" + plainText(c.pressure) + "', " +
           "VolumeUnit = " + typedNumber(c.volumeUnit);
  } else {
    sql += ", VolumeYesNo = False";
  }
  if (c.houseStyle == HouseStyle::Individual) {
    sql += ", Serial = '" + plainText(c.serial) + "', " + "Status = '" + plainText(c.status) + "', " +
           "Item = '" + plainText(c.item) + "', " + "Uname = '" + plainText(c.uname) + "'";
  } else {
    sql += ", BDName = '" + plainText(c.bdName) + "', Dong = '" + plainText(c.dong) + "'";
    if (!sameUnit) sql += ", Ho = '" + plainText(c.ho) + "'";
  }
  return sql + " Where Code = " + QString::number(c.code);
}

QString unitSpreadStatement(const ClientEntry& c, const QString& oldUnit) {
  return "Update Client Set VolumeUnit = " + typedNumber(c.volumeUnit) + " Where BDName = '" +
         plainText(c.bdName) + "' And Dong = '" + plainText(c.dong) + "' And " +
         "Ho <> Null and VolumeUnit = " + typedNumber(oldUnit);
}
