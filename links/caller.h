#pragma once
// From the device's event to a form or to the waiting list; opening and closing of the two ports.
#include <array>
#include <functional>

#include "links/waiting_list.h"
#include "store/session.h"

/** The control of one device. */
class SeeIdControl {
 public:
  virtual ~SeeIdControl() = default;
  /** port: "COM<n>". 0 on success, above 0 on failure. */
  virtual int open(const QString& port) = 0;
  virtual int close(const QString& port) = 0;
  virtual bool isOpen() const = 0;
};

class Caller {
 public:
  using Controls = std::array<SeeIdControl*, 2>;
  /** active gives the form in front when it can take a number, else null. */
  Caller(Session& session, Controls controls, WaitingList& waiting, std::function<CallerTarget*()> active)
      : session_(session), controls_(controls), waiting_(waiting), active_(std::move(active)) {}

  /** The menu's tick, kept as SeeIDUse. */
  bool enabled() const;
  /** Flips use on or off: opens or closes the ports and stores it. */
  void setEnabled(bool on);

  void OpenSeeID();
  /** Kept: the port named in closing is the control's place + 1, not the stored number. */
  void CloseSeeID();

  /** The event of a control; states other than 1 and 2 are ignored. */
  void deviceEvent(int state, const QString& number);
  void OnCallerNumber(const QString& number);

  /** Stored port numbers as texts; "0" uses none. */
  std::array<QString, 2> ports() const;
  /** Closes, stores Val of each text, opens anew. */
  void changePorts(const std::array<QString, 2>& typed);

 private:
  Session& session_;
  Controls controls_;
  WaitingList& waiting_;
  std::function<CallerTarget*()> active_;
};
