#include "app/start_up.h"

#include "store/year_file.h"
#include "tests/store/old_books.h"

namespace {

using namespace tests;

struct StartUpTest : testing::Test {
  TestPc here;
  Session& session = here.session;
  std::unique_ptr<StartUp> startUp;

  bool start() {
    startUp = std::make_unique<StartUp>(session);
    return startUp->SubMain([this] { startUp->load(); });
  }
  void company(const QString& password, bool stock = true) {
    session.dbBasic.Execute(
        "Insert Into User(Company, User, Password, Stock, PayState) Values('해오름가스', '홍', '" + password +
        "', " + (stock ? "True" : "False") + ", 1)");
    startUp->shutDown();
    ASSERT_TRUE(start());
  }
  QString native(const QString& name) { return here.pc.paths.native(installedDataFolder()) + u'/' + name; }
};

TEST_F(StartUpTest, AnEmptyFolderBecomesAReadyProgram) {
  here.pc.clock.set(QDateTime(QDate(2027, 1, 4), QTime(8, 0)));
  here.pc.clock.setShortDateFormat("yy/MM/dd");
  ASSERT_TRUE(start());
  EXPECT_EQ(session.WorkYear, "2027");
  EXPECT_EQ(session.DbPath, "C:\\RWGas\\Dbs\\");
  EXPECT_EQ(session.RptPath, "C:\\RWGas\\RPT\\");
  EXPECT_EQ(here.pc.clock.shortDateFormat(), "yyyy-MM-dd");
  EXPECT_EQ(firstOf(session.dbYear, "Select Count(*) From Client"), "0") << "linked";
  EXPECT_EQ(here.pc.settings.GetSetting("Backup", "DB경로", "경로"), "C:\\RWGas\\Dbs\\");
  EXPECT_EQ(here.pc.settings.GetSetting("MainProg", "경로설정", "Map경로"), "C:\\RWGAS\\MAP\\");
  EXPECT_EQ(here.pc.settings.GetSetting("해온판매", "Registration", "연체료계산"), "0");
  EXPECT_EQ(startUp->screen().identify, "일반 사용자 로그인");
  EXPECT_EQ(startUp->screen().user, "라온웨어");
  EXPECT_EQ(startUp->screen().password, "엔터치세요");
  EXPECT_TRUE(startUp->screen().passwordVisible);
  EXPECT_FALSE(session.StockEnabled);
  here.prompts.expect("사용자 등록후 Password를 설정해 주시기 바랍니다.");
  EXPECT_EQ(startUp->enterPassword("엔터치세요"), SignIn::Accepted);
  EXPECT_EQ(session.CurrentPassword, "");

  here.pc.settings.SaveSetting("약도", "환경설정", "MapEdit", "1");
  startUp->shutDown();
  EXPECT_EQ(here.pc.settings.GetSetting("약도", "환경설정", "MapEdit"), "0");
  EXPECT_EQ(here.pc.clock.shortDateFormat(), "yy/MM/dd");
  EXPECT_FALSE(session.dbBasic.isOpen() || session.dbYear.isOpen() || session.wsMain.isOpen());
}

TEST_F(StartUpTest, OldFilesAreBroughtUpToDateAndASecondStartChangesNothing) {
  makeOldBooks(here);
  here.prompts.expect("우편번호 업그레이드");
  ASSERT_TRUE(start());
  for (const QString name : {"Serial", "Status", "Item", "Uname", "Tel1", "Tel2"}) {
    EXPECT_TRUE(hasField(session.dbBasic, "Client", name)) << name.toStdString();
  }
  EXPECT_EQ(firstOf(session.dbBasic, "Select Name From Client Where Tel1 = '' And Tel2 = ''"), "김가네");
  EXPECT_EQ(firstOf(session.dbYear, "Select Count(*) From Sale Where DealList = 0"), "1");
  EXPECT_TRUE(here.pc.paths.exists(session.DbPath + "dbDetail.mdb"));
  EXPECT_EQ(firstOf(session.dbCommon, "Select OPTValue From Options"), "0");
  const QString before = dumpsOf(session);
  startUp->shutDown();
  ASSERT_TRUE(start());
  EXPECT_EQ(dumpsOf(session), before);
}

TEST_F(StartUpTest, SignInComparesExactlyAndEndsAfterThree) {
  ASSERT_TRUE(start());
  company("비밀Ab");
  EXPECT_TRUE(session.StockEnabled);
  EXPECT_FALSE(startUp->screen().passwordVisible);
  EXPECT_EQ(startUp->screen().user, "해오름가스");
  here.prompts.expect("Password가 일치하지 않습니다!");
  EXPECT_EQ(startUp->enterPassword("비밀ab"), SignIn::TryAgain);
  here.prompts.expect("인증실패");
  EXPECT_EQ(startUp->enterPassword(""), SignIn::TryAgain);
  EXPECT_EQ(session.CurrentPassword, "");
  here.prompts.expect("사용자 인증이 3회이상 실패하였으므로 프로그램을 종료합니다.");
  EXPECT_EQ(startUp->enterPassword("비밀Ab "), SignIn::EndProgram);

  startUp->shutDown();
  ASSERT_TRUE(start()) << "the count of failures is the start's own";
  EXPECT_EQ(startUp->enterPassword("비밀Ab"), SignIn::Accepted);
  EXPECT_EQ(session.CurrentPassword, "비밀Ab");
}

TEST_F(StartUpTest, AnEmptyPasswordSignsInOnEnterAndTheSavedNameIsShown) {
  ASSERT_TRUE(start());
  here.pc.settings.SaveSetting("해온판매", "Registration", "UserName", "저장된상호");
  company("", false);
  EXPECT_EQ(startUp->screen().user, "저장된상호");
  EXPECT_EQ(startUp->screen().company, "해오름가스");
  EXPECT_FALSE(session.StockEnabled);
  EXPECT_EQ(startUp->enterPassword("엔터치세요"), SignIn::Accepted);
}

TEST_F(StartUpTest, ANewYearStartsEmptyAndLeavesTheOldFileAlone) {
  here.pc.clock.set(QDateTime(QDate(2026, 12, 31), QTime(9, 0)));
  ASSERT_TRUE(start());
  session.dbBasic.Execute("Insert Into Client(Name) Values('가')");
  session.dbYear.Execute("Insert Into Sale(SaleDate, ClientCode) Values('2026-12-31', 1)");
  startUp->shutDown();
  here.pc.clock.set(QDateTime(QDate(2027, 1, 1), QTime(9, 0)));
  ASSERT_TRUE(start());
  EXPECT_EQ(session.WorkYear, "2027");
  EXPECT_EQ(firstOf(session.dbYear, "Select Count(*) From Sale"), "0");
  EXPECT_EQ(firstOf(session.dbYear, "Select Name From Client"), "가");
  EXPECT_EQ(firstOf(session.wsMain.OpenDatabase(yearFile(session, "2026")), "Select Count(*) From Sale"),
            "1");
}

TEST_F(StartUpTest, AMovedFolderIsWorkedInWhileTheFixedStepsStayWhereTheyAre) {
  ASSERT_TRUE(start());
  startUp->shutDown();
  here.pc.paths.makeFolder("D:\\");
  here.pc.settings.SaveSetting("해온판매", "환경설정", "db경로", "D:\\가게\\DBS\\");
  here.pc.settings.SaveSetting("해온판매", "환경설정", "rpt경로", "D:\\가게\\RPT\\");
  here.prompts.expect("새로 만드시겠습니까?", true);
  ASSERT_TRUE(start());
  EXPECT_EQ(session.dbYear.path().left(3), "D:\\");
  EXPECT_EQ(session.RptPath, "C:\\RWGas\\RPT\\");
  EXPECT_EQ(session.dbCommon.path().left(3), "C:\\");
}

TEST_F(StartUpTest, TwoPcsWorkInOneFolder) {
  ASSERT_TRUE(start());
  session.dbBasic.Execute("Insert Into Client(Name, GasInit) Values('가', 1000)");
  pc::Pc otherPc(here.folder.path());
  Session other(otherPc, here.prompts);
  StartUp second(other);
  ASSERT_TRUE(second.SubMain([&] { second.load(); })) << "while the first has its files open";
  other.dbYear.Execute("Update Client Set GasInit = GasInit - 300 Where Code = 1");
  startUp->relink();
  EXPECT_EQ(firstOf(session.dbYear, "Select GasInit From Client Where Code = 1"), "700");
  session.dbYear.Execute("Insert Into Sale(SaleDate, ClientCode) Values('2026-03-02', 1)");
  second.relink();
  EXPECT_EQ(
      firstOf(other.dbYear, "Select Client.Name From Sale Left Join Client On Sale.ClientCode = Client.Code"),
      "가");
  second.shutDown();
  EXPECT_EQ(firstOf(session.dbYear, "Select Count(*) From Sale"), "1");
}

TEST_F(StartUpTest, BadDaysAreTold) {
  ASSERT_TRUE(start());
  startUp->shutDown();
  ASSERT_TRUE(QFile::remove(native("dbPost.mdb")));
  here.prompts.expect("우편번호 파일을 찾을 수 없습니다.");
  EXPECT_TRUE(start()) << "the program goes on without postcodes";
  startUp->shutDown();

  writeFile(native(session.WorkYear + "Foundation.mdb"), QByteArray(5000, 'x'));
  here.prompts.expect("우편번호 파일을 찾을 수 없습니다.");
  here.prompts.expect("Foundation.mdb");
  EXPECT_FALSE(start());
  EXPECT_FALSE(session.wsMain.isOpen());

  ASSERT_TRUE(QFile::remove(native("Basic.mdb")));
  ASSERT_TRUE(QDir().mkdir(native("Basic.mdb")));
  here.prompts.expect("프로그램 시작 중 오류가 발생하여 종료합니다.");
  EXPECT_FALSE(start());
}

TEST_F(StartUpTest, LeavingTheStartWindowAsks) {
  here.pc.clock.setShortDateFormat("M/d/yy");
  ASSERT_TRUE(start());
  here.prompts.expect("보안관리자", false);
  EXPECT_FALSE(startUp->askToLeave());
  EXPECT_TRUE(session.dbBasic.isOpen());
  here.prompts.expect("프로그램을 종료하시겠습니까?", true);
  EXPECT_TRUE(startUp->askToLeave());
  EXPECT_FALSE(session.dbBasic.isOpen());
  EXPECT_EQ(here.pc.clock.shortDateFormat(), "M/d/yy");
}

}  // namespace
