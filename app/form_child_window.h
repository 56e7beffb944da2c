#pragma once
// The frame of one form inside the main window. A form that closes itself takes its frame along.
#include <QMdiSubWindow>
#include <QPointer>

class ChildWindow : public QMdiSubWindow {
 public:
  explicit ChildWindow(QWidget* form);
  /** The form stands; False from the moment it has closed itself. */
  bool isOpen() const { return widget() && !gone_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QPointer<QWidget> first_;  ///< where the form wants the focus; becoming a child takes it away
  bool gone_ = false;
};
