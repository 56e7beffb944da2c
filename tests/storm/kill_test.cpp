// A PC that loses its power in the middle of a posting, over and over, on the same books.
#include <gtest/gtest.h>

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>

#include "tests/storm/child.h"
#include "tests/storm/pcs.h"
#include "tests/storm/poster.h"

namespace storm {
namespace {

using namespace Qt::StringLiterals;

TEST(Kill, EveryToldLineIsThereAndEveryGroupIsWhole) {
  const QTemporaryDir folder;
  Pc(folder.path()).makeBooks();
  const int rounds = measure(20, 500);
  QRandomGenerator random(20260305);
  Lines known;
  int steps = 0, caught = 0;
  for (int round = 0; round < rounds; ++round) {
    Child child({u"--pc"_s, u"post"_s, folder.path(), QString::number(round + 1), u"0"_s});
    ASSERT_TRUE(child.waitFor(QLatin1String(word::ready), 30000));
    QThread::usleep(random.bounded(200000));
    child.kill();
    const Told told = Told::of(child.lines());
    ASSERT_TRUE(told.failures.isEmpty()) << told.failureTexts.join(u'\n').toStdString();
    for (auto at = told.lines.begin(); at != told.lines.end(); ++at) known[at.key()] = *at;
    for (const qint64 key : told.gone) known.remove(key);
    steps += int(told.lines.size() + told.gone.size());
    caught += told.open.has_value();

    // Whoever opens the folder next finds it whole.
    ASSERT_EQ(faultsOf(folder.path()).join(u'\n').toStdString(), "") << "round " << round;
    Pc here(folder.path());
    here.open();
    const Lines stored = storedLines(here.session);
    ASSERT_EQ(differences(stored, known, told.gone, told.open).join(u'\n').toStdString(), "")
        << "round " << round;
    known = stored;
  }
  std::printf("killed %d times, %d of them within a posting; %d lines told, %d in the book\n", rounds, caught,
              steps, int(known.size()));
  EXPECT_GT(caught, 0);
  EXPECT_GT(known.size(), rounds);
}

}  // namespace
}  // namespace storm
