#pragma once
// What the PC gives, in one hand: where drive letters lie, the clock and its short date format, the settings.
#include <memory>

#include "pc/clock.h"
#include "pc/paths.h"
#include "pc/settings.h"

namespace pc {

/** One PC. A test makes its own below a temporary folder; the program's lies where HAEON_PC says. */
struct Pc {
  explicit Pc(const QString& root) : paths(root), settings(root) {}
  Paths paths;
  Clock clock;
  Settings settings;
};

}  // namespace pc
