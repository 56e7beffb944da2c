#include "master/client_entry.h"

#include "master/register_rules.h"

ClientEntry readClient(const jet::Recordset& client) {
  const auto text = [&](const char* field) { return client[QString::fromLatin1(field)].toText(); };
  ClientEntry entry;
  entry.code = client[QStringLiteral("Code")].toLong();
  entry.houseStyle = HouseStyle(qBound(0, int(client[QStringLiteral("HouseStyle")].toLong()), 2));
  entry.name = text("Name");
  entry.uname = text("UName");
  entry.tel = text("Tel");
  entry.tel1 = text("Tel1");
  entry.tel2 = text("Tel2");
  entry.postCode = text("PostCode");
  entry.address = text("Address");
  entry.birth = text("Birth");
  entry.appDate = text("AppDate");
  entry.memo = text("Memo");
  entry.gasInit = typedNumber(text("GasInit"));
  entry.utilInit = typedNumber(text("UtilInit"));
  entry.payWay = PayWay(qBound(1, int(client[QStringLiteral("PayWay")].toLong()), 3));
  entry.volume = client[QStringLiteral("VolumeYesNo")].toBool();
  entry.pressure = text("Volume");
  entry.volumeUnit = text("VolumeUnit");
  entry.bdName = text("BDName");
  entry.dong = text("Dong");
  entry.ho = text("Ho");
  entry.serial = text("Serial");
  entry.status = text("Status");
  entry.item = text("Item");
  return entry;
}

QString DisplayName(const ClientEntry& client) {
  if (client.houseStyle == HouseStyle::Plain) return client.name;
  const QString block = client.bdName + u' ' + client.dong + QStringLiteral("동");
  return client.ho.isEmpty() ? block : block + u' ' + client.ho + QStringLiteral("호");
}

QString DisplayName(const jet::Recordset& client) {
  ClientEntry name;
  name.houseStyle = HouseStyle(client[QStringLiteral("HouseStyle")].toLong());
  name.name = client[QStringLiteral("Name")].toText();
  name.bdName = client[QStringLiteral("BDName")].toText();
  name.dong = client[QStringLiteral("Dong")].toText();
  name.ho = client[QStringLiteral("Ho")].toText();
  return DisplayName(name);
}
