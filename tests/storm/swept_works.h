#pragma once
// The pieces of work that the failing disk is tried on: each as an operator does it, step by step, by the forms' rules.
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

#include "tests/storm/books.h"

namespace storm {

class Work {
 public:
  virtual ~Work() = default;
  using Steps = std::vector<std::function<void()>>;
  /** Each is done wholly or not at all, and may be done again when it has failed. */
  const Steps& steps() const { return steps_; }
  /** There are whole states within a step too: its lines or rows stand one by one. */
  virtual bool hasMoreStates() const { return false; }
  /** The work is the program's start; after a failure it is tried by a new program. */
  virtual bool opensAnew() const { return false; }

 protected:
  Steps steps_;
};

/** The books below root as the work finds them. */
void makeBooksFor(const QString& work, const QString& root);
/** What a work leaves beside the data folder: of a backup its whole archives. Throws jet::Error for one that is not. */
QString leftBeside(const QString& work, const QString& root);
/** The work at an opened PC, its form loaded. */
std::unique_ptr<Work> makeWork(const QString& work, Pc& here);

}  // namespace storm
