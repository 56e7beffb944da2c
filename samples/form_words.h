#pragma once
// A window as text: what an operator reads on it and where the hand goes, line by line, for comparing.
#include <QString>

class QWidget;

namespace pc {
class Pages;
}

namespace samples {

/** One line a control that is seen, in the order it was made: kind, name, texts, how they look, and what it lets in; a grid
 *  with its headings and its first and last rows; then the order of Tab and where the hand stands. No places. */
QString wordsOf(const QWidget& window);
/** The same with every row, and without what only the eye sees. */
QString contentsOf(const QWidget& window);
/** The texts of the first page from above down, each with its place in inches and its size in points. */
QString wordsOf(const pc::Pages& pages);

}  // namespace samples
