#pragma once
// A statement joined from pieces in place, without a text on the heap for each: for statements that run row after row.
#include <QStringView>
#include <QVarLengthArray>
#include <concepts>

namespace jet {

class Sql {
 public:
  Sql& operator<<(QStringView piece) {
    text_.append(piece.utf16(), piece.size());
    return *this;
  }
  Sql& operator<<(std::integral auto number) { return whole(number); }
  /** As the language writes it: 15 significant digits. */
  Sql& operator<<(double number);

  operator QStringView() const { return QStringView(text_.data(), text_.size()); }

 private:
  Sql& whole(qint64 number);

  QVarLengthArray<char16_t, 512> text_;
};

}  // namespace jet
