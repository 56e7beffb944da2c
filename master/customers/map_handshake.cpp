#include "master/customers/map_handshake.h"

#include "master/customers/client_entry.h"
#include "store/data_access.h"

namespace {

const QString mapApplication = "약도";
const QString mapCustomer = "사용자";
const QString mapPrint = "인쇄";
const QString mapState = "환경설정";
const QString mapEditor = "C:\\RWGAS\\MapEdit.exe";
const QString registerTitle = "고객 관리자";

}  // namespace

QString MapHandshake::value(const QString& section, const QString& key) const {
  return session_.pc.settings.GetSetting(mapApplication, section, key);
}

void MapHandshake::put(const QString& section, const QString& key, const QString& value) {
  session_.pc.settings.SaveSetting(mapApplication, section, key, value);
}

bool MapHandshake::start(qint64 clientCode) {
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
  put(mapCustomer, "MapVal", position);
  put(mapCustomer, "Code", QString::number(clientCode));
  put(mapPrint, "Cust", DisplayName(client));
  put(mapPrint, "Addr", client["Address"].toText());
  put(mapPrint, "Phone", client["Tel"].toText());
  put(mapPrint, "MapPath", position);
  // An answer left over from an earlier run would end the wait at once.
  put(mapState, "MapEdit", "0");
  put(mapState, "OccurErr", "0");
  clientCode_ = clientCode;
  if (session_.pc.process.start(mapEditor)) return true;
  session_.prompts.MsgWarn(
      "약도 편집기를 시작할 수 없습니다!\n" + mapEditor + " 프로그램이 있는지 확인하십시오.", registerTitle);
  return false;
}

MapHandshake::State MapHandshake::look() {
  if (value(mapState, "OccurErr") == "1") {
    put(mapState, "MapEdit", "0");
    put(mapState, "OccurErr", "0");
    return State::Done;
  }
  if (value(mapState, "MapEdit") != "1") return State::Waiting;
  put(mapState, "MapEdit", "0");
  const QString file = value(mapCustomer, "MapVal");
  if (!file.isEmpty() && session_.pc.paths.exists(file)) {
    session_.dbBasic.Execute("Update Client Set Position = '" + plainText(file) +
                             "' Where Code = " + QString::number(clientCode_));
  }
  return State::Done;
}
