#include "app/form_tool_button.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

#include "app/form_tool_icons.h"

using namespace Qt::StringLiterals;

QToolButton* makeToolButton(const ToolButton& entry, QMenu* menu, QAction* action) {
  const QString command = QString::fromUtf16(entry.command);
  auto* const button = new QToolButton;
  button->setText(QString::fromUtf16(entry.caption));
  button->setIcon(toolIcon(command));
  button->setIconSize({24, 24});
  button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::NoFocus);  // a click leaves the cursor in the child's cell
  button->setMinimumWidth(68);
  if (menu) {
    button->setMenu(menu);
    button->setPopupMode(QToolButton::InstantPopup);
    return button;
  }
  QObject::connect(button, &QToolButton::clicked, action, &QAction::trigger);
  const QString caption = findCommand(command)->plainCaption();
  QObject::connect(action, &QAction::changed, button, [button, action, caption] {
    button->setEnabled(action->isEnabled());
    button->setStatusTip(action->statusTip());
    button->setToolTip(action->isEnabled() ? caption : action->statusTip());
  });
  button->setToolTip(caption);
  return button;
}
