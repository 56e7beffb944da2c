#pragma once
// A list of which the operator ticks whom something is for.
#include "ui/model/spread_model.h"

class TickedList {
 public:
  static constexpr int Tick = 1;  ///< the column of the ticks

  SpreadModel& list() { return list_; }
  bool isTicked(int row) const;
  int ticked() const;
  void tickAll(bool on);

 protected:
  SpreadModel list_;
};
