#pragma once
// The button of forms and dialogs.
#include <QPushButton>

/** Its Alt letter works at once: the toolkit's own way lets a tenth of a second pass, in which a fast hand's next keys
 *  would still go to the control before. */
class PushButton : public QPushButton {
 public:
  PushButton(const char* name, const QString& caption, QWidget* parent);

 protected:
  bool event(QEvent* event) override;
};
