#pragma once
// The customers' telephone numbers in the one shape by which a caller is found: 053-123-4567. Numbers that came another
// way than through the register's boxes, with old books above all, are brought into it.
#include <optional>

#include "links/ticked_list.h"
#include "store/session.h"

namespace TidyCol {
enum { Tick = TickedList::Tick, Name, Field, Stored, Tidy, Code };
}

/** A stored telephone cell, one number or several with commas between, in the shape; nothing where it stands in it
 *  already or holds no number that fits it. What is not a number stays as it is. */
std::optional<QString> tidyTel(const QString& stored);

class TelTidy : public TickedList {
 public:
  explicit TelTidy(Session& session);

  /** The numbers out of shape, all ticked. False after a failed query has been told. */
  bool load();
  /** Asks, then writes the ticked ones, all or none; a cell that another PC changed meanwhile stays. False when it was
   *  not begun; else the list is one of before. Throws jet::Error. */
  bool save();

 private:
  Session& session_;
};
