#include "master/customers/client_entry.h"

namespace {

/** The columns that hold a text as the box shows it. */
struct ClientText {
  const char *column, *label;
  QString ClientEntry::*text;
};

const ClientText clientTexts[] = {
    {"Name", "이름", &ClientEntry::name},
    {"Uname", "검색이름", &ClientEntry::uname},
    {"Tel", "전화번호", &ClientEntry::tel},
    {"Tel1", "전화번호 2", &ClientEntry::tel1},
    {"Tel2", "전화번호 3", &ClientEntry::tel2},
    {"PostCode", "우편번호", &ClientEntry::postCode},
    {"Address", "주소", &ClientEntry::address},
    {"Birth", "생일", &ClientEntry::birth},
    {"AppDate", "가입일자", &ClientEntry::appDate},
    {"Memo", "메모사항", &ClientEntry::memo},
    {"GasInit", "가스미수", &ClientEntry::gasInit},
    {"UtilInit", "자재미수", &ClientEntry::utilInit},
    {"Volume", "압력조정기", &ClientEntry::pressure},
    {"VolumeUnit", "체적단가", &ClientEntry::volumeUnit},
    {"BDName", "건물명", &ClientEntry::bdName},
    {"Dong", "동", &ClientEntry::dong},
    {"Ho", "호", &ClientEntry::ho},
    {"Serial", "사업자번호", &ClientEntry::serial},
    {"Status", "업태", &ClientEntry::status},
    {"Item", "종목", &ClientEntry::item},
};

}  // namespace

RegisterFields clientFields(const ClientEntry& entry) {
  RegisterFields fields{{"PayWay", QString::number(int(entry.payWay))},
                        {"VolumeYesNo", entry.volume ? "-1" : "0"}};
  for (const auto& [column, label, text] : clientTexts) fields[column] = entry.*text;
  return fields;
}

void takeClientFields(ClientEntry& entry, const RegisterFields& fields) {
  for (const auto& [column, label, text] : clientTexts)
    if (fields.contains(column)) entry.*text = fields[column];
  if (fields.contains("PayWay")) entry.payWay = PayWay(fields["PayWay"].toInt());
  if (fields.contains("VolumeYesNo")) entry.volume = fields["VolumeYesNo"] != "0";
}

RegisterFields clientLabels() {
  RegisterFields labels{{"PayWay", "수금방법"}, {"VolumeYesNo", "체적고객"}};
  for (const auto& [column, label, text] : clientTexts) labels[column] = label;
  return labels;
}

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
  if (client.houseStyle == HouseStyle::Individual) return client.name;
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
