#pragma once
// The program's look in one place: white and grey paper, one calm accent colour, lines of one pixel, one type scale.
#include <QColor>
#include <QFont>

class QApplication;

namespace look {

inline const QColor paper{0xFF, 0xFF, 0xFF};     ///< boxes and cells
inline const QColor desk{0xF3, 0xF4, 0xF6};      ///< the window around them
inline const QColor stripe{0xF7, 0xF9, 0xFB};    ///< every second row of a grid
inline const QColor header{0xE8, 0xEC, 0xF1};    ///< grid headers, panel titles
inline const QColor line{0xC9, 0xD0, 0xD8};      ///< frames
inline const QColor gridLine{0xE1, 0xE5, 0xEA};  ///< between cells
inline const QColor ink{0x1F, 0x27, 0x33};       ///< text
inline const QColor faintInk{0x6B, 0x75, 0x83};  ///< labels of less weight
inline const QColor disabledInk{0x9A, 0xA3, 0xAE};
inline const QColor disabledPaper{0xEE, 0xF0, 0xF3};
inline const QColor accent{0x2B, 0x5F, 0x9E};      ///< focus, current cell
inline const QColor accentSoft{0xDC, 0xE8, 0xF6};  ///< current row
inline const QColor warning{0xC7, 0x7A, 0x1B};     ///< the sign of a warning
inline const QColor negative{0xB4, 0x2B, 0x2B};    ///< amounts below zero

/** The program's text: NanumGothic of 10 points, Baekmuk Dotum where that is missing. */
QFont textFont();
/** The same at another size or weight; the scale is 10, 12 and 15 points. */
QFont textFont(int points, bool bold = false);

/** Fusion with the palette and the style sheet above; once, right after the application is made. */
void apply(QApplication& application);

}  // namespace look
