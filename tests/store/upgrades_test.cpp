#include "store/upgrades.h"

#include "store/year_file.h"
#include "tests/store/old_books.h"

namespace {

using namespace tests;
using namespace Qt::StringLiterals;

struct Upgrades : testing::Test {
  TestPc here;
  Session& session = here.session;
  void SetUp() override {
    session.AppTitle = u"해온판매"_s;
    makeOldBooks(here);
    session.wsMain = openWorkspace(session, session.DbPath);
  }
  jet::Database file(const QString& name) { return session.wsMain.OpenDatabase(session.DbPath + name); }
  jet::Database year(const QString& year) { return session.wsMain.OpenDatabase(yearFile(session, year)); }
};

TEST_F(Upgrades, LateChargesReachEveryYearFileOfTheInstalledFolder) {
  QFile stranger(here.pc.paths.native(session.DbPath) + u"/1999Foundation.mdb"_s);
  ASSERT_TRUE(stranger.open(QIODevice::WriteOnly));
  stranger.write("no data file");
  stranger.close();
  session.DbPath = u"D:\\elsewhere\\"_s;  // makes no difference to this step
  upgrades::addLateCharges(session);
  session.DbPath = installedDataFolder();
  EXPECT_EQ(firstOf(file(u"Basic.mdb"_s), u"Select delaypay From APT"_s), "0");
  for (const QString& each : {u"2002"_s, u"2023"_s, u"2025"_s, u"2026"_s}) {
    EXPECT_EQ(firstOf(year(each), u"Select paydelayed From Evaporation"_s), "0") << each.toStdString();
  }
  file(u"Basic.mdb"_s).Execute(u"Update APT Set delaypay = 2.5"_s);
  upgrades::addLateCharges(session);
  EXPECT_EQ(firstOf(file(u"Basic.mdb"_s), u"Select delaypay From APT"_s), "2.5")
      << "only a new column is filled";
}

TEST_F(Upgrades, TheYearWalkEndsAtAGap) {
  QStringList walked;
  walkYears(session, [&](const QString& path) { walked << path.right(18).first(4); });
  EXPECT_EQ(walked, (QStringList{"2026", "2025"})) << "2024 is missing, so 2023 is not reached";
  upgrades::addDealMarks(session);
  EXPECT_EQ(firstOf(year(u"2025"_s), u"Select DealList + SaleList From Sale"_s), "0");
  EXPECT_FALSE(hasField(year(u"2023"_s), u"Sale"_s, u"DealList"_s));
  year(u"2025"_s).Execute(u"Update Sale Set DealList = 1"_s);
  upgrades::addDealMarks(session);
  EXPECT_EQ(firstOf(year(u"2025"_s), u"Select DealList From Sale"_s), "1");
}

TEST_F(Upgrades, OrphansGoWhereTheWalkReaches) {
  upgrades::removeOrphans(session);
  for (const QString& each : {u"2025"_s, u"2026"_s}) {
    EXPECT_EQ(firstOf(year(each), u"Select Count(*) From Sale"_s), "1") << each.toStdString();
    EXPECT_EQ(firstOf(year(each), u"Select ClientCode From Sale"_s), "1");
  }
  EXPECT_EQ(firstOf(year(u"2023"_s), u"Select Count(*) From Sale"_s), "3");
  year(u"2026"_s).Execute(u"Update Sale Set ClientCode = Null"_s);
  upgrades::removeOrphans(session);
  EXPECT_EQ(firstOf(year(u"2026"_s), u"Select Count(*) From Sale"_s), "1") << "a row without any code stays";
}

TEST_F(Upgrades, PostCodesAreMadeAnewOnceUnlessTheyAreWideOrDone) {
  const jet::Database basic = file(u"Basic.mdb"_s), post = file(u"dbPost.mdb"_s);
  here.pc.settings.SaveSetting(u"해온판매"_s, u"Registration"_s, u"PostC"_s, u"ok"_s);
  upgrades::rebuildPostCodes(session, basic, post);
  EXPECT_EQ(firstOf(basic, u"Select City From PostCode"_s), "옛것");
  here.pc.settings.SaveSetting(u"해온판매"_s, u"Registration"_s, u"PostC"_s, u""_s);
  here.prompts.expect(u"잠시만 기다려 주십시오.\n\n우편번호를 개정판으로 업그레이드 합니다."_s);
  upgrades::rebuildPostCodes(session, basic, post);
  EXPECT_EQ(here.pc.settings.GetSetting(u"해온판매"_s, u"Registration"_s, u"PostC"_s), "ok");
  jet::Recordset rs = basic.OpenRecordset(u"Select * From PostCode Order By PostCode"_s);
  QStringList rows;
  for (; !rs.atEnd(); rs.MoveNext())
    rows << rs[0].toText() + u'/' + rs[1].toText() + u'/' + rs[2].toText() + u'/' + rs[3].toText();
  EXPECT_EQ(rows, (QStringList{"700020/대구 중구/동인'동/ ", "702010/대구 북구/고성동/1~99"}));
  here.pc.settings.SaveSetting(u"해온판매"_s, u"Registration"_s, u"PostC"_s, u""_s);
  upgrades::rebuildPostCodes(session, basic, post);  // DDD is 60 wide now: no box
}

TEST_F(Upgrades, LinksAreMadeAnewAndFollowAMovedBasic) {
  ASSERT_TRUE(upgrades::relink(session));
  EXPECT_EQ(session.BasicPath, "C:\\rwgas\\dbs\\basic.mdb");
  EXPECT_EQ(firstOf(year(u"2023"_s),
                    u"Select Client.Name From Sale Inner Join Client On Sale.ClientCode = Client.Code"_s),
            "김가네");
  QFile linked(here.pc.paths.native(yearFile(session, u"2023"_s)));
  ASSERT_TRUE(linked.open(QIODevice::ReadOnly));
  const QByteArray before = linked.readAll();
  ASSERT_TRUE(upgrades::relink(session));
  linked.seek(0);
  EXPECT_TRUE(linked.readAll() == before) << "the next start writes nothing";
  linked.close();
  ASSERT_TRUE(here.pc.paths.makeFolder(u"D:\\새폴더\\DBS"_s));
  for (const char* name : {"Basic.mdb", "2026Foundation.mdb"}) {
    ASSERT_TRUE(here.pc.paths.copy(session.DbPath + QLatin1String(name),
                                   u"D:\\새폴더\\DBS\\"_s + QLatin1String(name)));
  }
  here.pc.settings.SaveSetting(u"해온판매"_s, u"환경설정"_s, u"db경로"_s, u"D:\\새폴더\\DBS\\"_s);
  session.DbPath = dataFolder(session);
  session.wsMain = openWorkspace(session, session.DbPath);
  session.wsMain.OpenDatabase(session.DbPath + u"Basic.mdb"_s)
      .Execute(u"Update Client Set Name = '새가게'"_s);
  ASSERT_TRUE(upgrades::relink(session));
  EXPECT_EQ(session.BasicPath, "D:\\새폴더\\DBS\\Basic.mdb");
  EXPECT_EQ(firstOf(year(u"2026"_s), u"Select Name From Client"_s), "새가게");
}

TEST_F(Upgrades, SecondTelephoneIsLookedAtOnlyWithTheFirst) {
  upgrades::relink(session);
  const jet::Database basic = file(u"Basic.mdb"_s);
  jet::Field tel1;
  tel1.name = u"Tel1"_s;
  basic.appendField(u"Client"_s, tel1);
  upgrades::addMoreTelephones(session);
  EXPECT_FALSE(hasField(basic, u"Client"_s, u"Tel2"_s));
}

TEST_F(Upgrades, OptionsAreMadeInTheInstalledFolder) {
  upgrades::makeOptions(session);
  EXPECT_EQ(firstOf(session.dbCommon, u"SELECT OPTValue FROM Options WHERE OPTName = 'MICR용지'"_s), "0");
  EXPECT_EQ(session.dbCommon.tableDef(u"Options"_s).indexes.at(0).name, "Options_PK");
}

}  // namespace
