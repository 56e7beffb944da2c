#include "store/upgrades.h"

#include "store/year_file.h"
#include "tests/store/old_books.h"

namespace {

using namespace tests;

struct Upgrades : testing::Test {
  TestPc here;
  Session& session = here.session;
  void SetUp() override {
    session.AppTitle = "해온판매";
    makeOldBooks(here);
    session.wsMain = openWorkspace(session, session.DbPath);
  }
  jet::Database file(const QString& name) { return session.wsMain.OpenDatabase(session.DbPath + name); }
  jet::Database year(const QString& year) { return session.wsMain.OpenDatabase(yearFile(session, year)); }
};

TEST_F(Upgrades, LateChargesReachEveryYearFileOfTheInstalledFolder) {
  QFile stranger(here.pc.paths.native(session.DbPath) + "/1999Foundation.mdb");
  ASSERT_TRUE(stranger.open(QIODevice::WriteOnly));
  stranger.write("no data file");
  stranger.close();
  {
    const jet::Database other = session.wsMain.CreateDatabase(session.DbPath + "1998Foundation.mdb");
    other.createTable(schema::table(schema::File::Year, "Sale"));  // a data file, and no year's
  }
  EXPECT_EQ(yearFiles(session, session.wsMain, session.DbPath).filter("199"), QStringList());
  session.DbPath = "D:\\elsewhere\\";  // makes no difference to this step
  upgrades::addLateCharges(session);
  session.DbPath = installedDataFolder();
  EXPECT_EQ(firstOf(file("Basic.mdb"), "Select delaypay From APT"), "0");
  for (const QString each : {"2002", "2023", "2025", "2026"}) {
    EXPECT_EQ(firstOf(year(each), "Select paydelayed From Evaporation"), "0") << each.toStdString();
  }
  file("Basic.mdb").Execute("Update APT Set delaypay = 2.5");
  upgrades::addLateCharges(session);
  EXPECT_EQ(firstOf(file("Basic.mdb"), "Select delaypay From APT"), "2.5") << "only a new column is filled";
}

TEST_F(Upgrades, TheYearWalkEndsAtAGap) {
  QStringList walked;
  walkYears(session, [&](const QString& path) { walked << path.right(18).first(4); });
  EXPECT_EQ(walked, (QStringList{"2026", "2025"})) << "2024 is missing, so 2023 is not reached";
  upgrades::addDealMarks(session);
  EXPECT_EQ(firstOf(year("2025"), "Select DealList + SaleList From Sale"), "0");
  EXPECT_FALSE(hasField(year("2023"), "Sale", "DealList"));
  year("2025").Execute("Update Sale Set DealList = 1");
  upgrades::addDealMarks(session);
  EXPECT_EQ(firstOf(year("2025"), "Select DealList From Sale"), "1");
}

TEST_F(Upgrades, OrphansGoWhereTheWalkReaches) {
  upgrades::removeOrphans(session);
  for (const QString each : {"2025", "2026"}) {
    EXPECT_EQ(firstOf(year(each), "Select Count(*) From Sale"), "1") << each.toStdString();
    EXPECT_EQ(firstOf(year(each), "Select ClientCode From Sale"), "1");
  }
  EXPECT_EQ(firstOf(year("2023"), "Select Count(*) From Sale"), "3");
  year("2026").Execute("Update Sale Set ClientCode = Null");
  year("2026").Execute("Insert Into Sale(ClientCode) Values(88)");
  upgrades::removeOrphans(session);
  EXPECT_EQ(firstOf(year("2026"), "Select Count(*) From Sale"), "1") << "a row without any code stays";
  EXPECT_EQ(firstOf(year("2026"), "Select ClientCode From Sale"), "null") << "and keeps nobody else's";
}

TEST_F(Upgrades, PostCodesAreMadeAnewOnceUnlessTheyAreWideOrDone) {
  const jet::Database basic = file("Basic.mdb"), post = file("dbPost.mdb");
  here.pc.settings.SaveSetting("해온판매", "Registration", "PostC", "ok");
  upgrades::rebuildPostCodes(session, basic, post);
  EXPECT_EQ(firstOf(basic, "Select City From PostCode"), "옛것");
  here.pc.settings.SaveSetting("해온판매", "Registration", "PostC", "");
  here.prompts.expect("잠시만 기다려 주십시오.\n\n우편번호를 개정판으로 업그레이드 합니다.");
  upgrades::rebuildPostCodes(session, basic, post);
  EXPECT_TRUE(here.prompts.seen.last().startsWith("우편번호 업그레이드|"));
  EXPECT_EQ(here.pc.settings.GetSetting("해온판매", "Registration", "PostC"), "ok");
  jet::Recordset rs = basic.OpenRecordset("Select * From PostCode Order By PostCode");
  QStringList rows;
  for (; !rs.atEnd(); rs.MoveNext())
    rows << rs[0].toText() + u'/' + rs[1].toText() + u'/' + rs[2].toText() + u'/' + rs[3].toText();
  EXPECT_EQ(rows, (QStringList{"700020/대구 중구/동인'동/ ", "702010/대구 북구/고성동/1~99"}));
  here.pc.settings.SaveSetting("해온판매", "Registration", "PostC", "");
  upgrades::rebuildPostCodes(session, basic, post);  // DDD is 60 wide now: no box
}

TEST_F(Upgrades, LinksAreMadeAnewAndFollowAMovedBasic) {
  ASSERT_TRUE(upgrades::relink(session));
  EXPECT_EQ(session.BasicPath, "C:\\rwgas\\dbs\\basic.mdb");
  EXPECT_EQ(firstOf(year("2023"),
                    "Select Client.Name From Sale Inner Join Client On Sale.ClientCode = Client.Code"),
            "김가네");
  QFile linked(here.pc.paths.native(yearFile(session, "2023")));
  ASSERT_TRUE(linked.open(QIODevice::ReadOnly));
  const QByteArray before = linked.readAll();
  ASSERT_TRUE(upgrades::relink(session));
  linked.seek(0);
  EXPECT_TRUE(linked.readAll() == before) << "the next start writes nothing";
  linked.close();
  ASSERT_TRUE(here.pc.paths.makeFolder("D:\\새폴더\\DBS"));
  for (const char* name : {"Basic.mdb", "2026Foundation.mdb"}) {
    ASSERT_TRUE(
        here.pc.paths.copy(session.DbPath + QLatin1String(name), "D:\\새폴더\\DBS\\" + QLatin1String(name)));
  }
  here.pc.settings.SaveSetting("해온판매", "환경설정", "db경로", "D:\\새폴더\\DBS\\");
  session.DbPath = dataFolder(session);
  session.wsMain = openWorkspace(session, session.DbPath);
  session.wsMain.OpenDatabase(session.DbPath + "Basic.mdb").Execute("Update Client Set Name = '새가게'");
  ASSERT_TRUE(upgrades::relink(session));
  EXPECT_EQ(session.BasicPath, "D:\\새폴더\\DBS\\Basic.mdb");
  EXPECT_EQ(firstOf(year("2026"), "Select Name From Client"), "새가게");
}

TEST_F(Upgrades, SecondTelephoneIsLookedAtOnlyWithTheFirst) {
  upgrades::relink(session);
  const jet::Database basic = file("Basic.mdb");
  jet::Field tel1;
  tel1.name = "Tel1";
  basic.appendField("Client", tel1);
  upgrades::addMoreTelephones(session);
  EXPECT_FALSE(hasField(basic, "Client", "Tel2"));
}

TEST_F(Upgrades, WhatIsAddedIsAsInANewFile) {
  upgrades::relink(session);
  upgrades::addLateCharges(session);
  upgrades::addDealMarks(session);
  upgrades::addClientTaxFields(file("Basic.mdb"));
  upgrades::addMoreTelephones(session);
  const auto told = [](const jet::TableDef& table, const QString& name) {
    for (const jet::Field& field : table.fields)
      if (field.name.compare(name, Qt::CaseInsensitive) == 0)
        return u"%1 %2 %3"_s.arg(name).arg(int(field.type)).arg(field.size) +
               (field.type == jet::Type::Text && !field.allowZeroLength ? " filled" : "");
    return name + " is missing";
  };
  for (const auto& [kind, table, name] : {std::tuple{schema::File::Basic, "Client", "Serial"},
                                          {schema::File::Basic, "Client", "Status"},
                                          {schema::File::Basic, "Client", "Item"},
                                          {schema::File::Basic, "Client", "Uname"},
                                          {schema::File::Basic, "Client", "Tel1"},
                                          {schema::File::Basic, "Client", "Tel2"},
                                          {schema::File::Basic, "APT", "delaypay"},
                                          {schema::File::Year, "Sale", "DealList"},
                                          {schema::File::Year, "Sale", "SaleList"},
                                          {schema::File::Year, "Evaporation", "paydelayed"}}) {
    const jet::Database db = kind == schema::File::Basic ? file("Basic.mdb") : year("2025");
    EXPECT_EQ(told(db.tableDef(table), name), told(schema::table(kind, table), name));
  }
}

TEST_F(Upgrades, OptionsAreMadeInTheInstalledFolder) {
  upgrades::makeOptions(session);
  EXPECT_EQ(firstOf(session.dbCommon, "SELECT OPTValue FROM Options WHERE OPTName = 'MICR용지'"), "0");
  EXPECT_EQ(session.dbCommon.tableDef("Options").indexes.at(0).name, "Options_PK");
}

}  // namespace
