#pragma once
// The frame of one form inside the main window. A form that closes itself takes its frame along.
#include <QMdiSubWindow>

class ChildWindow : public QMdiSubWindow {
 public:
  explicit ChildWindow(QWidget* form);
  /** The form stands; False from the moment it has closed itself. */
  bool isOpen() const { return widget() && !gone_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool gone_ = false;
};
