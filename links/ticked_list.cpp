#include "links/ticked_list.h"

using namespace Qt::StringLiterals;

bool TickedList::isTicked(int row) const {
  return list_.text(row, Tick) == u'1';
}

int TickedList::ticked() const {
  int count = 0;
  for (int row = 1; row <= list_.MaxRows(); ++row) count += isTicked(row);
  return count;
}

void TickedList::tickAll(bool on) {
  for (int row = 1; row <= list_.MaxRows(); ++row) list_.setText(row, Tick, on ? u"1"_s : u"0"_s);
}
