#include "store/jet/writer.h"

#include <algorithm>

#include "store/jet/resolver.h"

namespace jet {

using namespace Qt::StringLiterals;

namespace {

bool hasTableRows(const Select& select) {
  return !select.grouped && !select.distinct && select.unions.empty();
}

/** A join in brackets hides the rowids of its tables. */
void collectWithRowids(const From& from, std::vector<const From*>& tables) {
  if (from.kind == From::Kind::Table) tables.push_back(&from);
  if (from.sides.empty()) return;
  collectWithRowids(from.sides[0], tables);
  if (from.sides[1].sides.empty()) collectWithRowids(from.sides[1], tables);
}

/** In the order of the text. */
std::vector<const From*> tablesWithRowids(const Select& select) {
  std::vector<const From*> tables;
  for (const From& from : select.from) collectWithRowids(from, tables);
  std::sort(tables.begin(), tables.end(), [](const From* a, const From* b) { return a->place < b->place; });
  return tables;
}

/** Whatever the one column holds may stand in the other as it is. */
bool isTakenAsItIs(const Field& from, const Field& to) {
  if (from.type != to.type || to.required) return false;
  if (to.type == Type::Boolean) return false;  // without a row of a join it is Null
  if (to.type != Type::Text && to.type != Type::Memo) return true;
  const auto room = [](const Field& field) { return field.size > 0 ? field.size : 255; };
  if (to.type == Type::Text && room(from) > room(to)) return false;
  return to.allowZeroLength || !from.allowZeroLength;
}

/** The column that an item of a query shows of a table. */
const Field* shownColumn(const Select& select, const Expr& item) {
  if (item.kind != Expr::Kind::Column || !select.unions.empty()) return nullptr;
  for (const From* source : sourcesAsWritten(select.from))
    if (source->alias == item.source && source->kind == From::Kind::Table)
      return findField(source->info.fields, item.column);
  return nullptr;
}

}  // namespace

QByteArray Writer::write(const Statement& statement, Keys keys) {
  out_.reserve(512);
  switch (statement.kind) {
    case Compiled::Kind::Select:
      if (keys == Keys::With) collectKeys(statement.select);
      if (statement.select.top > 0 && !statement.select.orderBy.empty() && statement.select.unions.empty())
        writeOrdered(statement.select);
      else
        writeQuery(statement.select, false);
      break;
    case Compiled::Kind::Insert:
      writeInsert(statement);
      break;
    case Compiled::Kind::Update:
      writeUpdate(statement);
      break;
    case Compiled::Kind::Delete:
      writeDelete(statement);
      break;
    default:
      break;
  }
  return out_.toUtf8();
}

void Writer::writeInsert(const Statement& statement) {
  *this << "INSERT OR ABORT INTO ";  // whatever a foreign table says of conflicts
  writeTable(statement.target, {});
  *this << " (";
  list(statement.assigns.size(), [&](size_t i) { quote(statement.assigns[i].field.name); });
  if (!statement.fromSelect) {
    *this << ") VALUES (";
    list(statement.assigns.size(),
         [&](size_t i) { writePut(statement.assigns[i].field, statement.assigns[i].value); });
    *this << ")";
    return;
  }
  // The rows are made first, so that a conversion on the way in cannot disturb DISTINCT or the order.
  *this << ") SELECT ";
  list(statement.assigns.size(), [&](size_t i) {
    Expr made;
    made.kind = Expr::Kind::Column;
    made.source = u"rows"_s;
    made.column = u"c"_s + QString::number(i + 1);
    made.holds = statement.select.items[i].expr.holds;
    const Field* const shown = shownColumn(statement.select, statement.select.items[i].expr);
    if (shown && isTakenAsItIs(*shown, statement.assigns[i].field))
      writeValue(made);
    else
      writePut(statement.assigns[i].field, made);
  });
  *this << " FROM (";
  writeQuery(statement.select, true);
  *this << ") AS \"rows\"";
}

void Writer::writeUpdate(const Statement& statement) {
  *this << "UPDATE OR ABORT ";
  writeTable(statement.target, statement.targetSource);
  *this << " SET ";
  const bool alone = statement.from.size() == 1 && statement.from.front().sides.empty();
  if (alone) {
    list(statement.assigns.size(), [&](size_t i) {
      quote(statement.assigns[i].field.name);
      *this << " = ";
      writePut(statement.assigns[i].field, statement.assigns[i].value);
    });
    if (!statement.where) return;
    *this << " WHERE ";
    writeCondition(*statement.where);
    return;
  }
  // The joined rows give each row's new values; any shape of join fits this one form.
  list(statement.assigns.size(), [&](size_t i) {
    quote(statement.assigns[i].field.name);
    *this << " = \"rows\".\"c" << int(i + 1) << "\"";
  });
  *this << " FROM (SELECT ";
  quote(statement.targetSource);
  *this << ".rowid AS \"key\", ";
  list(statement.assigns.size(), [&](size_t i) {
    writePut(statement.assigns[i].field, statement.assigns[i].value);
    *this << " AS \"c" << int(i + 1) << "\"";
  });
  *this << " FROM ";
  writeFromList(statement.from);
  if (statement.where) {
    *this << " WHERE ";
    writeCondition(*statement.where);
  }
  *this << ") AS \"rows\" WHERE ";
  quote(statement.targetSource);
  *this << ".rowid = \"rows\".\"key\"";
}

void Writer::writeDelete(const Statement& statement) {
  *this << "DELETE FROM ";
  writeTable(statement.target, statement.targetSource);
  const bool alone = statement.from.size() == 1 && statement.from.front().sides.empty();
  if (alone) {
    if (!statement.where) return;
    *this << " WHERE ";
    writeCondition(*statement.where);
    return;
  }
  *this << " WHERE rowid IN (SELECT ";
  quote(statement.targetSource);
  *this << ".rowid FROM ";
  writeFromList(statement.from);
  if (statement.where) {
    *this << " WHERE ";
    writeCondition(*statement.where);
  }
  *this << ")";
}

void Writer::writeQuery(const Select& select, bool named) {
  if (select.top > 0 && select.unions.empty()) return writeTop(select, named);
  writeBody(select, named);
  if (select.orderBy.empty()) {
    // The dialect's engine finds the distinct rows by sorting them: lists of buildings come in their order.
    if (select.distinct && select.unions.empty()) writeItemOrder(select);
    return;
  }
  writeOrderOf(select);
}

void Writer::writeOrderOf(const Select& select) {
  *this << " ORDER BY ";
  around_.push_back(&select);
  writeOrder(select.orderBy);
  if (breaksTies(select)) {
    *this << ", ";
    writeEntryOrder(select);
    if (select.orderBy.back().descending) *this << " DESC";
  }
  around_.pop_back();
}

/** TOP of a whole statement: rows in their order with what they are ordered by behind them. Along an index SQLite then
 *  reads no more of them than are wanted. */
void Writer::writeOrdered(const Select& select) {
  writeCore(select, false);
  const int behind = int(select.columns.size() + keyCount());
  for (size_t i = 0; i < select.orderBy.size(); ++i)
    ties_.push_back(select.distinct ? select.orderBy[i].position - 1 : behind + int(i));
  writeOrderOf(select);
}

/** TOP keeps all rows that tie with the last one. Within a statement rows are ranked by the order and cut at the rank. */
void Writer::writeTop(const Select& select, bool named) {
  if (select.orderBy.empty()) {
    writeBody(select, named);
    *this << " LIMIT " << select.top;
    return;
  }
  *this << "SELECT ";
  list(select.columns.size() + keyCount(), [&](size_t i) { *this << "\"c" << int(i + 1) << "\""; });
  *this << " FROM (SELECT *, rank() OVER (ORDER BY ";
  list(select.orderBy.size(), [&](size_t i) {
    const OrderItem& item = select.orderBy[i];
    if (select.distinct)
      *this << "\"c" << item.position << "\"";
    else
      *this << "\"o" << int(i + 1) << "\"";
    collate(item.expr);
    if (item.descending) *this << " DESC";
  });
  *this << ") AS \"place\" FROM (";
  writeBody(select, true);
  *this << ")) WHERE \"place\" <= " << select.top << " ORDER BY \"place\"";
  if (breaksTies(select)) *this << (select.orderBy.back().descending ? ", \"entry\" DESC" : ", \"entry\"");
}

void Writer::writeBody(const Select& select, bool named) {
  if (select.unions.empty()) return writeCore(select, named);
  writeUnionPart(select, named);
  for (const Select& next : select.unions) {
    *this << (next.unionAll ? " UNION ALL " : " UNION ");
    writeUnionPart(next, false);
  }
}

/** TOP within a UNION cuts its own part only, which has no order there. */
void Writer::writeUnionPart(const Select& select, bool named) {
  if (select.top == 0) return writeCore(select, named);
  *this << "SELECT * FROM (";
  writeCore(select, named);
  *this << " LIMIT " << select.top << ")";
}

void Writer::writeCore(const Select& select, bool named) {
  around_.push_back(&select);
  *this << (select.distinct ? "SELECT DISTINCT " : "SELECT ");
  writeItems(select, named);
  if (!select.from.empty()) {
    *this << " FROM ";
    writeFromList(select.from);
  }
  if (select.where) {
    *this << " WHERE ";
    writeCondition(*select.where);
  }
  if (!select.groupBy.empty()) {
    *this << " GROUP BY ";
    list(select.groupBy.size(), [&](size_t i) {
      writeKey(select.groupBy[i]);
      collate(select.groupBy[i]);
    });
  }
  if (select.having) {
    *this << " HAVING ";
    writeCondition(*select.having);
  }
  around_.pop_back();
}

void Writer::writeItems(const Select& select, bool named) {
  const bool compares = select.distinct || !select.unions.empty();
  list(select.items.size(), [&](size_t i) {
    writeValue(select.items[i].expr);
    if (compares) collate(select.items[i].expr);
    if (named) *this << " AS \"c" << int(i + 1) << "\"";
  });
  if (around_.size() == 1) {
    for (size_t i = 0; i < keySources_.size(); ++i) {
      *this << ", ";
      quote(keySources_[i]);
      *this << ".rowid";
      if (named) *this << " AS \"c" << int(select.items.size() + i + 1) << "\"";
    }
  }
  if (select.top == 0 || compares) return;  // for the ranks of writeTop
  for (size_t i = 0; i < select.orderBy.size(); ++i) {
    *this << ", ";
    writeValue(select.orderBy[i].expr);
    *this << " AS \"o" << int(i + 1) << "\"";
  }
  if (!named || !breaksTies(select)) return;
  *this << ", ";
  writeEntryOrder(select);
  *this << " AS \"entry\"";
}

void Writer::writeOrder(const std::vector<OrderItem>& order) {
  list(order.size(), [&](size_t i) {
    if (order[i].position > 0)
      *this << order[i].position;
    else
      writeKey(order[i].expr);
    collate(order[i].expr);
    if (order[i].descending) *this << " DESC";
  });
}

void Writer::writeItemOrder(const Select& select) {
  *this << " ORDER BY ";
  list(select.items.size(), [&](size_t i) {
    *this << int(i + 1);
    collate(select.items[i].expr);
  });
}

void Writer::writeKey(const Expr& expr) {
  if (expr.kind == Expr::Kind::Constant)
    *this << "NULL";  // one value for all rows; SQLite would take its number for a column's place
  else
    writeValue(expr);
}

void Writer::writeFromList(const std::vector<From>& from) {
  list(from.size(), [&](size_t i) { writeFrom(from[i]); });
}

void Writer::writeFrom(const From& from) {
  if (from.kind == From::Kind::Table) return writeTable(from.info, from.alias);
  if (from.kind == From::Kind::Query) {
    *this << "(";
    // The outer statement names the columns as the query shows them.
    const Select& query = from.query.front();
    *this << "SELECT ";
    list(query.columns.size(), [&](size_t i) {
      *this << "\"c" << int(i + 1) << "\" AS ";
      quote(query.columns[i].name);
    });
    *this << " FROM (";
    const std::vector<QString> keySources = std::exchange(keySources_, {});
    writeQuery(query, true);
    keySources_ = keySources;
    *this << ")) AS ";
    quote(from.alias);
    return;
  }
  writeFrom(from.sides[0]);
  *this << (from.kind == From::Kind::Left ? " LEFT JOIN " : " JOIN ");
  const bool nested = !from.sides[1].sides.empty();
  if (nested) *this << "(";
  writeFrom(from.sides[1]);
  if (nested) *this << ")";
  *this << " ON ";
  writeCondition(from.on.front());
}

void Writer::writeTable(const TableInfo& table, const QString& alias) {
  quote(table.schema);
  *this << ".";
  quote(table.name);
  if (alias.isEmpty()) return;
  *this << " AS ";
  quote(alias);
}

/** The row of a group, of DISTINCT or of a UNION is no longer the row of a table. */
void Writer::collectKeys(const Select& select) {
  if (!hasTableRows(select)) return;
  for (const From* table : tablesWithRowids(select)) {
    keys_.push_back(table->info);
    keySources_.push_back(table->alias);
  }
}

void Writer::writeEntryOrder(const Select& select) {
  const std::vector<const From*> tables = tablesWithRowids(select);
  if (tables.empty()) {
    *this << "0";
    return;
  }
  quote(tables.front()->alias);
  *this << ".rowid";
}

/** Rows that tie come in the order of entry, whatever road SQLite takes to them: two statements with the same tables
 *  and order then give the same rows in the same places. */
bool Writer::breaksTies(const Select& select) const {
  const std::vector<const From*> tables = tablesWithRowids(select);
  if (!hasTableRows(select) || tables.empty() || select.orderBy.empty()) return false;
  for (const OrderItem& item : select.orderBy) {
    if (item.expr.kind != Expr::Kind::Column || item.expr.source != tables.front()->alias) continue;
    for (const Field& field : tables.front()->info.fields)
      if (field.autonumber && field.name == item.expr.column) return false;  // no ties
  }
  return true;
}

Writer& Writer::operator<<(const char* text) {
  out_ += QLatin1StringView(text);
  return *this;
}

Writer& Writer::operator<<(const QString& text) {
  out_ += text;
  return *this;
}

Writer& Writer::operator<<(int number) {
  out_ += QString::number(number);
  return *this;
}

void Writer::quote(const QString& name) {
  QString doubled = name;
  doubled.replace(u'"', u"\"\""_s);
  out_ += u'"';
  out_ += doubled;
  out_ += u'"';
}

void Writer::list(size_t count, const std::function<void(size_t)>& each) {
  for (size_t i = 0; i < count; ++i) {
    if (i > 0) *this << ", ";
    each(i);
  }
}

}  // namespace jet
