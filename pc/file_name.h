#pragma once
// Names for files that are made of a title, so that every file system takes them.
#include <QString>

namespace pc {

/** The text without what some file system refuses: \ / : * ? " < > | and control characters become "_", blanks and dots
 *  go from the end and blanks from the start, a device's name (CON, LPT1) and a leading dot get a "_", and the whole
 *  stays below 180 bytes, which leaves room for an ending. otherwise: for a text of which nothing is left. */
QString fileNameOf(const QString& text, const QString& otherwise);

}  // namespace pc
