#include "store/jet/functions.h"

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include "store/jet/connection.h"
#include "store/jet/error_texts.h"
#include "store/jet/format_rules.h"
#include "store/jet/like_pattern.h"
#include "store/jet/text_rules.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

/** One call of a function: its arguments and where the result goes. */
class Call {
 public:
  Call(sqlite3_context* context, int count, sqlite3_value** arguments)
      : context_(context), count_(count), arguments_(arguments) {}

  int count() const { return count_; }
  int type(int index) const { return sqlite3_value_type(arguments_[index]); }
  bool isNull(int index) const { return type(index) == SQLITE_NULL; }
  bool isText(int index) const { return type(index) == SQLITE_TEXT; }
  bool isWhole(int index) const { return type(index) == SQLITE_INTEGER; }
  qint64 whole(int index) const { return sqlite3_value_int64(arguments_[index]); }
  double number(int index) const { return sqlite3_value_double(arguments_[index]); }
  QString text(int index) const {
    if (isWhole(index)) return QString::number(whole(index));
    if (!isText(index)) return isNull(index) ? QString() : textOf(number(index));
    const std::string_view bytes = utf8(index);
    return QString::fromUtf8(bytes.data(), qsizetype(bytes.size()));
  }
  /** Of a text. */
  std::string_view utf8(int index) const {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(arguments_[index]));
    return {bytes, size_t(sqlite3_value_bytes(arguments_[index]))};
  }
  bool anyNull() const {
    for (int i = 0; i < count_; ++i)
      if (isNull(i)) return true;
    return false;
  }
  sqlite3_context* context() const { return context_; }
  sqlite3_value* raw(int index) const { return arguments_[index]; }

  void give() const { sqlite3_result_null(context_); }
  void give(qint64 number) const { sqlite3_result_int64(context_, number); }
  /** Whole results stay whole, so that they show and compare as such. */
  void give(double number) const {
    if (!std::isfinite(number)) fail(6);
    constexpr double exact = 9007199254740992.0;  // 2^53
    if (number == std::floor(number) && std::fabs(number) < exact) {
      sqlite3_result_int64(context_, qint64(number));
    } else {
      sqlite3_result_double(context_, number);
    }
  }
  void give(const QString& text) const {
    const QByteArray utf8 = text.toUtf8();
    sqlite3_result_text64(context_, utf8.constData(), sqlite3_uint64(utf8.size()), SQLITE_TRANSIENT,
                          SQLITE_UTF8);
  }
  void giveSame(int index) const { sqlite3_result_value(context_, arguments_[index]); }

 private:
  sqlite3_context* context_;
  int count_;
  sqlite3_value** arguments_;
};

template <auto body>
void guardedCall(sqlite3_context* context, int count, sqlite3_value** arguments) {
  try {
    body(Call(context, count, arguments));
  } catch (const Error& error) {
    sqlite3_result_error(context, ("JET " + QByteArray::number(error.number())).constData(), -1);
  }
}

/** The same for functions that give Null as soon as one argument is Null. */
template <auto body>
void nullCall(sqlite3_context* context, int count, sqlite3_value** arguments) {
  const Call call(context, count, arguments);
  if (call.anyNull()) return call.give();
  guardedCall<body>(context, count, arguments);
}

double operand(const Call& call, int index, int failure = 3464) {
  if (!call.isText(index)) return call.number(index);
  const auto number = numberOf(call.text(index));
  if (!number) fail(failure);
  return *number;
}

qint64 wholeOperand(const Call& call, int index) {
  if (call.isWhole(index)) return call.whole(index);
  return Value(operand(call, index)).toLong();
}

/** Of an operator that works on whole numbers: rounded, and 6 beyond 32 bits. */
qint64 longOperand(const Call& call, int index) {
  const qint64 number = wholeOperand(call, index);
  if (number != qint32(number)) fail(6);
  return number;
}

// ---- operators

void like2(const Call& call) {
  auto* pattern = static_cast<LikePattern*>(sqlite3_get_auxdata(call.context(), 1));
  const bool kept = pattern != nullptr;
  if (!kept) pattern = new LikePattern(call.text(1));
  const std::unique_ptr<LikePattern> made(kept ? nullptr : pattern);
  call.give(qint64(call.isText(0) ? pattern->matches(call.utf8(0))
                                  : pattern->matches(call.text(0).toUtf8().toStdString())));
  if (kept) return;
  sqlite3_set_auxdata(call.context(), 1, new LikePattern(*pattern),
                      [](void* p) { delete static_cast<LikePattern*>(p); });
}

void str(const Call& call) {
  call.isNull(0) ? call.give(u""_s) : call.give(call.text(0));
}

/** Operands of & of which each may be Null: only all together are. */
void join(const Call& call) {
  QString all;
  bool any = false;
  for (int i = 0; i < call.count(); ++i) {
    any = any || !call.isNull(i);
    all += call.text(i);
  }
  any ? call.give(all) : call.give();
}

void num(const Call& call) {
  call.isText(0) ? call.give(operand(call, 0)) : call.giveSame(0);
}

void add(const Call& call) {
  if (call.isText(0) && call.isText(1)) return call.give(call.text(0) + call.text(1));
  qint64 sum = 0;
  if (call.isWhole(0) && call.isWhole(1) && !__builtin_add_overflow(call.whole(0), call.whole(1), &sum))
    return call.give(sum);
  call.give(operand(call, 0) + operand(call, 1));
}

void divide(const Call& call) {
  const double by = operand(call, 1);
  if (by == 0) fail(11);
  call.give(operand(call, 0) / by);
}

void divideWhole(const Call& call) {
  const qint64 by = longOperand(call, 1), number = longOperand(call, 0);
  if (by == 0) fail(11);
  call.give(number / by);
}

void modulo(const Call& call) {
  const qint64 by = longOperand(call, 1), number = longOperand(call, 0);
  if (by == 0) fail(11);
  call.give(number % by);
}

void power(const Call& call) {
  const double result = std::pow(operand(call, 0), operand(call, 1));
  if (std::isnan(result)) fail(5);
  call.give(result);
}

/** What came of + - * and of sums: beyond a double's range is an overflow. */
void finite(const Call& call) {
  if (call.type(0) == SQLITE_FLOAT && !std::isfinite(call.number(0))) fail(6);
  call.giveSame(0);
}

// ---- And, Or and the like on numbers: bit by bit. A Null is an unknown number, so it may not matter.

void bitsOfBoth(const Call& call) {
  for (const int i : {0, 1})
    if (call.isNull(i))
      return !call.isNull(1 - i) && longOperand(call, 1 - i) == 0 ? call.give(qint64(0)) : call.give();
  call.give(longOperand(call, 0) & longOperand(call, 1));
}

void bitsOfEither(const Call& call) {
  for (const int i : {0, 1})
    if (call.isNull(i)) {
      const qint64 other = call.isNull(1 - i) ? 0 : longOperand(call, 1 - i);
      return other != 0 ? call.give(other) : call.give();
    }
  call.give(longOperand(call, 0) | longOperand(call, 1));
}

void bitsThatDiffer(const Call& call) {
  call.give(longOperand(call, 0) ^ longOperand(call, 1));
}

void bitsDenied(const Call& call) {
  call.give(~longOperand(call, 0));
}

// ---- conversions; Null is error 94, a text that is no number 3421

double converted(const Call& call) {
  if (call.isNull(0)) fail(94);
  return operand(call, 0, 3421);
}

template <qint64 low, qint64 high>
void toWhole(const Call& call) {
  const double rounded = roundHalfEven(converted(call));
  if (!(rounded >= double(low) && rounded <= double(high))) fail(6);
  call.give(qint64(rounded));
}

void toDouble(const Call& call) {
  call.give(converted(call));
}

void toCurrency(const Call& call) {
  const double number = converted(call);
  if (!(std::fabs(number) <= 922337203685477.5807)) fail(6);
  call.give(roundHalfEven(number, 4));
}

void toStr(const Call& call) {
  if (call.isNull(0)) fail(94);
  call.give(call.text(0));
}

void valOf(const Call& call) {
  if (call.isNull(0)) fail(94);
  if (!call.isText(0)) return call.giveSame(0);
  const std::string_view utf8 = call.utf8(0);
  qint64 whole = 0;
  // Sizes of cylinders and the like: a few digits need no other reading.
  const bool digits = !utf8.empty() && utf8.size() < 10 && std::all_of(utf8.begin(), utf8.end(), [&](char c) {
    whole = whole * 10 + (c - '0');
    return c >= '0' && c <= '9';
  });
  digits ? call.give(whole) : call.give(val(call.text(0)));
}

void isNumeric(const Call& call) {
  const auto finiteNumber = [](const QString& text) { return std::isfinite(numberOf(text).value_or(NAN)); };
  const bool yes = call.isText(0) ? finiteNumber(call.text(0)) : !call.isNull(0);
  call.give(qint64(yes ? -1 : 0));
}

// ---- texts

void length(const Call& call) {
  call.give(qint64(call.text(0).size()));
}
void left(const Call& call) {
  call.give(leftOf(call.text(0), wholeOperand(call, 1)));
}
void right(const Call& call) {
  call.give(rightOf(call.text(0), wholeOperand(call, 1)));
}

void mid(const Call& call) {
  std::optional<qint64> count;
  if (call.count() == 3) count = wholeOperand(call, 2);
  call.give(midOf(call.text(0), wholeOperand(call, 1), count));
}

template <bool front, bool back>
void trim(const Call& call) {
  QString text = call.text(0);
  if (back)
    while (text.endsWith(u' ')) text.chop(1);
  qsizetype first = 0;
  while (front && first < text.size() && text[first] == u' ') ++first;
  call.give(text.sliced(first));
}

void upper(const Call& call) {
  call.give(call.text(0).toUpper());
}
void lower(const Call& call) {
  call.give(call.text(0).toLower());
}

void inString(const Call& call) {
  const int first = call.count() == 3 ? 1 : 0;
  const qint64 start = first ? wholeOperand(call, 0) : 1;
  if (start < 1) fail(5);
  const QString text = call.text(first), part = call.text(first + 1);
  if (start > text.size()) return call.give(qint64(0));
  call.give(qint64(text.indexOf(part, qsizetype(start - 1), Qt::CaseInsensitive) + 1));
}

void formatted(const Call& call) {
  Value value;
  if (call.isText(0)) value = call.text(0);
  if (call.isWhole(0)) value = call.whole(0);
  if (call.type(0) == SQLITE_FLOAT) value = call.number(0);
  call.give(format(value, call.count() == 2 ? call.text(1) : QString()));
}

// ---- numbers

void rounded(const Call& call) {
  const qint64 places = call.count() == 2 ? wholeOperand(call, 1) : 0;
  if (places < 0 || places > 15) fail(5);
  call.give(roundHalfEven(operand(call, 0), int(places)));
}

void floorOf(const Call& call) {
  call.isWhole(0) ? call.giveSame(0) : call.give(std::floor(operand(call, 0)));
}
void truncated(const Call& call) {
  call.isWhole(0) ? call.giveSame(0) : call.give(std::trunc(operand(call, 0)));
}

// ---- values on their way into a column

void putLong(const Call& call) {
  if (call.isNull(0)) return call.give();
  if (call.isWhole(0) && call.whole(0) == qint32(call.whole(0))) return call.giveSame(0);
  const double whole = roundHalfEven(operand(call, 0));
  if (!(whole >= std::numeric_limits<qint32>::min() && whole <= std::numeric_limits<qint32>::max())) fail(6);
  call.give(qint64(whole));
}

void putDouble(const Call& call) {
  if (call.isNull(0)) return call.give();
  const double number = operand(call, 0);
  if (!std::isfinite(number)) fail(6);
  sqlite3_result_double(call.context(), number);
}

void putBool(const Call& call) {
  call.give(qint64(!call.isNull(0) && operand(call, 0) != 0 ? -1 : 0));
}

void putText(const Call& call) {
  if (call.isNull(0)) return call.give();
  const qint64 size = call.whole(1);
  const auto check = [&](qsizetype length) {
    if (length == 0 && call.whole(2) == 0) fail(3315);
    if (size > 0 && length > size) fail(3163);
  };
  // A text has at most as many characters as bytes: most need no counting.
  if (call.isText(0) && (size == 0 || qint64(call.utf8(0).size()) <= size)) {
    check(qsizetype(call.utf8(0).size()));
    return call.giveSame(0);
  }
  const QString text = call.text(0);
  check(text.size());
  call.give(text);
}

/** The failure that SQLite itself tells of a column that requires a value. */
void required(const Call& call) {
  if (!call.isNull(0)) return call.giveSame(0);
  sqlite3_result_error(call.context(), ("NOT NULL constraint failed: " + call.text(1)).toUtf8().constData(),
                       -1);
  sqlite3_result_error_code(call.context(), SQLITE_CONSTRAINT_NOTNULL);
}

// ---- First and Last

/** The value kept so far and the key it came with. */
struct KeptByKey {
  sqlite3_value* value = nullptr;
  sqlite3_value* key = nullptr;
};

int compareKeys(sqlite3_value* a, sqlite3_value* b) {
  const int left = sqlite3_value_type(a), right = sqlite3_value_type(b);
  if (left == SQLITE_NULL || right == SQLITE_NULL)
    return int(left != SQLITE_NULL) - int(right != SQLITE_NULL);
  if (left == SQLITE_TEXT && right == SQLITE_TEXT) {
    const auto view = [](sqlite3_value* v) {
      const auto* utf8 = reinterpret_cast<const char*>(sqlite3_value_text(v));
      return std::string_view(utf8, size_t(sqlite3_value_bytes(v)));
    };
    return compareUtf8(view(a), view(b));
  }
  const double x = sqlite3_value_double(a), y = sqlite3_value_double(b);
  return int(x > y) - int(x < y);
}

template <int wanted>
void keepByKey(sqlite3_context* context, int, sqlite3_value** arguments) {
  auto* kept = static_cast<KeptByKey*>(sqlite3_aggregate_context(context, sizeof(KeptByKey)));
  if (!kept) return sqlite3_result_error_nomem(context);
  if (kept->key && compareKeys(arguments[1], kept->key) * wanted <= 0) return;
  sqlite3_value_free(kept->value);
  sqlite3_value_free(kept->key);
  kept->value = sqlite3_value_dup(arguments[0]);
  kept->key = sqlite3_value_dup(arguments[1]);
}

void giveKept(sqlite3_context* context) {
  auto* kept = static_cast<KeptByKey*>(sqlite3_aggregate_context(context, 0));
  if (!kept || !kept->value) return sqlite3_result_null(context);
  sqlite3_result_value(context, kept->value);
  sqlite3_value_free(kept->value);
  sqlite3_value_free(kept->key);
}

// ---- A query where one value is meant

void takeOnly(sqlite3_context* context, int, sqlite3_value** arguments) {
  auto* kept = static_cast<KeptByKey*>(sqlite3_aggregate_context(context, sizeof(KeptByKey)));
  if (!kept) return sqlite3_result_error_nomem(context);
  if (kept->value) return sqlite3_result_error(context, "JET 3354", -1);
  kept->value = sqlite3_value_dup(arguments[0]);
}

struct Registration {
  const char* name;
  int arguments;
  void (*function)(sqlite3_context*, int, sqlite3_value**);
};

constexpr qint64 kInt16 = 32767, kInt32 = 2147483647;

constexpr Registration kFunctions[] = {
    {"jet_like", 2, nullCall<like2>},
    {"jet_str", 1, guardedCall<str>},
    {"jet_join", -1, guardedCall<join>},
    {"jet_num", 1, nullCall<num>},
    {"jet_finite", 1, guardedCall<finite>},
    {"jet_and", 2, guardedCall<bitsOfBoth>},
    {"jet_or", 2, guardedCall<bitsOfEither>},
    {"jet_xor", 2, nullCall<bitsThatDiffer>},
    {"jet_not", 1, nullCall<bitsDenied>},
    {"jet_add", 2, nullCall<add>},
    {"jet_div", 2, nullCall<divide>},
    {"jet_idiv", 2, nullCall<divideWhole>},
    {"jet_mod", 2, nullCall<modulo>},
    {"jet_pow", 2, nullCall<power>},
    {"jet_val", 1, guardedCall<valOf>},
    {"jet_clng", 1, guardedCall<toWhole<-kInt32 - 1, kInt32>>},
    {"jet_cint", 1, guardedCall<toWhole<-kInt16 - 1, kInt16>>},
    {"jet_cdbl", 1, guardedCall<toDouble>},
    {"jet_ccur", 1, guardedCall<toCurrency>},
    {"jet_cstr", 1, guardedCall<toStr>},
    {"jet_isnumeric", 1, guardedCall<isNumeric>},
    {"jet_len", 1, nullCall<length>},
    {"jet_left", 2, nullCall<left>},
    {"jet_right", 2, nullCall<right>},
    {"jet_mid", 2, nullCall<mid>},
    {"jet_mid", 3, nullCall<mid>},
    {"jet_trim", 1, nullCall<trim<true, true>>},
    {"jet_ltrim", 1, nullCall<trim<true, false>>},
    {"jet_rtrim", 1, nullCall<trim<false, true>>},
    {"jet_ucase", 1, nullCall<upper>},
    {"jet_lcase", 1, nullCall<lower>},
    {"jet_instr", 2, nullCall<inString>},
    {"jet_instr", 3, nullCall<inString>},
    {"jet_format", 1, nullCall<formatted>},
    {"jet_format", 2, nullCall<formatted>},
    {"jet_round", 1, nullCall<rounded>},
    {"jet_round", 2, nullCall<rounded>},
    {"jet_int", 1, nullCall<floorOf>},
    {"jet_fix", 1, nullCall<truncated>},
    {"jet_put_long", 1, guardedCall<putLong>},
    {"jet_put_double", 1, guardedCall<putDouble>},
    {"jet_put_bool", 1, guardedCall<putBool>},
    {"jet_put_text", 3, guardedCall<putText>},
    {"jet_required", 2, guardedCall<required>},
};

int collateJet(void*, int sizeA, const void* a, int sizeB, const void* b) {
  return compareUtf8({static_cast<const char*>(a), size_t(sizeA)},
                     {static_cast<const char*>(b), size_t(sizeB)});
}

}  // namespace

void registerFunctions(Connection& connection) {
  sqlite3* handle = connection.handle();
  constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
  const auto check = [&](int code) {
    if (code != SQLITE_OK) throw connection.error(code);
  };
  for (const Registration& entry : kFunctions)
    check(sqlite3_create_function_v2(handle, entry.name, entry.arguments, flags, nullptr, entry.function,
                                     nullptr, nullptr, nullptr));
  check(sqlite3_create_function_v2(handle, "jet_first", 2, flags, nullptr, nullptr, keepByKey<-1>, giveKept,
                                   nullptr));
  check(sqlite3_create_function_v2(handle, "jet_last", 2, flags, nullptr, nullptr, keepByKey<1>, giveKept,
                                   nullptr));
  check(sqlite3_create_function_v2(handle, "jet_only", 1, flags, nullptr, nullptr, takeOnly, giveKept,
                                   nullptr));
  check(sqlite3_create_collation_v2(handle, "JET", SQLITE_UTF8, nullptr, collateJet, nullptr));
}

}  // namespace jet
