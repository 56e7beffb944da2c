#include "master/customers/client_entry.h"

using namespace Qt::StringLiterals;

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
  ClientEntry entry;
  for (const auto& [column, label, text] : clientTexts) entry.*text = client[column].toText();
  // A balance that was never entered stays empty: what is added to it then starts at 0.
  for (QString* const balance : {&entry.gasInit, &entry.utilInit})
    if (!balance->isEmpty()) *balance = typedNumber(*balance);
  entry.code = client["Code"].toLong();
  entry.houseStyle = HouseStyle(qBound(0, int(client["HouseStyle"].toLong()), 2));
  entry.payWay = PayWay(qBound(1, int(client["PayWay"].toLong()), 3));
  entry.volume = client["VolumeYesNo"].toBool();
  return entry;
}

QString DisplayName(const ClientEntry& client) {
  if (client.houseStyle == HouseStyle::Individual) return client.name;
  const QString block = client.bdName + u' ' + client.dong + "동";
  return client.ho.isEmpty() ? block : block + u' ' + client.ho + "호";
}

QString DisplayName(const jet::Recordset& client) {
  ClientEntry name;
  name.houseStyle = HouseStyle(client["HouseStyle"].toLong());
  name.name = client["Name"].toText();
  name.bdName = client["BDName"].toText();
  name.dong = client["Dong"].toText();
  name.ho = client["Ho"].toText();
  return DisplayName(name);
}
