#include "master/customers/client_search.h"

#include "master/customers/caller_search.h"
#include "master/customers/tel_format.h"
#include "store/data_access.h"
#include "ui/model/column.h"

namespace {

bool allDigits(const QString& text) {
  return !text.isEmpty() &&
         std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QString likeAround(const char* field, const QString& text) {
  return QString::fromLatin1(field) + " Like '*" + plainText(text) + "*'";
}

/** A telephone's last four digits are the usual way to find a customer. */
QString byFourDigits(const QString& digits) {
  return "Select * From Client Where ( " + likeAround("Tel", digits) + " or " + likeAround("Tel1", digits) +
         " or " + likeAround("Tel2", digits) + " or " + likeAround("Name", digits) + ")";
}

QString byEndOfNumber(const QString& n) {
  return "Select * From Client Where ( Tel Like '*" + plainText(n) + "' or Tel1 Like '*" + plainText(n) +
         "' or Tel2 Like '*" + plainText(n) + "' or UName Like '*" + plainText(n) + "')";
}

QString byAnyText(const QString& text, bool buildings) {
  QString sql = "Select * From Client Where ( " + likeAround("Tel", text);
  for (const char* field : {"Tel1", "Tel2", "Name", "Uname", "Address"})
    sql += " or " + likeAround(field, text);
  if (buildings) sql += " or " + likeAround("BDName", text);
  // A number typed without its dashes is also looked for in the shape in which telephones are stored.
  const QString formatted = allDigits(text) ? FormatTel(text).text : text;
  if (formatted != text) {
    for (const char* field : {"Tel", "Tel1", "Tel2"}) sql += " or " + likeAround(field, formatted);
  }
  return sql + ")";
}

QString byText(const QString& text, ClientSearchMode mode, bool wholeNumber) {
  if (allDigits(text) && text.size() == 4) return byFourDigits(text);
  const QString digits = QString(text).remove(u'-').remove(u'.');
  if (wholeNumber && allDigits(digits) && digits.size() > 4) return byEndOfNumber(FormatTel(text).localPart);
  return byAnyText(text, mode == ClientSearchMode::Volume);
}

/** Behind a Where or an And; '' for everybody. */
QString modeCondition(ClientSearchMode mode) {
  if (mode == ClientSearchMode::All) return {};
  return mode == ClientSearchMode::General
             ? "VolumeYesNo = False"
             : "(((HouseStyle = 1 Or HouseStyle = 2) ) Or HouseStyle = 0) And VolumeYesNo = True";
}

std::vector<SpreadColumn> searchColumns() {
  return {column::text("고객명", 26), column::text("전화번호", 15),  column::text("주소", 38),
          column::centred("구분", 6), column::money("가스미수", 11), column::text("메모사항", 22),
          column::hidden("코드")};
}

/** The found customers as rows of the list; a name is looked up once, not for every customer. Those with exactly the
 *  caller's number, when one is given, come first. */
std::vector<std::vector<QString>> foundRows(jet::Recordset& found, const QString& caller) {
  const int name = found.fieldIndex("Name"), style = found.fieldIndex("HouseStyle"),
            building = found.fieldIndex("BDName"), dong = found.fieldIndex("Dong"),
            ho = found.fieldIndex("Ho"), tel = found.fieldIndex("Tel"), address = found.fieldIndex("Address"),
            metered = found.fieldIndex("VolumeYesNo"), gas = found.fieldIndex("GasInit"),
            memo = found.fieldIndex("Memo"), code = found.fieldIndex("Code");
  std::vector<std::vector<QString>> rows;
  size_t exact = 0;
  ClientEntry who;
  for (; !found.atEnd(); found.MoveNext()) {
    who.houseStyle = HouseStyle(found[style].toLong());
    who.name = found[name].toText();
    who.bdName = found[building].toText();
    who.dong = found[dong].toText();
    who.ho = found[ho].toText();
    rows.push_back({DisplayName(who), found[tel].toText(), found[address].toText(),
                    found[metered].toBool() ? "체적" : "일반", found[gas].toText(), found[memo].toText(),
                    found[code].toText()});
    if (!caller.isEmpty() && hasNumber(found, caller))
      std::rotate(rows.begin() + exact++, rows.end() - 1, rows.end());
  }
  return rows;
}

}  // namespace

ClientSearch::ClientSearch(Session& session) : session_(session) {
  list_.setColumns(column::shown(searchColumns()));
}

QString ClientSearch::statement(const QString& text, ClientSearchMode mode, bool wholeNumber) {
  const QString wanted = text.trimmed();
  const QString condition = modeCondition(mode);
  if (wanted.isEmpty())
    return "Select * From Client" + (condition.isEmpty() ? condition : " Where " + condition) +
           " Order By Name";
  return byText(wanted, mode, wholeNumber) + (condition.isEmpty() ? condition : " And " + condition);
}

ClientSearch::Found ClientSearch::find(const QString& text, ClientSearchMode mode, bool wholeNumber) {
  jet::Recordset found;
  if (!OpenSnapshot(session_.prompts, session_.dbBasic, found, statement(text, mode, wholeNumber))) {
    return Found::Failed;
  }
  std::vector<std::vector<QString>> rows = foundRows(found, wholeNumber ? text : QString());
  const size_t count = rows.size();
  list_.setRows(std::move(rows));
  return count == 0 ? Found::None : count == 1 ? Found::One : Found::Several;
}

bool ClientSearch::askToRegister() const {
  return session_.prompts.MsgAsk(
      "찾고자 하는 고객명/상호/전화번호가 없습니다!\n"
      "신규고객등록을 하시겠습니까?",
      "고객 관리자");
}

std::optional<ClientChoice> ClientSearch::choice(int row) const {
  if (row < 1 || row > list_.MaxRows()) return {};
  return ClientChoice{list_.text(row, CodeCol).toLongLong(), list_.text(row, NameCol)};
}
