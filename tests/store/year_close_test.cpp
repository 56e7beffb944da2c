#include "tests/store/closing_desk.h"

#include <filesystem>

#include "store/closing/file_replacement.h"
#include "store/jet/presence.h"
#include "tests/store/old_books.h"

using namespace Qt::StringLiterals;

namespace {

using tests::ClosingDesk;
using tests::dumpOf;

struct YearClose : testing::Test, ClosingDesk {
  /** What the book of the new year opens with: reading, arrears, issued, use and pay of a month. */
  QString opening(int code, int month) {
    return rowsIn(2027,
                  u"Select UseGage, Trust, Total, UseMuch, UsePay, Pay From Evaporation Where "
                  "ClientCode = %1 And Mon = %2"_s.arg(code)
                      .arg(month));
  }
  void workInNextYear() {
    const jet::Database next = year(2027);
    next.Execute(
        "Insert Into Sale(SaleDate, ClientCode, SaleGubun, Trust) Values('2027-01-04', 1, 1, 31000)");
    next.Execute(
        "Insert Into Sale(SaleDate, ClientCode, SaleGubun, Trust) Values('2027-01-05', 2, 1, 31000)");
    next.Execute("Insert Into Buy(BuyDate, BuyCompany) Values('2027-01-05', '충전소')");
    next.Execute(
        "Update Evaporation Set UseGage = 1250, UseMuch = 16, Pay = 20000 Where Mon = 1 And ClientCode = 1");
  }
};

TEST_F(YearClose, DecemberBecomesTheOpeningRowAndJanuarysArrears) {
  closeWell();
  EXPECT_EQ(opening(owes, 0), "1234|5000|35500|0|0|0") << "the opening row takes no use";
  EXPECT_EQ(opening(owes, 1), "0|35500|0|0|0|0");
  EXPECT_EQ(opening(owes, 3), "0|0|0|0|0|0") << "the old year's months are empty of amounts";
  EXPECT_EQ(opening(paid, 0), "640.5|0|0|0|0|0");
  EXPECT_EQ(opening(paid, 1), "0|0|0|0|0|0");
  EXPECT_EQ(opening(over, 1), "0|-3000|0|0|0|0") << "what was paid too much goes over";
  EXPECT_EQ(rowsIn(2027, "Select Count(Mon) From Evaporation"), "52");
  EXPECT_EQ(rowsIn(2027, "Select Count(Mon) From Evaporation Where paydelayed"), "0")
      << "the closing does not carry the mark";
  EXPECT_EQ(session.WorkYear, "2026");
  EXPECT_EQ(field("Total", owes, 12), "35500") << "dbYear stays on the closed year";
  EXPECT_FALSE(session.dbYear.hasTable("TmpTbl"));
  EXPECT_EQ(files("*2027*"), QStringList("2027Foundation.mdb")) << "nothing lies about";
  EXPECT_EQ(progressed, (QStringList{"2026년도의 마감을 준비중입니다... 0/0",
                                     "2026년도의 자료를 마감중입니다... 잠시만 기다려주십시오 0/4",
                                     "2026년도의 자료를 마감중입니다... 잠시만 기다려주십시오 4/4"}));
  EXPECT_FALSE(differed);
}

TEST_F(YearClose, TheNewFileIsACopyWithItsTradeAndOneBalanceRow) {
  closeWell();
  EXPECT_EQ(rowsIn(2027, "Select SaleDate, ClientCode, Trust From Sale Order By SaleDate"),
            "|1|0;2026-05-05|1|20000")
      << "the first customer alone has a balance row";
  EXPECT_EQ(rows("Select SaleDate From Sale"), "2026-05-05") << "and the closed year has none";
  closeWell();
  EXPECT_EQ(rowsIn(2027, "Select SaleDate From Sale Order By SaleDate"), ";2026-05-05");
  run("Insert Into Sale(SaleDate, ClientCode, Trust) Values('', 3, 0)");
  closeWell();
  EXPECT_EQ(rowsIn(2027, "Select ClientCode From Sale Where SaleDate = ''"), "3")
      << "a file that has one gets none";
}

TEST_F(YearClose, ABookWithoutDecemberHasItsMonthsAndNoArrears) {
  run("Delete * From Evaporation Where Mon = 12");
  closeWell();
  EXPECT_EQ(rowsIn(2027, "Select Count(Mon), Sum(Trust) From Evaporation"), "48|0");
  EXPECT_EQ(shown->lines.size(), 0U);
  EXPECT_EQ(shown->customers, 4);
}

TEST_F(YearClose, ANullIsCarriedAsNothingAndAFractionMakesNoDifference) {
  set(owes, 12, "Total = Null, UseGage = Null");
  set(late, 12, "Total = 0.1 + 0.2");  // 0.30000000000000004, of which a statement carries 0.3
  closeWell();
  EXPECT_FALSE(differed);
  EXPECT_EQ(opening(late, 1), "0|0.3|0|0|0|0");
  EXPECT_EQ(opening(owes, 0), "0|5000|0|0|0|0");
  EXPECT_EQ(opening(owes, 1), "0|0|0|0|0|0");
}

TEST_F(YearClose, TheForecastTellsWhoGoesOverAndWhatWouldBeLost) {
  closeWell();
  EXPECT_FALSE(shown->nextStands);
  EXPECT_EQ(shown->customers, 4);
  EXPECT_EQ(shown->owing, 3);
  EXPECT_EQ(shown->arrears, 35500 - 3000 + 9800);
  ASSERT_EQ(shown->lines.size(), 4U);
  EXPECT_EQ(shown->lines[0].name, "한빛식당");
  EXPECT_EQ(shown->lines[0].reading, 1234);

  workInNextYear();
  run("Insert Into Sale(SaleDate, ClientCode, SaleGubun) Values('2027-01-01', 3, 1)");
  run("Delete * From Evaporation Where Mon = 1 And ClientCode = " + QString::number(late));
  const QString before = dumpOf(year(2027));
  goesOn = false;
  close();
  EXPECT_TRUE(shown->nextStands && shown->nextIsRead && shown->losesWork());
  EXPECT_EQ(shown->sales, 1) << "one of the two lies in this year's file too";
  EXPECT_EQ(shown->purchases, 1);
  EXPECT_EQ(shown->readings, 1);
  EXPECT_EQ(shown->collected, 20000);
  EXPECT_EQ(shown->arrears, 32500) << "without a January row nothing is carried";
  EXPECT_FALSE(shown->lines[3].hasJanuary);
  EXPECT_EQ(dumpOf(year(2027)), before) << "leaving writes nothing";
  for (int more = 0; more < 3; ++more) {
    run("Insert Into Sale(SaleDate, ClientCode, SaleGubun) Values('2027-01-02', 3, 1)");
    run("Insert Into Buy(BuyDate, BuyCompany) Values('2027-01-02', '충전소')");
  }
  close();
  EXPECT_EQ(shown->sales, 0) << "more of them lie in this year's file";
  EXPECT_EQ(shown->purchases, 0);

  goesOn = true;
  pc.prompts.expect("넘기시겠습니까?", false);
  close();
  EXPECT_EQ(dumpOf(year(2027)), before);
  EXPECT_TRUE(session.dbYear.isOpen());
}

TEST_F(YearClose, ARepeatedClosingThrowsTheNextYearsWorkAway) {
  closeWell();
  workInNextYear();
  closeWell();
  EXPECT_EQ(rowsIn(2027, "Select Count(SaleID) From Sale Where SaleDate >= '2027'"), "0");
  EXPECT_EQ(opening(owes, 1), "0|35500|0|0|0|0");
  EXPECT_EQ(files("*2027*"), QStringList("2027Foundation.mdb"));
}

TEST_F(YearClose, WhatDiffersIsToldAndTheOldFileCanBePutBack) {
  closeWell();
  workInNextYear();
  const QString before = dumpOf(year(2027));
  run("Delete * From Evaporation Where Mon = 1 And ClientCode = " + QString::number(owes));
  pc.prompts.expect("넘기시겠습니까?");
  pc.prompts.expect("마감하기 전의 자료로 되돌렸습니다.");
  putsBack = true;
  close();
  ASSERT_TRUE(differed);
  EXPECT_EQ(differed->customers, 4);
  ASSERT_EQ(differed->differing.size(), 1U);
  EXPECT_EQ(differed->differing[0].name, "한빛식당");
  EXPECT_EQ(differed->differing[0].december, 35500);
  EXPECT_FALSE(differed->differing[0].january);
  EXPECT_EQ(dumpOf(year(2027)), before);
  EXPECT_EQ(files("*2027*"), QStringList("2027Foundation.mdb"));

  putsBack = false;
  closeWell();
  EXPECT_TRUE(keptThen.startsWith(session.DbPath + "2027Foundation-20261231-0900")) << keptThen.toStdString();
  EXPECT_EQ(dumpOf(session.wsMain.OpenDatabase(keptThen)), before) << "it stays until somebody has looked";
  EXPECT_EQ(rowsIn(2027, "Select Count(SaleID) From Sale Where SaleDate >= '2027'"), "0");
  goesOn = false;
  close();
  EXPECT_EQ(shown->kept, QStringList(keptThen)) << "and the next closing names it";

  goesOn = true;
  ClosingScreen breaking = screen();
  breaking.differs = [](const CarryCheck&, const QString&) -> bool { throw jet::Error(3043, "silent"); };
  pc.prompts.expect("넘기시겠습니까?");
  pc.prompts.expect("마감작업을 하던중 에러가 발생했습니다!");
  pc.prompts.expect("에러번호 : 3043\n에러내용 : silent");
  pc.prompts.expect("바꾸기 전의 자료는 아래의 파일에 남아 있습니다.\n\n" + session.DbPath +
                    "2027Foundation-2026");
  closeYear(session, breaking);
  EXPECT_EQ(files("2027*").size(), 3) << "the year, and what stood there before each of the two";
}

TEST_F(YearClose, TwoReplacementsOfOneSecondKeepBothFiles) {
  closeWell();
  const QString place = yearFile(session, 2027);
  for (const char* const kept :
       {"2027Foundation-20261231-180000.mdb", "2027Foundation-20261231-180000-2.mdb"}) {
    FileReplacement next(pc.pc.paths, place);
    next.copyFrom(place);
    next.takePlace(QDateTime(QDate(2026, 12, 31), QTime(18, 0)));
    EXPECT_EQ(next.kept(), session.DbPath + kept);
    EXPECT_TRUE(files("*2027*").contains(kept));
  }
}

TEST_F(YearClose, TheComparisonLooksAtThoseWithoutADecemberToo) {
  closeWell();
  run("Delete * From Evaporation Where Mon = 12 And ClientCode = " + QString::number(paid));
  EXPECT_TRUE(checkCarry(session.dbYear, year(2027)).differing.empty()) << "January has nothing of nothing";
  year(2027).Execute("Update Evaporation Set Trust = 700 Where Mon = 1 And ClientCode = " +
                     QString::number(paid));
  const CarryCheck check = checkCarry(session.dbYear, year(2027));
  EXPECT_EQ(check.customers, 3);
  ASSERT_EQ(check.differing.size(), 1U);
  EXPECT_EQ(check.differing[0].name, "가람상회");
  EXPECT_EQ(check.differing[0].january, 700);
  EXPECT_FALSE(check.differing[0].december);
  for (const auto& [more, differing] : {std::pair("0.5", 2u), {"-0.002", 2u}, {"0.0004", 1u}}) {
    year(2027).Execute(u"Update Evaporation Set Trust = 35500 + %1 Where Mon = 1 And ClientCode = %2"_s
                           .arg(QLatin1String(more))
                           .arg(owes));
    EXPECT_EQ(checkCarry(session.dbYear, year(2027)).differing.size(), differing) << more;
  }
}

TEST_F(YearClose, AFileThatIsOpenElsewhereStaysAndTheErrorIsTold) {
  closeWell();
  workInNextYear();
  const QString before = dumpOf(year(2027));
  {
    const jet::Presence elsewhere(pc.pc.paths.native(yearFile(session, "2027")), 0);
    closeFails(3045);
  }
  {
    const jet::Presence elsewhere(pc.pc.paths.native(yearFile(session, "2026")), 0);
    closeFails(3045);
  }
  EXPECT_EQ(dumpOf(year(2027)), before);
  EXPECT_EQ(files("*2027*"), QStringList("2027Foundation.mdb"));
  closeWell();
}

TEST_F(YearClose, AFullDiskInTheMiddleLeavesTheNextYearsFileAsItWas) {
  closeWell();
  workInNextYear();
  const QString before = dumpOf(year(2027));
  meanwhile = [](const QString& text, int) {
    if (text.contains("마감중")) throw jet::Error(3026, "full");
  };
  closeFails(3026);
  EXPECT_EQ(dumpOf(year(2027)), before);
  EXPECT_EQ(files("*2027*"), QStringList("2027Foundation.mdb"));
}

TEST_F(YearClose, WhatAnInterruptedClosingLeftIsNoHindrance) {
  jet::TableDef link;
  link.name = "TmpTbl";
  link.connect = ";DATABASE=" + yearFile(session, "2027");
  link.sourceTableName = "Evaporation";
  QFile half(pc.pc.paths.native(yearFile(session, "2027")) + ".new");
  ASSERT_TRUE(half.open(QFile::WriteOnly) && half.write("half a file") > 0);
  half.close();
  closeWell();
  session.dbYear.createTable(link);
  closeWell();
  EXPECT_FALSE(session.dbYear.hasTable("TmpTbl"));
  EXPECT_EQ(opening(owes, 1), "0|35500|0|0|0|0");
}

TEST_F(YearClose, ADamagedNextYearIsReplacedAllTheSame) {
  QFile torn(pc.pc.paths.native(yearFile(session, "2027")));
  ASSERT_TRUE(torn.open(QFile::WriteOnly) && torn.write(QByteArray(5000, 'x')) > 0);
  torn.close();
  // Its journal, which fits neither it nor the new file: a header, and an empty first page.
  tests::writeFile(torn.fileName() + "-journal",
                   QByteArray::fromHex("d9d505f920a163d70000000100000000000000010000020000001000")
                           .leftJustified(512, '\0') +
                       QByteArray::fromHex("00000001") + QByteArray(4096 + 4, '\0'));
  closeWell();
  EXPECT_EQ(files("*2027*"), QStringList("2027Foundation.mdb"));
  EXPECT_TRUE(shown->nextStands);
  EXPECT_FALSE(shown->nextIsRead);
  EXPECT_EQ(opening(owes, 1), "0|35500|0|0|0|0");
}

/** The data folder lies elsewhere; the closing works in the fixed one all the same. */
struct MovedFolder : YearClose {
  const QString moved = "D:\\장부\\", fixed = "C:\\RWGas\\Dbs\\";

  MovedFolder() {
    pc.closeBooks();
    const QString from = pc.pc.paths.native(fixed), to = pc.pc.paths.root() + "/d/장부";
    QDir().mkpath(to);
    for (const QString& name : QDir(from).entryList({"*.mdb"}, QDir::Files))
      QFile::copy(from + '/' + name, to + '/' + name);
    pc.pc.settings.SaveSetting(session.AppTitle, "환경설정", "db경로", moved);
    session.DbPath = moved;
    session.wsMain = openWorkspace(session, moved);
    session.dbBasic = session.wsMain.OpenDatabase(moved + "Basic.mdb");
    EXPECT_TRUE(upgrades::relink(session));
    session.dbYear = year(2026);
  }
};

TEST_F(MovedFolder, WithoutTheYearInTheFixedFolderNothingIsCopied) {
  ASSERT_TRUE(QFile::remove(pc.pc.paths.native(fixed + "2026Foundation.mdb")));
  closeFails(3024);
  EXPECT_TRUE(shown->folderMoved);
  EXPECT_EQ(shown->folder, fixed);
  EXPECT_FALSE(pc.pc.paths.exists(moved + "2027Foundation.mdb"));
  EXPECT_FALSE(pc.pc.paths.exists(fixed + "2027Foundation.mdb"));
}

TEST_F(MovedFolder, TheBookIsWantedInTheDataFolderAndLosesNothingThere) {
  closeFails(3024);
  EXPECT_FALSE(pc.pc.paths.exists(fixed + "2027Foundation.mdb")) << "no half of a closing stays";

  makeYearFile(session, "2027");
  ASSERT_TRUE(upgrades::relink(session));
  year(2027).Execute("Insert Into Evaporation(ClientCode, Mon, Trust) Values(1, 1, 777)");
  // The book is emptied here, its keys meet those of the copy there.
  closeFails(3022);
  EXPECT_EQ(rowsIn(2027, "Select Trust From Evaporation"), "777");
  EXPECT_EQ(files("*2027*"), QStringList("2027Foundation.mdb"));
  EXPECT_FALSE(pc.pc.paths.exists(fixed + "2027Foundation.mdb"));
}

}  // namespace
