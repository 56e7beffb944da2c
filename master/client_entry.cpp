#include "master/client_entry.h"

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
  entry.gasInit = numberText(text("GasInit"));
  entry.utilInit = numberText(text("UtilInit"));
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

QString DisplayName(const jet::Recordset& client) {
  if (client[QStringLiteral("HouseStyle")].toLong() == qint64(HouseStyle::Plain)) {
    return client[QStringLiteral("Name")].toText();
  }
  const QString block = client[QStringLiteral("BDName")].toText() + u' ' +
                        client[QStringLiteral("Dong")].toText() + QStringLiteral("동");
  const QString unit = client[QStringLiteral("Ho")].toText();
  return unit.isEmpty() ? block : block + u' ' + unit + QStringLiteral("호");
}

QString numberText(const QString& typed) {
  QString plain = typed;
  return jet::Value(jet::Value(plain.remove(u',')).toDouble()).toText();
}
