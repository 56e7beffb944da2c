#include "store/jet/error_texts.h"
#include "store/jet/known_functions.h"
#include "store/jet/resolver.h"

namespace jet {

using namespace Qt::StringLiterals;

namespace {

bool holdsNumber(Holds holds) {
  return holds == Holds::YesNo || holds == Holds::Whole || holds == Holds::Floating;
}

/** Yes, no, or Null: not known. */
bool isTruth(Holds holds) {
  return holds == Holds::YesNo || holds == Holds::Nothing;
}

Holds holdsLiteral(const Value& value) {
  return value.isText() ? Holds::Text : value.isDouble() ? Holds::Floating : Holds::Whole;
}

/** Of a sum, difference or product. */
Holds holdsArithmetic(Holds left, Holds right) {
  auto whole = [](Holds holds) { return holds == Holds::YesNo || holds == Holds::Whole; };
  if (left == Holds::Nothing) left = right;
  if (right == Holds::Nothing) right = left;
  return whole(left) && whole(right) ? Holds::Whole
         : left == Holds::Nothing    ? Holds::Nothing
                                     : Holds::Floating;
}

Holds holdsOperation(const QString& op, Holds left, Holds right) {
  if (op == u'&') return Holds::Text;
  if (op == u'/' || op == u'^') return Holds::Floating;
  if (op == u'\\' || op == "MOD"_L1) return Holds::Whole;
  if (op == u'+') {
    auto text = [](Holds holds) { return holds == Holds::Text || holds == Holds::Nothing; };
    if (left != right ? text(left) && text(right) : left == Holds::Text) return Holds::Text;
    if (left == Holds::Any || right == Holds::Any) return Holds::Any;
  }
  return holdsArithmetic(left, right);
}

/** Of IIF and the rows of a UNION: one or the other. */
Holds holdsEither(Holds left, Holds right) {
  if (left == right || right == Holds::Nothing) return left;
  if (left == Holds::Nothing) return right;
  return holdsNumber(left) && holdsNumber(right) ? holdsArithmetic(left, right) : Holds::Any;
}

void checkComparable(Holds left, Holds right) {
  if ((left == Holds::Text && holdsNumber(right)) || (right == Holds::Text && holdsNumber(left))) fail(3464);
}

/** What a column of a type holds; any other is text. */
constexpr std::pair<Type, Holds> columnTypes[] = {
    {Type::Boolean, Holds::YesNo}, {Type::Long, Holds::Whole}, {Type::Double, Holds::Floating}};

}  // namespace

Holds holdsOf(Type type) {
  for (const auto& [of, holds] : columnTypes)
    if (of == type) return holds;
  return Holds::Text;
}

Type typeOf(Holds holds) {
  for (const auto& [type, of] : columnTypes)
    if (of == holds) return type;
  return Type::Text;
}

bool sameExpr(const Expr& left, const Expr& right) {
  if (left.kind != right.kind || left.negated != right.negated || left.op != right.op) return false;
  if (left.operands.size() != right.operands.size() || !left.query.empty() || !right.query.empty())
    return false;
  if (left.kind == Expr::Kind::Column) return left.source == right.source && left.column == right.column;
  if (left.name != right.name || !(left.value == right.value)) return false;
  for (size_t i = 0; i < left.operands.size(); ++i)
    if (!sameExpr(left.operands[i], right.operands[i])) return false;
  return true;
}

bool sameName(QStringView left, QStringView right) {
  return left.size() == right.size() && left.compare(right, Qt::CaseInsensitive) == 0;
}

const Field* findField(const std::vector<Field>& fields, QStringView name) {
  for (const Field& field : fields)
    if (sameName(field.name, name)) return &field;
  return nullptr;
}

void Resolver::resolveExpr(Expr& expr, const Scope& scope) {
  if (expr.kind == Expr::Kind::Column) return resolveColumn(expr, scope);
  if (expr.kind == Expr::Kind::Aggregate) {
    if (!scope.aggregates) fail(3096, expr.name);
    if (scope.aggregated) *scope.aggregated = true;
    Scope inner = scope;
    inner.aggregates = false;  // no Sum within a Sum
    for (Expr& operand : expr.operands) resolveExpr(operand, inner);
  } else {
    for (Expr& operand : expr.operands) resolveExpr(operand, scope);
  }
  for (Select& query : expr.query) {
    resolveSelect(query, &scope);
    if (expr.kind != Expr::Kind::Exists && query.columns.size() != 1) fail(3306);
  }
  auto held = [&](size_t operand) { return expr.operands[operand].holds; };
  switch (expr.kind) {
    case Expr::Kind::Literal:
      expr.holds = holdsLiteral(expr.value);
      break;
    case Expr::Kind::Null:
      expr.holds = Holds::Nothing;
      break;
    case Expr::Kind::Negate:
      expr.holds = holdsArithmetic(held(0), Holds::Whole);
      break;
    case Expr::Kind::Not:
      expr.holds = held(0) == Holds::YesNo ? Holds::YesNo : Holds::Whole;
      break;
    case Expr::Kind::Arithmetic:
      expr.holds = holdsOperation(expr.op, held(0), held(1));
      break;
    case Expr::Kind::Logical:
      expr.holds = isTruth(held(0)) && isTruth(held(1)) ? Holds::YesNo : Holds::Whole;
      break;
    case Expr::Kind::Iif:
      expr.holds = holdsEither(held(1), held(2));
      break;
    case Expr::Kind::Query:
      expr.holds = holdsOf(expr.query.front().columns.front().type);
      break;
    case Expr::Kind::Call:
      resolveCall(expr);
      break;
    case Expr::Kind::Aggregate:
      if (expr.name == "COUNT"_L1)
        expr.holds = Holds::Whole;
      else if (expr.name == "AVG"_L1)
        expr.holds = Holds::Floating;
      else if (expr.name == "SUM"_L1)
        expr.holds = holdsArithmetic(held(0), Holds::Whole);
      else
        expr.holds = held(0);
      break;
    default:
      checkComparison(expr);
      expr.holds = Holds::YesNo;
  }
}

void Resolver::resolveColumn(Expr& expr, const Scope& scope) {
  for (const Scope* each = &scope; each; each = each->outer)
    if (findColumn(expr, *each)) return;
  fail(3061, expr.qualifier.isEmpty() ? expr.name : expr.qualifier + u'.' + expr.name);
}

bool Resolver::findColumn(Expr& expr, const Scope& scope) {
  bool found = false;
  for (const From* source : scope.sources) {
    if (!expr.qualifier.isEmpty() && !sameName(source->alias, expr.qualifier)) continue;
    const Field* field = findField(source->info.fields, expr.name);
    if (!field) continue;
    if (found) fail(3079, expr.name);
    found = true;
    expr.source = source->alias;
    expr.column = field->name;
    expr.holds = holdsOf(field->type);
  }
  return found;
}

void Resolver::resolveCall(Expr& expr) {
  const KnownFunction* known = knownFunction(expr.name);
  if (!known) fail(3085, expr.name);
  const int count = int(expr.operands.size());
  if (count < known->least || count > known->most)
    fail(3075, u"함수 %1의 인수의 수가 다릅니다"_s.arg(expr.name));
  expr.name = known->written;
  expr.holds = known->holds;
}

/** A text compared with a number is refused before any row is read. */
void Resolver::checkComparison(const Expr& expr) const {
  if (expr.kind != Expr::Kind::Compare && expr.kind != Expr::Kind::Between && expr.kind != Expr::Kind::In)
    return;
  for (size_t i = 1; i < expr.operands.size(); ++i)
    checkComparable(expr.operands[0].holds, expr.operands[i].holds);
  for (const Select& query : expr.query)
    checkComparable(expr.operands[0].holds, holdsOf(query.columns.front().type));
}

}  // namespace jet
