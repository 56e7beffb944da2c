#pragma once
// What the PC gives, in one hand: where drive letters lie, the clock and its short date format, the settings.
#include "pc/clock.h"
#include "pc/paths.h"
#include "pc/process.h"
#include "pc/settings.h"

namespace pc {

/** One PC. A test makes its own below a temporary folder; the program's lies where HAEON_PC says. */
struct Pc {
  explicit Pc(const QString& root) : paths(root), settings(root) {}
  Pc(const Pc&) = delete;
  Pc& operator=(const Pc&) = delete;

  Paths paths;
  Clock clock;
  Settings settings;
  Process process{paths};
};

}  // namespace pc
