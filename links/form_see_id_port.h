#pragma once
// One caller-identification unit on a serial port: 1200 baud, 8 data bits, no parity, as such units speak.
#include <QSerialPort>
#include <QTimer>
#include <deque>
#include <functional>

#include "links/caller.h"
#include "links/see_id_lines.h"

class SeeIdPort : public SeeIdControl {
 public:
  explicit SeeIdPort(const pc::Paths& paths);
  ~SeeIdPort() override;

  int open(const QString& port) override;
  /** The port itself is the one opened, whatever name is given. */
  int close(const QString& port) override;
  bool isOpen() const override { return port_.isOpen(); }

  /** A call, at once; also while a box or picker is up, so the receiver may be called within its own question. */
  std::function<void(int state, const QString& number)> onEvent;

 private:
  void deliver();

  const pc::Paths& paths_;
  QSerialPort port_;
  SeeIdLines lines_;
  std::deque<SeeIdEvent> queue_;
  QTimer timer_;
};
