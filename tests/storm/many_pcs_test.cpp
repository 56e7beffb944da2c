// Several PCs on one folder.
#include <QElapsedTimer>
#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <memory>
#include <thread>

#include "store/data_files.h"
#include "store/jet/error.h"
#include "tests/storm/builder.h"
#include "tests/storm/child.h"
#include "tests/storm/pcs.h"
#include "tests/storm/poster.h"

namespace storm {
namespace {

using namespace Qt::StringLiterals;

struct ManyPcs : testing::Test {
  QTemporaryDir folder;
  void SetUp() override { Pc(folder.path()).makeBooks(); }

  /** beside: what else goes on in the folder, for the report. */
  void postTogether(int pcs, int steps, const char* beside = "") {
    std::vector<std::unique_ptr<Child>> children;
    for (int pc = 0; pc < pcs; ++pc)
      children.push_back(std::make_unique<Child>(
          QStringList{"post", folder.path(), QString::number(100 + pc), QString::number(steps)}));
    Lines told;
    QList<qint64> gone;
    qint64 longest = 0;
    int done = 0;
    for (const auto& child : children) {
      EXPECT_TRUE(child->finish(600000));
      const Told one = Told::of(child->lines());
      EXPECT_EQ(one.failureTexts, QStringList());
      EXPECT_GE(one.steps, steps);
      for (auto at = one.lines.begin(); at != one.lines.end(); ++at) {
        EXPECT_FALSE(told.contains(at.key())) << "two PCs took line " << at.key() << " for theirs";
        told[at.key()] = *at;
      }
      gone << one.gone;
      longest = std::max(longest, one.longest);
      done += one.steps;
    }
    EXPECT_EQ(faultsOf(folder.path()), QStringList());
    OpenPc here(folder.path());
    EXPECT_EQ(differences(storedLines(here.session), told, gone, {}), QStringList());
    EXPECT_LT(longest, 4000) << "milliseconds; a step waits no longer than the time limit";
    std::printf("%d PCs%s: %d steps, %d lines in the book, the longest step %d ms\n", pcs, beside, done,
                int(told.size()), int(longest));
  }

  /** Ends a process that works until it is told to stop; the steps it has done. */
  int stop(Child& other) {
    EXPECT_TRUE(QFile(folder.filePath("stop")).open(QIODevice::WriteOnly));
    EXPECT_TRUE(other.finish(60000));
    const Told told = Told::of(other.lines());
    EXPECT_EQ(told.failureTexts, QStringList());
    return told.steps;
  }
};

TEST_F(ManyPcs, TwoLoseNothing) {
  postTogether(2, measure(60, 3000));
}

TEST_F(ManyPcs, FourLoseNothing) {
  postTogether(4, measure(40, 1500));
}

TEST_F(ManyPcs, TwoThatIssueTheSameLinesPutNoneOnTwoPapersAndGiveNoNumberTwice) {
  constexpr int lines = 120;
  {
    OpenPc here(folder.path());
    here.session.dbYear.Together([&] {
      for (int line = 0; line < lines; ++line)
        here.session.dbYear.Execute(
            u"Insert Into Sale(SaleDate, ClientCode, SaleName, SaleThing, SaleUnit, SaleNum, SaleGubun) "
            "Values('2026-03-%1', %2, 'LPG', '20', 30000, 1, 1)"_s.arg(1 + line % 28, 2, 10, QChar(u'0'))
                .arg(1 + line % 40));
    });
  }
  std::vector<std::unique_ptr<Child>> children;
  for (int pc = 0; pc < 2; ++pc)
    children.push_back(std::make_unique<Child>(QStringList{"issue", folder.path()}));
  QStringList papers, serials, invoiced;
  for (const auto& child : children) {
    ASSERT_TRUE(child->finish(600000));
    int own = 0;
    for (const QString& told : child->lines()) {
      const QStringList words = told.split(u' ');
      if (words.value(1) == u"statement") papers << words.value(2);
      if (words.value(1) == u"invoice") {
        serials << words.value(2);
        invoiced << words.value(3) + words.value(4);
      }
      own += words.size() > 2;
    }
    EXPECT_GT(own, 0) << "the other one got everything";
  }
  for (const QStringList& list : {papers, serials, invoiced})
    EXPECT_EQ(list.size(), QSet<QString>(list.begin(), list.end()).size()) << list.join(u' ').toStdString();
  EXPECT_EQ(papers.size(), lines);
  EXPECT_EQ(invoiced.size(), lines) << "120 lines of 120 days and customers";
  OpenPc here(folder.path());
  const auto count = [&](const jet::Database& db, const QString& sql) {
    return db.OpenRecordset(sql)[0].toLong();
  };
  EXPECT_EQ(count(here.session.dbYear, "Select Count(*) From Sale Where DealList = 1 And SaleList = 1"),
            lines);
  EXPECT_EQ(count(here.session.dbTax, "Select Count(*) From TaxAcount"), lines);
  EXPECT_EQ(count(here.session.dbTax, "Select Sum(TradeKum + VatKum) From TaxAcount"), lines * 30000);
}

TEST_F(ManyPcs, AProgramThatIsStartedAgainAndAgainDisturbsNobody) {
  Child starter({"start", folder.path()});
  ASSERT_TRUE(starter.waitFor(word::ready, 30000));
  postTogether(2, measure(40, 4000), " beside a program that is started again and again");
  const int starts = stop(starter);
  EXPECT_GT(starts, 1);
  std::printf("the program was started %d times\n", starts);
}

TEST_F(ManyPcs, LongWorkLetsTheOthersIn) {
  Child worker({"work-long", folder.path()});
  ASSERT_TRUE(worker.waitFor(word::ready, 30000));
  postTogether(2, measure(20, 1000), " beside long work");
  const int steps = stop(worker);
  EXPECT_GT(steps, 100) << "and the long work went on too";
  std::printf("the long work did %d steps\n", steps);
  OpenPc here(folder.path());
  EXPECT_EQ(
      here.session.dbYear.OpenRecordset("Select Sum(UseMuch) From Evaporation Where Mon = 9")[0].toLong(),
      steps);
}

TEST_F(ManyPcs, TheGreatestWholeBuildingLetsTheOthersIn) {
  Child builder({"build", folder.path(), "1", "20", QString::number(wholeBuilding / 20), "pause"});
  ASSERT_TRUE(builder.waitFor(word::ready, 30000));
  postTogether(2, measure(20, 2000), " beside buildings of 1,000 households");
  EXPECT_TRUE(builder.waitForAnother(word::razed, 60000)) << "and the building went on too";
  builder.kill();
  std::printf("%d buildings were made and deleted\n", int(builder.lines().filter(word::razed).size()));
}

TEST_F(ManyPcs, AHeldLockIsToldAndTheWorkGoesOnAfterwards) {
  OpenPc here(folder.path());
  Child holder({"hold", folder.path()});
  ASSERT_TRUE(holder.waitFor(word::ready, 30000));
  QElapsedTimer since;
  since.start();
  try {
    here.session.dbYear.Execute("Update Client Set GasInit = GasInit + 1 Where Code = 2");
    ADD_FAILURE() << "written under another PC's lock";
  } catch (const jet::Error& error) {
    EXPECT_EQ(error.number(), 3261);
    EXPECT_TRUE(error.description().contains("다른 사용자에 의해 잠겨 있습니다"))
        << error.description().toStdString();
  }
  EXPECT_GT(since.elapsed(), 3000);
  EXPECT_EQ(here.session.dbYear.OpenRecordset("Select GasInit From Client Where Code = 2")[0].toLong(),
            startBalance)
      << "reading goes on meanwhile";
  stop(holder);
  EXPECT_EQ(here.session.dbYear.Execute("Update Client Set GasInit = GasInit + 1 Where Code = 2"), 1);
  EXPECT_EQ(here.session.dbYear.OpenRecordset("Select Memo From Client Where Code = 1")[0].toText(), "held");
}

}  // namespace
}  // namespace storm
