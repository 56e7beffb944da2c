#include "store/jet/text_rules.h"

#include <QChar>
#include <QLocale>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "store/jet/error_texts.h"

using namespace Qt::StringLiterals;

namespace jet {
namespace {

constexpr double kFifteenDigits = 1e15;

bool isBlankUnit(QChar c) {
  return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}
bool isDigitUnit(QChar c) {
  return c >= u'0' && c <= u'9';
}

/** "&H1F", "&O17" behind the ampersand. The language reads up to four hex digits as 16 bits with a sign. */
std::optional<double> radixNumber(QStringView text, qsizetype* used) {
  if (text.size() < 2 || text[0] != u'&') return {};
  const QChar mark = text[1].toUpper();
  const int base = mark == u'H' ? 16 : mark == u'O' ? 8 : 0;
  if (base == 0) return {};
  quint64 number = 0;
  qsizetype at = 2;
  for (; at < text.size(); ++at) {
    const int digit = QStringView(u"0123456789ABCDEF").indexOf(text[at].toUpper());
    if (digit < 0 || digit >= base || number > 0xFFFFFFFFu) break;
    number = number * quint64(base) + quint64(digit);
  }
  *used = at;
  if (number <= 0xFFFF) return double(qint16(quint16(number)));
  return double(qint32(quint32(number)));
}

/** Length of digits[.digits][e[sign]digits] at the start; 0 when there is no digit. */
qsizetype plainNumberLength(QStringView text, bool commas) {
  qsizetype at = 0;
  bool digits = false, point = false;
  for (; at < text.size(); ++at) {
    if (isDigitUnit(text[at])) {
      digits = true;
    } else if (text[at] == u'.' && !point) {
      point = true;
    } else if (!(commas && text[at] == u',' && digits && !point)) {
      break;
    }
  }
  if (!digits) return 0;
  if (at < text.size() && QStringView(u"eEdD").contains(text[at])) {
    qsizetype exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == u'+' || text[exponent] == u'-')) ++exponent;
    const qsizetype first = exponent;
    while (exponent < text.size() && isDigitUnit(text[exponent])) ++exponent;
    if (exponent > first) at = exponent;
  }
  return at;
}

/** Digits with one point at most, as cells hold them: up to 15 of them are exact in a double, and so is the power of
 *  ten below, so one division rounds once, as the full reading does. Nothing when the text is anything else. */
std::optional<double> shortNumber(QStringView text) {
  constexpr double powers[] = {1,   1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                               1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
  const bool minus = text.startsWith(u'-');
  if (minus) text = text.sliced(1);
  if (text.isEmpty() || text.size() > 15 || !isDigitUnit(text.front())) return {};
  qint64 digits = 0;
  qsizetype point = text.size();
  for (qsizetype at = 0; at < text.size(); ++at) {
    if (text[at] == u'.' && point == text.size())
      point = at;
    else if (isDigitUnit(text[at]))
      digits = digits * 10 + (text[at].unicode() - u'0');
    else
      return {};
  }
  const qsizetype places = std::max<qsizetype>(text.size() - point - 1, 0);
  const double number = double(digits) / powers[places];
  return minus ? -number : number;
}

double numberAsWritten(QStringView text) {
  QByteArray latin = text.toLatin1();
  latin.replace(',', "");
  latin.replace('d', 'e').replace('D', 'e');
  bool ok = false;
  return QLocale::c().toDouble(QLatin1StringView(latin), &ok);
}

QStringView withoutTrailingBlanks(QStringView text) {
  while (!text.isEmpty() && text.back() == u' ') text.chop(1);
  return text;
}

std::string_view withoutTrailingBlanks(std::string_view text) {
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

char32_t foldAscii(char32_t c) {
  return c >= U'A' && c <= U'Z' ? c + 32 : c;
}
char32_t foldAny(char32_t c) {
  return c < 0x80 ? foldAscii(c) : QChar::toCaseFolded(c);
}

char32_t nextCharacter(QStringView text, qsizetype* at) {
  const char32_t unit = text[(*at)++].unicode();
  if (QChar::isHighSurrogate(unit) && *at < text.size() && text[*at].isLowSurrogate())
    return QChar::surrogateToUcs4(char16_t(unit), text[(*at)++].unicode());
  return unit;
}

/** Bytes that are no UTF-8 count as characters of their own, so that the order stays a total one. */
char32_t nextCharacter(std::string_view text, size_t* at) {
  const auto byte = [&](size_t index) { return static_cast<unsigned char>(text[index]); };
  const unsigned char first = byte((*at)++);
  const int more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : first >= 0xC0 ? 1 : 0;
  if (more == 0 || *at + size_t(more) > text.size()) return first;
  char32_t character = first & (0x3F >> more);
  for (int i = 0; i < more; ++i) {
    if ((byte(*at + size_t(i)) & 0xC0) != 0x80) return first;
    character = (character << 6) | (byte(*at + size_t(i)) & 0x3F);
  }
  *at += size_t(more);
  return character;
}

bool continuesAt(std::string_view text, size_t at) {
  return at < text.size() && (text[at] & 0xC0) == 0x80;
}

template <typename Text, typename Place>
int compareFolded(Text a, Text b) {
  Place i = 0, j = 0;
  while (i < Place(a.size()) && j < Place(b.size())) {
    const char32_t left = foldAny(nextCharacter(a, &i));
    const char32_t right = foldAny(nextCharacter(b, &j));
    if (left != right) return left < right ? -1 : 1;
  }
  return int(i < Place(a.size())) - int(j < Place(b.size()));
}

/** One [..] of a pattern; `at` stands behind the opening bracket and is left behind the closing one. */
bool inBrackets(char16_t unit, QStringView pattern, qsizetype* at) {
  const qsizetype close = pattern.indexOf(u']', *at);
  if (close < 0) fail(93);
  QStringView set = pattern.sliced(*at, close - *at);
  *at = close + 1;
  const bool none = set.size() > 1 && set.front() == u'!';
  if (none) set = set.sliced(1);
  bool found = false;
  for (qsizetype i = 0; i < set.size(); ++i) {
    const char32_t low = foldAny(set[i].unicode());
    char32_t high = low;
    if (i + 2 < set.size() && set[i + 1] == u'-') {
      high = foldAny(set[i + 2].unicode());
      i += 2;
    }
    found = found || (unit >= low && unit <= high);
  }
  return found != none;
}

void checkBrackets(QStringView pattern) {
  for (qsizetype at = 0; (at = pattern.indexOf(u'[', at)) >= 0;) {
    at = pattern.indexOf(u']', at);
    if (at < 0) fail(93);
  }
}

/** One pattern character against one of the text; `at` moves behind the pattern's. */
bool matchesOne(char16_t unit, QStringView pattern, qsizetype* at) {
  const QChar wanted = pattern[(*at)++];
  if (wanted == u'?') return true;
  if (wanted == u'#') return unit >= u'0' && unit <= u'9';
  if (wanted == u'[') return inBrackets(char16_t(foldAny(unit)), pattern, at);
  return foldAny(unit) == foldAny(wanted.unicode());
}

}  // namespace

double val(QStringView text) {
  if (text.isEmpty()) return 0;
  if (const auto number = shortNumber(text)) return *number;
  QString kept;
  kept.reserve(text.size());
  for (const QChar c : text)
    if (!isBlankUnit(c)) kept += c;
  QStringView rest = kept;
  qsizetype used = 0;
  if (const auto number = radixNumber(rest, &used)) return *number;
  const bool minus = rest.startsWith(u'-');
  if (minus || rest.startsWith(u'+')) rest = rest.sliced(1);
  const double number = numberAsWritten(rest.first(plainNumberLength(rest, false)));
  return minus ? -number : number;
}

std::optional<double> numberOf(QStringView text) {
  if (const auto number = shortNumber(text)) return number;
  text = text.trimmed();
  qsizetype used = 0;
  if (const auto number = radixNumber(text, &used)) {
    if (used == text.size() && used > 2) return number;
    return {};
  }
  bool minus = false, sign = false;
  if (text.startsWith(u'(') && text.endsWith(u')')) {
    text = text.sliced(1).chopped(1).trimmed();
    minus = sign = true;
  }
  bool currency = false;
  for (bool more = true; more && !text.isEmpty();) {
    const QChar c = text.front();
    more = false;
    if (!sign && (c == u'-' || c == u'+')) {
      minus = c == u'-';
      sign = more = true;
    } else if (!currency && (c == u'$' || c == u'\\' || c == u'₩')) {
      currency = more = true;
    }
    if (more) text = text.sliced(1).trimmed();
  }
  if (!sign && (text.endsWith(u'-') || text.endsWith(u'+'))) {
    minus = text.endsWith(u'-');
    text = text.chopped(1).trimmed();
  }
  const qsizetype length = plainNumberLength(text, true);
  if (length == 0 || length != text.size()) return {};
  const double number = numberAsWritten(text);
  return minus ? -number : number;
}

QString textOf(double number) {
  if (number == 0) return u"0"_s;
  if (std::fabs(number) < kFifteenDigits && number == std::trunc(number))
    return QString::number(qint64(number));
  // What is told apart by 15 digits or less is what 15 digits show.
  if (std::fabs(number) >= 1e-4 && std::fabs(number) < kFifteenDigits) {
    char text[32];
    char* const end = std::to_chars(text, text + sizeof text, number, std::chars_format::fixed).ptr;
    char* const first = std::find_if(&text[0], end, [](char c) { return c >= '1' && c <= '9'; });
    if (end - first <= (std::find(first, end, '.') == end ? 15 : 16))
      return QString::fromLatin1(text, end - text);
  }
  return QString::number(number, 'G', 15);
}

// The default rounding of floating arithmetic is to the nearest, ties to even; nothing here ever changes it.
double roundHalfEven(double number) {
  return std::nearbyint(number);
}

double roundHalfEven(double number, int places) {
  if (number == std::trunc(number)) return number;
  const double scale = std::pow(10.0, places);
  const double scaled = number * scale;
  // 2.675 is stored a little below; the language rounds what its 15 digits show.
  const double shown = textOf(scaled).toDouble();
  return std::isfinite(shown) ? std::nearbyint(shown) / scale : number;
}

int compareText(QStringView a, QStringView b) {
  return compareFolded<QStringView, qsizetype>(withoutTrailingBlanks(a), withoutTrailingBlanks(b));
}

int compareUtf8(std::string_view a, std::string_view b) {
  a = withoutTrailingBlanks(a);
  b = withoutTrailingBlanks(b);
  // Most texts are equal or part early: the bytes they share need no folding.
  const size_t shorter = std::min(a.size(), b.size());
  size_t shared = 0;
  while (shared < shorter && a[shared] == b[shared]) ++shared;
  if (shared == shorter && a.size() == b.size()) return 0;
  // Back to where the character that differs begins: only continuation bytes stand within one.
  while (shared > 0 && (continuesAt(a, shared) || continuesAt(b, shared))) --shared;
  return compareFolded<std::string_view, size_t>(a.substr(shared), b.substr(shared));
}

bool like(QStringView text, QStringView pattern) {
  checkBrackets(pattern);
  qsizetype t = 0, p = 0;
  qsizetype starPattern = -1, starText = 0;
  while (true) {
    if (p < pattern.size() && pattern[p] == u'*') {
      starPattern = ++p;
      starText = t;
      continue;
    }
    // An empty pair of brackets stands for no character at all.
    if (p + 1 < pattern.size() && pattern[p] == u'[' && pattern[p + 1] == u']') {
      p += 2;
      continue;
    }
    if (p == pattern.size() && t == text.size()) return true;
    if (p < pattern.size() && t < text.size() && matchesOne(text[t].unicode(), pattern, &p)) {
      ++t;
      continue;
    }
    if (starPattern < 0 || starText >= text.size()) return false;
    t = ++starText;
    p = starPattern;
  }
}

QString leftOf(const QString& text, qint64 count) {
  if (count < 0) fail(5);
  return text.left(qsizetype(count));
}

QString rightOf(const QString& text, qint64 count) {
  if (count < 0) fail(5);
  return text.right(qsizetype(std::min<qint64>(count, text.size())));
}

QString midOf(const QString& text, qint64 start, std::optional<qint64> count) {
  if (start < 1 || (count && *count < 0)) fail(5);
  if (start > text.size()) return u""_s;
  return text.mid(qsizetype(start - 1), count ? qsizetype(std::min<qint64>(*count, text.size())) : -1);
}

}  // namespace jet
