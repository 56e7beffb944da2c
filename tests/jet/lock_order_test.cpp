// Statements and groups of two PCs that need the same files, and a group that the store has undone.
#include <sys/resource.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QFile>
#include <atomic>
#include <csignal>
#include <thread>

#include "tests/jet/engine_fixture.h"

namespace jet_tests {
namespace {

constexpr int patience = 3000;  // milliseconds before a PC gives up; two that wait for each other use it up

/** Until the thread sleeps, seen ten times running: in a statement only the wait for a lock does. False: it ended. */
bool waitsForALock(const std::atomic<pid_t>& thread, const std::atomic<bool>& done) {
  for (int seen = 0; seen < 10; std::this_thread::sleep_for(std::chrono::milliseconds(1))) {
    if (done) return false;
    QFile state(u"/proc/self/task/%1/stat"_s.arg(thread));
    const QByteArray line = state.open(QIODevice::ReadOnly) ? state.readAll() : QByteArray();
    seen = line.mid(line.lastIndexOf(')')).startsWith(") S") ? seen + 1 : 0;
  }
  return true;
}

struct LockOrder : Engine {
  void SetUp() override {
    Engine::SetUp();
    basic.Execute("Insert Into Client(Name, GasInit) Values('a', 0)");
    year.Execute("Insert Into Sale(ClientCode, SaleNum) Values(1, 0)");
    closeFiles();
  }

  /** One PC's group over both files, during which another PC begins a statement. */
  void statementAgainstGroup(const QString& sql) const {
    const jet::Workspace one = open(patience), two = open(patience);
    const auto mine = one.OpenDatabase(path("2026Foundation.mdb"));
    const auto theirs = two.OpenDatabase(path("2026Foundation.mdb"));
    theirs.Execute(sql);  // so that later only the locks are waited for
    int failure = 0, otherFailure = 0;
    std::thread other;
    std::atomic<pid_t> thread = 0;
    std::atomic<bool> done = false;
    QElapsedTimer since;
    failure = failureOf([&] {
      one.Together([&] {
        mine.Execute("Update Client Set GasInit = GasInit + 1");
        mine.Execute("Update Sale Set SaleNum = SaleNum + 1");
        other = std::thread([&] {
          thread = gettid();
          otherFailure = failureOf([&] { theirs.Execute(sql); });
          done = true;
        });
        EXPECT_TRUE(waitsForALock(thread, done)) << "it went past the group's locks";
        since.start();
      });
    });
    other.join();
    EXPECT_EQ(failure, 0) << sql.toStdString();
    EXPECT_EQ(otherFailure, 0) << sql.toStdString();
    EXPECT_LT(since.elapsed(), patience) << sql.toStdString();
  }
};

TEST_F(LockOrder, AStatementOverTwoFilesDoesNotWaitForAGroupThatWaitsForIt) {
  // Reads Basic.mdb and writes the year file; the other way round; reads both of one file.
  statementAgainstGroup("Update Sale Set SaleDate = 'x' Where ClientCode In (Select Code From Client)");
  statementAgainstGroup("Update Client Set Ho = 'x' Where Code In (Select ClientCode From Sale)");
  statementAgainstGroup("Delete From Sale Where ClientCode In (Select Code From Client Where Name = 'z')");
}

TEST_F(LockOrder, FilesOpenedInAnotherOrderAreReadWithoutADeadlock) {
  const auto tax = open().CreateDatabase(path("dbTax.mdb"));
  tax.createTable(table("Tax", {number("Code"), number("Sum")}));
  tax.Execute("Insert Into Tax Values(1, 0)");
  // Together or not at all: the two figures are always the same.
  std::atomic<int> readings = 0;
  int written = 0, unwritten = 0, unread = 0, torn = 0;
  std::thread writer([&] {
    const jet::Workspace own = open(patience);
    const auto first = own.OpenDatabase(path("2026Foundation.mdb")),
               second = own.OpenDatabase(path("dbTax.mdb"));
    for (; written < 25; ++written) {
      while (readings < 2 * written) std::this_thread::yield();  // turn about: the reader finds its gaps
      unwritten += 0 != failureOf([&] {
                     own.Together([&] {
                       first.Execute("Update Sale Set SaleNum = SaleNum + 1");
                       second.Execute("Update Tax Set Sum = Sum + 1");
                     });
                   });
    }
  });
  const jet::Workspace own = open(patience);
  const auto second = own.OpenDatabase(path("dbTax.mdb")),
             first = own.OpenDatabase(path("2026Foundation.mdb"));
  const QString both =
      u"Select Tax.Sum, Sale.SaleNum From Tax Inner Join [%1].Sale On Tax.Code = Sale.ClientCode"_s.arg(
          path("2026Foundation.mdb"));
  for (; readings < 60; ++readings)
    unread += 0 != failureOf([&] {
                const auto rs = second.OpenRecordset(both);
                torn += rs[0].toLong() != rs[1].toLong();
              });
  writer.join();
  EXPECT_EQ(unwritten, 0);
  EXPECT_EQ(unread, 0);
  EXPECT_EQ(torn, 0);
}

/** No file of this process can grow while this lives: as if the disk were full. */
struct NoMoreRoom {
  NoMoreRoom() {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit none = before;
    none.rlim_cur = 0;
    setrlimit(RLIMIT_FSIZE, &none);
  }
  ~NoMoreRoom() { setrlimit(RLIMIT_FSIZE, &before); }
  rlimit before{};
};

TEST_F(LockOrder, AGroupThatTheStoreHasUndoneTakesNothingMore) {
  year = workspace.OpenDatabase(path("2026Foundation.mdb"));
  int later = 0;
  const int failure = failureOf([&] {
    workspace.Together([&] {
      year.Execute("Update Client Set GasInit = 500");
      {
        const NoMoreRoom full;
        EXPECT_EQ(refusal(year, "Update Sale Set SaleNum = 5"), 3043);
      }
      // The work did not look at the failure and goes on, as a rule does after a box has told it.
      later = refusal(year, "Update Sale Set SaleDate = 'later'");
    });
  });
  EXPECT_EQ(later, 3043);
  EXPECT_EQ(failure, 3043) << "whoever asked for the group learns that nothing of it stands";
  EXPECT_EQ(rows(year, "Select GasInit, SaleNum, SaleDate From Sale, Client"), "0|0|-");
  workspace.Together([&] { year.Execute("Update Sale Set SaleNum = 7"); });
  EXPECT_EQ(rows(year, "Select SaleNum From Sale"), "7") << "the next group is a new one";
}

}  // namespace
}  // namespace jet_tests
