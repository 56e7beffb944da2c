#include "app/form_child_window.h"

#include <QEvent>
#include <QTimer>

ChildWindow::ChildWindow(QWidget* form) : first_(form->focusWidget()) {
  setWidget(form);
  setAttribute(Qt::WA_DeleteOnClose);
}

void ChildWindow::showEvent(QShowEvent* event) {
  QMdiSubWindow::showEvent(event);
  if (first_) first_->setFocus(Qt::OtherFocusReason);
  first_.clear();
}

bool ChildWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == widget() && event->type() == QEvent::Close) {
    // Only after the form has answered is it known whether it closes.
    QTimer::singleShot(0, this, [this] {
      if (!widget() || !widget()->isHidden() || isMinimized()) return;
      gone_ = true;
      hide();
      deleteLater();
    });
  }
  return QMdiSubWindow::eventFilter(watched, event);
}
