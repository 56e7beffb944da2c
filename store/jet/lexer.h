#pragma once
// A statement's text as tokens. One pass serves both uses: the shape (cache key) and the parser.
#include <QString>

#include "store/jet/value.h"

namespace jet {

struct Token {
  enum class Kind { End, Name, Text, Whole, Floating, Date, Symbol };
  Kind kind = Kind::End;
  bool bracketed = false;  ///< a name written [so]: never a keyword
  qsizetype place = 0;     ///< index of the first character
  qsizetype end = 0;
  QStringView text;  ///< without quotes, brackets or #; a text's doubled quotes still doubled
  QChar quote;       ///< of a text
  /** Counts the literals that become parameters, from 1; 0 for a number that decides the statement's form. */
  int parameter = 0;

  bool isLiteral() const { return kind >= Kind::Text && kind <= Kind::Date; }
  bool isSymbol(QLatin1StringView symbol) const { return kind == Kind::Symbol && text == symbol; }
  /** A bare name equal to this word; case does not matter. */
  bool isWord(QLatin1StringView word) const {
    return kind == Kind::Name && text.size() == word.size() && !bracketed &&
           text.compare(word, Qt::CaseInsensitive) == 0;
  }
  /** A literal's value; a date reads as the text yyyy-MM-dd. */
  Value value() const;
  /** A text that stands as it is, a whole number that fits: most literals are, and need no Value. */
  bool isPlainText() const { return kind == Kind::Text && !text.contains(quote); }
  bool isPlainWhole() const { return kind == Kind::Whole && text.size() <= 18; }
  qint64 whole() const {
    qint64 number = 0;
    for (const QChar digit : text) number = number * 10 + (digit.unicode() - u'0');
    return number;
  }
};

class Lexer {
 public:
  explicit Lexer(QStringView sql);
  /** The next token, End for ever at the end. Throws 3075 for a text that no token fits. */
  Token next();
  /** Goes on to the next literal that becomes a parameter, False at the end. The same reading for those who need no
   *  token for every word between. */
  bool toParameter(Token& token);

 private:
  void read(Token& token);
  void readQuoted(Token& token, QChar quote);
  void readBracketed(Token& token, QChar close);
  void readDate(Token& token);
  void readNumber(Token& token);
  void readSymbol(Token& token);
  void made(Token& token, Token::Kind kind, qsizetype from, qsizetype to, qsizetype end);
  QStringView takeWord();
  void followWord(QStringView word);
  void followSymbol(char16_t symbol);
  void followLiteral(Token& token);

  QStringView sql_;
  qsizetype at_ = 0;
  int parameters_ = 0;
  QStringView previous_;     ///< the last bare word, empty after anything else
  bool definition_ = false;  ///< CREATE, ALTER, DROP: sizes are part of the form
  bool ordering_ = false;    ///< behind ORDER BY, where a number may be a position
  int depth_ = 0, orderingDepth_ = 0;
};

/** What is wrong with its place: what stands there and the number of its character, from 1. */
QString syntaxText(QStringView sql, qsizetype place, const QString& what);
/** The same as error 3075. */
[[noreturn]] void throwSyntax(QStringView sql, qsizetype place, const QString& what);

}  // namespace jet
