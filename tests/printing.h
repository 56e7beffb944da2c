#pragma once
// How a failed comparison shows the values of Qt and of the store. Every file of a test program gets this first
// (tests/CMakeLists.txt), so that one value is printed in one way everywhere.
#include <gtest/gtest.h>

#include <QDateTime>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QStringList>

#include <type_traits>

#include "store/jet/value.h"

/** In quotes; what cannot be seen (line ends, tabs, other blanks) as its code. */
inline void PrintTo(QStringView text, std::ostream* out) {
  QString shown;
  for (const QChar letter : text) {
    if (letter == u'\n') {
      shown += "\\n";
    } else if (letter == u'"' || letter == u'\\') {
      shown += u'\\';
      shown += letter;
    } else if (letter == u' ' || (letter.isPrint() && !letter.isSpace()) || letter.isSurrogate()) {
      shown += letter;
    } else {
      shown += "\\x" + QString::number(letter.unicode(), 16).rightJustified(4, u'0');
    }
  }
  *out << '"' << shown.toStdString() << '"';
}
inline void PrintTo(const QString& text, std::ostream* out) {
  PrintTo(QStringView(text), out);
}
inline void PrintTo(const QChar& letter, std::ostream* out) {
  PrintTo(QStringView(&letter, 1), out);
}
inline void PrintTo(const QByteArray& bytes, std::ostream* out) {
  *out << '"' << QByteArray(bytes).replace('\n', "\\n").replace('\r', "\\r").toStdString() << '"';
}
inline void PrintTo(const QDate& day, std::ostream* out) {
  *out << (day.isValid() ? day.toString(Qt::ISODate).toStdString() : "no day");
}
inline void PrintTo(const QTime& time, std::ostream* out) {
  *out << (time.isValid() ? time.toString(Qt::ISODateWithMs).toStdString() : "no time");
}
inline void PrintTo(const QDateTime& time, std::ostream* out) {
  *out << (time.isValid() ? time.toString(Qt::ISODateWithMs).toStdString() : "no time");
}
inline void PrintTo(const QPoint& at, std::ostream* out) {
  *out << at.x() << ',' << at.y();
}
inline void PrintTo(const QSize& size, std::ostream* out) {
  *out << size.width() << 'x' << size.height();
}
inline void PrintTo(const QRect& rect, std::ostream* out) {
  PrintTo(rect.size(), out);
  *out << " at ";
  PrintTo(rect.topLeft(), out);
}
/** Enumerations of the program, as their number. */
template <typename E>
requires std::is_enum_v<E>
void PrintTo(const E& value, std::ostream* out) {
  *out << qint64(value);
}

namespace jet {
using ::PrintTo;
/** Null, a text in quotes, a number as the store's language writes it. */
inline void PrintTo(const Value& value, std::ostream* out) {
  if (value.isNull()) {
    *out << "Null";
  } else if (value.isText()) {
    PrintTo(value.toText(), out);
  } else {
    *out << value.toText().toStdString() << (value.isDouble() ? " (double)" : "");
  }
}
}  // namespace jet
namespace pc {
using ::PrintTo;
}
