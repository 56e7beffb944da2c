#pragma once
// Enter leads from box to box: one order for forms and dialogs.
#include <QList>

class QWidget;

/** Controls that are hidden or switched off are passed over. Options of one parent are one stop, entered at the one that
 *  is on. Boxes of several lines and buttons keep their Enter. */
class EnterOrder {
 public:
  enum class Step { None, Moved, AtEnd };

  EnterOrder() = default;
  explicit EnterOrder(const QList<QWidget*>& controls) : controls_(controls) {}
  /** Whose Enter counts, every option of a group included. */
  QList<QWidget*> sources() const;
  /** Enter in a control of the window: the focus goes on. None: it is no stop, or keeps its Enter. */
  Step from(QWidget* control, const QWidget* window) const;

  static void focus(QWidget* control);  ///< with its text selected

 private:
  QList<QWidget*> controls_;
};
