#include "store/jet/row_store.h"

#include <sqlite3.h>

#include <cmath>
#include <functional>
#include <limits>

#include "store/jet/error_texts.h"

namespace jet {
namespace {

/** The few rows that most statements ask for need no table to find equal texts by. */
constexpr size_t kTooFewToShare = 16;
/** What is made at once for them, and not cut to size afterwards: rows, and bytes of their texts. */
constexpr size_t kFirstRows = 8, kFirstBytes = 64;
/** Dates, items, staff: the few texts that stand in row after row are decoded once. */
constexpr quint32 kKeptDecoded = 1024;
constexpr qint64 kExactInDouble = 9007199254740992;  // 2^53

bool fitsNarrow(qint64 number) {
  return number >= std::numeric_limits<qint32>::min() && number <= std::numeric_limits<qint32>::max();
}
bool fitsDouble(qint64 number) {
  return number > -kExactInDouble && number < kExactInDouble;
}

template <typename Vector>
void cutToSize(Vector& vector, size_t least = kFirstRows) {
  if (vector.capacity() > least) vector.shrink_to_fit();
}

size_t slotOf(std::string_view text, size_t slots) {
  return std::hash<std::string_view>{}(text) & (slots - 1);
}

}  // namespace

std::string_view TextPool::view(quint32 number) const {
  const quint32 begin = number == 0 ? 0 : ends_[number - 1];
  return std::string_view(text_).substr(begin, ends_[number] - begin);
}

QString TextPool::at(quint32 number) const {
  const std::string_view utf8 = view(number);
  if (number >= kKeptDecoded) return QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
  if (decoded_.size() <= number) decoded_.resize(std::min<size_t>(ends_.size(), kKeptDecoded));
  QString& text = decoded_[number];
  if (text.isNull()) text = QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
  return text;
}

void TextPool::growSlots() {
  std::vector<quint32> wider(slots_.empty() ? 64 : slots_.size() * 2);
  for (quint32 number = 0; number < ends_.size(); ++number) {
    size_t slot = slotOf(view(number), wider.size());
    while (wider[slot] != 0) slot = (slot + 1) & (wider.size() - 1);
    wider[slot] = number + 1;
  }
  slots_ = std::move(wider);
}

quint32 TextPool::add(std::string_view utf8) {
  if (ends_.empty()) {
    ends_.reserve(kFirstRows);
    text_.reserve(kFirstBytes);
  }
  size_t slot = 0;
  const bool looksUp = sharing_ && ends_.size() >= kTooFewToShare;
  if (looksUp) {
    ++asked_;
    if (ends_.size() * 2 >= slots_.size()) growSlots();
    for (slot = slotOf(utf8, slots_.size()); slots_[slot] != 0; slot = (slot + 1) & (slots_.size() - 1))
      if (view(slots_[slot] - 1) == utf8) return slots_[slot] - 1;
  }
  if (text_.size() + utf8.size() > std::numeric_limits<quint32>::max()) fail(3035);
  text_.append(utf8);
  ends_.push_back(quint32(text_.size()));
  const quint32 number = quint32(ends_.size() - 1);
  if (looksUp) slots_[slot] = number + 1;
  // Addresses, names: where almost every text is new, looking for its twin costs more than it saves.
  if (sharing_ && ends_.size() > 4096 && ends_.size() * 4 > asked_ * 3) {
    sharing_ = false;
    slots_ = {};
  }
  return number;
}

void TextPool::stopFilling() {
  sharing_ = false;
  slots_ = {};
  cutToSize(text_, kFirstBytes);
  cutToSize(ends_);
}

template <typename Vector>
void PackedColumn::fill(Vector& vector, Kind kind) {
  vector.resize(rows_);
  for (size_t row = 0; row < rows_; ++row) {
    const Value value = at(int(row));
    if (value.isNull()) continue;
    if constexpr (std::is_same_v<Vector, std::vector<Value>>) {
      vector[row] = value;
    } else if constexpr (std::is_same_v<Vector, std::vector<double>>) {
      vector[row] = value.toDouble();
    } else {
      vector[row] = value.toLong();
    }
  }
  // What no row has is freed, so that a column costs one representation only.
  narrow_ = kind == Kind::Narrow ? std::move(narrow_) : std::vector<qint32>();
  wide_ = kind == Kind::Wide ? std::move(wide_) : std::vector<qint64>();
  double_ = kind == Kind::Double ? std::move(double_) : std::vector<double>();
  kind_ = kind;
}

bool PackedColumn::holds(const Value& value) const {
  if (value.isNull() || kind_ == Kind::Mixed) return true;
  switch (kind_) {
    case Kind::Narrow:
      return value.isWhole() && fitsNarrow(value.toLong());
    case Kind::Wide:
      return value.isWhole();
    case Kind::Double:
      return value.isDouble() || (value.isWhole() && fitsDouble(value.toLong()));
    case Kind::Text:
      return value.isText();
    default:
      return false;
  }
}

void PackedColumn::widenFor(const Value& value) {
  if (kind_ == Kind::Nulls && value.isText()) {
    text_.assign(rows_, 0);
    kind_ = Kind::Text;
    return;
  }
  if (kind_ == Kind::Nulls) {
    nulls_.assign(rows_, true);
    narrow_.assign(rows_, 0);
    kind_ = Kind::Narrow;
    if (holds(value)) return;
  }
  const bool number = !value.isText() && kind_ != Kind::Text;
  if (number && value.isWhole() && kind_ == Kind::Narrow) return fill(wide_, Kind::Wide);
  bool exact = number;
  if (kind_ == Kind::Wide)
    for (const qint64 kept : wide_) exact = exact && fitsDouble(kept);
  if (exact && (value.isDouble() || fitsDouble(value.toLong()))) return fill(double_, Kind::Double);
  std::vector<Value> mixed;
  fill(mixed, Kind::Mixed);
  mixed_ = std::move(mixed);
  text_ = {};
  texts_ = {};
  nulls_ = {};
}

void PackedColumn::put(size_t row, const Value& value) {
  if (!holds(value)) widenFor(value);
  if (kind_ == Kind::Text) {
    text_[row] = value.isNull() ? 0 : texts_.add(value.toText().toStdString()) + 1;
    return;
  }
  if (kind_ == Kind::Mixed) {
    mixed_[row] = value;
    return;
  }
  if (kind_ == Kind::Nulls) return;
  if (value.isNull() && nulls_.empty()) nulls_.assign(rows_, false);
  if (!nulls_.empty()) nulls_[row] = value.isNull();
  if (kind_ == Kind::Narrow) narrow_[row] = qint32(value.toLong());
  if (kind_ == Kind::Wide) wide_[row] = value.toLong();
  if (kind_ == Kind::Double) double_[row] = value.toDouble();
}

void PackedColumn::grow() {
  ++rows_;
  if (!nulls_.empty()) nulls_.push_back(false);
  if (kind_ == Kind::Narrow) narrow_.push_back(0);
  if (kind_ == Kind::Wide) wide_.push_back(0);
  if (kind_ == Kind::Double) double_.push_back(0);
  if (kind_ == Kind::Text) text_.push_back(0);
  if (kind_ == Kind::Mixed) mixed_.emplace_back();
}

void PackedColumn::append(const Value& value) {
  grow();
  put(rows_ - 1, value);
}

void PackedColumn::append(sqlite3_value* shown) {
  switch (sqlite3_value_type(shown)) {
    case SQLITE_NULL:
      return append(Value());
    case SQLITE_INTEGER: {
      const qint64 number = sqlite3_value_int64(shown);
      if (rows_ == 0 && fitsNarrow(number)) {
        kind_ = Kind::Narrow;
        narrow_.reserve(kFirstRows);
      }
      if (kind_ != Kind::Narrow || !nulls_.empty() || !fitsNarrow(number)) return append(Value(number));
      narrow_.push_back(qint32(number));
      ++rows_;
      return;
    }
    case SQLITE_FLOAT:
      return append(Value(sqlite3_value_double(shown)));
    default:
      break;
  }
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(shown));
  const std::string_view utf8(text, size_t(sqlite3_value_bytes(shown)));
  if (rows_ == 0) {
    kind_ = Kind::Text;
    text_.reserve(kFirstRows);
  }
  if (kind_ == Kind::Text) {  // straight into the pool, without a QString between
    text_.push_back(texts_.add(utf8) + 1);
    ++rows_;
    return;
  }
  append(Value(QString::fromUtf8(utf8.data(), qsizetype(utf8.size()))));
}

void PackedColumn::set(int row, const Value& value) {
  put(size_t(row), value);
}

Value PackedColumn::at(int row) const {
  const size_t index = size_t(row);
  switch (kind_) {
    case Kind::Nulls:
      return {};
    case Kind::Text:
      return text_[index] == 0 ? Value() : Value(texts_.at(text_[index] - 1));
    case Kind::Mixed:
      return mixed_[index];
    default:
      break;
  }
  if (!nulls_.empty() && nulls_[index]) return {};
  if (kind_ == Kind::Narrow) return qint64(narrow_[index]);
  if (kind_ == Kind::Wide) return wide_[index];
  return double_[index];
}

void PackedColumn::stopFilling() {
  texts_.stopFilling();
  cutToSize(narrow_);
  cutToSize(wide_);
  cutToSize(double_);
  cutToSize(text_);
  nulls_.shrink_to_fit();
}

size_t PackedColumn::bytes() const {
  return narrow_.capacity() * 4 + wide_.capacity() * 8 + double_.capacity() * 8 + text_.capacity() * 4 +
         nulls_.capacity() / 8 + mixed_.capacity() * sizeof(Value) + texts_.bytes();
}

void RowStore::appendRow(sqlite3_stmt* statement) {
  // A connection is one thread's: its values need no lock.
  for (size_t column = 0; column < columns_.size(); ++column)
    columns_[column].append(sqlite3_column_value(statement, int(column)));
  ++rows_;
}

void RowStore::appendRow(const std::vector<Value>& values) {
  for (size_t column = 0; column < columns_.size(); ++column) columns_[column].append(values[column]);
  ++rows_;
}

void RowStore::stopFilling() {
  for (PackedColumn& column : columns_) column.stopFilling();
}

size_t RowStore::bytes() const {
  size_t sum = 0;
  for (const PackedColumn& column : columns_) sum += column.bytes();
  return sum;
}

}  // namespace jet
