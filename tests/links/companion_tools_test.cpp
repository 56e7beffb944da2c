// The cash book and the schedule: found, converted for, started.
#include "links/companion_tools.h"

#include "links/cash_book.h"
#include "store/schema.h"
#include "tests/answers.h"
#include "tests/support.h"

namespace {

using namespace tests;

struct CompanionTools : testing::Test, TestPc {
  QStringList started;
  const QString folder = "C:\\rwgas\\dbs";
  const QString oldFile = "InOutCash.mdb";

  void SetUp() override {
    session.AppTitle = "해온판매";
    session.DbPath = installedDataFolder();
    ASSERT_TRUE(pc.paths.makeFolder(session.DbPath));
    pc.process.setStarter([this](const QString& program, const QStringList& arguments, const QString&) {
      started = QStringList(program) + arguments;
      return true;
    });
  }
  void put(const QString& written) { writeFile(pc.paths.native(written)); }
  bool stands(const QString& name) const { return pc.paths.exists(folder + '\\' + name); }
  jet::Database book() const { return openData(session, "dbCashbook.mdb"); }
  void makeOld() {
    ASSERT_TRUE(makeDataFile(session, session.DbPath + oldFile, schema::File::InOutCash));
    const jet::Database old = openData(session, oldFile);
    insertRows(old, "Content(Code, Content, Section)",
               {"2, '유류비', 1", "1, '사장님''s 용돈', Null", "3, Null, 1"});
    insertRows(old, "InOutCash(Code, CurDate, Bigo, Sub, Detail, Cash)",
               {"1, '2005.03.01', '외상', ' 수 입 ', '매출', 5000",
                "2, '2005.03.02', Null, '지 출', '유류비', 1200", "3, '2005.03.03', 'x', Null, '빠짐', 7",
                "4, '2005.03.04', 'x', '수 입', '빠짐', Null", "5, Null, 'y', '수입', '붙여 쓴 것', 30"});
  }
  void makeNew() {
    ASSERT_TRUE(makeDataFile(session, session.DbPath + "dbCashbook.mdb", schema::File::Cashbook));
  }
  QString accounts() const {
    return rowsOf(book(), "Select Code, Name, Section From accounts Order By Code");
  }
  QString entries() const {
    return rowsOf(book(), "Select code, sDate, AcntName, detail, income, outlay From cashbook Order By code");
  }
};

const char* const newAccounts = "1|사장님's 용돈|;2|유류비|1";
const char* const newEntries =
    "1|2005-03-01|매출|외상|5000|0;2|2005-03-02|유류비||0|1200;5||붙여 쓴 것|y|0|30";

TEST_F(CompanionTools, TheToolIsLookedForInTheProgramsFolderThenWhereItsOwnSettingSays) {
  const auto path = [&] { return pc.settings.GetSetting("Cashbook", "General", "AppPath"); };
  prompts.expect("현금출납장 실행파일을 찾을 수 없습니다.");
  RunCashbook(session, folder, {});
  pc.settings.SaveSetting("Cashbook", "General", "AppPath", "D:\\없음");
  prompts.expect("C:\\RWGas\\CashPad\n현금출납장 실행파일을 찾을 수 없습니다.");
  RunCashbook(session, folder, {});
  EXPECT_EQ(path(), "C:\\RWGas");
  ASSERT_TRUE(pc.paths.makeFolder("D:\\장부"));
  pc.settings.SaveSetting("Cashbook", "General", "AppPath", "D:\\장부\\");
  prompts.expect("D:\\장부\\CashPad\n현금출납장 실행파일을");
  RunCashbook(session, folder, {});
  EXPECT_TRUE(started.isEmpty());
  put("D:\\장부\\CashPad");
  RunCashbook(session, folder, {});
  EXPECT_EQ(started, (QStringList{pc.paths.native("D:\\장부\\CashPad"), "C:\\rwgas\\dbs"}));
  EXPECT_EQ(path(), "D:\\장부\\");
  put("C:\\RWGas\\CashPad");
  RunCashbook(session, folder, {});
  EXPECT_EQ(started.first(), pc.paths.native("C:\\RWGas\\CashPad"));

  prompts.expect("온누리일정 실행파일을 찾을 수 없습니다.");
  RunSchedule(session, folder, {});
  put("D:\\장부\\RWPlanner.exe");
  pc.settings.SaveSetting("온누리일정", "General", "AppPath", "D:\\장부");
  RunSchedule(session, folder, oldFile);
  EXPECT_EQ(started, (QStringList{pc.paths.native("D:\\장부\\RWPlanner.exe"), "C:\\rwgas\\dbs"}));
}

TEST_F(CompanionTools, TheMenuHandsOverTheDataFolder) {
  EXPECT_EQ(folderForTools(session), "C:\\rwgas\\dbs");
  session.DbPath = "Z:\\DBS\\";
  EXPECT_EQ(folderForTools(session), "Z:\\DBS");
}

TEST_F(CompanionTools, TheOldCashBookIsConvertedOnce) {
  EXPECT_TRUE(ConvCashBook(session, folder, oldFile)) << "a fresh install";
  makeOld();
  prompts.expect(
      "현금출납장 DB가 업데이트 되었습니다.\n신버전으로 교체작업이 진행 될 것이며,\n"
      "등록된 자료의 양에 따라 다소 시간이 걸릴 수도 있습니다.");
  prompts.expect(
      "현금출납장 신버전 DB를 찾을 수 없습니다.\n재설치를 하지 않은 경우 재설치를 하여 주시고,\n"
      "재설치를 한 경우 [1600-0000]로 문의 바랍니다.");
  EXPECT_FALSE(ConvCashBook(session, folder, oldFile));
  makeNew();
  prompts.expect("현금출납장 DB가 업데이트 되었습니다.");
  prompts.expect(
      "현금출납장 DB 업그레이드가 완료 되었습니다.\n곧 뜨게 될 신버전 현금출납장에서 최초 한번만 아래 "
      "설명대로 "
      "[잔액 재정리] 처리를 해 주세요.\n\n[잔액 재정리 방법]\n"
      " 현금출납장 프로그램 메뉴상의 [도구] - [잔액 재정리]를 실행하여 주세요.");
  EXPECT_TRUE(ConvCashBook(session, {}, oldFile)) << "an empty folder is the program's own";
  EXPECT_TRUE(prompts.seen.last().startsWith("현금출납장DB 업그레이드|"));
  EXPECT_EQ(accounts(), newAccounts);
  EXPECT_EQ(entries(), newEntries);
  EXPECT_FALSE(stands(oldFile));
  EXPECT_TRUE(stands("OLDdbCashbook.mdb"));
  makeOld();
  EXPECT_TRUE(ConvCashBook(session, folder, oldFile)) << "what was converted before stops any further work";
  EXPECT_EQ(entries(), newEntries);
  EXPECT_TRUE(stands(oldFile));
}

TEST_F(CompanionTools, AFailureInTheMiddleLeavesTheOldFileAndTheNextStartGoesOnWithoutDoubling) {
  makeOld();
  makeNew();
  book().Execute("Drop Table cashbook");  // a tool's file of another version
  put("C:\\RWGas\\CashPad");
  prompts.expect("현금출납장 DB가 업데이트 되었습니다.");
  prompts.expect("현금출납장 DB를 신버전으로 바꾸지 못했습니다. 다음에 시작할 때 이어서 합니다.");
  RunCashbook(session, folder, oldFile);
  EXPECT_TRUE(started.isEmpty());
  EXPECT_EQ(accounts(), newAccounts) << "rows copied so far stay";
  EXPECT_TRUE(stands(oldFile));
  EXPECT_FALSE(stands("OLDdbCashbook.mdb"));
  book().createTable(schema::table(schema::File::Cashbook, "cashbook"));
  insertRows(book(), "cashbook(code, sDate, AcntName, detail, income, outlay)",
             {"1, '2005-03-01', '매출', '외상', 5000, 0"});  // copied before the power went
  prompts.expect("현금출납장 DB가 업데이트 되었습니다.");
  prompts.expect("업그레이드가 완료 되었습니다.");
  RunCashbook(session, folder, oldFile);
  EXPECT_EQ(accounts(), newAccounts);
  EXPECT_EQ(entries(), newEntries);
  EXPECT_EQ(started.value(1), "C:\\rwgas\\dbs");
}

TEST_F(CompanionTools, AnOldFileInUseOrOfAnotherFormatIsToldAndStays) {
  makeOld();
  makeNew();
  {
    const jet::Database elsewhere = openData(session, oldFile);
    prompts.expect("현금출납장 DB가 업데이트 되었습니다.");
    prompts.expect("이미 사용 중입니다.");
    EXPECT_FALSE(ConvCashBook(session, folder, oldFile));
  }
  writeFile(pc.paths.native(folder + '\\' + oldFile), QByteArray(4096, 'x'));
  prompts.expect("현금출납장 DB가 업데이트 되었습니다.");
  prompts.expect("현금출납장 DB를 신버전으로 바꾸지 못했습니다.");
  EXPECT_FALSE(ConvCashBook(session, folder, oldFile));
  EXPECT_TRUE(stands(oldFile));
  EXPECT_EQ(entries(), "");
}

}  // namespace
