// A PC that loses its power in the middle of a posting, over and over, on the same books.
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include "tests/storm/builder.h"
#include "tests/storm/child.h"
#include "tests/storm/pcs.h"
#include "tests/storm/poster.h"

namespace storm {
namespace {

struct Kill : testing::Test {
  QTemporaryDir folder;
  QRandomGenerator random{20260305};
  int caught = 0;

  void SetUp() override { Pc(folder.path()).makeBooks(); }

  /** Over and over: a child at work until it is killed, after so many milliseconds at most; what it had told by then, and
   *  a PC that opens the books after it and finds them whole. */
  template <class Check>
  void killedOften(int rounds, const QString& work, const Check& check, const QStringList& more = {"0"},
                   int latest = 200) {
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
      SCOPED_TRACE(round);
      Child child(QStringList{work, folder.path(), QString::number(round + 1)} + more);
      EXPECT_TRUE(child.waitFor(word::ready, 30000));
      QThread::usleep(random.bounded(latest * 1000));
      child.kill();
      const Told told = Told::of(child.lines());
      EXPECT_EQ(told.failureTexts, QStringList());
      caught += told.open.has_value();
      EXPECT_EQ(faultsOf(folder.path()), QStringList());
      OpenPc here(folder.path());
      check(told, here);
    }
  }
};

TEST_F(Kill, EveryToldLineIsThereAndEveryGroupIsWhole) {
  const int rounds = measure(15, 500);
  Lines known;
  int lines = 0;
  killedOften(rounds, "post", [&](const Told& told, Pc& here) {
    for (auto at = told.lines.begin(); at != told.lines.end(); ++at) known[at.key()] = *at;
    for (const qint64 key : told.gone) known.remove(key);
    lines += int(told.lines.size() + told.gone.size());
    const Lines stored = storedLines(here.session);
    EXPECT_EQ(differences(stored, known, told.gone, told.open), QStringList());
    known = stored;
  });
  std::printf("sales: killed %d times, %d of them within a posting; %d lines told, %d in the book\n", rounds,
              caught, lines, int(known.size()));
  EXPECT_GT(caught, 0);
  EXPECT_GT(known.size(), rounds);
}

TEST_F(Kill, EveryToldReadingIsThereWithItsCarry) {
  const int rounds = measure(8, 300);
  Readings known;
  int told = 0;
  killedOften(rounds, "read", [&](const Told& one, Pc& here) {
    told += int(one.readings.size());
    known.insert(one.readings);
    const Readings stored = storedReadings(here.session);
    for (auto at = known.begin(); at != known.end(); ++at) {
      if (one.open == at.key()) continue;
      EXPECT_EQ(stored[at.key()], *at) << "customer " << at.key();
    }
    known = stored;
  });
  std::printf("readings: killed %d times, %d of them within a saving; at the last kills %d customers told\n",
              rounds, caught, told);
  EXPECT_GT(caught, 0);
  EXPECT_GT(told, rounds);
}

TEST_F(Kill, ABuildingIsThereWithAllItsHouseholdsOrNotAtAll) {
  const int rounds = measure(8, 300), floors = 10, width = 6, units = floors * width;
  int stood = 0;
  const auto check = [&](const Told& told, Pc& here) {
    Builder builder(here);
    const QList<int> stored = builder.list().keys();
    for (const int block : told.blocks) EXPECT_TRUE(stored.contains(block) || told.open == block);
    for (const int block : stored) EXPECT_TRUE(told.blocks.contains(block) || told.open == block);
    const int blocks = int(stored.size());
    EXPECT_EQ(buildingRows(here.session), (BuildingRows{blocks, blocks * units, blocks * units * 13}));
    for (const int block : stored) EXPECT_TRUE(builder.remove(block));
    EXPECT_EQ(buildingRows(here.session), BuildingRows());
    stood += blocks;
  };
  killedOften(rounds, "build", check, {QString::number(floors), QString::number(width)});
  std::printf("buildings: killed %d times, %d of them while one was made or deleted; %d stood, all whole\n",
              rounds, caught, stood);
  EXPECT_GT(caught, 0);
}

TEST_F(Kill, APartOfAVeryBigBuildingShowsInTheListAndCanBeDeleted) {
  const int rounds = measure(3, 60), floors = 50, width = 50, units = floors * width;
  int parts = 0;
  const auto check = [&](const Told&, Pc& here) {
    Builder builder(here);
    const QMap<int, int> shown = builder.list();
    int households = 0;
    for (const int count : shown) {
      households += count;
      parts += count < units;
    }
    EXPECT_EQ(buildingRows(here.session), (BuildingRows{int(shown.size()), households, households * 13}));
    for (const int block : shown.keys()) {
      EXPECT_TRUE(builder.remove(block));
      EXPECT_FALSE(builder.list().contains(block));
    }
    EXPECT_EQ(buildingRows(here.session), BuildingRows()) << "nothing is left of it";
  };
  killedOften(rounds, "build", check, {QString::number(floors), QString::number(width), "stay"}, 500);
  OpenPc here(folder.path());
  Builder builder(here);
  builder.make(7, floors, width);
  EXPECT_EQ(builder.list().value(7), units);
  std::printf("buildings of %d households: killed %d times, a part was left %d times\n", units, rounds,
              parts);
}

}  // namespace
}  // namespace storm
