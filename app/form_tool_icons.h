#pragma once
// The tool bar's pictures, drawn here so that they are sharp at every resolution.
#include <QIcon>
#include <QString>

/** The picture of a menu entry of the tool bar by the entry's name; a null icon for any other. */
QIcon toolIcon(const QString& command);
