#include "master/customers/map_handshake.h"

#include "master/customers/client_entry.h"
#include "store/data_access.h"
#include "store/settings_table.h"

namespace {

const QString mapEditor = "C:\\RWGAS\\MapEdit.exe";
const QString registerTitle = "고객 관리자";

}  // namespace

bool MapHandshake::handOver(qint64 clientCode) {
  if (clientCode == 0) {
    session_.prompts.MsgWarn("약도를 출력할 고객을 먼저 선택하십시오", registerTitle);
    return false;
  }
  jet::Recordset client;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, client,
                    "Select * From Client Where Code = " + QString::number(clientCode)) ||
      client.atEnd()) {
    return false;
  }
  const QString position = client["Position"].toText();
  pc::Settings& settings = session_.pc.settings;
  settings.write(setting::MapFile, position);
  settings.write(setting::MapCustomer, QString::number(clientCode));
  settings.write(setting::MapPrintName, DisplayName(client));
  settings.write(setting::MapPrintAddress, client["Address"].toText());
  settings.write(setting::MapPrintTel, client["Tel"].toText());
  settings.write(setting::MapPrintFile, position);
  return true;
}

bool MapHandshake::start(qint64 clientCode) {
  if (!handOver(clientCode)) return false;
  pc::Settings& settings = session_.pc.settings;
  // An answer left over from an earlier run would end the wait at once.
  settings.write(setting::MapEdited, false);
  settings.write(setting::MapFailed, false);
  clientCode_ = clientCode;
  if (session_.pc.process.start(mapEditor)) return true;
  session_.prompts.MsgWarn(
      "약도 편집기를 시작할 수 없습니다!\n" + mapEditor + " 프로그램이 있는지 확인하십시오.", registerTitle);
  return false;
}

MapHandshake::State MapHandshake::look() {
  pc::Settings& settings = session_.pc.settings;
  if (settings.read(setting::MapFailed) == "1") {
    settings.write(setting::MapEdited, false);
    settings.write(setting::MapFailed, false);
    return State::Done;
  }
  if (settings.read(setting::MapEdited) != "1") return State::Waiting;
  settings.write(setting::MapEdited, false);
  const QString file = settings.read(setting::MapFile);
  if (!file.isEmpty() && session_.pc.paths.exists(file)) {
    session_.dbBasic.Execute("Update Client Set Position = '" + plainText(file) +
                             "' Where Code = " + QString::number(clientCode_));
  }
  return State::Done;
}
