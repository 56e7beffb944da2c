#pragma once
// Text by display columns, and the money texts of the grids.
#include <QString>

/** Display columns: a Hangul character takes two. */
int widthOf(const QString& text);
/** The text cut to width columns; half a Hangul character at the end becomes one blank. */
QString CutByWidth(const QString& text, int width);
/** The text without "." and "-"; '' when the rest is no number. */
QString StripNumber(const QString& text);

/** Won with separators, "0" for zero; a fraction shows two places at most. */
QString moneyText(double won);
