#pragma once
// The sample retailer's books in a folder that goes with the test, and how the program is started on them.
#include "samples/day.h"
#include "samples/sample_books.h"
#include "tests/support.h"

namespace tests {

struct SampleFolder {
  QTemporaryDir root;
  QString pdf;  ///< what the PDF writer fills

  /** clock: the moment that the books are made at and the program starts at. */
  explicit SampleFolder(const char* clock = samples::dayClock) : clock_(clock) {
    qputenv("HAEON_CLOCK", clock);
    pc::Pc pc(root.path());
    ScriptedPrompts prompts;
    samples::makeBooks(pc, prompts);
  }
  samples::Stage::Options options() const {
    samples::Stage::Options options;
    options.programs = HAEON_PROGRAMS;
    options.pcRoot = root.path();
    options.clock = clock_;
    options.pictures = qEnvironmentVariable("HAEON_PICTURES");
    options.pdf = pdf;
    return options;
  }
  /** The same at another moment, for a play of several starts. */
  auto startedAt() const {
    return [this](const QString& clock) {
      samples::Stage::Options options = this->options();
      options.clock = clock;
      return options;
    };
  }

 private:
  const char* clock_;
};

}  // namespace tests
