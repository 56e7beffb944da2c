#include "store/jet/lexer.h"

#include <QDate>

#include "store/jet/error_texts.h"

namespace jet {

using namespace Qt::StringLiterals;

namespace {

bool isDigitSign(QChar c) {
  return c >= u'0' && c <= u'9';
}
// Most of a statement is plain Latin: a look at the number spares the look into the tables of Unicode.
bool startsNameSign(QChar c) {
  if (c < u'\x80') return ((c.unicode() | 0x20) >= u'a' && (c.unicode() | 0x20) <= u'z') || c == u'_';
  return c.isLetter() || c.isSurrogate();
}
bool continuesNameSign(QChar c) {
  if (c < u'\x80') return startsNameSign(c) || isDigitSign(c);
  return c.isLetterOrNumber() || c.isSurrogate();
}

/** #2024-01-05# or #1/5/2024#; an invalid date for anything else. */
QDate dateLiteral(QStringView text) {
  const QString trimmed = text.trimmed().toString();
  const QDate byYear = QDate::fromString(trimmed, u"yyyy-M-d"_s);
  return byYear.isValid() ? byYear : QDate::fromString(trimmed, u"M/d/yyyy"_s);
}

}  // namespace

void throwSyntax(QStringView sql, qsizetype place, const QString& what) {
  const QString near = sql.mid(place, 20).toString();
  const QString where = near.isEmpty() ? u"문장의 끝"_s : u"%1번째 글자 '%2'"_s.arg(place + 1).arg(near);
  fail(3075, u"%1 (%2)"_s.arg(what, where));
}

Value Token::value() const {
  switch (kind) {
    case Kind::Text: {
      QString plain = text.toString();
      if (plain.contains(quote)) plain.replace(QString(2, quote), QString(quote));
      return plain;
    }
    case Kind::Whole: {
      if (text.size() > 18) return text.toDouble();
      qint64 whole = 0;
      for (const QChar digit : text) whole = whole * 10 + (digit.unicode() - u'0');
      return whole;
    }
    case Kind::Floating:
      return text.toDouble();
    case Kind::Date:
      return dateLiteral(text).toString(u"yyyy-MM-dd"_s);
    default:
      return {};
  }
}

Token Lexer::next() {
  while (at_ < sql_.size() && sql_[at_].isSpace()) ++at_;
  if (at_ >= sql_.size()) return made(Token::Kind::End, sql_.size(), sql_.size(), sql_.size(), sql_.size());
  Token token = read();
  follow(token);
  return token;
}

Token Lexer::read() {
  const QChar c = sql_[at_];
  if (startsNameSign(c)) return readName();
  if (isDigitSign(c) || (c == u'.' && at_ + 1 < sql_.size() && isDigitSign(sql_[at_ + 1])))
    return readNumber();
  if (c == u'\'' || c == u'"') return readQuoted(c);
  if (c == u'[') return readBracketed(u']');
  if (c == u'`') return readBracketed(u'`');
  if (c == u'#') return readDate();
  return readSymbol();
}

Token Lexer::made(Token::Kind kind, qsizetype place, qsizetype from, qsizetype to, qsizetype end) {
  Token token;
  token.kind = kind;
  token.place = place;
  token.text = sql_.mid(from, to - from);
  token.end = at_ = end;
  return token;
}

Token Lexer::readQuoted(QChar quote) {
  for (qsizetype i = at_ + 1; i < sql_.size(); ++i) {
    if (sql_[i] != quote) continue;
    if (i + 1 < sql_.size() && sql_[i + 1] == quote) {
      ++i;
      continue;
    }
    Token token = made(Token::Kind::Text, at_, at_ + 1, i, i + 1);
    token.quote = quote;
    return token;
  }
  throwSyntax(sql_, at_, u"문자열이 닫히지 않았습니다"_s);
}

Token Lexer::readBracketed(QChar close) {
  const qsizetype end = sql_.indexOf(close, at_ + 1);
  if (end < 0) throwSyntax(sql_, at_, u"대괄호가 닫히지 않았습니다"_s);
  if (end == at_ + 1) throwSyntax(sql_, at_, u"이름이 비어 있습니다"_s);
  Token token = made(Token::Kind::Name, at_, at_ + 1, end, end + 1);
  token.bracketed = true;
  return token;
}

Token Lexer::readDate() {
  const qsizetype end = sql_.indexOf(u'#', at_ + 1);
  if (end < 0 || !dateLiteral(sql_.mid(at_ + 1, end - at_ - 1)).isValid())
    throwSyntax(sql_, at_, u"날짜가 잘못되었습니다"_s);
  return made(Token::Kind::Date, at_, at_ + 1, end, end + 1);
}

Token Lexer::readNumber() {
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
  return made(floating ? Token::Kind::Floating : Token::Kind::Whole, at_, at_, i, i);
}

Token Lexer::readName() {
  qsizetype i = at_;
  while (i < sql_.size() && continuesNameSign(sql_[i])) ++i;
  const qsizetype nameEnd = i;
  if (i < sql_.size() && sql_[i] == u'$') ++i;  // Left$ is Left
  return made(Token::Kind::Name, at_, at_, nameEnd, i);
}

Token Lexer::readSymbol() {
  const char16_t c = sql_[at_].unicode();
  const char16_t next = at_ + 1 < sql_.size() ? sql_[at_ + 1].unicode() : u'\0';
  const bool pair = (c == u'<' && (next == u'>' || next == u'=')) || (c == u'>' && next == u'=') ||
                    (c == u'=' && (next == u'<' || next == u'>'));
  if (!pair && !QStringView(u"(),.=<>+-*/\\^&;").contains(QChar(c)))
    throwSyntax(sql_, at_, u"알 수 없는 글자입니다"_s);
  const qsizetype end = at_ + (pair ? 2 : 1);
  return made(Token::Kind::Symbol, at_, at_, end, end);
}

/** Keeps what is needed to tell a number that is data from one that decides the statement's form. */
void Lexer::follow(Token& token) {
  if (first_) {
    first_ = false;
    definition_ = token.isWord("CREATE"_L1) || token.isWord("ALTER"_L1) || token.isWord("DROP"_L1);
  }
  if (token.isLiteral()) {
    const bool number = token.kind == Token::Kind::Whole || token.kind == Token::Kind::Floating;
    const bool form =
        number && (definition_ || ordering_ || previous_.compare("TOP"_L1, Qt::CaseInsensitive) == 0);
    if (!form) token.parameter = ++parameters_;
  } else if (token.kind == Token::Kind::Symbol) {
    if (token.isSymbol(u'(')) ++depth_;
    if (token.isSymbol(u')')) {
      --depth_;
      if (depth_ < orderingDepth_) ordering_ = false;
    }
  } else if (token.isWord("BY"_L1)) {
    if (previous_.compare("ORDER"_L1, Qt::CaseInsensitive) == 0) {
      ordering_ = true;
      orderingDepth_ = depth_;
    }
  }
  previous_ = token.kind == Token::Kind::Name && !token.bracketed ? token.text : QStringView();
}

Shape shapeOf(const QString& sql) {
  Shape shape;
  shape.key.reserve(sql.size());
  Lexer lexer(sql);
  qsizetype copied = 0;
  for (Token token = lexer.next(); token.kind != Token::Kind::End; token = lexer.next()) {
    if (token.parameter == 0) continue;
    // No token contains a question mark, so a mark cannot be mistaken for text of the statement.
    shape.key += QStringView(sql).mid(copied, token.place - copied);
    shape.key += token.kind == Token::Kind::Whole      ? "?w"_L1
                 : token.kind == Token::Kind::Floating ? "?f"_L1
                                                       : "?t"_L1;
    shape.literals.push_back(token.value());
    copied = token.end;
  }
  shape.key += QStringView(sql).mid(copied);
  return shape;
}

}  // namespace jet
