// A PC that loses its power in the middle of a year's closing.
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include "store/closing/file_replacement.h"
#include "store/year_file.h"
#include "tests/store/old_books.h"
#include "tests/storm/child.h"
#include "tests/storm/closer.h"
#include "tests/storm/pcs.h"
#include "tests/storm/poster.h"

namespace storm {
namespace {

struct KilledClosing : testing::Test {
  static constexpr int more = 60;
  QTemporaryDir folder;
  QRandomGenerator random{20261231};
  QString closed;      ///< the closed year's file as it has to stay
  QString fresh;       ///< the next year's as every closing makes it
  qint64 longest = 0;  ///< milliseconds of a closing

  void SetUp() override {
    Pc here(folder.path());
    here.makeBooks();
    writeDecember(here, more);
    QElapsedTimer since;
    since.start();
    closeYear(here.session, loneScreen());
    longest = since.elapsed();
    closed = tests::dumpOf(here.session.dbYear);
    fresh = dumpOf(here, yearFile(here.session, nextYear(here)));
  }
  static int nextYear(const Pc& here) { return here.session.WorkYear.toInt() + 1; }
  static QString dumpOf(const Pc& here, const QString& file) {
    const jet::Database open = here.session.wsMain.OpenDatabase(file);
    EXPECT_TRUE(open.isSound()) << file.toStdString();
    return tests::dumpOf(open);
  }
  /** The numbers of the lines that only a file of the next year holds. */
  static QStringList workIn(const Pc& here, const QString& file) {
    QStringList numbers;
    const jet::Database open = here.session.wsMain.OpenDatabase(file);
    for (auto rs = open.OpenRecordset("Select Trust From Sale Where SaleDate >= '" +
                                      QString::number(nextYear(here)) + "-01-01'");
         !rs.atEnd(); rs.MoveNext())
      numbers << rs[0].toText();
    return numbers;
  }
};

TEST_F(KilledClosing, TheNextYearIsTheOldOneOrTheNewOneAndNothingIsLost) {
  const int rounds = measure(50, 400);
  int within = 0, old = 0, renewed = 0, kept = 0;
  for (int round = 1; round <= rounds && !HasFailure(); ++round) {
    Child child({"close", folder.path(), QString::number(round)});
    ASSERT_TRUE(child.waitFor(word::made, 30000));
    QThread::usleep(random.bounded(int(longest) * 1300 + 1000));
    child.kill();
    const QStringList lines = child.lines();
    const QString last = lines.filter(word::made).last().section(u' ', 1);
    const bool inside = lines.last().startsWith(word::made);

    OpenPc here(folder.path());
    EXPECT_EQ(tests::dumpOf(here.session.dbYear) == closed, true)
        << "the closed year changed in round " << round;
    const QString file = yearFile(here.session, nextYear(here));
    const QStringList beside = keptBeside(here.pc.paths, file);
    const QStringList work = workIn(here, file);
    if (inside) {
      ++within;
      if (work.isEmpty()) {
        ++renewed;
        EXPECT_EQ(dumpOf(here, file) == fresh, true) << "half a closing stands in round " << round;
      } else {
        ++old;
        EXPECT_EQ(work, QStringList(last)) << "round " << round;
      }
      for (const QString& each : beside) {
        ++kept;
        EXPECT_EQ(workIn(here, each), QStringList(last)) << "what was replaced, in round " << round;
      }
    }
    for (const QString& each : beside) EXPECT_TRUE(QFile::remove(here.pc.paths.native(each)));
    // Whatever was left, the closing may be done once more.
    int differing = 0;
    closeYear(here.session, loneScreen(&differing));
    EXPECT_EQ(differing, 0);
    EXPECT_EQ(here.prompts.told.filter("에러"), QStringList());
    EXPECT_EQ(dumpOf(here, file) == fresh, true);
    EXPECT_EQ(here.pc.paths.list(here.session.DbPath, QString::number(nextYear(here)) + "*"),
              QStringList(yearFileName(QString::number(nextYear(here)))));
  }
  std::printf(
      "closings (%lld ms): killed %d times, %d within one: the old file stood %d times, the new one %d; kept "
      "beside %d\n",
      longest, rounds, within, old, renewed, kept);
  EXPECT_GT(within, rounds / 2);
  EXPECT_GT(old, 0);
}

}  // namespace
}  // namespace storm
