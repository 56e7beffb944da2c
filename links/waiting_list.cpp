#include "links/waiting_list.h"

void WaitingList::AddStanbyNumber(const QString& number) {
  const QString format = clock_.shortDateFormat() + QStringLiteral(" HH:mm:ss");
  entries_ << number + QStringLiteral(" [") + clock_.now().toString(format) + u']';
  tell();
}

QString WaitingList::TakeStanbyNumber() {
  if (entries_.isEmpty()) return {};
  const QString number = entries_.takeFirst().section(u' ', 0, 0);
  tell();
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
