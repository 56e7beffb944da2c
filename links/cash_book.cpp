#include "links/cash_book.h"

#include <QFile>
#include <QHash>

#include "store/data_access.h"
#include "store/data_files.h"

using namespace Qt::StringLiterals;

namespace {

const QString cashTitle = u"현금출납장DB 업그레이드"_s;
const QString supportNumber = u"1600-0000"_s;  ///< the maker's, for the operator

/** How often each row stands in the new file that a run before this one has copied to. */
class CopiedRows {
 public:
  explicit CopiedRows(jet::Recordset rows) {
    const qsizetype fields = rows.fieldNames().size();
    for (; !rows.atEnd(); rows.MoveNext()) {
      QStringList row;
      for (int field = 0; field < fields; ++field) row << rows[field].toText();
      ++left_[row];
    }
  }
  /** Whether one such row is there that no row before has claimed. */
  bool claim(const QStringList& row) {
    const auto found = left_.find(row);
    if (found == left_.end() || *found == 0) return false;
    --*found;
    return true;
  }

 private:
  QHash<QStringList, int> left_;
};

QString numberOrNull(const jet::Value& value) {
  return value.isNull() ? u"Null"_s : plainNumber(value.toText());
}

void copyAccounts(const jet::Database& from, const jet::Database& to) {
  CopiedRows copied(to.OpenRecordset(u"SELECT Code, Name, Section FROM accounts"_s));
  jet::Recordset rs = from.OpenRecordset(
      u"SELECT Code, Content, Section FROM Content where content is not null order by code"_s);
  to.Together([&] {
    for (; !rs.atEnd(); rs.MoveNext()) {
      const jet::Value code = rs[u"Code"_s], section = rs[u"Section"_s];
      const QString name = rs[u"Content"_s].toText();
      if (copied.claim({code.toText(), name, section.toText()})) continue;
      to.Execute(u"INSERT INTO accounts (Code, Name, Section) VALUES ("_s + numberOrNull(code) + u",'"_s +
                 copiedText(name) + u"',"_s + numberOrNull(section) + u" )"_s);
    }
  });
}

void copyEntries(const jet::Database& from, const jet::Database& to) {
  CopiedRows copied(
      to.OpenRecordset(u"SELECT code, sDate, AcntName, detail, income, outlay FROM cashbook"_s));
  jet::Recordset rs = from.OpenRecordset(
      u"SELECT Code, CurDate, Bigo, Sub, Detail, Cash FROM InOutCash where sub is not null order by code"_s);
  jet::Recordset book =
      to.OpenRecordset(u"SELECT * FROM cashbook WHERE FALSE"_s, jet::RecordsetType::Dynaset);
  to.Together([&] {
    for (; !rs.atEnd(); rs.MoveNext()) {
      if (rs.isNull(u"Cash"_s)) continue;
      const bool isIncome = rs[u"Sub"_s].toText().trimmed() == u"수 입";
      const jet::Value cash = rs[u"Cash"_s], none(0);
      jet::Value day = rs[u"CurDate"_s];
      if (!day.isNull()) day = jet::Value(day.toText().replace(u'.', u'-'));
      const std::pair<const char*, jet::Value> fields[] = {{"code", rs[u"Code"_s]},
                                                           {"sDate", day},
                                                           {"AcntName", rs[u"Detail"_s]},
                                                           {"detail", rs[u"Bigo"_s]},
                                                           {"income", isIncome ? cash : none},
                                                           {"outlay", isIncome ? none : cash}};
      QStringList row;
      for (const auto& [name, value] : fields) row << value.toText();
      if (copied.claim(row)) continue;
      book.AddNew();
      for (const auto& [name, value] : fields) book.set(QString::fromLatin1(name), value);
      book.Update();
    }
  });
}

/** Throws jet::Error. */
void convertCashBook(Session& session, const QString& oldPath, const QString& newPath) {
  const pc::Paths& paths = session.pc.paths;
  const jet::Workspace workspace(
      {.mainFile = {}, .resolvePath = [&](const QString& written) { return paths.native(written); }});
  // Alone: a second PC that converts at the same time would copy everything once more.
  const jet::Database from = workspace.OpenDatabase(oldPath, true);
  const jet::Database to = workspace.OpenDatabase(newPath);
  copyAccounts(from, to);
  copyEntries(from, to);
}

}  // namespace

bool ConvCashBook(Session& session, const QString& folder, const QString& oldFile) {
  const pc::Paths& paths = session.pc.paths;
  Prompts& prompts = session.prompts;
  const QString place = (folder.isEmpty() ? paths.programFolder() + u"\\Dbs"_s : folder) + u'\\';
  const QString done = place + u"OLDdbCashbook.mdb"_s, oldPath = place + oldFile,
                newPath = place + u"dbCashbook.mdb"_s;
  try {
    if (isThere(paths, done) || !isThere(paths, oldPath)) return true;
    prompts.MsgInfo(u"현금출납장 DB가 업데이트 되었습니다."_s + u'\n' +
                        u"신버전으로 교체작업이 진행 될 것이며,"_s + u'\n' +
                        u"등록된 자료의 양에 따라 다소 시간이 걸릴 수도 있습니다."_s,
                    cashTitle);
    if (!isThere(paths, newPath)) {
      prompts.MsgWarn(
          u"현금출납장 신버전 DB를 찾을 수 없습니다."_s + u'\n' +
              u"재설치를 하지 않은 경우 재설치를 하여 주시고,"_s + u'\n' +
              QStringList{u"재설치를 한 경우 ["_s, supportNumber, u"]로 문의 바랍니다."_s}.join(QString()),
          cashTitle);
      return false;
    }
    convertCashBook(session, oldPath, newPath);
    prompts.MsgInfo(
        u"현금출납장 DB 업그레이드가 완료 되었습니다."_s + u'\n' +
            u"곧 뜨게 될 신버전 현금출납장에서 최초 한번만 아래 설명대로 [잔액 재정리] 처리를 해 주세요."_s +
            u"\n\n"_s + u"[잔액 재정리 방법]"_s + u'\n' +
            u" 현금출납장 프로그램 메뉴상의 [도구] - [잔액 재정리]를 실행하여 주세요."_s,
        cashTitle);
    QFile::remove(paths.native(done));
    if (!QFile::rename(paths.native(oldPath), paths.native(done)))
      throw jet::Error(75, oldPath + u" 파일의 이름을 바꿀 수 없습니다."_s);
    return true;
  } catch (const jet::Error& error) {
    prompts.ErrorBox(u"현금출납장 DB를 신버전으로 바꾸지 못했습니다. 다음에 시작할 때 이어서 합니다."_s,
                     error.number(), error.description());
    return false;
  }
}
