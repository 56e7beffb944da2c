// Old books brought in: real Jet 3 and Jet 4 files, written by the tests' own writer and read by the program's reader.
#include "moving/move_in.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <QDirIterator>
#include <QRandomGenerator>

#include "app/start_up.h"
#include "moving/jet_file.h"
#include "moving/table_fit.h"
#include "store/schema_shape.h"
#include "tests/answers.h"
#include "tests/moving/jet_writer.h"
#include "tests/support.h"

namespace {

using namespace tests;

const QVariant null;
using Rows = std::vector<std::vector<QVariant>>;

JetTable clients(const Rows& rows) {
  return {u"Client"_s,
          {{u"Code"_s, JetType::Long},
           {u"Name"_s, JetType::Text, 40},
           {u"GasInit"_s, JetType::Money},
           {u"VolumeYesNo"_s, JetType::YesNo},
           {u"HouseStyle"_s, JetType::Byte},
           {u"Volume"_s, JetType::Text, 10},
           {u"Ho"_s, JetType::Text, 10},
           {u"즐겨찾기"_s, JetType::Text, 10}},
          rows};
}

JetTable sales(const Rows& rows) {
  return {u"Sale"_s,
          {{u"SaleID"_s, JetType::Long},
           {u"SaleDate"_s, JetType::Text, 10},
           {u"ClientCode"_s, JetType::Long},
           {u"SaleName"_s, JetType::Text, 30},
           {u"SaleThing"_s, JetType::Text, 10},
           {u"SaleNum"_s, JetType::Single},
           {u"SaleUnit"_s, JetType::Long},
           {u"SaleGubun"_s, JetType::Integer},
           {u"Trust"_s, JetType::Double}},
          rows};
}

struct MoveIn : testing::Test, TestPc {
  QTemporaryDir old;
  const QString oldFolder = old.path() + u"/Dbs"_s;

  void SetUp() override {
    pc.clock.set(QDateTime(QDate(2026, 3, 16), QTime(9, 0)));
    session.AppTitle = u"해온판매"_s;
    session.DbPath = installedDataFolder();
    session.WorkYear = u"2026"_s;
    ASSERT_TRUE(pc.paths.makeFolder(u"C:\\RWGas"_s));
    QDir().mkpath(oldFolder);
  }
  void put(const QString& name, const std::vector<JetTable>& tables, int version = 4, quint32 key = 0) {
    JetWriter(version, key).write(oldFolder + u'/' + name, tables);
  }
  void putUsual(int version = 4) {
    put(u"Basic.mdb"_s,
        {clients({{3, u"똠방각하 '상회'"_s, 41000.0, true, 1, u""_s, null, u"예"_s},
                  {7, u"김가네"_s, -500.0, false, 0, u"10"_s, u"101"_s, null}}),
         {u"메모장"_s, {{u"글"_s}}, {{u"하나"_s}, {u"둘"_s}}}},
        version);
    put(u"2026Foundation.mdb"_s,
        {sales({{1, u"2026-03-02"_s, 3, u"LPG"_s, u"20"_s, 2.0f, 41000, 1, 1000.0},
                {2, u""_s, 7, u""_s, null, 0.0f, 0, 7, 25.5}})},
        version);
  }
  QMap<QString, QByteArray> contents(const QString& folder) {
    QMap<QString, QByteArray> all;
    for (QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); it.hasNext();) {
      QFile file(it.next());
      if (file.open(QIODevice::ReadOnly))
        all[QDir(folder).relativeFilePath(file.fileName())] = file.readAll();
    }
    return all;
  }
  moving::MoveReport bring() { return moving::moveIn(session, oldFolder, {}); }
  std::pair<int, QString> failure() {
    try {
      bring();
    } catch (const jet::Error& error) {
      return {error.number(), error.description()};
    }
    return {0, {}};
  }
  /** Rows of one of the new files, fields apart by "|", Null as "-". */
  QString rows(const QString& file, const QString& sql) {
    const jet::Workspace workspace = openWorkspace(session, session.DbPath);
    return linesOf(workspace.OpenDatabase(session.DbPath + file), sql, u"-"_s).join(u'\n');
  }
};

struct BothFormats : MoveIn, testing::WithParamInterface<int> {};

TEST_P(BothFormats, EveryKnownColumnComesByNameAndTheProgramStartsOnIt) {
  putUsual(GetParam());
  const auto before = contents(oldFolder);
  const moving::MoveReport report = bring();
  EXPECT_EQ(contents(oldFolder), before);
  EXPECT_EQ(rows(u"Basic.mdb"_s,
                 u"Select Code, Name, GasInit, VolumeYesNo, HouseStyle, Volume, Ho, Tel1 From Client"_s),
            "3|똠방각하 '상회'|41000|-1|1||-|-\n7|김가네|-500|0|0|10|101|-");
  EXPECT_EQ(
      rows(
          u"2026Foundation.mdb"_s,
          u"Select SaleID, SaleDate, ClientCode, SaleThing, SaleNum, SaleUnit, SaleGubun, Trust, DealList From Sale"_s),
      "1|2026-03-02|3|20|2|41000|1|1000|0\n2||7|-|0|0|7|25.5|0");
  EXPECT_EQ(report.rows(), 4);
  const QString text = report.text();
  EXPECT_TRUE(text.contains(u"Basic.mdb의 표 메모장 (2줄)"_s)) << text.toStdString();
  EXPECT_TRUE(text.contains(u"Basic.mdb의 표 Client의 칸 즐겨찾기 (값 1개)"_s)) << text.toStdString();
  EXPECT_TRUE(text.contains(u"Trust: 소수나 큰 수가 있어"_s)) << text.toStdString();
  QFile told(pc.paths.native(report.file));
  ASSERT_TRUE(told.open(QIODevice::ReadOnly)) << report.file.toStdString();
  EXPECT_EQ(QString::fromUtf8(told.readAll()), text);

  StartUp startUp(session);
  EXPECT_TRUE(startUp.SubMain([&] { startUp.load(); }));
  EXPECT_EQ(session.dbYear.OpenRecordset(u"Select Name From Client Where Code = 7"_s)[0].toText(), "김가네");
  session.dbBasic.Execute(u"Insert Into Client(Name) Values('새 손님')"_s);
  EXPECT_EQ(session.dbBasic.OpenRecordset(u"Select Max(Code) As MCode From Client"_s)[0].toLong(), 8);
  startUp.shutDown();
}

INSTANTIATE_TEST_SUITE_P(Jet, BothFormats, testing::Values(3, 4));

TEST_F(MoveIn, NothingIsCutRoundedOrLost) {
  const QString longName(60, u'가');
  Rows many;
  for (int at = 1; at <= 700; ++at)
    many.push_back({at, u"손님%1"_s.arg(at), at * 1.5, at % 2 == 0, 0, null, null, null});
  many.push_back({701, longName, 3e9, false, 0, null, null, null});
  put(u"Basic.mdb"_s,
      {clients(many),
       {u"User"_s,
        {{u"Company"_s}, {u"Rate"_s, JetType::Single}, {u"PayState"_s}},
        {{u"가스"_s, 0.3f, u"반올림"_s}}},
       {u"Bank"_s,
        {{u"BName"_s}, {u"BNumber"_s}, {u"BUser"_s}},
        {{u"Bank"_s, u"1-2"_s, u"가"_s}, {u"BANK"_s, u"1-2 "_s, u"나"_s}, {null, u"3"_s, u"다"_s}}}});
  put(u"dbDetail.mdb"_s,
      {{u"DealList"_s,
        {{u"DealDate"_s}, {u"CCode"_s}, {u"SaleSeq"_s}, {u"UnitCost"_s, JetType::Double}},
        {{u"2026-03-02"_s, u""_s, u"1"_s, 0.1}}}},
      3, 0x1234567);
  const moving::MoveReport report = bring();
  EXPECT_EQ(rows(u"Basic.mdb"_s, u"Select Count(*), Sum(GasInit), Max(Len(Name)) From Client"_s),
            "701|3000368025|60");  // 1.5 x 700 x 701 / 2 = 368025, and 3,000,000,000
  EXPECT_EQ(rows(u"Basic.mdb"_s, u"Select Rate, PayState From User"_s), "0.3|-");
  EXPECT_EQ(rows(u"Basic.mdb"_s, u"Select BUser From Bank Order By BUser"_s), "가\n나\n다");
  EXPECT_EQ(rows(u"dbDetail.mdb"_s, u"Select DealDate, CCode, UnitCost From DealList"_s), "2026-03-02||0.1");
  const QString text = report.text();
  EXPECT_TRUE(text.contains(u"열쇠(BName, BNumber)가 겹치거나 빈 줄 2개"_s)) << text.toStdString();
  EXPECT_TRUE(text.contains(u"Name: 50자에서 60자로 넓힘"_s)) << text.toStdString();
  EXPECT_TRUE(text.contains(u"PayState: 숫자가 아니어서 비워 둔 값 1개 (반올림)"_s)) << text.toStdString();
}

TEST_F(MoveIn, AnAutomaticNumberThatStandsTwiceOrNowhereGetsTheNextFreeOne) {
  put(u"Basic.mdb"_s, {clients({{5, u"가"_s, 0.0, false, 0, null, null, null},
                                {5, u"나"_s, 0.0, false, 0, null, null, null},
                                {1, u"다"_s, 0.0, false, 0, null, null, null},
                                {null, u"라"_s, 0.0, false, 0, null, null, null}})});
  put(u"2026Foundation.mdb"_s, {sales({{9, u"2026-03-02"_s, 5, u"LPG"_s, u"20"_s, 2.0f, 41000, 1, 0.0},
                                       {9, u"2026-03-03"_s, 5, u"LPG"_s, u"50"_s, 1.0f, 90000, 1, 0.0}})});
  const moving::MoveReport report = bring();
  EXPECT_EQ(rows(u"Basic.mdb"_s, u"Select Code, Name From Client Order By Name"_s), "5|가\n2|나\n1|다\n3|라");
  EXPECT_EQ(rows(u"2026Foundation.mdb"_s, u"Select SaleID, SaleThing From Sale Order By SaleThing"_s),
            "9|20\n1|50");
  EXPECT_THAT(
      report.warnings,
      testing::UnorderedElementsAre(
          u"Basic.mdb의 표 Client, 겹치거나 빈 자동번호를 바꿈: Code 5 → 2 (나)"_s,
          u"Basic.mdb의 표 Client, 겹치거나 빈 자동번호를 바꿈: Code 없음 → 3 (라)"_s,
          testing::Property(&QString::toStdString, testing::HasSubstr("먼저 쓴 고객에 붙어 있습니다")),
          u"2026Foundation.mdb의 표 Sale, 겹치거나 빈 자동번호를 바꿈: SaleID 9 → 1 (2026-03-03)"_s));
}

TEST_F(MoveIn, ObjectsAndBrokenLettersAreNamed) {
  // 김 is B1 E8; half of it is no letter, FF never is one, and C9 A1 is the user's own area.
  JetTable table{
      u"Client"_s,
      {{u"Code"_s, JetType::Long}, {u"Name"_s}, {u"사진"_s, JetType::Ole}, {u"Tel"_s, JetType::Ole}},
      {{1, QByteArray("\xB1\xE8\xB1"), QByteArray(12, 'x'), QByteArray(12, 'y')},
       {2, QByteArray("\xC9\xA1\xFF A"), null, null},
       {3, u"똠방"_s, QByteArray(12, 'x'), null}}};
  put(u"Basic.mdb"_s, {table}, 3);
  const moving::MoveReport report = bring();
  EXPECT_EQ(rows(u"Basic.mdb"_s, u"Select Code, Name, Tel From Client Order By Code"_s),
            u"1|김\uFFFD|-\n2|\uE000\uFFFD A|-\n3|똠방|-"_s);
  EXPECT_THAT(report.warnings,
              testing::UnorderedElementsAre(
                  u"Basic.mdb의 표 Client, 글자가 깨진 값 Name: 김\uFFFD (b1 e8 b1)"_s,
                  u"Basic.mdb의 표 Client, 글자가 깨진 값 Name: \uE000\uFFFD A (c9 a1 ff 20 41)"_s));
  EXPECT_THAT(report.unknown,
              testing::Contains(u"Basic.mdb의 표 Client의 칸 사진, 그림이나 개체 (값 2개)"_s));
  EXPECT_TRUE(report.text().contains(u"Tel: 그림이나 개체의 칸이라 가져오지 않음 (값 1개)"_s));
}

TEST_F(MoveIn, AFileThatIsClosedToUsOrChangesMeanwhileEndsTheImport) {
  putUsual();
  const auto changing = [&](const QString& what, qint64, qint64) {
    if (what.contains(u"2026Foundation"_s)) put(u"Basic.mdb"_s, {clients({})});
    return true;
  };
  QString told;
  try {
    moving::moveIn(session, oldFolder, changing);
  } catch (const jet::Error& error) {
    told = error.description();
  }
  EXPECT_TRUE(told.startsWith(u"읽는 동안 이전 자료의 파일이 바뀌었습니다."_s)) << told.toStdString();
  EXPECT_FALSE(pc.paths.exists(u"C:\\RWGas\\Dbs"_s));

  putUsual();
  put(u"Basic.ldb"_s, {});
  const QString year = oldFolder + u"/2026Foundation.mdb"_s;
  QFile::setPermissions(year, {});
  QFile::setPermissions(old.path(), QFile::permissions(old.path()) | QFile::ReadGroup | QFile::ExeGroup);
  const bool root = ::geteuid() == 0;  // whom no permission stops
  ASSERT_EQ(root ? ::seteuid(65534) : 0, 0);
  const auto [number, text] = failure();
  ASSERT_EQ(root ? ::seteuid(0) : 0, 0);
  EXPECT_EQ(number, 3051);
  EXPECT_TRUE(text.contains(u"2026Foundation.mdb"_s)) << text.toStdString();
  QFile::setPermissions(year, QFile::ReadOwner);
  EXPECT_THAT(bring().warnings, testing::ElementsAre(testing::Property(&QString::toStdString,
                                                                       testing::StartsWith("Basic.ldb: "))));
}

TEST_F(MoveIn, WhatIsStoredIsComparedWithWhatWasRead) {
  const auto stored = [](jet::Field field, const jet::Value& value) {
    QTemporaryDir place;
    const jet::Workspace workspace{jet::Workspace::Options{}};
    jet::TableDef table;
    table.name = u"T"_s;
    table.fields = {std::move(field)};
    try {
      moving::store(workspace.CreateDatabase(place.path() + u"/x.mdb"_s),
                    {.table = table, .from = {0}, .rows = {{value}}});
    } catch (const jet::Error& error) {
      return error.number();
    }
    return 0;
  };
  EXPECT_EQ(stored(schema::shape::whole("A"), jet::Value(2)), 0);
  EXPECT_EQ(stored(schema::shape::whole("A"), jet::Value(1.5)), 3146) << "a whole number's column rounds";
}

TEST_F(MoveIn, OldFilesInTheDataFolderItselfAreKeptBesideIt) {
  putUsual();
  put(u"2002Foundation.mdb"_s, {sales({{1, u"2002-01-01"_s, 99, u"x"_s, u"1"_s, 1.0f, 1, 1, 0.0}})});
  put(u"2025Foundation.mdb"_s, {sales({{1, u"2025-12-01"_s, 99, u"x"_s, u"1"_s, 1.0f, 1, 1, 0.0}})});
  put(u"기타.mdb"_s, {});
  const QString place = pc.paths.native(u"C:\\RWGas"_s) + u"/Dbs"_s;
  ASSERT_TRUE(QDir().rename(oldFolder, place));
  const auto before = contents(place);
  EXPECT_TRUE(moving::holdsOldBooks(place));
  const moving::MoveReport report = moving::moveIn(session, place, {});
  EXPECT_TRUE(report.keptFolder.startsWith(u"C:\\RWGas\\Dbs-이전-20260316-09"_s));
  EXPECT_EQ(contents(pc.paths.native(report.keptFolder)), before);
  EXPECT_FALSE(moving::holdsOldBooks(place));
  EXPECT_THAT(report.unknown, testing::Contains(u"기타.mdb: 이 프로그램이 쓰지 않는 파일"_s));
  EXPECT_THAT(
      report.warnings,
      testing::UnorderedElementsAre(
          u"2002Foundation.mdb: 새해의 견본이라 표 Sale의 1줄은 가져오지 않음"_s,
          u"2025Foundation.mdb: 고객이 없는 판매 1줄이 있습니다. 해온판매는 시작할 때 그런 줄을 지웁니다."_s));
  EXPECT_EQ(rows(u"2002Foundation.mdb"_s, u"Select Count(*) From Sale"_s), "0");
  EXPECT_EQ(rows(u"2025Foundation.mdb"_s, u"Select Count(*) From Sale"_s), "1");
}

TEST_F(MoveIn, TheLedgersFilesGoToTheLedgersFolder) {
  const JetTable trader{u"Trader"_s,
                        {{u"Code"_s}, {u"C_Name"_s}, {u"TotNoPay"_s, JetType::Long}},
                        {{u"000001"_s, u"가나상사"_s, 1500}}};
  put(u"dbPerTrader.mdb"_s, {trader}, 3);
  put(u"db202603.mdb"_s, {{u"Sale"_s, {{u"Code"_s}, {u"SumKum"_s, JetType::Long}}, {{u"1"_s, 110}}}}, 3);
  bring();
  session.DbPath = u"C:\\온누리경영\\Dbs\\"_s;
  EXPECT_EQ(rows(u"dbPerTrader.mdb"_s, u"Select Code, C_Name, TotNoPay From Trader"_s),
            "000001|가나상사|1500");
  EXPECT_EQ(rows(u"db202603.mdb"_s, u"Select Code, SumKum From Sale"_s), "1|110");
  EXPECT_FALSE(pc.paths.exists(u"C:\\RWGas\\Dbs\\Basic.mdb"_s));
}

TEST_F(MoveIn, ATornFileIsToldAndBothFoldersStay) {
  openBooks();
  session.dbBasic.Execute(u"Insert Into Client(Code, Name) Values(1, '지금 손님')"_s);
  for (jet::Database* open : {&session.dbBasic, &session.dbYear, &session.dbTax, &session.dbCommon})
    open->Close();
  session.wsMain.Close();
  const QString books = pc.paths.native(session.DbPath);
  const auto before = contents(books);
  EXPECT_TRUE(moving::holdsWork(session));
  Rows many;
  for (int at = 1; at <= 900; ++at)
    many.push_back({at, u"손님%1"_s.arg(at), 1.0, false, 0, null, null, null});
  for (const int version : {3, 4}) {
    const QByteArray whole = JetWriter(version).bytes({clients(many)});
    const int page = version == 3 ? 2048 : 4096;
    const auto torn = [&](const QByteArray& bytes, int number) {
      QFile file(oldFolder + u"/Basic.mdb"_s);
      ASSERT_TRUE(file.open(QIODevice::WriteOnly));
      file.write(bytes);
      file.close();
      const auto [failed, text] = failure();
      EXPECT_EQ(failed, number) << bytes.size() << ' ' << text.toStdString();
      EXPECT_FALSE(text.isEmpty());
      EXPECT_EQ(contents(books), before);
      EXPECT_FALSE(QFileInfo::exists(pc.paths.native(u"C:\\RWGas\\Dbs-준비중"_s)));
    };
    torn(whole.first(whole.size() - 100), 3049);
    torn(whole.first(whole.size() - 3 * page), 3049);  // the catalogue's own pages
    torn(whole.first(10 * page), 3049);
    torn(whole.first(20), 3049);
    torn(QByteArray("no data file at all"), 3024);
    QByteArray lost = whole;
    lost.replace(8 * page, page, QByteArray(page, '\0'));  // a page of rows
    torn(lost, 3049);
    QRandomGenerator random{7};
    for (int round = 0; round < 12; ++round) {
      // Anything may come of noise but a crash, a hang, or books that are half of each.
      QByteArray noise = whole;
      for (int at = 0; at < 40; ++at)
        noise[page + random.bounded(int(whole.size()) - page)] = char(random.bounded(256));
      QFile file(oldFolder + u"/Basic.mdb"_s);
      ASSERT_TRUE(file.open(QIODevice::WriteOnly));
      file.write(noise);
      file.close();
      if (failure().first != 0) {
        EXPECT_EQ(contents(books), before) << round;
      } else {
        EXPECT_GE(rows(u"Basic.mdb"_s, u"Select Count(*) From Client"_s).toInt(), 0);
        QDir(books).removeRecursively();
        const QStringList kept =
            QDir(pc.paths.native(u"C:\\RWGas"_s)).entryList({u"Dbs-이전-*"_s}, QDir::Dirs);
        ASSERT_EQ(kept.size(), 1);
        QDir().rename(pc.paths.native(u"C:\\RWGas"_s) + u'/' + kept.first(), books);
        EXPECT_EQ(contents(books), before) << round;
      }
    }
  }
}

TEST_F(MoveIn, BooksInUseAndAStopChangeNothing) {
  putUsual();
  openBooks();
  EXPECT_EQ(failure().first, 3045);
  for (jet::Database* open : {&session.dbBasic, &session.dbYear, &session.dbTax, &session.dbCommon})
    open->Close();
  session.wsMain.Close();
  const auto before = contents(pc.paths.native(session.DbPath));
  EXPECT_THROW(
      moving::moveIn(session, oldFolder, [](const QString&, qint64 done, qint64) { return done == 0; }),
      backup::Stopped);
  EXPECT_EQ(contents(pc.paths.native(session.DbPath)), before);
}

}  // namespace
