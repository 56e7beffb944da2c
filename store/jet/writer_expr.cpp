#include <algorithm>

#include "store/jet/put_call.h"
#include "store/jet/writer.h"

namespace jet {

using namespace Qt::StringLiterals;

namespace {

/** SQLite answers these with 1 and 0, where a value has to be -1 and 0. */
bool isCondition(const Expr& expr) {
  switch (expr.kind) {
    case Expr::Kind::Compare:
    case Expr::Kind::Like:
    case Expr::Kind::Between:
    case Expr::Kind::In:
    case Expr::Kind::IsNull:
    case Expr::Kind::Exists:
      return true;
    case Expr::Kind::Not:
    case Expr::Kind::Logical:
      return expr.holds == Holds::YesNo;
    default:
      return false;
  }
}

/** A sum of which neither side is known to be text or number: the rows decide. */
bool addsUnknown(const Expr& expr) {
  return expr.op == u'+' && expr.holds == Holds::Any;
}

/** Whatever the rows hold. */
bool neverNull(const Expr& expr) {
  switch (expr.kind) {
    case Expr::Kind::Literal:
    case Expr::Kind::Constant:
    case Expr::Kind::IsNull:
    case Expr::Kind::Exists:
      return true;
    case Expr::Kind::Arithmetic:
      return expr.op == u'&' && (neverNull(expr.operands[0]) || neverNull(expr.operands[1]));
    default:
      return false;
  }
}

/** Of a & b & c, in order. */
std::vector<const Expr*> operandsOfJoin(const Expr& expr) {
  std::vector<const Expr*> operands;
  const Expr* left = &expr;
  for (; left->kind == Expr::Kind::Arithmetic && left->op == u'&'; left = &left->operands[0])
    operands.push_back(&left->operands[1]);
  operands.push_back(left);
  std::ranges::reverse(operands);
  return operands;
}

/** What may follow what without brackets. */
enum class Chain { None, Joined, Summed, Multiplied };
Chain chainOf(const Expr& expr) {
  if (expr.op == u'&') return Chain::Joined;
  if (expr.op == u'*') return Chain::Multiplied;
  const bool sums = expr.op == u'-' || (expr.op == u'+' && expr.holds != Holds::Text && !addsUnknown(expr));
  return sums ? Chain::Summed : Chain::None;
}

}  // namespace

void Writer::collate(const Expr& expr) {
  if (!holdsNoText(expr.holds)) *this << " COLLATE JET";
}

void Writer::writeValue(const Expr& expr) {
  if (isCondition(expr)) {
    *this << "(-";
    writeCondition(expr);
    *this << ")";
    return;
  }
  switch (expr.kind) {
    case Expr::Kind::Literal:
      return writeLiteral(expr);
    case Expr::Kind::Null:
      *this << "NULL";
      break;
    case Expr::Kind::Constant:
      *this << (expr.value.toBool() ? "-1" : "0");
      break;
    case Expr::Kind::Column:
      quote(expr.source);
      *this << ".";
      quote(expr.column);
      break;
    case Expr::Kind::Negate:
      *this << (expr.operands[0].kind == Expr::Kind::Constant ? "(- "
                                                              : "(-");  // two in a row begin a comment
      writeNumber(expr.operands[0]);
      *this << ")";
      break;
    case Expr::Kind::Not:
      *this << "jet_not(";
      writeNumber(expr.operands[0]);
      *this << ")";
      break;
    case Expr::Kind::Arithmetic:
      return writeArithmetic(expr);
    case Expr::Kind::Logical:
      return writeLogicalValue(expr);
    case Expr::Kind::Iif:
      return writeCase(expr);
    case Expr::Kind::Call:
      return writeCall(expr);
    case Expr::Kind::Aggregate:
      return writeAggregate(expr);
    case Expr::Kind::Query:
      return writeOnlyValue(expr.query.front());
    default:
      break;
  }
}

/** Always in brackets of its own, so that it can stand after NOT and a minus. */
void Writer::writeCondition(const Expr& expr) {
  switch (expr.kind) {
    case Expr::Kind::Compare:
      return writeCompare(expr);
    case Expr::Kind::Like:
      *this << (expr.negated ? "(NOT jet_like(" : "(jet_like(");
      writeValue(expr.operands[0]);
      *this << ", ";
      writeValue(expr.operands[1]);
      *this << "))";
      return;
    case Expr::Kind::Between:
      *this << "(";
      writeValue(expr.operands[0]);
      collate(expr.operands[0]);
      *this << (expr.negated ? " NOT BETWEEN " : " BETWEEN ");
      writeBound("min", expr);
      *this << " AND ";
      writeBound("max", expr);
      *this << ")";
      return;
    case Expr::Kind::In:
      return writeIn(expr);
    case Expr::Kind::IsNull:
      *this << "(";
      writeValue(expr.operands[0]);
      *this << (expr.negated ? " IS NOT NULL)" : " IS NULL)");
      return;
    case Expr::Kind::Exists:
      *this << "(EXISTS (";
      writeQuery(expr.query.front(), false);
      *this << "))";
      return;
    case Expr::Kind::Not:
      if (expr.holds != Holds::YesNo) break;
      *this << "(NOT ";
      writeCondition(expr.operands[0]);
      *this << ")";
      return;
    case Expr::Kind::Logical:
      if (expr.holds != Holds::YesNo) break;
      return writeLogicalCondition(expr);
    default:
      break;
  }
  writeNumber(expr);
}

void Writer::writeNumber(const Expr& expr) {
  if (holdsNoText(expr.holds)) return writeValue(expr);
  *this << "jet_num(";
  writeValue(expr);
  *this << ")";
}

void Writer::writeLiteral(const Expr& expr) {
  if (expr.parameter > 0)
    *this << "?" << expr.parameter;
  else
    *this << (expr.value.isWhole() ? QString::number(expr.value.toLong())
                                   : QString::number(expr.value.toDouble(), 'g', 17));
}

/** The bounds of Between stand in either order. */
void Writer::writeBound(const char* which, const Expr& between) {
  *this << which << "(";
  writeValue(between.operands[1]);
  collate(between.operands[1]);
  *this << ", ";
  writeValue(between.operands[2]);
  *this << ")";
}

/** A query's value; its second row is 3354. One group has one row. */
void Writer::writeOnlyValue(const Select& query) {
  const bool oneRow = query.grouped && query.groupBy.empty() && query.unions.empty();
  *this << (oneRow ? "(" : "(SELECT jet_only(\"c1\") FROM (");
  writeQuery(query, !oneRow);
  *this << (oneRow ? ")" : "))");
}

/** An operand of &, where Null is the empty text. */
void Writer::writeJoinedText(const Expr& expr) {
  const bool text =
      expr.kind == Expr::Kind::Literal || (expr.kind == Expr::Kind::Arithmetic && expr.op == u'&');
  if (text && expr.holds == Holds::Text && neverNull(expr)) return writeValue(expr);
  *this << "jet_str(";
  writeValue(expr);
  *this << ")";
}

void Writer::writeArithmetic(const Expr& expr) {
  const Expr& left = expr.operands[0];
  const Expr& right = expr.operands[1];
  const char* function = expr.op == u'/'       ? "jet_div"
                         : expr.op == u'\\'    ? "jet_idiv"
                         : expr.op == u'^'     ? "jet_pow"
                         : expr.op == "MOD"_L1 ? "jet_mod"
                         : addsUnknown(expr)   ? "jet_add"
                                               : nullptr;
  if (expr.op == u'&' && !neverNull(expr)) return writeNullableJoin(operandsOfJoin(expr));
  if (!function) {
    *this << (expr.holds == Holds::Floating ? "jet_finite(" : "(");
    writeChain(expr);
    *this << ")";
    return;
  }
  *this << function << "(";
  addsUnknown(expr) ? writeValue(left) : writeNumber(left);
  *this << ", ";
  addsUnknown(expr) ? writeValue(right) : writeNumber(right);
  *this << ")";
}

/** & of operands that may all be Null; then so is what they make. A function takes some hundred of them. */
void Writer::writeNullableJoin(const std::vector<const Expr*>& operands) {
  constexpr size_t mostAtOnce = 100;
  *this << "jet_join(";
  size_t written = 0;
  if (operands.size() > mostAtOnce) {
    written = operands.size() - mostAtOnce + 1;
    writeNullableJoin({operands.begin(), operands.begin() + qsizetype(written)});
    *this << ", ";
  }
  list(operands.size() - written, [&](size_t i) { writeValue(*operands[written + i]); });
  *this << ")";
}

/** a - b + c without brackets within: a long chain must not pile up brackets, of which SQLite takes less than 100. */
void Writer::writeChain(const Expr& expr) {
  const bool joins = expr.op == u'&' || (expr.op == u'+' && expr.holds == Holds::Text);
  auto side = [&](const Expr& own) {
    if (expr.op == u'&')
      writeJoinedText(own);
    else if (joins)
      writeValue(own);
    else
      writeNumber(own);
  };
  const Expr& left = expr.operands[0];
  if (left.kind == Expr::Kind::Arithmetic && chainOf(left) == chainOf(expr) && chainOf(expr) != Chain::None)
    writeChain(left);
  else
    side(left);
  *this << " " << (joins ? u"||"_s : expr.op) << " ";
  side(expr.operands[1]);
}

/** And, Or and the like on numbers work on their bits. */
void Writer::writeLogicalValue(const Expr& expr) {
  const bool plain = expr.op == "AND"_L1 || expr.op == "OR"_L1 || expr.op == "XOR"_L1;
  *this << (plain                 ? "jet_" + expr.op.toLower()
            : expr.op == "EQV"_L1 ? u"jet_not(jet_xor"_s
                                  : u"jet_or(jet_not"_s)
        << "(";
  writeNumber(expr.operands[0]);
  *this << (expr.op == "IMP"_L1 ? "), " : ", ");
  writeNumber(expr.operands[1]);
  *this << (expr.op == "EQV"_L1 ? "))" : ")");
}

void Writer::writeLogicalCondition(const Expr& expr) {
  *this << "(";
  writeLogicalSides(expr);
  *this << ")";
}

/** a AND b AND c without brackets within, as writeChain. */
void Writer::writeLogicalSides(const Expr& expr) {
  const bool plain = expr.op == "AND"_L1 || expr.op == "OR"_L1;
  const bool bothDenied = !plain && expr.op != "IMP"_L1;
  auto side = [&](const Expr& own, bool denied) {
    if (denied) *this << "(NOT ";
    writeCondition(own);
    if (denied) *this << ")";
  };
  const Expr& left = expr.operands[0];
  if (plain && left.kind == Expr::Kind::Logical && left.op == expr.op && left.holds == Holds::YesNo)
    writeLogicalSides(left);
  else
    side(left, !plain);
  *this << " "
        << (plain                 ? expr.op
            : expr.op == "XOR"_L1 ? u"<>"_s
            : expr.op == "EQV"_L1 ? u"="_s
                                  : u"OR"_s)
        << " ";
  side(expr.operands[1], bothDenied);
}

void Writer::writeCompare(const Expr& expr) {
  const Expr& left = expr.operands[0];
  const Expr& right = expr.operands[1];
  auto side = [&](const Expr& own, const Expr& other) {
    if (own.holds == Holds::Any && holdsNoText(other.holds)) return writeNumber(own);
    writeValue(own);
  };
  *this << "(";
  side(left, right);
  *this << " " << expr.op << " ";
  side(right, left);
  if (!holdsNoText(left.holds) || !holdsNoText(right.holds)) *this << " COLLATE JET";
  *this << ")";
}

void Writer::writeIn(const Expr& expr) {
  *this << "(";
  writeValue(expr.operands[0]);
  collate(expr.operands[0]);
  *this << (expr.negated ? " NOT IN (" : " IN (");
  if (expr.query.empty())
    list(expr.operands.size() - 1, [&](size_t i) { writeValue(expr.operands[i + 1]); });
  else
    writeQuery(expr.query.front(), false);
  *this << "))";
}

/** Only the branch taken is computed; a Null condition takes the second. */
void Writer::writeCase(const Expr& expr) {
  *this << "CASE WHEN ";
  writeCondition(expr.operands[0]);
  *this << " THEN ";
  writeValue(expr.operands[1]);
  *this << " ELSE ";
  writeValue(expr.operands[2]);
  *this << " END";
}

void Writer::writeCall(const Expr& expr) {
  *this << expr.name << "(";
  const bool absolute = expr.name == "abs"_L1;  // SQLite's own would read any text as 0
  list(expr.operands.size(),
       [&](size_t i) { absolute ? writeNumber(expr.operands[i]) : writeValue(expr.operands[i]); });
  *this << ")";
}

void Writer::writeAggregate(const Expr& expr) {
  if (expr.operands.empty()) {
    *this << "count(*)";
    return;
  }
  const Expr& operand = expr.operands[0];
  const bool adds = expr.name == "SUM"_L1 || expr.name == "AVG"_L1;
  const bool mayOverflow = adds && operand.holds != Holds::Whole && operand.holds != Holds::YesNo;
  if (mayOverflow) *this << "jet_finite(";
  *this << (expr.name == "FIRST"_L1  ? u"jet_first"_s
            : expr.name == "LAST"_L1 ? u"jet_last"_s
                                     : expr.name.toLower())
        << "(";
  if (mayOverflow && operand.kind == Expr::Kind::Arithmetic && chainOf(operand) > Chain::Joined) {
    *this << "(";
    writeChain(operand);  // its overflow is the sum's
    *this << ")";
  } else if (adds)
    writeNumber(operand);
  else
    writeValue(operand);
  if ((expr.name == "MIN"_L1 || expr.name == "MAX"_L1) && !holdsNoText(operand.holds))
    *this << " COLLATE JET";
  if (expr.name == "FIRST"_L1 || expr.name == "LAST"_L1) {
    // First and last by the order of entry in the first table of the query.
    *this << ", ";
    writeEntryOrder(*around_.back());
  }
  *this << (mayOverflow ? "))" : ")");
}

void Writer::writePut(const Field& field, const Expr& value) {
  const bool number = holdsNoText(value.holds);
  if (value.kind == Expr::Kind::Null && field.type != Type::Boolean && !field.required)
    return writeValue(value);
  if (value.kind == Expr::Kind::Constant && field.type == Type::Boolean) return writeValue(value);
  if (field.type == Type::Double && number && !field.required) return writeValue(value);
  const PutCall call = putCall(field);
  *this << call.before.constData();
  writeValue(value);
  *this << call.behind.constData();
}

}  // namespace jet
