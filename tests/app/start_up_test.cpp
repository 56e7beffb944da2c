#include "app/start_up.h"

#include "store/year_file.h"
#include "tests/store/old_books.h"

namespace {

using namespace tests;
using namespace Qt::StringLiterals;

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
        u"Insert Into User(Company, User, Password, Stock, PayState) Values('해오름가스', '홍', '"_s +
        password + u"', "_s + (stock ? u"True"_s : u"False"_s) + u", 1)"_s);
    startUp->shutDown();
    ASSERT_TRUE(start());
  }
  QString native(const QString& name) { return here.pc.paths.native(installedDataFolder()) + u'/' + name; }
};

TEST_F(StartUpTest, AnEmptyFolderBecomesAReadyProgram) {
  here.pc.clock.set(QDateTime(QDate(2027, 1, 4), QTime(8, 0)));
  here.pc.clock.setShortDateFormat(u"yy/MM/dd"_s);
  ASSERT_TRUE(start());
  EXPECT_EQ(session.WorkYear, "2027");
  EXPECT_EQ(session.DbPath, "C:\\RWGas\\Dbs\\");
  EXPECT_EQ(session.RptPath, "C:\\RWGas\\RPT\\");
  EXPECT_EQ(here.pc.clock.shortDateFormat(), "yyyy-MM-dd");
  EXPECT_EQ(firstOf(session.dbYear, u"Select Count(*) From Client"_s), "0") << "linked";
  EXPECT_EQ(here.pc.settings.GetSetting(u"Backup"_s, u"DB경로"_s, u"경로"_s), "C:\\RWGas\\Dbs\\");
  EXPECT_EQ(here.pc.settings.GetSetting(u"MainProg"_s, u"경로설정"_s, u"Map경로"_s), "C:\\RWGAS\\MAP\\");
  EXPECT_EQ(here.pc.settings.GetSetting(u"해온판매"_s, u"Registration"_s, u"연체료계산"_s), "0");
  EXPECT_EQ(startUp->screen().identify, "일반 사용자 로그인");
  EXPECT_EQ(startUp->screen().user, "라온웨어");
  EXPECT_EQ(startUp->screen().password, "엔터치세요");
  EXPECT_TRUE(startUp->screen().passwordVisible);
  EXPECT_FALSE(session.StockEnabled);
  here.prompts.expect(u"사용자 등록후 Password를 설정해 주시기 바랍니다."_s);
  EXPECT_EQ(startUp->enterPassword(u"엔터치세요"_s), SignIn::Accepted);
  EXPECT_EQ(session.CurrentPassword, "");

  here.pc.settings.SaveSetting(u"약도"_s, u"환경설정"_s, u"MapEdit"_s, u"1"_s);
  startUp->shutDown();
  EXPECT_EQ(here.pc.settings.GetSetting(u"약도"_s, u"환경설정"_s, u"MapEdit"_s), "0");
  EXPECT_EQ(here.pc.clock.shortDateFormat(), "yy/MM/dd");
  EXPECT_FALSE(session.dbBasic.isOpen() || session.dbYear.isOpen() || session.wsMain.isOpen());
}

TEST_F(StartUpTest, OldFilesAreBroughtUpToDateAndASecondStartChangesNothing) {
  makeOldBooks(here);
  here.prompts.expect(u"우편번호 업그레이드"_s);
  ASSERT_TRUE(start());
  for (const QString& name : {u"Serial"_s, u"Status"_s, u"Item"_s, u"Uname"_s, u"Tel1"_s, u"Tel2"_s}) {
    EXPECT_TRUE(hasField(session.dbBasic, u"Client"_s, name)) << name.toStdString();
  }
  EXPECT_EQ(firstOf(session.dbBasic, u"Select Name From Client Where Tel1 = '' And Tel2 = ''"_s), "김가네");
  EXPECT_EQ(firstOf(session.dbYear, u"Select Count(*) From Sale Where DealList = 0"_s), "1");
  EXPECT_TRUE(here.pc.paths.exists(session.DbPath + u"dbDetail.mdb"_s));
  EXPECT_EQ(firstOf(session.dbCommon, u"Select OPTValue From Options"_s), "0");
  const auto dumps = [&] {
    QString all;
    for (const QString& name : here.pc.paths.list(session.DbPath, u"*.mdb"_s)) {
      all += name + u'\n' + dumpOf(session.wsMain.OpenDatabase(session.DbPath + name));
    }
    return all;
  };
  const QString before = dumps();
  startUp->shutDown();
  ASSERT_TRUE(start());
  EXPECT_EQ(dumps(), before);
}

TEST_F(StartUpTest, SignInComparesExactlyAndEndsAfterThree) {
  ASSERT_TRUE(start());
  company(u"비밀Ab"_s);
  EXPECT_TRUE(session.StockEnabled);
  EXPECT_FALSE(startUp->screen().passwordVisible);
  EXPECT_EQ(startUp->screen().user, "해오름가스");
  here.prompts.expect(u"Password가 일치하지 않습니다!"_s);
  EXPECT_EQ(startUp->enterPassword(u"비밀ab"_s), SignIn::TryAgain);
  here.prompts.expect(u"인증실패"_s);
  EXPECT_EQ(startUp->enterPassword(u""_s), SignIn::TryAgain);
  EXPECT_EQ(session.CurrentPassword, "");
  here.prompts.expect(u"사용자 인증이 3회이상 실패하였으므로 프로그램을 종료합니다."_s);
  EXPECT_EQ(startUp->enterPassword(u"비밀Ab "_s), SignIn::EndProgram);

  startUp->shutDown();
  ASSERT_TRUE(start()) << "the count of failures is the start's own";
  EXPECT_EQ(startUp->enterPassword(u"비밀Ab"_s), SignIn::Accepted);
  EXPECT_EQ(session.CurrentPassword, "비밀Ab");
}

TEST_F(StartUpTest, AnEmptyPasswordSignsInOnEnterAndTheSavedNameIsShown) {
  ASSERT_TRUE(start());
  here.pc.settings.SaveSetting(u"해온판매"_s, u"Registration"_s, u"UserName"_s, u"저장된상호"_s);
  company(u""_s, false);
  EXPECT_EQ(startUp->screen().user, "저장된상호");
  EXPECT_EQ(startUp->screen().company, "해오름가스");
  EXPECT_FALSE(session.StockEnabled);
  EXPECT_EQ(startUp->enterPassword(u"엔터치세요"_s), SignIn::Accepted);
}

TEST_F(StartUpTest, ANewYearStartsEmptyAndLeavesTheOldFileAlone) {
  here.pc.clock.set(QDateTime(QDate(2026, 12, 31), QTime(9, 0)));
  ASSERT_TRUE(start());
  session.dbBasic.Execute(u"Insert Into Client(Name) Values('가')"_s);
  session.dbYear.Execute(u"Insert Into Sale(SaleDate, ClientCode) Values('2026-12-31', 1)"_s);
  startUp->shutDown();
  here.pc.clock.set(QDateTime(QDate(2027, 1, 1), QTime(9, 0)));
  ASSERT_TRUE(start());
  EXPECT_EQ(session.WorkYear, "2027");
  EXPECT_EQ(firstOf(session.dbYear, u"Select Count(*) From Sale"_s), "0");
  EXPECT_EQ(firstOf(session.dbYear, u"Select Name From Client"_s), "가");
  EXPECT_EQ(
      firstOf(session.wsMain.OpenDatabase(yearFile(session, u"2026"_s)), u"Select Count(*) From Sale"_s),
      "1");
}

TEST_F(StartUpTest, AMovedFolderIsWorkedInWhileTheFixedStepsStayWhereTheyAre) {
  ASSERT_TRUE(start());
  startUp->shutDown();
  here.pc.paths.makeFolder(u"D:\\"_s);
  here.pc.settings.SaveSetting(u"해온판매"_s, u"환경설정"_s, u"db경로"_s, u"D:\\가게\\DBS\\"_s);
  here.pc.settings.SaveSetting(u"해온판매"_s, u"환경설정"_s, u"rpt경로"_s, u"D:\\가게\\RPT\\"_s);
  here.prompts.expect(u"새로 만드시겠습니까?"_s, true);
  ASSERT_TRUE(start());
  EXPECT_EQ(session.dbYear.path().left(3), "D:\\");
  EXPECT_EQ(session.RptPath, "C:\\RWGas\\RPT\\");
  EXPECT_EQ(session.dbCommon.path().left(3), "C:\\");
}

TEST_F(StartUpTest, TwoPcsWorkInOneFolder) {
  ASSERT_TRUE(start());
  session.dbBasic.Execute(u"Insert Into Client(Name, GasInit) Values('가', 1000)"_s);
  pc::Pc otherPc(here.folder.path());
  Session other(otherPc, here.prompts);
  StartUp second(other);
  ASSERT_TRUE(second.SubMain([&] { second.load(); })) << "while the first has its files open";
  other.dbYear.Execute(u"Update Client Set GasInit = GasInit - 300 Where Code = 1"_s);
  startUp->relink();
  EXPECT_EQ(firstOf(session.dbYear, u"Select GasInit From Client Where Code = 1"_s), "700");
  session.dbYear.Execute(u"Insert Into Sale(SaleDate, ClientCode) Values('2026-03-02', 1)"_s);
  second.relink();
  EXPECT_EQ(firstOf(other.dbYear,
                    u"Select Client.Name From Sale Left Join Client On Sale.ClientCode = Client.Code"_s),
            "가");
  second.shutDown();
  EXPECT_EQ(firstOf(session.dbYear, u"Select Count(*) From Sale"_s), "1");
}

TEST_F(StartUpTest, BadDaysAreTold) {
  ASSERT_TRUE(start());
  startUp->shutDown();
  ASSERT_TRUE(QFile::remove(native(u"dbPost.mdb"_s)));
  here.prompts.expect(u"우편번호 파일을 찾을 수 없습니다."_s);
  EXPECT_TRUE(start()) << "the program goes on without postcodes";
  startUp->shutDown();

  QFile broken(native(session.WorkYear + u"Foundation.mdb"_s));
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly | QIODevice::Truncate));
  broken.write(QByteArray(5000, 'x'));
  broken.close();
  here.prompts.expect(u"우편번호 파일을 찾을 수 없습니다."_s);
  here.prompts.expect(u"Foundation.mdb"_s);
  EXPECT_FALSE(start());
  EXPECT_FALSE(session.wsMain.isOpen());

  ASSERT_TRUE(QFile::remove(native(u"Basic.mdb"_s)));
  ASSERT_TRUE(QDir().mkdir(native(u"Basic.mdb"_s)));
  here.prompts.expect(u"프로그램 시작 중 오류가 발생하여 종료합니다."_s);
  EXPECT_FALSE(start());
}

TEST_F(StartUpTest, LeavingTheStartWindowAsks) {
  here.pc.clock.setShortDateFormat(u"M/d/yy"_s);
  ASSERT_TRUE(start());
  here.prompts.expect(u"보안관리자"_s, false);
  EXPECT_FALSE(startUp->askToLeave());
  EXPECT_TRUE(session.dbBasic.isOpen());
  here.prompts.expect(u"프로그램을 종료하시겠습니까?"_s, true);
  EXPECT_TRUE(startUp->askToLeave());
  EXPECT_FALSE(session.dbBasic.isOpen());
  EXPECT_EQ(here.pc.clock.shortDateFormat(), "M/d/yy");
}

}  // namespace
