// The program starts and ends, again and again, on a machine that has other work to do.
#include <atomic>
#include <stdexcept>
#include <thread>
#include <vector>

#include "samples/entrance.h"
#include "tests/day/sample_folder.h"

namespace {

/** Keeps every core busy twice over while it lives. */
class Load {
 public:
  Load() {
    for (unsigned i = 0; i < 2 * std::max(1U, std::thread::hardware_concurrency()); ++i)
      threads_.emplace_back([this] {
        while (!over_.load(std::memory_order_relaxed)) ++spun_;
      });
  }
  ~Load() {
    over_ = true;
    for (std::thread& thread : threads_) thread.join();
  }
  Load(const Load&) = delete;
  Load& operator=(const Load&) = delete;

 private:
  std::atomic<bool> over_ = false;
  std::atomic<unsigned> spun_ = 0;
  std::vector<std::thread> threads_;
};

TEST(Starts, AllComeUpOnALoadedMachine) {
  const tests::SampleFolder books;
  const Load load;
  const int starts = qEnvironmentVariable("HAEON_STORM") == u"long" ? 30 : 3;
  for (int start = 1; start <= starts; ++start) {
    try {
      samples::Stage stage(books.options());
      stage.startProgram();
      samples::signIn(stage);
      samples::leave(stage);
    } catch (const std::runtime_error& failure) {
      FAIL() << "start " << start << ": " << failure.what();
    }
  }
}

}  // namespace
