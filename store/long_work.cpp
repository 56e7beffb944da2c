#include "store/long_work.h"

#include <QElapsedTimer>
#include <QThread>

int longWorkGroup = 200;

namespace {

/** Longer than a waiting PC's look at the lock; without it the next group would begin before anybody had looked. */
constexpr int gapMilliseconds = 20;

}  // namespace

int run(const jet::Workspace& workspace, const LongWork& work) {
  const auto asks = [&](int at) { return work.asks && work.asks(at); };
  int done = 0;
  while (done < work.count) {
    if (asks(done)) {
      work.step(done++);
    } else {
      workspace.Together(work.files, [&] {
        QElapsedTimer since;
        since.start();
        do work.step(done++);
        while (done < work.count && (work.whole || since.elapsed() < longWorkGroup) && !asks(done));
      });
    }
    if (work.tell && !work.tell(done)) break;
    if (done < work.count) QThread::msleep(gapMilliseconds);
  }
  return done;
}
