#include "ui/forms/enter_order.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTextEdit>

#include <algorithm>

namespace {

QList<QRadioButton*> optionsBeside(QWidget* control) {
  if (!qobject_cast<QRadioButton*>(control)) return {};
  return control->parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
}

/** The option of a group that is on, for any other control itself. */
QWidget* stopAt(QWidget* control) {
  for (QRadioButton* const option : optionsBeside(control))
    if (option->isChecked()) return option;
  return control;
}

bool keepsEnter(const QWidget* control) {
  return qobject_cast<const QPlainTextEdit*>(control) || qobject_cast<const QTextEdit*>(control) ||
         qobject_cast<const QPushButton*>(control);
}

}  // namespace

QList<QWidget*> EnterOrder::sources() const {
  QList<QWidget*> all = controls_;
  for (QWidget* const control : controls_)
    for (QRadioButton* const option : optionsBeside(control))
      if (!all.contains(option)) all << option;
  return all;
}

EnterOrder::Step EnterOrder::from(QWidget* control, const QWidget* window) const {
  const QList<QRadioButton*> group = optionsBeside(control);
  const auto isHere = [&](QWidget* each) {
    return each == control || group.contains(qobject_cast<QRadioButton*>(each));
  };
  const qsizetype at =
      std::distance(controls_.begin(), std::find_if(controls_.begin(), controls_.end(), isHere));
  if (at == controls_.size() || keepsEnter(control)) return Step::None;
  for (qsizetype next = at + 1; next < controls_.size(); ++next) {
    if (!controls_[next]->isVisibleTo(window) || !controls_[next]->isEnabled() || isHere(controls_[next]))
      continue;
    focus(stopAt(controls_[next]));
    return Step::Moved;
  }
  return Step::AtEnd;
}

void EnterOrder::focus(QWidget* control) {
  control->setFocus(Qt::OtherFocusReason);
  if (auto* const box = qobject_cast<QLineEdit*>(control); box && box->inputMask().isEmpty())
    box->selectAll();
}
