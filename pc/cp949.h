#pragma once
// The Korean ANSI code page 949, in which the old files and the companion tools speak.
#include <QByteArray>
#include <QString>

namespace pc {

/** A character the code page lacks becomes "?". */
QByteArray toCp949(const QString& text);
/** A broken character (half a Hangul syllable) becomes U+FFFD. */
QString fromCp949(const QByteArray& bytes);

}  // namespace pc
