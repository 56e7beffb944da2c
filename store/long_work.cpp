#include "store/long_work.h"

#include <QElapsedTimer>

namespace {

constexpr int groupMilliseconds = 200;

}  // namespace

int run(const jet::Workspace& workspace, const LongWork& work) {
  const auto asks = [&](int at) { return work.asks && work.asks(at); };
  int done = 0;
  while (done < work.count) {
    if (asks(done)) {
      work.step(done++);
    } else {
      workspace.Together([&] {
        QElapsedTimer since;
        since.start();
        do work.step(done++);
        while (done < work.count && since.elapsed() < groupMilliseconds && !asks(done));
      });
    }
    if (work.tell && !work.tell(done)) break;
  }
  return done;
}
