#include "store/jet/shape.h"

#include <algorithm>

namespace jet {
namespace {

/** No token contains a question mark, so a mark cannot be mistaken for text of the statement. */
char16_t markOf(Token::Kind kind) {
  if (kind == Token::Kind::Whole) return u'w';
  return kind == Token::Kind::Floating ? u'f' : u't';
}

}  // namespace

Shape shapeOf(QStringView sql) {
  Shape shape;
  shape.text.resize(sql.size() * 2);  // a literal of one character becomes a mark of two
  char16_t* end = shape.text.data();
  const char16_t* from = sql.utf16();
  Lexer lexer(sql);
  for (Token literal; lexer.toParameter(literal);) {
    end = std::copy(from, sql.utf16() + literal.place, end);
    *end++ = u'?';
    *end++ = markOf(literal.kind);
    from = sql.utf16() + literal.end;
    shape.literals.append(literal);
  }
  end = std::copy(from, sql.utf16() + sql.size(), end);
  shape.text.resize(end - shape.text.data());
  return shape;
}

}  // namespace jet
