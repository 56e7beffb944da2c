// Old books brought in: real Jet 3 and Jet 4 files, written by the tests' own writer and read by the program's reader.
#include "moving/move_in.h"

#include <gmock/gmock.h>
#include <unistd.h>

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
  return {"Client",
          {{"Code", JetType::Long},
           {"Name", JetType::Text, 40},
           {"GasInit", JetType::Money},
           {"VolumeYesNo", JetType::YesNo},
           {"HouseStyle", JetType::Byte},
           {"Volume", JetType::Text, 10},
           {"Ho", JetType::Text, 10},
           {"즐겨찾기", JetType::Text, 10},
           {"Birth", JetType::Moment},
           {"AppDate", JetType::Moment}},
          rows};
}

JetTable sales(const Rows& rows) {
  return {"Sale",
          {{"SaleID", JetType::Long},
           {"SaleDate", JetType::Text, 10},
           {"ClientCode", JetType::Long},
           {"SaleName", JetType::Text, 30},
           {"SaleThing", JetType::Text, 10},
           {"SaleNum", JetType::Single},
           {"SaleUnit", JetType::Long},
           {"SaleGubun", JetType::Integer},
           {"Trust", JetType::Double}},
          rows};
}

struct MoveIn : testing::Test, TestPc {
  QTemporaryDir old;
  const QString oldFolder = old.path() + "/Dbs";

  void SetUp() override {
    pc.clock.set(QDateTime(QDate(2026, 3, 16), QTime(9, 0)));
    session.AppTitle = "해온판매";
    session.DbPath = installedDataFolder();
    session.WorkYear = "2026";
    ASSERT_TRUE(pc.paths.makeFolder("C:\\RWGas"));
    QDir().mkpath(oldFolder);
  }
  void put(const QString& name, const std::vector<JetTable>& tables, int version = 4, quint32 key = 0) {
    JetWriter(version, key).write(oldFolder + u'/' + name, tables);
  }
  void putUsual(int version = 4) {
    put("Basic.mdb",
        {clients({{3, "똠방각하 '상회'", 41000.0, true, 1, "", null, "예", 46097.0, 46097.5},
                  {7, "김가네", -500.0, false, 0, "10", "101", null}}),
         {"메모장", {{"글"}}, {{"하나"}, {"둘"}}}},
        version);
    put("2026Foundation.mdb",
        {sales({{1, "2026-03-02", 3, "LPG", "20", 2.0f, 41000, 1, 1000.0},
                {2, "", 7, "", null, 0.0f, 0, 7, 25.5}})},
        version);
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
    return linesOf(openData(session, file), sql, "-").join('\n');
  }
};

struct BothFormats : MoveIn, testing::WithParamInterface<int> {};

TEST_P(BothFormats, EveryKnownColumnComesByNameAndTheProgramStartsOnIt) {
  putUsual(GetParam());
  const auto before = contentsOf(oldFolder);
  QStringList told;
  const moving::MoveReport report =
      moving::moveIn(session, oldFolder, [&](const QString& what, qint64 done, qint64 total) {
        const qint64 size = what.startsWith("읽는 중") ? QFileInfo(oldFolder + "/Basic.mdb").size() : 0;
        EXPECT_TRUE(size == 0 || total == size + QFileInfo(oldFolder + "/2026Foundation.mdb").size());
        told << what + (done == size && size ? " behind the first" : done == 0 ? " begins" : "");
        return true;
      });
  EXPECT_EQ(told.mid(0, 3), (QStringList{"읽는 중: Basic.mdb begins",
                                         "읽는 중: 2026Foundation.mdb behind the first", told.value(2)}));
  EXPECT_TRUE(told.value(2).startsWith("자료 검사: ")) << told.value(2).toStdString();
  EXPECT_EQ(contentsOf(oldFolder), before);
  EXPECT_EQ(
      rows("Basic.mdb", "Select Code, Name, GasInit, VolumeYesNo, HouseStyle, Volume, Ho, Tel1 From Client"),
      "3|똠방각하 '상회'|41000|-1|1||-|-\n7|김가네|-500|0|0|10|101|-");
  EXPECT_EQ(rows("2026Foundation.mdb",
                 "Select SaleID, SaleDate, ClientCode, SaleThing, SaleNum, SaleUnit, SaleGubun, Trust, "
                 "DealList From Sale"),
            "1|2026-03-02|3|20|2|41000|1|1000|0\n2||7|-|0|0|7|25.5|0");
  EXPECT_EQ(rows("Basic.mdb", "Select Birth, AppDate From Client Where Code = 3"),
            "2026-03-16|2026-03-16 12:00:00");
  EXPECT_EQ(report.rows(), 4);
  const QString text = report.text();
  EXPECT_EQ(text, textOf(HAEON_TEST_DATA "/moving/report.txt"));
  EXPECT_EQ(textOf(pc.paths.native(report.file)), text);
  EXPECT_TRUE(report.file.endsWith(".txt") && report.file.contains("\\가져오기-20260316-09"))
      << report.file.toStdString();

  StartUp startUp(session);
  EXPECT_TRUE(startUp.SubMain([&] { startUp.load(); }));
  EXPECT_EQ(rowsOf(session.dbYear, "Select Name From Client Where Code = 7"), "김가네");
  session.dbBasic.Execute("Insert Into Client(Name) Values('새 손님')");
  EXPECT_EQ(rowsOf(session.dbBasic, "Select Max(Code) As MCode From Client"), "8");
  startUp.shutDown();
}

INSTANTIATE_TEST_SUITE_P(Jet, BothFormats, testing::Values(3, 4));

TEST_F(MoveIn, NothingIsCutRoundedOrLost) {
  const QString longName(60, u'가');
  Rows many;
  for (int at = 1; at <= 700; ++at)
    many.push_back({at, u"손님%1"_s.arg(at), at * 1.5, at % 2 == 0, 0, null, null, null});
  many.push_back({701, longName, 3e9, false, 0, null, null, null});
  put("Basic.mdb",
      {clients(many),
       {"User",
        {{"Company"},
         {"Rate", JetType::Single},
         {"APTRate", JetType::Single},
         {"PayState"},
         {"Tel", JetType::Guid}},
        {{"가스", 0.3f, 1234.5677f, "반올림", QByteArray::fromHex("00112233445566778899aabbccddeeff")}}},
       {"Bank",
        {{"BName"}, {"BNumber"}, {"BUser"}},
        {{"Bank", "1-2", "가"}, {"BANK", "1-2 ", "나"}, {null, "3", "다"}}}});
  put("dbDetail.mdb",
      {{"DealList",
        {{"DealDate"}, {"CCode"}, {"SaleSeq"}, {"UnitCost", JetType::Double}},
        {{"2026-03-02", "", "1", 0.1}}}},
      3, 0x1234567);
  const moving::MoveReport report = bring();
  EXPECT_EQ(rows("Basic.mdb", "Select Count(*), Sum(GasInit), Max(Len(Name)) From Client"),
            "701|3000368025|60");  // 1.5 x 700 x 701 / 2 = 368025, and 3,000,000,000
  EXPECT_EQ(rows("Basic.mdb", "Select Rate, APTRate, PayState, Left(Tel, 20) From User"),
            "0.3|1234.5677|-|{33221100-5544-7766-");
  EXPECT_EQ(rows("Basic.mdb", "Select BUser From Bank Order By BUser"), "가\n나\n다");
  EXPECT_EQ(rows("dbDetail.mdb", "Select DealDate, CCode, UnitCost From DealList"), "2026-03-02||0.1");
  const QString text = report.text();
  EXPECT_TRUE(text.contains("열쇠(BName, BNumber)가 겹치거나 빈 줄 2개")) << text.toStdString();
  EXPECT_TRUE(text.contains("Name: 50자에서 60자로 넓힘")) << text.toStdString();
  EXPECT_TRUE(text.contains("PayState: 숫자가 아니어서 비워 둔 값 1개 (반올림)")) << text.toStdString();
}

TEST_F(MoveIn, AnAutomaticNumberThatStandsTwiceOrNowhereGetsTheNextFreeOne) {
  put("Basic.mdb", {clients({{5, "가", 0.0, false, 0, null, null, null},
                             {5, "나", 0.0, false, 0, null, null, null},
                             {1, "다", 0.0, false, 0, null, null, null},
                             {null, "라", 0.0, false, 0, null, null, null}})});
  put("2026Foundation.mdb", {sales({{9, "2026-03-02", 5, "LPG", "20", 2.0f, 41000, 1, 0.0},
                                    {9, "2026-03-03", 5, "LPG", "50", 1.0f, 90000, 1, 0.0}})});
  const moving::MoveReport report = bring();
  EXPECT_EQ(rows("Basic.mdb", "Select Code, Name From Client Order By Name"), "5|가\n2|나\n1|다\n3|라");
  EXPECT_EQ(rows("2026Foundation.mdb", "Select SaleID, SaleThing From Sale Order By SaleThing"),
            "9|20\n1|50");
  EXPECT_THAT(
      report.warnings,
      testing::UnorderedElementsAre(
          "Basic.mdb의 표 Client, 겹치거나 빈 자동번호를 바꿈: Code 5 → 2 (나)",
          "Basic.mdb의 표 Client, 겹치거나 빈 자동번호를 바꿈: Code 없음 → 3 (라)",
          testing::Property(&QString::toStdString, testing::HasSubstr("먼저 쓴 고객에 붙어 있습니다")),
          "2026Foundation.mdb의 표 Sale, 겹치거나 빈 자동번호를 바꿈: SaleID 9 → 1 (2026-03-03)"));
}

TEST_F(MoveIn, ObjectsAndBrokenLettersAreNamed) {
  // 김 is B1 E8; half of it is no letter, FF never is one, and C9 A1 is the user's own area.
  JetTable table{
      "Client",
      {{"Code", JetType::Long},
       {"Name"},
       {"사진", JetType::Ole},
       {"Tel", JetType::Ole},
       {"지문", JetType::Binary},
       {"별명"}},
      {{1, QByteArray("\xB1\xE8\xB1"), QByteArray(12, 'x'), QByteArray(12, 'y'), QByteArray(9, '\0'), "x"},
       {2, QByteArray("\xC9\xA1\xFF A"), null, null, null, ""},
       {3, "똠방", QByteArray(12, 'x'), null}}};
  put("Basic.mdb", {table}, 3);
  const moving::MoveReport report = bring();
  EXPECT_EQ(rows("Basic.mdb", "Select Code, Name, Tel From Client Order By Code"),
            "1|김\uFFFD|-\n2|\uE000\uFFFD A|-\n3|똠방|-");
  EXPECT_THAT(report.warnings,
              testing::UnorderedElementsAre(
                  "Basic.mdb의 표 Client, 글자가 깨진 값 Name: 김\uFFFD (b1 e8 b1)",
                  "Basic.mdb의 표 Client, 글자가 깨진 값 Name: \uE000\uFFFD A (c9 a1 ff 20 41)"));
  EXPECT_THAT(report.unknown, testing::Contains("Basic.mdb의 표 Client의 칸 사진, 그림이나 개체 (값 2개)"));
  EXPECT_THAT(report.unknown, testing::Contains("Basic.mdb의 표 Client의 칸 지문, 그림이나 개체 (값 1개)"));
  EXPECT_THAT(report.unknown, testing::Contains("Basic.mdb의 표 Client의 칸 별명 (값 1개)"));
  EXPECT_TRUE(report.text().contains("Tel: 그림이나 개체의 칸이라 가져오지 않음 (값 1개)"));
}

TEST_F(MoveIn, AFileThatIsClosedToUsOrChangesMeanwhileEndsTheImport) {
  putUsual();
  const auto changing = [&](const QString& what, qint64, qint64) {
    if (what.contains("2026Foundation")) put("Basic.mdb", {clients({})});
    return true;
  };
  QString told;
  try {
    moving::moveIn(session, oldFolder, changing);
  } catch (const jet::Error& error) {
    told = error.description();
  }
  EXPECT_TRUE(told.startsWith("읽는 동안 이전 자료의 파일이 바뀌었습니다.")) << told.toStdString();
  EXPECT_FALSE(pc.paths.exists("C:\\RWGas\\Dbs"));

  putUsual();
  put("Basic.ldb", {});
  const QString year = oldFolder + "/2026Foundation.mdb";
  QFile::setPermissions(year, {});
  QFile::setPermissions(old.path(), QFile::permissions(old.path()) | QFile::ReadGroup | QFile::ExeGroup);
  const bool root = ::geteuid() == 0;  // whom no permission stops
  ASSERT_EQ(root ? ::seteuid(65534) : 0, 0);
  const auto [number, text] = failure();
  ASSERT_EQ(root ? ::seteuid(0) : 0, 0);
  EXPECT_EQ(number, 3051);
  EXPECT_TRUE(text.contains("2026Foundation.mdb")) << text.toStdString();
  QFile::setPermissions(year, QFile::ReadOwner);
  EXPECT_THAT(bring().warnings, testing::ElementsAre(testing::Property(&QString::toStdString,
                                                                       testing::StartsWith("Basic.ldb: "))));
}

TEST_F(MoveIn, EachColumnBecomesAsWideAsItsValuesAndNoWider) {
  using schema::shape::text, schema::shape::whole, schema::shape::real, schema::shape::yesNo;
  const auto fitted = [](const jet::Field& field, const QStringList& values) {
    std::vector<moving::OldRow> rows;
    for (const QString& value : values) rows.push_back({value == "-" ? moving::OldValue() : value});
    const moving::FittedTable made =
        moving::fit(schema::shape::make("T", {field}), {"T", {{"a", moving::OldType::Text}}}, rows);
    QStringList told;
    for (const auto& row : made.rows) told << (row[0].isNull() ? "-" : row[0].toText());
    const jet::Field& now = made.table.fields[0];
    return told.join(' ') + u" | %1 %2 "_s.arg(int(now.type)).arg(now.size) +
           (now.allowZeroLength ? "" : "filled ") + (now.required ? "required " : "") + made.notes.join(';');
  };
  EXPECT_EQ(fitted(whole("A"), {"1", "1,234", "-2147483648", "2147483647", " ", "-"}),
            "1 1234 -2147483648 2147483647 - - | 4 0 ");
  const QString wider = "A: 소수나 큰 수가 있어 소수 칸으로 바꿈";
  EXPECT_EQ(fitted(whole("A"), {"2147483648"}), "2147483648 | 7 0 " + wider);
  EXPECT_EQ(fitted(whole("A"), {"-2147483649"}), "-2147483649 | 7 0 " + wider);
  EXPECT_EQ(fitted(whole("A"), {"1.5", "x", "y"}),
            "1.5 - - | 7 0 " + wider + ";A: 숫자가 아니어서 비워 둔 값 2개 (x, y)");
  EXPECT_EQ(fitted(real("A"), {"1.5", "inf", ""}), "1.5 - - | 7 0 A: 숫자가 아니어서 비워 둔 값 1개 (inf)");
  EXPECT_EQ(fitted(yesNo("A"), {"-1", "1", "0", "True", "false", "x", "0.5"}), "-1 -1 0 -1 0 0 -1 | 1 0 ");
  EXPECT_EQ(fitted(text("A", 3), {"abc", "가나다"}), "abc 가나다 | 10 3 ");
  EXPECT_EQ(fitted(text("A", 3), {"abcd", "a"}), "abcd a | 10 4 A: 3자에서 4자로 넓힘");
  const QString longest(255, 'x'), memo(256, 'x');
  EXPECT_EQ(fitted(text("A", 3), {longest}), longest + " | 10 255 A: 3자에서 255자로 넓힘");
  EXPECT_EQ(fitted(text("A", 3), {memo}), memo + " | 12 3 A: 3자에서 256자로 넓힘");
  jet::Field strict = schema::shape::notEmpty(text("A", 3));
  strict.required = true;
  EXPECT_EQ(fitted(strict, {"a"}), "a | 10 3 filled required ");
  EXPECT_EQ(fitted(strict, {"a", ""}), "a  | 10 3 required ");
  EXPECT_EQ(fitted(strict, {"a", "-"}), "a - | 10 3 filled ");
  const auto keys = [](const jet::Index& index, const std::vector<moving::OldRow>& rows) {
    const moving::FittedTable made =
        moving::fit(schema::shape::make("T", {text("A", 9), text("B", 9)}, {index}),
                    {"T", {{"B", moving::OldType::Text}, {"A", moving::OldType::Text}}}, rows);
    const jet::Index& now = made.table.indexes[0];
    return QString(now.primary ? "primary " : "") + (now.unique ? "unique" : "plain") +
           made.notes.join(';').right(35);
  };
  const jet::Index both = schema::shape::primary("PK", {"A", "B"}), one{"U", {"A"}, false, true};
  EXPECT_EQ(keys(both, {{"1", "2"}, {"2", "1"}, {"1", "1"}}), "primary unique");
  EXPECT_TRUE(keys(both, {{"a", "2"}, {"A ", "2"}}).startsWith("plain"));
  EXPECT_TRUE(keys(both, {{std::nullopt, "2"}}).startsWith("plain"));
  EXPECT_EQ(keys(one, {{"1", "2"}, {"1", "3"}, {"1", std::nullopt}}), "unique");
  EXPECT_TRUE(keys(one, {{"1", "2"}, {"2", "2"}}).startsWith("plain"));
}

TEST_F(MoveIn, AFilesNameTellsWhatItHolds) {
  using schema::File;
  const std::pair<QStringList, std::optional<File>> kinds[] = {
      {{"Basic.mdb", "BASIC.MDB"}, File::Basic},
      {{"2026Foundation.mdb", "2002foundation.MDB"}, File::Year},
      {{"dbTax.mdb"}, File::Tax},
      {{"dbDetail.mdb"}, File::Detail},
      {{"dbPost.mdb"}, File::Post},
      {{"Print.mdb"}, File::Print},
      {{"dbAPTbaln.mdb"}, File::AptBaln},
      {{"InOutCash.mdb", "OLDdbCashbook.mdb"}, File::InOutCash},
      {{"dbCashbook.mdb"}, File::Cashbook},
      {{"db202603.mdb", "dbPerTrader.mdb", "dbCharge.mdb", "dbNonKum.mdb", "dbProduct.mdb", "dbMoney.mdb",
        "LedgerList.mdb", "PeriodInOut.mdb", "PerMonthly.mdb", "dbAnalysis.mdb", "dbDaily.mdb", "dbInOut.mdb",
        "dbTradeAll.mdb", "dbResult.mdb", "dbReTrade.mdb", "DBLIST.mdb"},
       File::Ledger},
      {{"226Foundation.mdb", "20260Foundation.mdb", "x2026Foundation.mdb", "2026Foundation.mdb2",
        "db20263.mdb", "xdb202603.mdb", "db202603.mdbx", "Basic2.mdb", "Basic"},
       {}}};
  for (const auto& [names, kind] : kinds)
    for (const QString& name : names) EXPECT_TRUE(moving::kindOfFile(name) == kind) << name.toStdString();
}

TEST_F(MoveIn, WhatIsStoredIsComparedWithWhatWasRead) {
  const auto stored = [](jet::Field field, const jet::Value& value) {
    QTemporaryDir place;
    const jet::Workspace workspace{jet::Workspace::Options{}};
    jet::TableDef table;
    table.name = "T";
    table.fields = {std::move(field)};
    try {
      moving::store(workspace.CreateDatabase(place.path() + "/x.mdb"),
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
  put("2002Foundation.mdb", {sales({{1, "2002-01-01", 99, "x", "1", 1.0f, 1, 1, 0.0}})});
  put("2025Foundation.mdb", {sales({{1, "2025-12-01", 99, "x", "1", 1.0f, 1, 1, 0.0}})});
  put("기타.mdb", {});
  const QString place = pc.paths.native("C:\\RWGas") + "/Dbs";
  ASSERT_TRUE(QDir().rename(oldFolder, place));
  const auto before = contentsOf(place);
  EXPECT_TRUE(moving::holdsOldBooks(place));
  const moving::MoveReport report = moving::moveIn(session, place, {});
  EXPECT_TRUE(report.keptFolder.startsWith("C:\\RWGas\\Dbs-이전-20260316-09"));
  EXPECT_EQ(contentsOf(pc.paths.native(report.keptFolder)), before);
  EXPECT_FALSE(moving::holdsOldBooks(place));
  EXPECT_THAT(report.unknown, testing::Contains("기타.mdb: 이 프로그램이 쓰지 않는 파일"));
  EXPECT_THAT(
      report.warnings,
      testing::UnorderedElementsAre(
          "2002Foundation.mdb: 새해의 견본이라 표 Sale의 1줄은 가져오지 않음",
          "2025Foundation.mdb: 고객이 없는 판매 1줄이 있습니다. 해온판매는 시작할 때 그런 줄을 지웁니다."));
  EXPECT_EQ(rows("2002Foundation.mdb", "Select Count(*) From Sale"), "0");
  EXPECT_EQ(rows("2025Foundation.mdb", "Select Count(*) From Sale"), "1");
}

TEST_F(MoveIn, TheLedgersFilesGoToTheLedgersFolder) {
  const JetTable trader{
      "Trader", {{"Code"}, {"C_Name"}, {"TotNoPay", JetType::Long}}, {{"000001", "가나상사", 1500}}};
  put("dbPerTrader.mdb", {trader}, 3);
  put("db202603.mdb", {{"Sale", {{"Code"}, {"SumKum", JetType::Long}}, {{"1", 110}}}}, 3);
  bring();
  session.DbPath = "C:\\온누리경영\\Dbs\\";
  EXPECT_EQ(rows("dbPerTrader.mdb", "Select Code, C_Name, TotNoPay From Trader"), "000001|가나상사|1500");
  EXPECT_EQ(rows("db202603.mdb", "Select Code, SumKum From Sale"), "1|110");
  EXPECT_FALSE(pc.paths.exists("C:\\RWGas\\Dbs\\Basic.mdb"));
}

TEST_F(MoveIn, ATornFileIsToldAndBothFoldersStay) {
  openBooks();
  session.dbBasic.Execute("Insert Into Client(Code, Name) Values(1, '지금 손님')");
  closeBooks();
  const QString books = pc.paths.native(session.DbPath);
  const auto before = contentsOf(books);
  EXPECT_TRUE(moving::holdsWork(session));
  Rows many;
  for (int at = 1; at <= 900; ++at)
    many.push_back({at, u"손님%1"_s.arg(at), 1.0, false, 0, null, null, null});
  for (const int version : {3, 4}) {
    const QByteArray whole = JetWriter(version).bytes({clients(many)});
    const int page = version == 3 ? 2048 : 4096;
    const auto torn = [&](const QByteArray& bytes, int number) {
      writeFile(oldFolder + "/Basic.mdb", bytes);
      const auto [failed, text] = failure();
      EXPECT_EQ(failed, number) << bytes.size() << ' ' << text.toStdString();
      EXPECT_FALSE(text.isEmpty());
      EXPECT_EQ(contentsOf(books), before);
      EXPECT_FALSE(QFileInfo::exists(pc.paths.native("C:\\RWGas\\Dbs-준비중")));
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
      writeFile(oldFolder + "/Basic.mdb", noise);
      if (failure().first != 0) {
        EXPECT_EQ(contentsOf(books), before) << round;
      } else {
        EXPECT_GE(rows("Basic.mdb", "Select Count(*) From Client").toInt(), 0);
        QDir(books).removeRecursively();
        const QStringList kept = QDir(pc.paths.native("C:\\RWGas")).entryList({"Dbs-이전-*"}, QDir::Dirs);
        ASSERT_EQ(kept.size(), 1);
        QDir().rename(pc.paths.native("C:\\RWGas") + u'/' + kept.first(), books);
        EXPECT_EQ(contentsOf(books), before) << round;
      }
    }
  }
}

TEST_F(MoveIn, BooksInUseAndAStopChangeNothing) {
  putUsual();
  openBooks();
  EXPECT_EQ(failure().first, 3045);
  closeBooks();
  const auto before = contentsOf(pc.paths.native(session.DbPath));
  EXPECT_THROW(
      moving::moveIn(session, oldFolder, [](const QString&, qint64 done, qint64) { return done == 0; }),
      backup::Stopped);
  EXPECT_EQ(contentsOf(pc.paths.native(session.DbPath)), before);
}

}  // namespace
