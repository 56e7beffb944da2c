#include "documents/pickers/trader_search.h"

#include "documents/ledger/softly.h"
#include "store/data_access.h"

TraderSearch::TraderSearch(Session& session) : session_(session) {
  const auto column = [](const char* header, double width) {
    return SpreadColumn{.header = header, .width = width, .locked = true};
  };
  list_.setColumns({column("상호", 24),
                    column("성명", 20),
                    column("전화번호", 15),
                    column("주       소", 40),
                    {.header = "거래처코드", .locked = true, .hidden = true}});
}

int TraderSearch::search(QString text) {
  for (const char16_t each : {u'\x27', u'\\', u']'}) text.remove(QChar(each));
  // A bracket would begin a list of characters that never ends.
  const QString pattern = QString(text).replace("[", "[[]");
  QString sql = "SELECT (bdname & dong & '동' & ho & '호') as U_Name, Name, tel, Address, Code FROM Client ";
  if (text.isEmpty()) {
    sql += "ORDER BY name;";
  } else if (text[0].isDigit()) {
    sql += "where (tel LIKE '*" + plainText(pattern) + "*' OR Address LIKE '*" + plainText(pattern) +
           "*') ORDER BY Name;";
  } else if (text[0] > 'A' && text[0] < 'Z') {
    sql += "where (name LIKE '" + plainText(pattern) + "*' OR Address LIKE '" + plainText(pattern) +
           "*') ORDER BY Name;";
  } else {
    sql += "where (Name LIKE '*" + plainText(pattern) + "*' OR Address LIKE '*" + plainText(pattern) +
           "*') ORDER BY Name;";
  }
  std::vector<std::vector<QString>> rows;
  jet::Recordset found;
  if (OpenSnapshot(session_.prompts, session_.dbBasic, found, sql)) {
    for (; !found.atEnd(); found.MoveNext()) {
      const QString room = found[0].toText();
      rows.push_back({room == "동호" ? QString() : room, found[1].toText(), found[2].toText(),
                      found[3].toText(), found[4].toText()});
    }
  }
  const int hits = int(qMin(rows.size(), size_t(2)));
  list_.setRows(std::move(rows));
  return hits;
}

int TraderSearch::find(const QString& text) {
  const QString code = [&] {
    QString first;
    softly([&] {
      const jet::Recordset trader = session_.dbBasic.OpenRecordset(
          "SELECT * FROM Trader WHERE C_Name LIKE '" + plainText(QString(text).replace("[", "[[]")) +
          "*' ORDER BY C_Name;");
      if (!trader.atEnd()) first = trader["Code"].toText();
    });
    return first;
  }();
  for (int row = 1; row <= list_.MaxRows(); ++row) {
    // Without a ledger the customers of the list are looked through themselves.
    const bool hit = code.isEmpty() ? list_.text(row, TraderCol::Name).startsWith(text, Qt::CaseInsensitive)
                                    : list_.text(row, TraderCol::Code).toLongLong() == code.toLongLong();
    if (hit) return row;
  }
  session_.prompts.MsgInfo("검색된 거래처가 없습니다.");
  return 0;
}
