#pragma once
// The money texts of the grids, beside the widths of pc/text_width.
#include <QString>

#include "pc/text_width.h"

/** The text without "." and "-"; '' when the rest is no number. */
QString StripNumber(const QString& text);

/** Won with separators, "0" for zero; a fraction shows two places at most. */
QString moneyText(double won);
