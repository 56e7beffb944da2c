#include "links/form_see_id_port.h"

#include "pc/ports.h"

SeeIdPort::SeeIdPort(const pc::Paths& paths) : paths_(paths) {
  timer_.setSingleShot(true);
  QObject::connect(&timer_, &QTimer::timeout, &port_, [this] { deliver(); });
  QObject::connect(&port_, &QSerialPort::readyRead, &port_, [this] {
    for (const SeeIdEvent& event : lines_.feed(port_.readAll())) queue_.push_back(event);
    if (!queue_.empty() && !timer_.isActive()) timer_.start(0);
  });
  // A unit pulled out in the middle of the day: the port is let go, so that opening it again can work.
  QObject::connect(
      &port_, &QSerialPort::errorOccurred, &port_,
      [this](QSerialPort::SerialPortError error) {
        if (error == QSerialPort::ResourceError || error == QSerialPort::ReadError) port_.close();
      },
      Qt::QueuedConnection);
}

SeeIdPort::~SeeIdPort() {
  timer_.stop();
  port_.disconnect();
}

int SeeIdPort::open(const QString& port) {
  lines_ = {};
  port_.setPortName(pc::serialDevice(paths_, port));
  port_.setBaudRate(QSerialPort::Baud1200);
  return port_.open(QIODevice::ReadOnly) ? 0 : 1;
}

int SeeIdPort::close(const QString&) {
  port_.close();
  return 0;
}

void SeeIdPort::deliver() {
  if (queue_.empty()) return;
  const SeeIdEvent event = queue_.front();
  queue_.pop_front();
  if (!queue_.empty()) timer_.start(0);  // also while this one's handler asks the operator something
  if (onEvent) onEvent(event.state, event.number);
}
