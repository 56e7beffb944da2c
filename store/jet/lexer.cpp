#include "store/jet/lexer.h"

#include <QDate>
#include <array>
#include <cmath>
#include <string_view>

#include "store/jet/error_texts.h"
#include "store/jet/plain.h"

namespace jet {

using namespace Qt::StringLiterals;

namespace {

/** What a character may begin or go on with. */
enum class Sign : unsigned char { Unknown, Space, Letter, Digit, Point, Quote, Bracket, Hash, Symbol };

constexpr std::array<Sign, 128> plainSigns() {
  std::array<Sign, 128> signs{};
  for (char16_t c = u'\t'; c <= u'\r'; ++c) signs[c] = Sign::Space;
  signs[u' '] = Sign::Space;
  for (char16_t c = u'a'; c <= u'z'; ++c) signs[c] = signs[c - u'a' + u'A'] = Sign::Letter;
  signs[u'_'] = Sign::Letter;
  for (char16_t c = u'0'; c <= u'9'; ++c) signs[c] = Sign::Digit;
  for (const char16_t c : std::u16string_view(u"(),=<>+-*/\\^&;")) signs[c] = Sign::Symbol;
  signs[u'.'] = Sign::Point;
  signs[u'\''] = signs[u'"'] = Sign::Quote;
  signs[u'['] = signs[u'`'] = Sign::Bracket;
  signs[u'#'] = Sign::Hash;
  return signs;
}

constexpr std::array<Sign, 128> kPlain = plainSigns();

Sign foreignSign(QChar c) {
  if (c.isLetter() || c.isSurrogate()) return Sign::Letter;
  return c.isSpace() ? Sign::Space : Sign::Unknown;
}
// Most of a statement is plain Latin: a look into a small table spares the look into those of Unicode.
inline Sign signOf(QChar c) {
  return c.unicode() < kPlain.size() ? kPlain[c.unicode()] : foreignSign(c);
}
inline bool continuesNameSign(QChar c) {
  if (c.unicode() >= kPlain.size()) return c.isLetterOrNumber() || c.isSurrogate();
  return kPlain[c.unicode()] == Sign::Letter || kPlain[c.unicode()] == Sign::Digit;
}
bool isWord(QStringView text, QLatin1StringView word) {
  return text.size() == word.size() && text.compare(word, Qt::CaseInsensitive) == 0;
}
bool isDigitSign(QChar c) {
  return c >= u'0' && c <= u'9';
}

/** #2024-01-05# or #1/5/2024#; an invalid date for anything else. */
QDate dateLiteral(QStringView text) {
  const QString trimmed = text.trimmed().toString();
  const QDate byYear = QDate::fromString(trimmed, u"yyyy-M-d"_s);
  return byYear.isValid() ? byYear : QDate::fromString(trimmed, u"M/d/yyyy"_s);
}

}  // namespace

QString syntaxText(QStringView sql, qsizetype place, const QString& what) {
  const QString near = sql.mid(place, 20).toString();
  const QString where = near.isEmpty() ? u"문장의 끝"_s : u"%1번째 글자 '%2'"_s.arg(place + 1).arg(near);
  return u"%1 (%2)"_s.arg(what, where);
}

void throwSyntax(QStringView sql, qsizetype place, const QString& what) {
  fail(3075, syntaxText(sql, place, what));
}

Value Token::value() const {
  switch (kind) {
    case Kind::Text: {
      QString plain = text.toString();
      if (plain.contains(quote)) plain.replace(QString(2, quote), QString(quote));
      return plain;
    }
    case Kind::Whole:
      if (isPlainWhole()) return whole();
      [[fallthrough]];
    case Kind::Floating: {
      const double number = text.toDouble();
      if (!std::isfinite(number)) fail(6);
      return number;
    }
    case Kind::Date:
      return dateLiteral(text).toString(u"yyyy-MM-dd"_s);
    default:
      return {};
  }
}

inline void Lexer::made(Token& token, Token::Kind kind, qsizetype from, qsizetype to, qsizetype end) {
  token.kind = kind;
  token.text = QStringView(sql_.utf16() + from, to - from);
  token.end = at_ = end;
}

void Lexer::readQuoted(Token& token, QChar quote) {
  for (qsizetype i = at_ + 1; i < sql_.size(); ++i) {
    if (sql_[i] != quote) continue;
    if (i + 1 < sql_.size() && sql_[i + 1] == quote) {
      ++i;
      continue;
    }
    token.quote = quote;
    return made(token, Token::Kind::Text, at_ + 1, i, i + 1);
  }
  throwSyntax(sql_, at_, u"문자열이 닫히지 않았습니다"_s);
}

void Lexer::readBracketed(Token& token, QChar close) {
  const qsizetype end = sql_.indexOf(close, at_ + 1);
  if (end < 0) throwSyntax(sql_, at_, u"대괄호가 닫히지 않았습니다"_s);
  if (end == at_ + 1) throwSyntax(sql_, at_, u"이름이 비어 있습니다"_s);
  token.bracketed = true;
  made(token, Token::Kind::Name, at_ + 1, end, end + 1);
}

void Lexer::readDate(Token& token) {
  const qsizetype end = sql_.indexOf(u'#', at_ + 1);
  if (end < 0 || !dateLiteral(sql_.mid(at_ + 1, end - at_ - 1)).isValid())
    throwSyntax(sql_, at_, u"날짜가 잘못되었습니다"_s);
  made(token, Token::Kind::Date, at_ + 1, end, end + 1);
}

inline void Lexer::readNumber(Token& token) {
  qsizetype i = at_;
  bool floating = false;
  auto digits = [&] {
    while (i < sql_.size() && isDigitSign(sql_[i])) ++i;
  };
  digits();
  if (i < sql_.size() && sql_[i] == u'.') {
    floating = true;
    ++i;
    digits();
  }
  if (i < sql_.size() && (sql_[i] == u'E' || sql_[i] == u'e')) {
    qsizetype exponent = i + 1;
    if (exponent < sql_.size() && (sql_[exponent] == u'+' || sql_[exponent] == u'-')) ++exponent;
    if (exponent < sql_.size() && isDigitSign(sql_[exponent])) {
      floating = true;
      i = exponent;
      digits();
    }
  }
  if (i < sql_.size() && continuesNameSign(sql_[i])) throwSyntax(sql_, at_, u"숫자 뒤에 글자가 있습니다"_s);
  made(token, floating ? Token::Kind::Floating : Token::Kind::Whole, at_, i, i);
}

inline QStringView Lexer::takeWord() {
  const QChar* const word = sql_.data() + at_;
  const QChar* const end = sql_.data() + sql_.size();
  const QChar* behind = word + 1;
  while (behind != end && continuesNameSign(*behind)) ++behind;
  const qsizetype length = behind - word;
  at_ += behind != end && *behind == u'$' ? length + 1 : length;  // Left$ is Left
  return QStringView(word, length);
}

inline void Lexer::readSymbol(Token& token) {
  const char16_t c = sql_[at_].unicode();
  const char16_t next = at_ + 1 < sql_.size() ? sql_[at_ + 1].unicode() : u'\0';
  const bool pair = (c == u'<' && (next == u'>' || next == u'=')) || (c == u'>' && next == u'=') ||
                    (c == u'=' && (next == u'<' || next == u'>'));
  const qsizetype end = at_ + (pair ? 2 : 1);
  made(token, Token::Kind::Symbol, at_, end, end);
}

Lexer::Lexer(QStringView sql) : sql_(sql) {
  constexpr qsizetype longestStatement = 64000;
  if (sql.size() > longestStatement) fail(3360);
  requirePlain(sql);
  while (at_ < sql_.size() && signOf(sql_[at_]) == Sign::Space) ++at_;
  const qsizetype begin = at_;
  if (at_ == sql_.size() || signOf(sql_[at_]) != Sign::Letter) return;
  const QStringView word = takeWord();
  definition_ = isWord(word, "CREATE"_L1) || isWord(word, "ALTER"_L1) || isWord(word, "DROP"_L1);
  at_ = begin;
}

// What is needed to tell a number that is data from one that decides the statement's form.

inline void Lexer::followWord(QStringView word) {
  if (isWord(word, "BY"_L1) && isWord(previous_, "ORDER"_L1)) {
    ordering_ = true;
    orderingDepth_ = depth_;
  }
  previous_ = word;
}

inline void Lexer::followSymbol(char16_t symbol) {
  if (symbol == u'(') ++depth_;
  if (symbol == u')' && --depth_ < orderingDepth_) ordering_ = false;
  previous_ = {};
}

inline void Lexer::followLiteral(Token& token) {
  const bool number = token.kind == Token::Kind::Whole || token.kind == Token::Kind::Floating;
  const bool form = number && (definition_ || ordering_ || isWord(previous_, "TOP"_L1));
  if (!form) token.parameter = ++parameters_;
  previous_ = {};
}

inline void Lexer::read(Token& token) {
  token.place = at_;
  const QChar c = sql_[at_];
  switch (signOf(c)) {
    case Sign::Letter:
      token.kind = Token::Kind::Name;
      token.text = takeWord();
      token.end = at_;
      return followWord(token.text);
    case Sign::Bracket:
      readBracketed(token, c == u'[' ? u']' : u'`');
      previous_ = {};
      return;
    case Sign::Digit:
      readNumber(token);
      return followLiteral(token);
    case Sign::Quote:
      readQuoted(token, c);
      return followLiteral(token);
    case Sign::Hash:
      readDate(token);
      return followLiteral(token);
    case Sign::Point:
      if (at_ + 1 < sql_.size() && isDigitSign(sql_[at_ + 1])) {
        readNumber(token);
        return followLiteral(token);
      }
      [[fallthrough]];
    case Sign::Symbol:
      readSymbol(token);
      return followSymbol(c.unicode());
    default:
      throwSyntax(sql_, at_, u"알 수 없는 글자입니다"_s);
  }
}

Token Lexer::next() {
  Token token;
  while (at_ < sql_.size() && signOf(sql_[at_]) == Sign::Space) ++at_;
  token.place = token.end = at_;
  if (at_ < sql_.size()) read(token);
  return token;
}

bool Lexer::toParameter(Token& token) {
  while (at_ < sql_.size()) {
    switch (signOf(sql_[at_])) {
      case Sign::Space:
        ++at_;
        continue;
      case Sign::Letter:
        followWord(takeWord());
        continue;
      case Sign::Symbol:
        followSymbol(sql_[at_++].unicode());
        continue;
      default:
        break;
    }
    token = {};
    read(token);
    if (token.parameter > 0) return true;
  }
  return false;
}

}  // namespace jet
