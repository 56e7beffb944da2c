#pragma once
// Long work over many rows: grouped, so that it costs few flushes, but let go every fraction of a second, so that
// another PC gets in.
#include <functional>
#include <vector>

#include "store/jet/database.h"

struct LongWork {
  int count = 0;                  ///< steps of the work
  std::function<void(int)> step;  ///< one whole step, 0 to count - 1: its statements stand or fall together
  /** Steps that ask the operator run outside the groups: no lock is held while the operator thinks. */
  std::function<bool(int)> asks = {};
  /** Told after each group, with the steps done; False stops the work there. */
  std::function<bool(int done)> tell = {};
  /** All steps in one group: a power cut leaves all of them or none. For work that is over before a waiting PC gives
   *  up; no step of it may ask. */
  bool whole = false;
  /** Files that each group is sure of before its first write, where its statements come to them only later. */
  std::vector<jet::Database> files = {};
};

/** Milliseconds after which a group ends; a test that wants several groups of little work makes it shorter. */
extern int longWorkGroup;

/** Steps done. An error of a step goes on to the caller; the steps before it stay. */
int run(const jet::Workspace& workspace, const LongWork& work);
