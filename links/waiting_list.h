#pragma once
// Calls that nobody has taken yet. In memory only: a restart empties it.
#include <QStringList>
#include <functional>

#include "master/customers/calls.h"
#include "pc/clock.h"

class WaitingList : public WaitingCalls {
 public:
  explicit WaitingList(const pc::Clock& clock) : clock_(clock) {}

  /** Appends "<number> [<date and time>]"; the time of the call, now when it is not given. */
  void AddStanbyNumber(const QString& number, const QDateTime& called = {});
  QString OldestStanbyNumber() const override;
  QString TakeStanbyNumber() override;

  const QStringList& entries() const { return entries_; }
  void remove(int index);
  void clear();
  /** Told after every change; the list's window. */
  std::function<void()> changed;

 private:
  void tell() const {
    if (changed) changed();
  }
  const pc::Clock& clock_;
  QStringList entries_;
};
