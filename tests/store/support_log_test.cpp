#include "store/support_log.h"

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

#include <gmock/gmock.h>

#include <QRegularExpression>

#include "tests/support.h"

using namespace Qt::StringLiterals;

namespace {

struct SupportLog : testing::Test {
  tests::TestPc here;
  QString path() { return here.pc.paths.native(support::logFile(here.pc)); }
  QStringList lines() {
    QFile file(path());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
  }
  /** The line that a failing statement leaves; without its time and version. */
  QString lineOf(const jet::Database& db, const QString& sql, const QString& window = "frmSale") {
    try {
      db.Execute(sql);
      ADD_FAILURE() << "ran: " << sql.toStdString();
    } catch (const jet::Error& error) {
      support::noteError(here.pc, window, error);
    }
    return lines().last().section(u' ', 3);
  }
};

TEST_F(SupportLog, ALineTellsWindowNumberFileAndTheStatementsShape) {
  here.openBooks(QDate(2026, 3, 16));
  EXPECT_EQ(lineOf(here.session.dbBasic,
                   "Update Client Set Nme = '김가네', GasInit = GasInit - 12000 Where Code = 7"),
            "frmSale 3061 매개 변수가 너무 적습니다. 알 수 없는 이름입니다: '…' | Basic.mdb | Update Client "
            "Set ? = ?, GasInit = GasInit - ? Where Code = ?");
  EXPECT_TRUE(lines().last().startsWith("2026-03-16 09:00:0")) << lines().last().toStdString();
  EXPECT_EQ(lines().last().section(u' ', 2, 2), QString(HAEON_VERSION));
  // A window that is none of ours could be named by anybody.
  EXPECT_THAT(lineOf(here.session.dbYear, "Delete From Sale Where SaleDay = #2026-03-02#", "김가네 장부")
                  .toStdString(),
              testing::AllOf(testing::StartsWith("- 3061 "),
                             testing::EndsWith(" | 2026Foundation.mdb | Delete From Sale Where ? = ?")));
}

TEST_F(SupportLog, AnApostropheSetsNoNameFree) {
  here.openBooks();
  const QString line =
      lineOf(here.session.dbBasic,
             "Insert Into Client(Name, Tel, GasInit) Values('O'Neil 한라식당', '053-123-4567', 91500)");
  EXPECT_THAT(line.toStdString(), testing::StartsWith("frmSale 3075 "));
  for (const char* secret : {"Neil", "한라", "053", "4567", "91500"})
    EXPECT_FALSE(line.contains(secret)) << secret;
}

TEST_F(SupportLog, RowsWrittenBackAndFilesThatDoNotOpenAreNamedToo) {
  here.openBooks();
  jet::Recordset rows =
      here.session.dbBasic.OpenRecordset("Select * From Client", jet::RecordsetType::Dynaset);
  rows.AddNew();
  rows.set("Code", "칠");
  try {
    rows.Update();
    ADD_FAILURE();
  } catch (const jet::Error& error) {
    support::noteError(here.pc, "frmClient", error);
  }
  EXPECT_TRUE(lines().last().endsWith("| Basic.mdb | Insert Into Client")) << lines().last().toStdString();
  for (const auto& [path, shown] :
       {std::pair{"C:\\RWGas\\Dbs\\2019Foundation.mdb", "| 2019Foundation.mdb | -"},
        std::pair{"C:\\김가네\\김가네.mdb", "| ? | -"}}) {
    try {
      here.session.wsMain.OpenDatabase(path);
      ADD_FAILURE();
    } catch (const jet::Error& error) {
      support::noteError(here.pc, "frmClient", error);
    }
    EXPECT_TRUE(lines().last().endsWith(QString(shown))) << lines().last().toStdString();
  }
}

TEST(StatementShape, KeepsTheLanguagesWordsAndOursAndHidesTheRest) {
  const std::pair<const char*, const char*> shapes[] = {
      {"Select Name From Client Where Code = 5", "Select Name From Client Where Code = ?"},
      {" select  left(Name, 2)\n\tfrom client; ", "select left(Name, ?) from client;"},
      {"Where Name = 'O''Neil' Or Tel Like \"053*\" And AppDate >= #2026-03-02#",
       "Where Name = ? Or Tel Like ? And AppDate >= ?"},
      {"Where Name = 'open Client", "Where Name = ?"},
      {"Values(1.5, -3, Geheim, 김가네, a_1)", "Values(?.?, -?, ?, ?, ?)"},
      {"Set Memo = 'a' & 'b', Trust = Trust*2+1/3^4!", "Set Memo = ? & ?, Trust = Trust*?+?/?^?!"},
      {"Client % @ {Client} Name", "Client ? ? ?Client? Name"},
      {"[Client].[Name] [비밀] [Client", "[Client].[Name] [?] [?]"},
      {"[C:\\RWGas\\Dbs\\Basic.mdb].Client [BASIC.MDB] [/mnt/x/2026foundation.mdb]",
       "[Basic.mdb].Client [BASIC.MDB] [2026foundation.mdb]"},
      {"[xBasic.mdb] [Basic.mdb2] [20260Foundation.mdb] [C:\\김가네.mdb]", "[?] [?] [?] [?]"},
      {"[dbTax.mdb] [OLDdbCashbook.mdb] [Print.mdb] [InOutCash.mdb] [PeriodInOut.mdb] [PerMonthly.mdb] "
       "[LedgerList.mdb]",
       "[dbTax.mdb] [OLDdbCashbook.mdb] [Print.mdb] [InOutCash.mdb] [PeriodInOut.mdb] [PerMonthly.mdb] "
       "[LedgerList.mdb]"},
      {"[dbA.mdb] [dbAb.mdb] [dbAbcdefghijkl.mdb] [dbAbcdefghijklm.mdb]",
       "[?] [dbAb.mdb] [dbAbcdefghijkl.mdb] [?]"},
      {"", ""}};
  for (const auto& [sql, shape] : shapes)
    EXPECT_EQ(support::statementShape(QString::fromUtf8(sql)).toStdString(), shape) << sql;
  for (const int names : {119, 120, 121})
    EXPECT_EQ(support::statementShape(u"Name,"_s.repeated(names)).size(), std::min(names, 120) * 5) << names;
}

// Whatever the forms run, and wherever a careless apostrophe falls.
TEST(StatementShape, NoHangulAndNoNumberOfAnyStatementInUseGetsThrough) {
  QFile file(HAEON_TEST_DATA "/jet/statements_in_use.txt");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  static const QRegularExpression secret("[^\\x20-\\x7e]|(?<![A-Za-z0-9])[0-9]|[0-9]{3}");
  int shapes = 0;
  for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
    if (line.isEmpty() || line.startsWith(u'#') || line.startsWith(u'@')) continue;
    const QString sql = line.section(u'\t', 0, 0);
    EXPECT_TRUE(support::statementShape(sql).startsWith(sql.left(6))) << sql.toStdString();
    for (qsizetype at = 0; at <= sql.size(); at += 3) {
      const QString shape = support::statementShape(QString(sql).insert(at, u'\''))
                                .remove("[2002Foundation.mdb]")
                                .remove("[2025Foundation.mdb]");
      ASSERT_FALSE(shape.contains(secret)) << shape.toStdString();
      ++shapes;
    }
  }
  EXPECT_GT(shapes, 5000);
}

TEST_F(SupportLog, TwoFilesAndNoMore) {
  const jet::Error error(3022, "김가네");
  for (int i = 0; i < 9000; ++i) support::noteError(here.pc, u"frm%1"_s.arg(i), error);
  const QDir folder(QFileInfo(path()).path());
  EXPECT_EQ(folder.entryList(QDir::Files), (QStringList{"errors.1.log", "errors.log"}));
  for (const QFileInfo& each : folder.entryInfoList(QDir::Files)) EXPECT_LE(each.size(), 260 * 1024);
  EXPECT_GT(QFileInfo(folder.filePath("errors.1.log")).size(), 200 * 1024);
  const auto numberOf = [](const QString& line) { return line.section(u' ', 3, 3).mid(3).toInt(); };
  const int first = numberOf(lines().first());
  EXPECT_EQ(numberOf(lines().last()), 8999);
  const QStringList before = tests::textOf(folder.filePath("errors.1.log")).split(u'\n', Qt::SkipEmptyParts);
  EXPECT_EQ(numberOf(before.last()) + 1, first) << "the older file is the one just before";
  support::noteError(here.pc, "frmClient", error);
  EXPECT_TRUE(lines().last().contains("frmClient")) << "the newest line is in the newer file";
}

TEST_F(SupportLog, NothingThatHappensToTheFileIsAFailure) {
  const jet::Error error(3022, "김가네");
  const QString folder = QFileInfo(path()).path();
  ASSERT_TRUE(QDir().mkpath(QFileInfo(folder).path()));
  QFile inTheWay(folder);  // a file where the folder should be
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  inTheWay.close();
  support::noteError(here.pc, "frmSale", error);
  ASSERT_TRUE(inTheWay.remove());
  ASSERT_TRUE(QDir().mkpath(path()));  // a folder where the file should be
  support::noteError(here.pc, "frmSale", error);
  ASSERT_TRUE(QDir().rmdir(path()));
#ifdef Q_OS_UNIX
  ASSERT_EQ(mkfifo(QFile::encodeName(path()).constData(), 0600),
            0);  // nobody reads it: opening it would wait for ever
  support::noteError(here.pc, "frmSale", error);
  ASSERT_TRUE(QFile::remove(path()));
#endif
  support::noteError(here.pc, "frmSale", error);
  EXPECT_EQ(lines().size(), 1);
  QStringList windows;
  for (const QString& window : {u"FrmSale_2"_s, u"frm"_s + QString(40, u'x'), u"frm"_s + QString(41, u'x'),
                                u"frm"_s, u"Sale"_s, u"xfrmSale"_s, u"frmSale x"_s}) {
    support::noteError(here.pc, window, jet::Error(482, "Kim's printer"));
    windows << lines().last().section(u' ', 3);
  }
  const QString told = " 482 프린터 오류 | - | -";
  EXPECT_EQ(windows, (QStringList{"FrmSale_2" + told, "frm" + QString(40, u'x') + told, "-" + told,
                                  "-" + told, "-" + told, "-" + told, "-" + told}));
}

TEST_F(SupportLog, AStartWithoutAnEndBeforeItTellsOfACrash) {
  for (const auto run :
       {support::Run::Begins, support::Run::Ends, support::Run::Begins, support::Run::Begins})
    support::noteRun(here.pc, run);
  QStringList runs;
  for (const QString& line : lines()) runs << line.section(u' ', 3, 3);
  EXPECT_EQ(runs, (QStringList{"시작", "끝", "시작", "시작"}));
}

}  // namespace
