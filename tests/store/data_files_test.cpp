#include "store/data_files.h"

#include "store/options.h"
#include "store/rounding.h"
#include "store/settings_table.h"
#include "store/year_file.h"
#include "tests/store/old_books.h"

namespace {

using namespace Qt::StringLiterals;
using tests::firstOf;
using tests::TestPc;

/** What other programs find of a table: its columns with type, room and what a new row holds, and its indexes. */
QString toldOf(const jet::TableDef& table) {
  QStringList columns, indexes;
  for (const jet::Field& field : table.fields) {
    QString told = field.name + u' ';
    told += field.autonumber                   ? u"counter"_s
            : field.type == jet::Type::Long    ? u"long"_s
            : field.type == jet::Type::Double  ? u"double"_s
            : field.type == jet::Type::Boolean ? u"yes"_s
                                               : u"text %1"_s.arg(field.size);
    if (!field.defaultValue.isNull()) told += u" = "_s + field.defaultValue.toText();
    if (!field.allowZeroLength) told += u" filled"_s;
    columns << told;
  }
  for (const jet::Index& index : table.indexes)
    indexes << index.name +
                   (index.primary  ? u"!"_s
                    : index.unique ? u"?"_s
                                   : QString()) +
                   u": "_s + index.fields.join(u'+');
  return (table.name + u" | "_s + columns.join(u", "_s) + u" | "_s + indexes.join(u", "_s)).trimmed();
}

TEST(DataFiles, EachKindHasTheTablesThatOtherProgramsKnow) {
  TestPc here;
  ASSERT_TRUE(here.pc.paths.makeFolder("D:\\made\\"));
  const jet::Workspace workspace = openWorkspace(here.session, "D:\\made\\");
  QStringList told;
  for (int kind = 0; kind <= int(schema::File::Ledger); ++kind) {
    const QString path = u"D:\\made\\%1.mdb"_s.arg(kind);
    ASSERT_TRUE(makeDataFile(here.session, path, schema::File(kind)));
    const jet::Database file = workspace.OpenDatabase(path);
    told << u"# file %1"_s.arg(kind);
    for (const jet::TableDef& table : schema::tablesOf(schema::File(kind)))
      told << toldOf(file.tableDef(table.name));
  }
  QFile known(HAEON_TEST_DATA "/store/tables.txt");
  ASSERT_TRUE(known.open(QIODevice::ReadOnly));
  for (const QString& table : told)
    EXPECT_EQ(table.toStdString(), QString::fromUtf8(known.readLine()).trimmed().toStdString());
  EXPECT_TRUE(known.atEnd());
}

TEST(DataFiles, ANewPcGetsEveryFileWithItsTables) {
  TestPc here;
  here.session.DbPath = installedDataFolder();
  ASSERT_TRUE(prepareDataFolder(here.session));
  EXPECT_EQ(here.pc.paths.list(here.session.DbPath, "*"),
            (QStringList{"2002Foundation.mdb", "Basic.mdb", "dbPost.mdb", "dbTax.mdb", "Print.mdb"}));
  const jet::Workspace workspace = openWorkspace(here.session, here.session.DbPath);
  const auto basic = workspace.OpenDatabase("C:\\rwgas\\dbs\\BASIC.mdb");
  EXPECT_EQ(
      tests::linesOf(basic, "Select * From Volume Order By Code", "null").join(';'),
      "1|4|조정기 4kg/h|0;2|5|조정기 5kg/h|0;3|7|조정기 7kg/h|0;4|10|조정기 10kg/h|0;5|20|조정기 20kg/h|0;"
      "6|30|조정기 30kg/h|0;7|50|조정기 50kg/h|0");
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

TEST(DataFiles, ALineOfAPastYearMayBearALaterDay) {
  TestPc here;
  here.openBooks(QDate(2026, 12, 31));
  makeYearFile(here.session, "2025");
  EXPECT_EQ(yearsThere(here.session), (std::set{2025, 2026})) << "the template is no year";
  const auto told = [&](int year) {
    const LineDays days = lineDays(here.session, year);
    return days.first + u' ' + days.last;
  };
  EXPECT_EQ(told(2026), "2026-01-01 2026-12-31");
  EXPECT_EQ(told(2025), "2025-01-01 2025-12-31") << "it is not the opened one";
  here.pc.clock.set(QDateTime(QDate(2027, 1, 1), QTime(0, 5)));
  EXPECT_EQ(told(2026), "2026-01-01 9999-12-31");
  EXPECT_EQ(told(2025), "2025-01-01 2025-12-31");
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
  for (const auto& [chosen, folder] :
       {std::pair{"D:\\DBS", "D:\\DBS\\"}, {" D:\\DBS\\ ", "D:\\DBS\\"}, {" ", "C:\\RWGas\\Dbs\\"}}) {
    here.pc.settings.write(setting::DataFolder, QString::fromLatin1(chosen));
    EXPECT_EQ(dataFolder(here.session), folder) << chosen;
  }
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

TEST(SettingsTable, StandsUnderTheTextsThatInstallationsAndCompanionsWrote) {
  using namespace setting;
  QStringList told;
  const auto tell = [&](const Setting& each) {
    QStringList texts;
    for (const QStringView text : {each.application, each.section, each.key, each.fallback})
      texts << text.toString();
    told << texts.join(u'|');
  };
  for (const Setting& each : {DataFolder,
                              ReportFolder,
                              NoticeHidden,
                              PostCodesRebuilt,
                              BackupFolder,
                              ProgramDrive,
                              ArchiveFolder,
                              ArchivesKept,
                              ArchiveServerFolder,
                              ArchiveServerCommand,
                              BackupRemindedAtExit,
                              toolFolderOf(u"x"),
                              MapFolder,
                              CompanyName,
                              ApprovalNumber,
                              LateChargeKind,
                              AfterDueMethod,
                              BlocksShown,
                              OrderedByRoom,
                              CollectionsShown,
                              OpenArrearsAlone,
                              SeeIdUse,
                              SeeIdPorts[0],
                              SeeIdPorts[1],
                              WaitingX,
                              WaitingY,
                              SmsFolder,
                              RelayFolder,
                              GiroPrinter,
                              GiroTop,
                              GiroLeft,
                              OcrThisMonth,
                              OrgA4ThisMonth,
                              OrgA4NewPaper,
                              OrgA4Preprinted,
                              OrgA4UseFrom,
                              OrgA4UseTo,
                              ReportPrinter,
                              PdfFile,
                              PdfFolder,
                              printerOf(u"x"),
                              topMarginOf(u"x"),
                              leftMarginOf(u"x"),
                              chartShownOf(u"x"),
                              chartPrintedOf(u"x"),
                              GroundPicture,
                              GroundCentred,
                              GroundColour,
                              MapEdited,
                              MapFailed,
                              MapCustomer,
                              MapFile,
                              MapPrintName,
                              MapPrintAddress,
                              MapPrintTel,
                              MapPrintFile})
    tell(each);
  for (const Setting& note : OcrNotes) tell(note);
  EXPECT_EQ(told.join(u'\n').toStdString(),
            tests::textOf(HAEON_TEST_DATA "/store/settings.txt").trimmed().toStdString());
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
