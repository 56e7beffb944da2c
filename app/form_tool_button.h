#pragma once
// A button of the main window's tool bar.
#include "app/command_map.h"

class QAction;
class QMenu;
class QToolButton;

/** Drops the menu where there is one, else runs the action and is off with it, saying why. */
QToolButton* makeToolButton(const ToolButton& entry, QMenu* menu, QAction* action);
