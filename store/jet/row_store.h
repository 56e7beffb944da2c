#pragma once
// The rows of a recordset in memory, packed by column: numbers in 4 or 8 bytes, equal texts kept once.
#include <QString>
#include <string>
#include <vector>

#include "store/jet/value.h"

struct sqlite3_stmt;
struct sqlite3_value;

namespace jet {

/** Texts by number. While it is being filled a text that is there already gives its old number. */
class TextPool {
 public:
  quint32 add(std::string_view utf8);
  QString at(quint32 number) const;
  void stopFilling();
  size_t bytes() const { return text_.capacity() + ends_.capacity() * 4 + slots_.capacity() * 4; }

 private:
  std::string_view view(quint32 number) const;
  void growSlots();

  std::string text_;                      // one after the other, UTF-8
  mutable std::vector<QString> decoded_;  // of the first numbers, once they were asked for
  std::vector<quint32> ends_;             // of text number n in text_
  std::vector<quint32> slots_;            // open addressing: number + 1, 0 free
  quint64 asked_ = 0;
  bool sharing_ = true;
};

/** One field's values. Begins narrow and widens when a value does not fit. */
class PackedColumn {
 public:
  void append(sqlite3_value* shown);
  void append(const Value& value);
  void set(int row, const Value& value);
  Value at(int row) const;
  void stopFilling();
  size_t bytes() const;

 private:
  enum class Kind { Nulls, Narrow, Wide, Double, Text, Mixed };
  bool holds(const Value& value) const;
  void widenFor(const Value& value);
  void put(size_t row, const Value& value);
  void grow();
  template <typename Vector>
  void fill(Vector& vector, Kind kind);

  Kind kind_ = Kind::Nulls;
  size_t rows_ = 0;
  std::vector<bool> nulls_;  // empty until the first Null of a number column
  std::vector<qint32> narrow_;
  std::vector<qint64> wide_;
  std::vector<double> double_;
  std::vector<quint32> text_;  // number in texts_ + 1, 0 is Null
  std::vector<Value> mixed_;
  TextPool texts_;
};

/** All fields' values. */
class RowStore {
 public:
  explicit RowStore(int columns = 0) : columns_(size_t(columns)) {}
  int rows() const { return rows_; }
  /** Reads the row that the statement stands on. */
  void appendRow(sqlite3_stmt* statement);
  void appendRow(const std::vector<Value>& values);
  void stopFilling();
  Value at(int row, int column) const { return columns_[size_t(column)].at(row); }
  void set(int row, int column, const Value& value) { columns_[size_t(column)].set(row, value); }
  size_t bytes() const;

 private:
  std::vector<PackedColumn> columns_;
  int rows_ = 0;
};

}  // namespace jet
