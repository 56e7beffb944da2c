#pragma once
// The boxes for how far printing is moved on its paper.
#include <QString>

class QLineEdit;

/** Up to three digits, two decimals, a minus. */
QLineEdit* correctionBox(const QString& name, const QString& text = {});
