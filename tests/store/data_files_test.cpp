#include "store/data_files.h"

#include "store/options.h"
#include "store/rounding.h"
#include "store/year_file.h"
#include "tests/store/old_books.h"

namespace {

using tests::firstOf;
using tests::TestPc;

TEST(DataFiles, ANewPcGetsEveryFileWithItsTables) {
  TestPc here;
  here.session.DbPath = installedDataFolder();
  ASSERT_TRUE(prepareDataFolder(here.session));
  EXPECT_EQ(here.pc.paths.list(here.session.DbPath, "*"),
            (QStringList{"2002Foundation.mdb", "Basic.mdb", "dbPost.mdb", "dbTax.mdb", "Print.mdb"}));
  const jet::Workspace workspace = openWorkspace(here.session, here.session.DbPath);
  const auto basic = workspace.OpenDatabase("C:\\rwgas\\dbs\\BASIC.mdb");
  for (const jet::TableDef& wanted : schema::tablesOf(schema::File::Basic)) {
    const jet::TableDef made = basic.tableDef(wanted.name);
    ASSERT_EQ(made.fields.size(), wanted.fields.size()) << wanted.name.toStdString();
    for (size_t at = 0; at < made.fields.size(); ++at) {
      EXPECT_EQ(made.fields[at].name, wanted.fields[at].name);
      EXPECT_EQ(made.fields[at].type, wanted.fields[at].type);
      EXPECT_EQ(made.fields[at].size, wanted.fields[at].size) << made.fields[at].name.toStdString();
    }
    EXPECT_EQ(made.indexes.size(), wanted.indexes.size()) << wanted.name.toStdString();
  }
  EXPECT_EQ(firstOf(basic, "Select Max(Code) From Volume"), "7");
  EXPECT_EQ(firstOf(basic, "SELECT OPTValue FROM Options WHERE OPTName = 'MICR용지'"), "0");
}

TEST(DataFiles, SkeletonRowsHoldNoNullInTheirRunningFigures) {
  TestPc here;
  here.openBooks(QDate(2026, 3, 2));
  const auto& year = here.session.dbYear;
  here.session.dbBasic.Execute("Insert into Client(Name, HouseStyle) Values('가', 0)");
  here.session.dbBasic.Execute("Update Client Set GasInit = GasInit + 1500 - 0 Where Code = 1");
  EXPECT_EQ(firstOf(year, "Select GasInit From Client Where Code = 1"), "1500") << "through the link";
  year.Execute(
      "Insert Into Sale(salelist, deallist, SaleDate, ClientCode, SaleGubun, Gubun, salething) Values(0,0, "
      "'2026-03-02', 1, 1, False, '0')");
  EXPECT_EQ(firstOf(year, "Select SaleNum + SaleUnit + Income + DC + Trust From Sale"), "0");
  year.Execute("Insert Into Evaporation(ClientCode, Mon) Values(1, 0)");
  EXPECT_EQ(firstOf(year, "Select paydelayed From Evaporation Where Total = 0"), "0");
  EXPECT_THROW(year.Execute("Insert Into Evaporation(ClientCode, Mon) Values(1, 0)"), jet::Error);
  here.session.dbBasic.Execute("Insert Into User(Company, User) Values('가스', '홍')");
  EXPECT_EQ(firstOf(here.session.dbBasic, "Select Post1 From User"), "null") << "not chosen yet";
}

TEST(DataFiles, YearFilesWithoutTheirBasicAreLeftAlone) {
  TestPc here;
  here.session.DbPath = installedDataFolder();
  ASSERT_TRUE(here.pc.paths.makeFolder(here.session.DbPath));
  ASSERT_TRUE(QFile::copy(tests::emptyDataFolder() + "/2002Foundation.mdb",
                          here.pc.paths.native(yearFile(here.session, "2025"))));
  here.prompts.expect("백업에서 복구하십시오.");
  EXPECT_FALSE(prepareDataFolder(here.session)) << "an empty Basic.mdb would take every sale for an orphan";
  EXPECT_FALSE(here.pc.paths.exists("C:\\RWGas\\Dbs\\Basic.mdb"));
}

TEST(DataFiles, OnlyWhatIsMissingIsMade) {
  TestPc here;
  here.openBooks(QDate(2026, 3, 2));
  here.session.dbBasic.Execute("Insert into Client(Name) Values('가')");
  here.session.dbTax.Close();
  for (const char* name : {"dbTax.mdb", "dbPost.mdb", "Print.mdb", "2002Foundation.mdb"}) {
    ASSERT_TRUE(QFile::remove(here.pc.paths.native(here.session.DbPath + QLatin1String(name))));
  }
  here.prompts.expect("dbTax.mdb 파일이 없어 빈 파일을 새로 만들었습니다.");
  EXPECT_TRUE(prepareDataFolder(here.session));
  EXPECT_TRUE(here.pc.paths.exists(here.session.DbPath + "Print.mdb"));
  EXPECT_TRUE(here.pc.paths.exists(here.session.DbPath + "2002Foundation.mdb"));
  EXPECT_FALSE(here.pc.paths.exists(here.session.DbPath + "dbPost.mdb"))
      << "a lost postcode file stays missed";
  EXPECT_EQ(firstOf(here.session.dbBasic, "Select Name From Client"), "가");
}

TEST(DataFiles, AnotherFolderIsBegunOnlyAfterAQuestion) {
  TestPc here;
  here.session.DbPath = "D:\\가스\\DBS\\";
  here.prompts.expect("자료 파일을 새로 만드시겠습니까?", false);
  EXPECT_FALSE(prepareDataFolder(here.session));
  EXPECT_FALSE(here.pc.paths.exists(here.session.DbPath));
  here.prompts.expect("자료 파일을 새로 만드시겠습니까?", true);
  EXPECT_TRUE(prepareDataFolder(here.session));
  EXPECT_TRUE(here.pc.paths.exists("D:\\가스\\DBS\\Basic.mdb"));
}

TEST(DataFiles, AFolderThatCannotBeMadeIsTold) {
  TestPc here;
  QFile blocker(here.folder.filePath("c"));
  ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
  here.session.DbPath = installedDataFolder();
  here.prompts.expect("폴더를 만들 수 없습니다.");
  EXPECT_FALSE(prepareDataFolder(here.session));
}

TEST(DataFiles, ADamagedTemplateIsToldAndNotCopied) {
  TestPc here;
  here.session.DbPath = installedDataFolder();
  ASSERT_TRUE(prepareDataFolder(here.session));
  const QString empty = here.pc.paths.native(yearFile(here.session, "2002"));
  QFile file(empty);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  const QByteArray whole = file.readAll();
  const qint64 last = whole.size() / 4096 * 4096 - 4096;
  for (const QByteArray& bytes :
       {whole.first(last), QByteArray(9000, 'x'), whole.first(last) + QByteArray(4096, 'x')}) {
    ASSERT_TRUE(file.resize(0) && file.seek(0) && file.write(bytes) == bytes.size() && file.flush());
    try {
      makeYearFile(here.session, "2026");
      ADD_FAILURE() << "copied";
    } catch (const jet::Error& error) {
      EXPECT_EQ(error.number(), 3049);
      EXPECT_TRUE(error.description().contains("2002Foundation.mdb")) << error.description().toStdString();
    }
    EXPECT_FALSE(here.pc.paths.exists(yearFile(here.session, "2026")));
  }
  ASSERT_TRUE(file.remove() && prepareDataFolder(here.session)) << "without it a new one is made";
  makeYearFile(here.session, "2026");
}

TEST(DataFiles, AYearThatOnlyItsJournalTellsOfIsToldAndNotMadeAnew) {
  TestPc here;
  here.openBooks(QDate(2026, 3, 2));
  here.session.dbYear.Close();
  const QString year = here.pc.paths.native(yearFile(here.session, "2026"));
  ASSERT_TRUE(QFile::rename(year, year + "-journal"));
  here.prompts.expect("2026Foundation.mdb-journal");
  EXPECT_FALSE(prepareDataFolder(here.session));
  EXPECT_THROW(makeYearFile(here.session, "2026"), jet::Error);
  EXPECT_FALSE(QFile::exists(year));
}

TEST(DataFiles, ADataFolderThatIsMadeIsClosedToOtherAccounts) {
  TestPc here;
  here.session.DbPath = installedDataFolder();
  ASSERT_TRUE(prepareDataFolder(here.session));
  const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                      QFile::WriteOther | QFile::ExeOther;
  EXPECT_FALSE(QFile::permissions(here.pc.paths.native(here.session.DbPath)) & others);
}

TEST(Options, ANewNameGetsItsRowAndAnApostropheIsTold) {
  TestPc here;
  here.openBooks();
  EXPECT_EQ(GetOption(here.session, "용지", "3"), "3");
  EXPECT_EQ(GetOption(here.session, "용지", "4"), "3") << "the row stands now";
  SetOption(here.session, "용지", "");
  EXPECT_EQ(GetOption(here.session, "용지", "4"), "");
  SetOption(here.session, "새것", "1");
  EXPECT_EQ(GetOption(here.session, "새것", ""), "1");
  here.prompts.expect("OPTName = 'a'b'");
  EXPECT_EQ(GetOption(here.session, "a'b", "5"), "5");
  here.prompts.expect("프로그램 수행도중 오류가 발생했습니다.");
  SetOption(here.session, "스물한 글자가 넘어서 들어가지 않는 이름", "1");
  here.session.dbCommon.Close();
  EXPECT_EQ(GetOption(here.session, "용지", "6"), "6");
}

TEST(Rounding, ReadsTheCompanysRule) {
  TestPc here;
  here.openBooks();
  EXPECT_EQ(RoundByPayState(here.session, 1234), 1230) << "no company yet: half up";
  here.session.dbBasic.Execute("Insert Into User(Company, User) Values('가스', '홍')");
  EXPECT_EQ(RoundByPayState(here.session, 1234), 0) << "no rule chosen";
  here.session.dbBasic.Execute("Update User Set PayState = 2");
  EXPECT_EQ(RoundByPayState(here.session, 1234), 1240);
}

}  // namespace
