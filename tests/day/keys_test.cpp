// Any keys on the real window: whatever they do, the program answers every one of them and ends only when asked to.
//   HAEON_STORM=long     thousands of keys, another seed every time
//   HAEON_MONKEY=SEED    this seed
#include <QDir>
#include <QRandomGenerator>

#include <cstdio>
#include <stdexcept>

#include "samples/entrance.h"
#include "tests/day/sample_folder.h"

namespace {

class RealHands {
 public:
  explicit RealHands(quint32 seed) : dice_(seed) {}
  QString next() {
    // The apostrophe is left out: it breaks a statement by rule. So are the display server's own keys.
    static const QStringList moves{"Return", "Return", "Return", "KP_Enter",  "Escape",      "Tab",  "Left",
                                   "Right",  "Up",     "Down",   "Down",      "Prior",       "Next", "Home",
                                   "End",    "space",  "Delete", "BackSpace", "ISO_Left_Tab"};
    static const QStringList odd{"Shift_L", "Control_L", "Alt_L",     "Super_L",    "Caps_Lock", "Num_Lock",
                                 "Insert",  "Menu",      "Pause",     "Clear",      "comma",     "period",
                                 "minus",   "slash",     "parenleft", "parenright", "percent",   "asterisk"};
    static const QStringList held{"", "", "", "", "", "", "shift+", "ctrl+", "alt+", "ctrl+shift+"};
    const int turn = below(100);
    QString key = turn < 40   ? moves[below(int(moves.size()))]
                  : turn < 60 ? QString::number(below(10))
                  : turn < 75 ? QString(QChar('a' + below(26)))
                  : turn < 88 ? "F" + QString::number(1 + below(12))
                              : odd[below(int(odd.size()))];
    return held[below(int(held.size()))] + key;
  }

 private:
  int below(int count) { return int(dice_.bounded(quint32(count))); }
  QRandomGenerator dice_;
};

TEST(RealWindowMonkey, AnyKeyIsAnswered) {
  const bool longRun = qgetenv("HAEON_STORM") == "long";
  const QByteArray named = qgetenv("HAEON_MONKEY");
  const quint32 seed = !named.isEmpty() ? named.toUInt()
                       : longRun        ? QRandomGenerator::global()->generate()
                                        : 1;
  const int keys = longRun ? 4000 : 120;
  std::fprintf(stderr, "keys on the real window, seed %u\n", seed);
  const tests::SampleFolder books;
  // What a file box writes stays in the test's own folder.
  qputenv("HOME", books.root.path().toUtf8());
  QStringList last;
  try {
    samples::Stage::Options options = books.options();
    options.pdf = books.root.filePath("paper.pdf");
    samples::Stage stage(options);
    const auto enter = [&] {
      stage.startProgram();
      samples::signIn(stage);
      stage.keys({"alt+l", "s"});  // the sale screen, where most keys are pressed
    };
    enter();
    RealHands hands(seed);
    for (int key = 0; key < keys; ++key) {
      last << hands.next();
      if (last.size() > 40) last.removeFirst();
      stage.keys({last.last()});
      if (stage.programRuns()) continue;
      ASSERT_EQ(stage.awaitEnd(), 0) << "seed " << seed << ": " << last.join(' ').toStdString();
      enter();
    }
  } catch (const std::runtime_error& failure) {
    FAIL() << failure.what() << ", seed " << seed << ": " << last.join(' ').toStdString();
  }
}

}  // namespace
