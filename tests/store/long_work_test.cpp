#include "store/long_work.h"

#include "tests/support.h"

namespace {

struct LongWorkTest : testing::Test, tests::TestPc {
  LongWorkTest() { openBooks(); }
  int rows() {
    return int(session.dbBasic.OpenRecordset("Select Count(CarNo) As C From CaRes")["C"].toLong());
  }
  void add(int number) {
    session.dbBasic.Execute("Insert Into CaRes(CarNo) Values('" + QString::number(number) + "')");
  }
};

TEST_F(LongWorkTest, EveryStepRunsOnceInOrderAndNoLockIsHeldWhileAStepAsks) {
  pc::Paths& paths = pc.paths;
  jet::Workspace other({.mainFile = session.DbPath + "Basic.mdb",
                        .resolvePath = [&](const QString& path) { return paths.native(path); },
                        .busyMilliseconds = 100});
  const jet::Database theirs = other.OpenDatabase(session.DbPath + "Basic.mdb");
  QList<int> steps;
  const int done = run(session.wsMain, {.count = 300,
                                        .step =
                                            [&](int at) {
                                              steps << at;
                                              add(at);
                                              if (at == 150)
                                                theirs.Execute("Insert Into CaRes(CarNo) Values('X')");
                                            },
                                        .asks = [](int at) { return at == 150; }});
  EXPECT_EQ(done, 300);
  EXPECT_EQ(steps.size(), 300);
  EXPECT_TRUE(std::is_sorted(steps.begin(), steps.end()));
  EXPECT_EQ(rows(), 301);
}

TEST_F(LongWorkTest, AStopAndAFailureKeepWhatIsDone) {
  EXPECT_EQ(run(session.wsMain, {.count = 10,
                                 .step = [&](int at) { add(at); },
                                 .asks = [](int) { return true; },
                                 .tell = [](int done) { return done < 4; }}),
            4);
  EXPECT_EQ(rows(), 4);
  EXPECT_THROW(run(session.wsMain, {.count = 10,
                                    .step =
                                        [&](int at) {
                                          if (at == 5) throw jet::Error(5, "no");
                                          add(at);
                                        }}),
               jet::Error);
  EXPECT_EQ(rows(), 9);
}

}  // namespace
