#include "links/waiting_list.h"

using namespace Qt::StringLiterals;

void WaitingList::AddStanbyNumber(const QString& number, const QDateTime& called) {
  const QString format = clock_.shortDateFormat() + u" HH:mm:ss"_s;
  entries_ << number + u" ["_s + (called.isValid() ? called : clock_.now()).toString(format) + u']';
  tell();
}

QString WaitingList::OldestStanbyNumber() const {
  return entries_.value(0).section(u' ', 0, 0);
}

QString WaitingList::TakeStanbyNumber() {
  QString number = OldestStanbyNumber();
  if (!entries_.isEmpty()) remove(0);
  return number;
}

void WaitingList::remove(int index) {
  if (index < 0 || index >= entries_.size()) return;
  entries_.removeAt(index);
  tell();
}

void WaitingList::clear() {
  entries_.clear();
  tell();
}
