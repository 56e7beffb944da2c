#pragma once
// How long the process itself has worked: what other programs take of a busy machine does not count.
#include <QtGlobal>
#include <ctime>

namespace tests {

class CpuClock {
 public:
  /** Milliseconds since it was made or asked by restart. */
  qint64 elapsed() const { return now() - start_; }
  qint64 restart() {
    const qint64 passed = elapsed();
    start_ = now();
    return passed;
  }

 private:
  static qint64 now() {
    timespec at{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &at);
    return at.tv_sec * 1000 + at.tv_nsec / 1'000'000;
  }
  qint64 start_ = now();
};

}  // namespace tests
