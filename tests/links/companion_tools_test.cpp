// The cash book and the schedule: found, converted for, started.
#include "links/companion_tools.h"

#include "links/cash_book.h"
#include "store/schema.h"
#include "tests/support.h"

namespace {

using namespace tests;
using namespace Qt::StringLiterals;

struct CompanionTools : testing::Test, TestPc {
  QStringList started;
  const QString folder = u"C:\\rwgas\\dbs"_s;
  const QString oldFile = u"InOutCash.mdb"_s;

  void SetUp() override {
    session.AppTitle = u"해온판매"_s;
    session.DbPath = installedDataFolder();
    ASSERT_TRUE(pc.paths.makeFolder(session.DbPath));
    pc.process.setStarter([this](const QString& program, const QStringList& arguments, const QString&) {
      started = QStringList(program) + arguments;
      return true;
    });
  }
  void put(const QString& written) {
    ASSERT_TRUE(pc.paths.makeFolder(written.left(written.lastIndexOf(u'\\'))));
    const qsizetype cut = written.lastIndexOf(u'\\');
    QFile file(pc.paths.native(written.left(cut)) + u'/' + written.mid(cut + 1));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  bool stands(const QString& name) const { return pc.paths.exists(folder + u'\\' + name); }
  jet::Database open(const jet::Workspace& workspace, const QString& name) const {
    return workspace.OpenDatabase(pc.paths.native(folder + u'\\' + name));
  }
  void makeOld(const QStringList& statements) {
    ASSERT_TRUE(makeDataFile(session, session.DbPath + oldFile, schema::File::InOutCash));
    const jet::Workspace workspace{jet::Workspace::Options{}};
    const jet::Database old = open(workspace, oldFile);
    for (const QString& sql : statements) old.Execute(sql);
  }
  void makeNew() {
    ASSERT_TRUE(makeDataFile(session, session.DbPath + u"dbCashbook.mdb"_s, schema::File::Cashbook));
  }
  /** All rows, a field apart by "|", Null as nothing. */
  QString rows(const QString& sql) const {
    const jet::Workspace workspace{jet::Workspace::Options{}};
    jet::Recordset rs = open(workspace, u"dbCashbook.mdb"_s).OpenRecordset(sql);
    QStringList all;
    for (; !rs.atEnd(); rs.MoveNext()) {
      QStringList row;
      for (int field = 0; field < rs.fieldNames().size(); ++field) row << rs[field].toText();
      all << row.join(u'|');
    }
    return all.join(u'\n');
  }
  QString accounts() const { return rows(u"Select Code, Name, Section From accounts Order By Code"_s); }
  QString entries() const {
    return rows(u"Select code, sDate, AcntName, detail, income, outlay From cashbook Order By code"_s);
  }
};

const QStringList oldRows{
    u"Insert Into Content(Code, Content, Section) Values(2, '유류비', 1)"_s,
    u"Insert Into Content(Code, Content, Section) Values(1, '사장님''s 용돈', Null)"_s,
    u"Insert Into Content(Code, Content, Section) Values(3, Null, 1)"_s,
    u"Insert Into InOutCash(Code, CurDate, Bigo, Sub, Detail, Cash) Values(1, '2005.03.01', '외상', ' 수 입 ', '매출', 5000)"_s,
    u"Insert Into InOutCash(Code, CurDate, Bigo, Sub, Detail, Cash) Values(2, '2005.03.02', Null, '지 출', '유류비', 1200)"_s,
    u"Insert Into InOutCash(Code, CurDate, Bigo, Sub, Detail, Cash) Values(3, '2005.03.03', 'x', Null, '빠짐', 7)"_s,
    u"Insert Into InOutCash(Code, CurDate, Bigo, Sub, Detail, Cash) Values(4, '2005.03.04', 'x', '수 입', '빠짐', Null)"_s,
    u"Insert Into InOutCash(Code, CurDate, Bigo, Sub, Detail, Cash) Values(5, Null, 'y', '수입', '붙여 쓴 것', 30)"_s};
const char* const newAccounts = "1|사장님's 용돈|\n2|유류비|1";
const char* const newEntries =
    "1|2005-03-01|매출|외상|5000|0\n2|2005-03-02|유류비||0|1200\n5||붙여 쓴 것|y|0|30";

TEST_F(CompanionTools, TheToolIsLookedForInTheProgramsFolderThenWhereItsOwnSettingSays) {
  const auto path = [&] { return pc.settings.GetSetting("Cashbook", "General", "AppPath"); };
  prompts.expect(u"현금출납장 실행파일을 찾을 수 없습니다."_s);
  RunCashbook(session, folder, {});
  pc.settings.SaveSetting("Cashbook", "General", "AppPath", "D:\\없음");
  prompts.expect(u"C:\\RWGas\\CashPad\n현금출납장 실행파일을 찾을 수 없습니다."_s);
  RunCashbook(session, folder, {});
  EXPECT_EQ(path(), "C:\\RWGas");
  ASSERT_TRUE(pc.paths.makeFolder(u"D:\\장부"_s));
  pc.settings.SaveSetting("Cashbook", "General", "AppPath", "D:\\장부\\");
  prompts.expect(u"D:\\장부\\CashPad\n현금출납장 실행파일을"_s);
  RunCashbook(session, folder, {});
  EXPECT_TRUE(started.isEmpty());
  put(u"D:\\장부\\CashPad"_s);
  RunCashbook(session, folder, {});
  EXPECT_EQ(started, (QStringList{pc.paths.native("D:\\장부\\CashPad"), "C:\\rwgas\\dbs"}));
  EXPECT_EQ(path(), "D:\\장부\\");
  put(u"C:\\RWGas\\CashPad"_s);
  RunCashbook(session, folder, {});
  EXPECT_EQ(started.first(), pc.paths.native("C:\\RWGas\\CashPad"));

  prompts.expect(u"온누리일정 실행파일을 찾을 수 없습니다."_s);
  RunSchedule(session, folder, {});
  put(u"D:\\장부\\RWPlanner.exe"_s);
  pc.settings.SaveSetting("온누리일정", "General", "AppPath", "D:\\장부");
  RunSchedule(session, folder, oldFile);
  EXPECT_EQ(started, (QStringList{pc.paths.native("D:\\장부\\RWPlanner.exe"), "C:\\rwgas\\dbs"}));
}

TEST_F(CompanionTools, TheMenuHandsOverTheDataFolder) {
  EXPECT_EQ(folderForTools(session), "C:\\rwgas\\dbs");
  session.DbPath = u"Z:\\DBS\\"_s;
  EXPECT_EQ(folderForTools(session), "Z:\\DBS");
}

TEST_F(CompanionTools, TheOldCashBookIsConvertedOnce) {
  EXPECT_TRUE(ConvCashBook(session, folder, oldFile)) << "a fresh install";
  makeOld(oldRows);
  prompts.expect(u"현금출납장 DB가 업데이트 되었습니다."_s);
  prompts.expect(u"신버전 DB를 찾을 수 없습니다."_s);
  EXPECT_FALSE(ConvCashBook(session, folder, oldFile));
  makeNew();
  prompts.expect(u"현금출납장 DB가 업데이트 되었습니다."_s);
  prompts.expect(u"[잔액 재정리]를 실행하여 주세요."_s);
  EXPECT_TRUE(ConvCashBook(session, {}, oldFile)) << "an empty folder is the program's own";
  EXPECT_EQ(accounts(), newAccounts);
  EXPECT_EQ(entries(), newEntries);
  EXPECT_FALSE(stands(oldFile));
  EXPECT_TRUE(stands(u"OLDdbCashbook.mdb"_s));
  makeOld(oldRows);
  EXPECT_TRUE(ConvCashBook(session, folder, oldFile)) << "what was converted before stops any further work";
  EXPECT_EQ(entries(), newEntries);
  EXPECT_TRUE(stands(oldFile));
}

TEST_F(CompanionTools, AFailureInTheMiddleLeavesTheOldFileAndTheNextStartGoesOnWithoutDoubling) {
  makeOld(oldRows);
  makeNew();
  {
    const jet::Workspace workspace{jet::Workspace::Options{}};
    const jet::Database book = open(workspace, u"dbCashbook.mdb"_s);
    book.Execute(u"Drop Table cashbook"_s);  // a tool's file of another version
  }
  put(u"C:\\RWGas\\CashPad"_s);
  prompts.expect(u"현금출납장 DB가 업데이트 되었습니다."_s);
  prompts.expect(u"현금출납장 DB를 신버전으로 바꾸지 못했습니다."_s);
  RunCashbook(session, folder, oldFile);
  EXPECT_TRUE(started.isEmpty());
  EXPECT_EQ(accounts(), newAccounts) << "rows copied so far stay";
  EXPECT_TRUE(stands(oldFile));
  EXPECT_FALSE(stands(u"OLDdbCashbook.mdb"_s));
  {
    const jet::Workspace workspace{jet::Workspace::Options{}};
    const jet::Database book = open(workspace, u"dbCashbook.mdb"_s);
    book.createTable(schema::table(schema::File::Cashbook, u"cashbook"_s));
    // Copied before the power went.
    book.Execute(
        u"Insert Into cashbook(code, sDate, AcntName, detail, income, outlay) Values(1, '2005-03-01', '매출', '외상', 5000, 0)"_s);
  }
  prompts.expect(u"현금출납장 DB가 업데이트 되었습니다."_s);
  prompts.expect(u"업그레이드가 완료 되었습니다."_s);
  RunCashbook(session, folder, oldFile);
  EXPECT_EQ(accounts(), newAccounts);
  EXPECT_EQ(entries(), newEntries);
  EXPECT_EQ(started.value(1), "C:\\rwgas\\dbs");
}

TEST_F(CompanionTools, AnOldFileInUseOrOfAnotherFormatIsToldAndStays) {
  makeOld(oldRows);
  makeNew();
  {
    const jet::Workspace workspace{jet::Workspace::Options{}};
    const jet::Database elsewhere = open(workspace, oldFile);
    prompts.expect(u"현금출납장 DB가 업데이트 되었습니다."_s);
    prompts.expect(u"이미 사용 중입니다."_s);
    EXPECT_FALSE(ConvCashBook(session, folder, oldFile));
  }
  QFile file(pc.paths.native(folder + u'\\' + oldFile));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QByteArray(4096, 'x'));
  file.close();
  prompts.expect(u"현금출납장 DB가 업데이트 되었습니다."_s);
  prompts.expect(u"현금출납장 DB를 신버전으로 바꾸지 못했습니다."_s);
  EXPECT_FALSE(ConvCashBook(session, folder, oldFile));
  EXPECT_TRUE(stands(oldFile));
  EXPECT_EQ(entries(), "");
}

}  // namespace
