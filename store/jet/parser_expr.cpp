#include "store/jet/parser.h"

#include "store/jet/error_texts.h"

namespace jet {

using namespace Qt::StringLiterals;

namespace {

/** Words of the grammar that cannot stand for a column, so that a missing operand is told where it is missing. */
bool isReservedWord(const Token& token) {
  static constexpr QLatin1StringView words[] = {
      "AND"_L1,    "OR"_L1,    "NOT"_L1,   "LIKE"_L1,  "BETWEEN"_L1, "IN"_L1,
      "IS"_L1,     "FROM"_L1,  "WHERE"_L1, "GROUP"_L1, "HAVING"_L1,  "ORDER"_L1,
      "SELECT"_L1, "UNION"_L1, "ON"_L1,    "SET"_L1,   "VALUES"_L1,  "INTO"_L1};
  for (const auto& word : words)
    if (token.isWord(word)) return true;
  return false;
}

constexpr int mostLevels = 24;  // SQLite takes some thirty functions within each other
constexpr int mostTerms = 900;

Expr parsedAt(Expr::Kind kind, qsizetype place) {
  Expr made;
  made.kind = kind;
  made.place = place;
  return made;
}

Expr parsedPair(Expr::Kind kind, QString op, Expr left, Expr right) {
  Expr made = parsedAt(kind, left.place);
  made.op = std::move(op);
  made.operands.push_back(std::move(left));
  made.operands.push_back(std::move(right));
  return made;
}

}  // namespace

Expr Parser::leftToRight(Level operand, Expr::Kind kind, std::initializer_list<QLatin1StringView> ops) {
  Expr left = (this->*operand)();
  for (int terms = 1;; ++terms) {
    const QLatin1StringView* found = nullptr;
    for (const auto& op : ops)
      if (QChar(op.front()).isLetter() ? isWord(op) : isSymbol(op)) found = &op;
    if (!found) return left;
    if (terms > mostTerms) jet::fail(3360);
    take();
    left = parsedPair(kind, *found, std::move(left), (this->*operand)());
  }
}

Parser::Deeper::Deeper(Parser& parser) : parser_(parser) {
  if (parser.depth_ >= mostLevels) jet::fail(3360);
  ++parser.depth_;
}

Expr Parser::expression() {
  const Deeper deeper(*this);
  return equivalence();
}

Expr Parser::equivalence() {
  return leftToRight(&Parser::disjunction, Expr::Kind::Logical, {"XOR"_L1, "EQV"_L1, "IMP"_L1});
}
Expr Parser::disjunction() {
  return leftToRight(&Parser::conjunction, Expr::Kind::Logical, {"OR"_L1});
}
Expr Parser::conjunction() {
  return leftToRight(&Parser::negation, Expr::Kind::Logical, {"AND"_L1});
}

Expr Parser::negation() {
  const qsizetype place = now().place;
  if (!takeWord("NOT"_L1)) return comparison();
  const Deeper deeper(*this);
  Expr made = parsedAt(Expr::Kind::Not, place);
  made.operands.push_back(negation());
  return made;
}

Expr Parser::comparison() {
  Expr left = concatenation();
  for (;;) {
    if (isWord("IS"_L1)) {
      take();
      Expr made = parsedAt(Expr::Kind::IsNull, left.place);
      made.negated = takeWord("NOT"_L1);
      expectWord("NULL"_L1);
      made.operands.push_back(std::move(left));
      left = std::move(made);
      continue;
    }
    const bool negated = isWord("NOT"_L1);
    const Token& word = negated ? ahead() : now();
    if (word.isWord("LIKE"_L1) || word.isWord("BETWEEN"_L1) || word.isWord("IN"_L1)) {
      if (negated) take();
      left = tested(std::move(left), negated);
      continue;
    }
    QString op;
    for (const auto& symbol : {"="_L1, "<>"_L1, "<="_L1, ">="_L1, "<"_L1, ">"_L1})
      if (isSymbol(symbol)) op = symbol;
    if (isSymbol("=<"_L1)) op = u"<="_s;
    if (isSymbol("=>"_L1)) op = u">="_s;
    if (op.isEmpty()) return left;
    take();
    left = parsedPair(Expr::Kind::Compare, op, std::move(left), concatenation());
  }
}

/** Behind the tested operand: Like pattern, Between low And high, In (list or query). */
Expr Parser::tested(Expr left, bool negated) {
  Expr made = parsedAt(Expr::Kind::Like, left.place);
  made.negated = negated;
  made.operands.push_back(std::move(left));
  if (takeWord("LIKE"_L1)) {
    made.operands.push_back(concatenation());
  } else if (takeWord("BETWEEN"_L1)) {
    made.kind = Expr::Kind::Between;
    made.operands.push_back(concatenation());
    expectWord("AND"_L1);
    made.operands.push_back(concatenation());
  } else {
    take();
    made.kind = Expr::Kind::In;
    expectSymbol("("_L1);
    if (isWord("SELECT"_L1)) {
      made.query.push_back(query());
    } else {
      for (Expr& each : expressionList()) made.operands.push_back(std::move(each));
    }
    expectSymbol(")"_L1);
  }
  return made;
}

Expr Parser::concatenation() {
  return leftToRight(&Parser::sum, Expr::Kind::Arithmetic, {"&"_L1});
}
Expr Parser::sum() {
  return leftToRight(&Parser::modulus, Expr::Kind::Arithmetic, {"+"_L1, "-"_L1});
}
Expr Parser::modulus() {
  return leftToRight(&Parser::wholeQuotient, Expr::Kind::Arithmetic, {"MOD"_L1});
}
Expr Parser::wholeQuotient() {
  return leftToRight(&Parser::product, Expr::Kind::Arithmetic, {"\\"_L1});
}
Expr Parser::product() {
  return leftToRight(&Parser::sign, Expr::Kind::Arithmetic, {"*"_L1, "/"_L1});
}

Expr Parser::sign() {
  const qsizetype place = now().place;
  if (!isSymbol("+"_L1) && !isSymbol("-"_L1)) return power();
  const Deeper deeper(*this);
  if (takeSymbol("+"_L1)) return sign();
  take();
  Expr made = parsedAt(Expr::Kind::Negate, place);
  made.operands.push_back(sign());
  return made;
}

/** Stronger than the sign before it; its right side may have a sign of its own. */
Expr Parser::power() {
  Expr left = primary();
  while (takeSymbol("^"_L1)) {
    Expr right = isSymbol("-"_L1) || isSymbol("+"_L1) ? sign() : primary();
    left = parsedPair(Expr::Kind::Arithmetic, u"^"_s, std::move(left), std::move(right));
  }
  return left;
}

Expr Parser::primary() {
  const Token token = now();
  if (token.isLiteral()) {
    take();
    Expr made = parsedAt(Expr::Kind::Literal, token.place);
    made.parameter = token.parameter;
    made.value = token.value();
    return made;
  }
  if (takeSymbol("("_L1)) {
    Expr made = parsedAt(Expr::Kind::Query, token.place);
    if (isWord("SELECT"_L1))
      made.query.push_back(query());
    else
      made = expression();
    expectSymbol(")"_L1);
    return made;
  }
  if (token.kind != Token::Kind::Name || isReservedWord(token)) fail(u"식이 없습니다"_s);
  return nameOrCall();
}

Expr Parser::nameOrCall() {
  const Token first = take();
  if (isSymbol("("_L1)) return call(first);
  Expr made = parsedAt(Expr::Kind::Column, first.place);
  if (isSymbol("."_L1)) {
    take();
    made.qualifier = first.text.toString();
    made.name = name();
    return made;
  }
  if (first.isWord("TRUE"_L1) || first.isWord("FALSE"_L1)) {
    made.kind = Expr::Kind::Constant;
    made.value = Value(first.isWord("TRUE"_L1));
    return made;
  }
  if (first.isWord("NULL"_L1)) {
    made.kind = Expr::Kind::Null;
    return made;
  }
  made.name = first.text.toString();
  return made;
}

Expr Parser::call(const Token& function) {
  Expr made = parsedAt(Expr::Kind::Call, function.place);
  made.name = function.text.toString().toUpper();
  expectSymbol("("_L1);
  if (made.name == "EXISTS"_L1) {
    made.kind = Expr::Kind::Exists;
    made.query.push_back(query());
    expectSymbol(")"_L1);
    return made;
  }
  static const QStringList aggregates{u"COUNT"_s, u"SUM"_s,   u"MIN"_s, u"MAX"_s,
                                      u"AVG"_s,   u"FIRST"_s, u"LAST"_s};
  if (aggregates.contains(made.name)) made.kind = Expr::Kind::Aggregate;
  const bool ofRows = made.name == "COUNT"_L1 && takeSymbol("*"_L1);
  if (!ofRows && !isSymbol(")"_L1)) made.operands = expressionList();
  if (!isSymbol(")"_L1)) fail(u"')'이(가) 없습니다"_s);

  const size_t count = made.operands.size();
  if (made.kind == Expr::Kind::Aggregate && !ofRows && count != 1)
    failAt(function, u"인수의 수가 다릅니다"_s);
  if (made.name == "IIF"_L1) {
    if (count != 3) failAt(function, u"인수의 수가 다릅니다"_s);
    made.kind = Expr::Kind::Iif;
  } else if (made.name == "ISNULL"_L1) {
    if (count != 1) failAt(function, u"인수의 수가 다릅니다"_s);
    made.kind = Expr::Kind::IsNull;
  }
  take();
  return made;
}

std::vector<Expr> Parser::expressionList() {
  std::vector<Expr> list;
  do list.push_back(expression());
  while (takeSymbol(","_L1));
  return list;
}

}  // namespace jet
