#pragma once
// Text by display columns, as fixed-width papers and lists count them: a Hangul character takes two.
#include <QString>

int widthOf(const QString& text);
/** The text cut to width columns; half a Hangul character at the end becomes one blank. */
QString CutByWidth(const QString& text, int width);
