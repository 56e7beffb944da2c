#include "ui/forms/push_button.h"

#include <QShortcutEvent>

PushButton::PushButton(const char* name, const QString& caption, QWidget* parent)
    : QPushButton(caption, parent) {
  setObjectName(QString::fromUtf8(name));
}

bool PushButton::event(QEvent* event) {
  if (event->type() != QEvent::Shortcut || static_cast<QShortcutEvent*>(event)->isAmbiguous())
    return QPushButton::event(event);
  click();
  return true;
}
