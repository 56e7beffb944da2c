// Every committed input and some thousands of its mutations, always the same ones, through each target. A broken promise
// ends the program; tests/fuzz/run searches on with a fuzzer's own means.
#include <QElapsedTimer>
#include <QRandomGenerator>

#include "tests/fuzz/targets.h"
#include "tests/storm/pcs.h"

namespace {

using fuzz::Target;

QByteArray mutated(QByteArray bytes, const Target& target, const QByteArrayList& seeds,
                   QRandomGenerator& random) {
  const auto place = [&] { return bytes.isEmpty() ? 0 : qsizetype(random.bounded(int(bytes.size()))); };
  for (int change = 1 + random.bounded(4); change > 0; --change) {
    switch (random.bounded(6)) {
      case 0:
        if (!bytes.isEmpty()) bytes[place()] = char(random.bounded(256));
        break;
      case 1:
        bytes.remove(place(), 1 + random.bounded(6));
        break;
      case 2:
        bytes.insert(place(), target.words.at(random.bounded(int(target.words.size()))));
        break;
      case 3: {  // a piece once more, somewhere
        const QByteArray piece = bytes.mid(place(), random.bounded(30));
        bytes.insert(place(), piece);
        break;
      }
      case 4: {  // the beginning of one, the end of another
        const QByteArray& other = seeds.at(random.bounded(int(seeds.size())));
        bytes = bytes.first(place()) + other.mid(random.bounded(int(other.size()) + 1));
        break;
      }
      default:
        bytes.replace(place(), 1 + random.bounded(8),
                      target.words.at(random.bounded(int(target.words.size()))));
    }
  }
  return bytes.first(std::min<qsizetype>(bytes.size(), 4000));
}

class Fuzz : public testing::TestWithParam<int> {};

TEST_P(Fuzz, CorpusAndMutations) {
  const Target& target = fuzz::targets().at(GetParam());
  const QByteArrayList seeds = target.seeds();
  ASSERT_GT(seeds.size(), 5) << "corpus not found";
  for (const QByteArray& seed : seeds) target.run(seed);
  QRandomGenerator random(17);
  QElapsedTimer since;
  since.start();
  int inputs = 0;
  for (; since.elapsed() < storm::measure(1500, 60000); ++inputs)
    target.run(mutated(seeds.at(random.bounded(int(seeds.size()))), target, seeds, random));
  std::printf("%s: %d seeds, %d mutations\n", target.name, int(seeds.size()), inputs);
  EXPECT_GT(inputs, 100);
}

INSTANTIATE_TEST_SUITE_P(Targets, Fuzz, testing::Range(0, int(fuzz::targets().size())),
                         [](const auto& info) { return std::string(fuzz::targets().at(info.param).name); });

}  // namespace
