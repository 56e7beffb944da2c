#pragma once
// One field's value as the engine hands it out: Null, a whole number, a floating number or text.
#include <QString>

#include <variant>

namespace jet {

/** Null, whole number (yes/no is -1 or 0), double or text. Reading a Null as a number gives 0, as text ''. */
class Value {
 public:
  Value() = default;
  Value(bool yes) : data_(qint64(yes ? -1 : 0)) {}
  Value(int number) : data_(qint64(number)) {}
  Value(qint64 number) : data_(number) {}
  Value(double number) : data_(number) {}
  Value(QString text) : data_(std::move(text)) {}
  Value(const char* text) : data_(QString::fromUtf8(text)) {}

  bool isNull() const { return data_.index() == 0; }
  bool isText() const { return data_.index() == 3; }
  bool isWhole() const { return data_.index() == 1; }
  bool isDouble() const { return data_.index() == 2; }

  /** A double rounds half to even, text goes through Val. */
  qint64 toLong() const;
  double toDouble() const;
  /** A double by its 15 significant digits, as the language writes it. */
  QString toText() const;
  bool toBool() const { return toDouble() != 0; }

  bool operator==(const Value& other) const { return data_ == other.data_; }

 private:
  std::variant<std::monostate, qint64, double, QString> data_;
};

}  // namespace jet
