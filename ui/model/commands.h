#pragma once
// How a form opens another without knowing it: by its name.
#include <QString>

class QWidget;

class Commands {
 public:
  virtual ~Commands() = default;
  /** Shows the form as a child of the main window (an open one comes to the front); False when there is none. */
  virtual bool openForm(const QString& name) = 0;
  /** Whether there is such a form; a button that opens one that is missing is switched off. */
  virtual bool hasForm(const QString&) const { return false; }
  /** What the form in front tells at the left of the main window's status line, in colour; '' takes it away. */
  virtual void showStatus(const QString&) {}
  /** The form in front, or null. */
  virtual QWidget* activeForm() const = 0;
};
