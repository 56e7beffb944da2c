#include "store/jet/parser.h"

#include <algorithm>
#include <climits>
#include <utility>

#include "store/jet/error_texts.h"

namespace jet {

using namespace Qt::StringLiterals;

namespace {

/** Words that end a table's place in FROM, so that they cannot be its alias there without AS. */
bool endsTablePlace(const Token& token) {
  static constexpr QLatin1StringView words[] = {"WHERE"_L1, "GROUP"_L1, "HAVING"_L1, "ORDER"_L1,
                                                "UNION"_L1, "ON"_L1,    "LEFT"_L1,   "RIGHT"_L1,
                                                "INNER"_L1, "JOIN"_L1,  "SET"_L1};
  for (const auto& word : words)
    if (token.isWord(word)) return true;
  return false;
}

}  // namespace

Parser::Parser(const QString& sql) : sql_(sql) {
  Lexer lexer(sql_);
  tokens_.reserve(64);
  do tokens_.push_back(lexer.next());
  while (tokens_.back().kind != Token::Kind::End);
}

Statement Parser::statement() {
  Statement made;
  if (isWord("SELECT"_L1)) {
    made.select = query();
  } else if (takeWord("INSERT"_L1)) {
    made = insert();
  } else if (takeWord("UPDATE"_L1)) {
    made = update();
  } else if (takeWord("DELETE"_L1)) {
    made = erase();
  } else if (takeWord("CREATE"_L1)) {
    made = create();
  } else if (takeWord("ALTER"_L1)) {
    made = alter();
  } else if (takeWord("DROP"_L1)) {
    made = drop();
  } else {
    fail(u"SELECT, INSERT, UPDATE, DELETE 중 하나로 시작해야 합니다"_s);
  }
  if (takeSymbol(";"_L1) && now().kind != Token::Kind::End) jet::fail(3142);
  if (now().kind != Token::Kind::End) fail(u"연산자나 구분 기호가 없습니다"_s);
  return made;
}

Statement Parser::insert() {
  Statement made;
  made.kind = Compiled::Kind::Insert;
  expectWord("INTO"_L1);
  From target;
  target.place = now().place;
  tableName(target);
  target.alias = target.table;
  made.from.push_back(std::move(target));
  made.columnsNamed = takeSymbol("("_L1);
  if (made.columnsNamed) {
    do {
      made.assigns.push_back(assignedColumn());
    } while (takeSymbol(","_L1));
    expectSymbol(")"_L1);
  }
  if (isWord("SELECT"_L1)) {
    made.fromSelect = true;
    made.select = query();
    return made;
  }
  expectWord("VALUES"_L1);
  expectSymbol("("_L1);
  std::vector<Expr> values = expressionList();
  expectSymbol(")"_L1);
  if (!made.columnsNamed) made.assigns.resize(values.size());
  if (values.size() != made.assigns.size()) jet::fail(3346);
  for (size_t i = 0; i < values.size(); ++i) made.assigns[i].value = std::move(values[i]);
  return made;
}

/** A column to be written, with or without its table in front. */
Assignment Parser::assignedColumn() {
  Assignment column;
  column.place = now().place;
  column.name = name();
  if (takeSymbol("."_L1)) {
    column.qualifier = column.name;
    column.name = name();
  }
  return column;
}

Statement Parser::update() {
  Statement made;
  made.kind = Compiled::Kind::Update;
  made.from = fromList();
  expectWord("SET"_L1);
  do {
    Assignment& column = made.assigns.emplace_back(assignedColumn());
    expectSymbol("="_L1);
    column.value = expression();
  } while (takeSymbol(","_L1));
  if (takeWord("WHERE"_L1)) made.where = expression();
  return made;
}

Statement Parser::erase() {
  Statement made;
  made.kind = Compiled::Kind::Delete;
  if (!takeSymbol("*"_L1) && !isWord("FROM"_L1)) {
    made.deleteTable = name();
    expectSymbol("."_L1);
    expectSymbol("*"_L1);
  }
  expectWord("FROM"_L1);
  made.from = fromList();
  if (takeWord("WHERE"_L1)) made.where = expression();
  return made;
}

Select Parser::query() {
  Select first = select();
  while (takeWord("UNION"_L1)) {
    const bool all = takeWord("ALL"_L1);
    Select& next = first.unions.emplace_back(select());
    next.unionAll = all;
  }
  if (isWord("ORDER"_L1)) orderBy(first);
  return first;
}

Select Parser::select() {
  Select made;
  expectWord("SELECT"_L1);
  made.distinct = takeWord("DISTINCT"_L1);
  if (isWord("TOP"_L1) && ahead().kind == Token::Kind::Whole) {
    take();
    made.top = wholeNumber();
    if (made.top <= 0) fail(u"TOP 뒤의 수는 1 이상이어야 합니다"_s);
  }
  selectItems(made);
  if (takeWord("FROM"_L1)) made.from = fromList();
  if (takeWord("WHERE"_L1)) made.where = expression();
  if (isWord("GROUP"_L1)) {
    take();
    expectWord("BY"_L1);
    made.groupBy = expressionList();
  }
  if (takeWord("HAVING"_L1)) made.having = expression();
  return made;
}

void Parser::selectItems(Select& select) {
  do {
    SelectItem& item = select.items.emplace_back();
    item.place = now().place;
    if (takeSymbol("*"_L1)) {
      item.star = true;
      continue;
    }
    if (now().kind == Token::Kind::Name && ahead().isSymbol("."_L1) && ahead(2).isSymbol("*"_L1)) {
      item.star = true;
      item.starTable = name();
      take();
      take();
      continue;
    }
    item.expr = expression();
    if (takeWord("AS"_L1)) item.alias = name();
  } while (takeSymbol(","_L1));
}

std::vector<From> Parser::fromList() {
  std::vector<From> list;
  do list.push_back(joined());
  while (takeSymbol(","_L1));
  return list;
}

From Parser::joined() {
  From left = table();
  while (isWord("INNER"_L1) || isWord("LEFT"_L1) || isWord("RIGHT"_L1) || isWord("JOIN"_L1))
    left = joinedTo(std::move(left));
  return left;
}

From Parser::joinedTo(From left) {
  From join;
  join.place = now().place;
  const bool outerLeft = takeWord("LEFT"_L1);
  const bool outerRight = !outerLeft && takeWord("RIGHT"_L1);
  if (outerLeft || outerRight)
    takeWord("OUTER"_L1);
  else
    takeWord("INNER"_L1);
  expectWord("JOIN"_L1);
  From right = table();
  // A join may stand on the right without brackets: A LEFT JOIN B INNER JOIN C ON .. ON ..
  while (!isWord("ON"_L1)) {
    if (!isWord("INNER"_L1) && !isWord("LEFT"_L1) && !isWord("RIGHT"_L1)) fail(u"JOIN에 ON이 없습니다"_s);
    right = joinedTo(std::move(right));
  }
  expectWord("ON"_L1);
  join.kind = outerLeft || outerRight ? From::Kind::Left : From::Kind::Inner;
  join.on.push_back(expression());
  // Written as a left join, since only those turn into plain joins when the condition drops the unmatched rows.
  if (outerRight) std::swap(left, right);
  join.sides.push_back(std::move(left));
  join.sides.push_back(std::move(right));
  return join;
}

From Parser::table() {
  const Deeper deeper(*this);
  From made;
  made.place = now().place;
  if (takeSymbol("("_L1)) {
    if (isWord("SELECT"_L1)) {
      made.kind = From::Kind::Query;
      made.query.push_back(query());
      expectSymbol(")"_L1);
    } else {
      From inner = joined();
      expectSymbol(")"_L1);
      return inner;
    }
  } else {
    tableName(made);
    made.alias = made.table;
  }
  if (takeWord("AS"_L1) || (now().kind == Token::Kind::Name && !endsTablePlace(now()))) made.alias = name();
  if (made.alias.isEmpty()) fail(u"하위 쿼리에 이름(AS)이 없습니다"_s);
  return made;
}

void Parser::tableName(From& table) {
  const bool bracketed = now().bracketed;
  table.table = name();
  if (!isSymbol("."_L1)) return;
  if (!bracketed) fail(u"테이블 이름이 잘못되었습니다"_s);
  take();
  table.path = table.table;
  table.table = name();
}

void Parser::orderBy(Select& select) {
  take();
  expectWord("BY"_L1);
  do {
    OrderItem& item = select.orderBy.emplace_back();
    const Token start = now();
    item.expr = expression();
    // A bare number is a place in the list, not a value.
    const bool negative =
        item.expr.kind == Expr::Kind::Negate && item.expr.operands[0].kind == Expr::Kind::Literal;
    if (item.expr.kind == Expr::Kind::Literal && item.expr.value.isWhole())
      item.position = int(std::min<qint64>(item.expr.value.toLong(), INT_MAX));
    if (negative ||
        (item.expr.kind == Expr::Kind::Literal && !item.expr.value.isText() && item.position == 0))
      jet::fail(3138, start.text.toString());
    item.descending = takeWord("DESC"_L1);
    if (!item.descending) takeWord("ASC"_L1);
  } while (takeSymbol(","_L1));
}

bool Parser::takeWord(QLatin1StringView word) {
  if (!isWord(word)) return false;
  take();
  return true;
}

bool Parser::takeSymbol(QLatin1StringView symbol) {
  if (!isSymbol(symbol)) return false;
  take();
  return true;
}

void Parser::expectWord(QLatin1StringView word) {
  if (!takeWord(word)) fail(u"%1이(가) 없습니다"_s.arg(word));
}

void Parser::expectSymbol(QLatin1StringView symbol) {
  if (!takeSymbol(symbol)) fail(u"'%1'이(가) 없습니다"_s.arg(symbol));
}

QString Parser::name() {
  if (now().kind != Token::Kind::Name) fail(u"이름이 없습니다"_s);
  return take().text.toString();
}

int Parser::wholeNumber() {
  bool fits = false;
  const int number = now().text.toInt(&fits);
  if (now().kind != Token::Kind::Whole || !fits) fail(u"정수가 없습니다"_s);
  take();
  return number;
}

void Parser::fail(const QString& what) const {
  failAt(now(), what);
}

void Parser::failAt(const Token& token, const QString& what) const {
  throwSyntax(sql_, token.place, what);
}

}  // namespace jet
