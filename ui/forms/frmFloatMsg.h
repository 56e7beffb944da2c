#pragma once
// A passing notice: a small window that goes by itself and never takes the keyboard.
#include <QString>

class QWidget;

/** Shows text over the middle of the window for some milliseconds; a further notice takes the place of the last. */
void showFloatMsg(const QString& text, int milliseconds = 2000, QWidget* over = nullptr);
