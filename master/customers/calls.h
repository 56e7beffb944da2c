#pragma once
// How callers' numbers meet the forms: the list of waiting calls, and a form that can take one.
#include <QString>

/** Calls not yet served, oldest first (links/waiting_list). */
class WaitingCalls {
 public:
  virtual ~WaitingCalls() = default;
  /** The number that TakeStanbyNumber would take; '' when nobody waits. */
  virtual QString OldestStanbyNumber() const = 0;
  /** Takes the oldest number out of the list; '' when nobody waits. */
  virtual QString TakeStanbyNumber() = 0;
};

/** A form that may take the number of a call just coming in (frmSale). */
class CallerTarget {
 public:
  virtual ~CallerTarget() = default;
  /** False: the number is for the waiting list. An empty number fetches the oldest waiting one. */
  virtual bool TakeCallerNumber(const QString& number) = 0;
};
