#include "master/customers/client_register.h"

#include "master/customers/client_checks.h"
#include "master/customers/client_rows.h"
#include "master/customers/client_statements.h"
#include "master/customers/tel_format.h"
#include "store/data_access.h"
#include "store/jet/format_rules.h"
#include "store/year_file.h"
#include "ui/model/column.h"

namespace {

constexpr auto registerOfClients = "고객 관리자";

std::vector<SpreadColumn> plainColumns() {
  return {column::text("이름", 22),      column::text("전화번호", 15), column::money("가스미수", 12),
          column::money("자재미수", 12), column::text("메모사항", 34), column::centred("가입일자", 12),
          column::hidden("코드")};
}

std::vector<SpreadColumn> householdColumns(const QString& building) {
  return {column::text(building, 24),    column::centred("동", 8),      column::centred("호", 8),
          column::money("가스미수", 12), column::money("자재미수", 12), column::text("전화번호", 15),
          column::hidden("코드")};
}

QString pageStatement(HouseStyle page) {
  return "Select * From Client Where HouseStyle = " + QString::number(int(page)) +
         (page == HouseStyle::Individual ? " Order By Name" : " Order By BDName, Code");
}

/** The fields behind a list's columns, in their order. */
QStringList listFields(HouseStyle page) {
  if (page == HouseStyle::Individual)
    return {"Name", "Tel", "GasInit", "UtilInit", "Memo", "AppDate", "Code"};
  return {"BDName", "Dong", "Ho", "GasInit", "UtilInit", "Tel", "Code"};
}

/** All rows of the recordset as cells of a page's list; a name is looked up once, not for every customer. */
std::vector<std::vector<QString>> listRows(jet::Recordset& clients, HouseStyle page) {
  std::vector<int> places;
  for (const QString& field : listFields(page)) places.push_back(clients.fieldIndex(field));
  std::vector<std::vector<QString>> rows;
  for (; !clients.atEnd(); clients.MoveNext()) {
    std::vector<QString>& cells = rows.emplace_back();
    cells.reserve(places.size());
    for (const int place : places) cells.push_back(clients[place].toText());
  }
  return rows;
}

bool blockIsMetered(const Session& session, const ClientEntry& c) {
  const jet::Recordset block = session.dbBasic.OpenRecordset(
      "Select * From APT Where Name = '" + plainText(c.bdName) + "' And Dong = '" + plainText(c.dong) + "'");
  return !block.atEnd() && block["Evaporation"].toBool();
}

/** Year files are gone through from the current year back, as long as there is one; an older file beyond a gap keeps
 *  the customer's sales; kept. */
void removeSales(const Session& session, qint64 code) {
  walkYears(session, [&](const QString& path) {
    jet::Database year;
    if (OpenDB(session.wsMain, year, path))
      year.Execute("delete * from sale where clientcode = " + QString::number(code));
    else
      session.prompts.MsgWarn(path + "\n파일을 열 수 없어 이 해의 판매자료는 삭제하지 못했습니다!",
                              registerOfClients);
  });
}

}  // namespace

ClientRegister::ClientRegister(Session& session) : session_(session) {
  list(HouseStyle::Individual).setColumns(column::shown(plainColumns()));
  list(HouseStyle::Apartment).setColumns(column::shown(householdColumns("아파트명")));
  list(HouseStyle::MultiHousehold).setColumns(column::shown(householdColumns("다가구명")));
}

bool ClientRegister::loadPage(HouseStyle page) {
  new_ = false;
  chosen_ = {};
  chosen_.houseStyle = page;
  jet::Recordset clients;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, clients, pageStatement(page))) return false;
  list(page).setRows(listRows(clients, page));
  return true;
}

QString ClientRegister::bottomLine() const {
  const jet::Value count = DAO_GetValue(session_.prompts, session_.dbBasic, u"Count(Code)", u"Client", {});
  return " 기존고객 및 신규고객을 거주지별로 등록    인쇄 : F10    등록고객수 : " +
         jet::format(count, u"##,###") + "명";
}

ClientEntry ClientRegister::beginNew() {
  new_ = true;
  ClientEntry blank = emptyEntry();
  blank.appDate = session_.pc.clock.dateText();
  return blank;
}

ClientEntry ClientRegister::cancel() {
  new_ = false;
  return chosen_;
}

ClientEntry ClientRegister::selectRow(int row) {
  return select(list(page()).text(row, CodeCol).toLongLong());
}

ClientEntry ClientRegister::select(qint64 code) {
  new_ = false;
  jet::Recordset client;
  if (code != 0 && readRow(code, client)) {
    chosen_ = readClient(client);
  } else {
    chosen_ = emptyEntry();
  }
  return chosen_;
}

bool ClientRegister::readRow(qint64 code, jet::Recordset& client) const {
  return OpenSnapshot(session_.prompts, session_.dbBasic, client,
                      "Select * From Client Where Code = " + QString::number(code)) &&
         !client.atEnd();
}

ClientEntry ClientRegister::emptyEntry() const {
  ClientEntry empty;
  empty.houseStyle = page();
  return empty;
}

int ClientRegister::rowOf(qint64 code) const {
  const SpreadModel& rows = lists_.at(size_t(page()));
  const QString wanted = QString::number(code);
  for (int row = 1; row <= rows.MaxRows(); ++row) {
    if (rows.text(row, CodeCol) == wanted) return row;
  }
  return 0;
}

bool ClientRegister::reload() {
  const qint64 chosen = chosen_.code;
  if (!loadPage(page())) return false;
  if (rowOf(chosen) > 0) select(chosen);
  return true;
}

ClientSaved ClientRegister::save(const ClientEntry& boxes, const std::optional<ClientEntry>& shown) {
  if (!new_ && chosen_.code == 0) {
    session_.prompts.MsgWarn("신규등록은 신규버튼을 누른후 입력해 주십시오", registerOfClients);
    return {.focus = ClientBox::New};
  }
  const ClientEntry before = new_ ? emptyEntry() : shown.value_or(chosen_);
  ClientEntry client = boxes;
  for (QString ClientEntry::*tel : {&ClientEntry::tel, &ClientEntry::tel1, &ClientEntry::tel2})
    if (client.*tel != before.*tel) client.*tel = FormatTel(client.*tel).text;
  if (const auto box = missingOrWrong(session_, client)) return {.focus = *box};
  if (textTooLong(session_, "Client", clientFields(client), clientLabels(), registerOfClients)) return {};
  if (!new_)
    for (const auto& [figure, box, label] :
         {std::tuple{&ClientEntry::gasInit, ClientBox::GasInit, "가스미수"},
          {&ClientEntry::utilInit, ClientBox::UtilInit, "자재미수"}})
      if ((client.*figure).isEmpty() && !(before.*figure).isEmpty()) {
        session_.prompts.MsgWarn(QString(label) + " 칸은 비워 둘 수 없습니다! 없으면 0을 입력하십시오.",
                                 registerOfClients);
        return {.focus = box};
      }
  client.houseStyle = page();
  client.code = chosen_.code;
  return new_ ? insert(client) : change(client, before);
}

ClientSaved ClientRegister::insert(const ClientEntry& client) {
  if (const auto box = takenAlready(session_, client)) return {.focus = *box};
  const qint64 code = addClient(session_, insertStatement(client), client.volume);
  SpreadModel& rows = list(page());
  select(code);
  rows.setMaxRows(rows.MaxRows() + 1);
  showChosen(rows.MaxRows());
  return {.done = true, .focus = ClientBox::New, .code = code};
}

RowSource ClientRegister::source(qint64 code) const {
  return {"Select * From Client Where Code = " + QString::number(code),
          [](const jet::Recordset& row) { return clientFields(readClient(row)); }};
}

ClientSaved ClientRegister::change(const ClientEntry& client, const ClientEntry& shown) {
  if (!session_.prompts.MsgAsk("위와 같이 고객등록사항을 변경하시겠습니까?", registerOfClients)) return {};
  const RowChange change{.read = clientFields(chosen_),
                         .shown = clientFields(shown),
                         .typed = clientFields(client),
                         .running = {"GasInit", "UtilInit"},
                         .labels = clientLabels()};
  const RowOutcome outcome = changeRow(
      session_, source(client.code), registerOfClients, change,
      [&](const RegisterFields& row, const RegisterFields& stored) {
        ClientEntry merged = client;
        takeClientFields(merged, row);
        const QString oldUnit = stored["VolumeUnit"];
        const bool newPrice = merged.volume && typedNumber(oldUnit) != typedNumber(merged.volumeUnit);
        session_.dbBasic.Execute(
            updateStatement(merged, movedFigures(change, stored), merged.ho == stored["Ho"]));
        if (merged.volume && stored["VolumeYesNo"] == "0") completeMeterRows(session_, client.code);
        if (page() == HouseStyle::Apartment && newPrice && blockIsMetered(session_, merged))
          session_.dbBasic.Execute(unitSpreadStatement(merged, oldUnit));
      });
  if (outcome.end == RowEnd::Gone) {
    reload();
    new_ = true;
    return {.focus = ClientBox::Name};
  }
  if (outcome.end == RowEnd::Refused) return {};
  select(client.code);
  if (const int shown = rowOf(client.code)) showChosen(shown);
  return {.done = true, .focus = ClientBox::List};
}

/** Puts the chosen customer, as it stands in the file now, into a row of the list. */
void ClientRegister::showChosen(int row) {
  jet::Recordset client;
  if (!readRow(chosen_.code, client)) return;
  const std::vector<std::vector<QString>> rows = listRows(client, page());
  for (size_t i = 0; i < rows.front().size(); ++i) list(page()).setText(row, int(i) + 1, rows.front()[i]);
}

std::optional<RowEnd> ClientRegister::removeChosen() {
  if (new_ || chosen_.code == 0) return {};
  const ClientEntry gone = chosen_;
  if (!session_.prompts.MsgAsk("이  름 : " + (gone.name.isEmpty() ? DisplayName(gone) : gone.name) + "    " +
                                   "전화번호 : " + gone.tel + "\n선택된 고객자료를 삭제하시겠습니까?",
                               registerOfClients, false)) {
    return {};
  }
  const QString code = QString::number(gone.code);
  const RowEnd end = deleteRow(session_, source(gone.code), registerOfClients, clientFields(gone), [&] {
    if (gone.volume) session_.dbYear.Execute("Delete * From Evaporation Where ClientCode = " + code);
    session_.dbBasic.Execute("Delete * From Client Where Code = " + code);
  });
  if (end != RowEnd::Done) {
    reload();
    return end;
  }
  const int row = rowOf(gone.code);
  if (row > 0) list(page()).deleteRow(row);
  chosen_ = emptyEntry();
  removeSales(session_, gone.code);
  return end;
}
