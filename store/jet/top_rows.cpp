#include "store/jet/top_rows.h"

#include <sqlite3.h>

#include <algorithm>

#include "store/jet/compile.h"
#include "store/jet/text_rules.h"

namespace jet {
namespace {

/** Equal in the order of rows: there a whole number and a floating one of the same size are. */
bool ties(sqlite3_stmt* row, int column, sqlite3_value* with) {
  const auto number = [](int type) { return type == SQLITE_INTEGER || type == SQLITE_FLOAT; };
  const int type = sqlite3_column_type(row, column), other = sqlite3_value_type(with);
  if (number(type) && number(other)) {
    if (type == SQLITE_FLOAT || other == SQLITE_FLOAT)
      return sqlite3_column_double(row, column) == sqlite3_value_double(with);
    return sqlite3_column_int64(row, column) == sqlite3_value_int64(with);
  }
  if (type != SQLITE_TEXT || other != SQLITE_TEXT) return type == other;
  const auto view = [](const unsigned char* utf8, int bytes) {
    return std::string_view(reinterpret_cast<const char*>(utf8), size_t(bytes));
  };
  const auto* text = sqlite3_column_text(row, column);
  const auto* otherText = sqlite3_value_text(with);
  return compareUtf8(view(text, sqlite3_column_bytes(row, column)),
                     view(otherText, sqlite3_value_bytes(with))) == 0;
}

}  // namespace

void TopRows::Free::operator()(sqlite3_value* value) const {
  sqlite3_value_free(value);
}

bool TopRows::takes(sqlite3_stmt* row) {
  if (compiled_.top == 0) return true;
  if (++taken_ < compiled_.top) return true;
  if (taken_ > compiled_.top)
    return std::ranges::equal(compiled_.ties, last_,
                              [row](int column, const auto& last) { return ties(row, column, last.get()); });
  for (const int column : compiled_.ties)
    last_.emplace_back(sqlite3_value_dup(sqlite3_column_value(row, column)));
  return true;
}

}  // namespace jet
