#include "store/jet/resolver.h"

#include <algorithm>

#include "store/jet/error_texts.h"
#include "store/jet/put_call.h"

namespace jet {

using namespace Qt::StringLiterals;

namespace {

// What a query may hold; SQLite would refuse somewhat more less clearly.
constexpr size_t kColumnsAtMost = 255, kTablesAtMost = 32, kUnionsAtMost = 50;

const From& sourceNamed(const std::vector<const From*>& sources, const QString& name) {
  for (const From* source : sources)
    if (sameName(source->alias, name)) return *source;
  fail(3061, name);
}

void checkOnce(const std::vector<Assignment>& assigns, const Assignment& now) {
  for (const Assignment& earlier : assigns) {
    if (&earlier == &now) return;
    if (earlier.field.name == now.field.name) fail(3063, now.field.name);
  }
}

/** Shown for a calculated column without AS. */
QString unnamedColumn(size_t index) {
  return u"Expr"_s + QString::number(1000 + index);
}

}  // namespace

void Resolver::resolve(Statement& statement) {
  switch (statement.kind) {
    case Compiled::Kind::Select:
      return resolveSelect(statement.select, nullptr);
    case Compiled::Kind::Insert:
      return resolveInsert(statement);
    case Compiled::Kind::Update:
      return resolveUpdate(statement);
    case Compiled::Kind::Delete:
      return resolveDelete(statement);
    default:
      return resolveDefinition(statement);
  }
}

void Resolver::resolveInsert(Statement& statement) {
  const From& into = statement.from.front();
  statement.target = tableOf(into);
  const std::vector<Field>& fields = statement.target.fields;
  size_t given = statement.assigns.size();
  if (statement.fromSelect) {
    resolveSelect(statement.select, nullptr);
    given = statement.select.columns.size();
  }
  if (!statement.columnsNamed) {
    statement.assigns.resize(fields.size());
    for (size_t i = 0; i < fields.size(); ++i) statement.assigns[i].name = fields[i].name;
  }
  if (given != statement.assigns.size()) fail(3346);

  for (Assignment& assign : statement.assigns) {
    const Field* field = findField(fields, assign.name);
    if (!field || !(assign.qualifier.isEmpty() || sameName(assign.qualifier, into.alias)))
      fail(3127, assign.name);
    assign.field = *field;
    checkOnce(statement.assigns, assign);
    if (!statement.fromSelect) resolveExpr(assign.value, Scope());
  }
  requireGiven(fields, [&](const Field& field) {
    return std::ranges::any_of(statement.assigns,
                               [&](const Assignment& assign) { return assign.field.name == field.name; });
  });
}

void Resolver::resolveUpdate(Statement& statement) {
  Scope scope;
  resolveFrom(statement.from, scope);
  const From* target = nullptr;
  for (Assignment& assign : statement.assigns) {
    Expr name;
    name.name = assign.name;
    name.qualifier = assign.qualifier;
    resolveColumn(name, scope);
    const From& source = sourceNamed(scope.sources, name.source);
    if ((target && target != &source) || source.kind != From::Kind::Table) fail(3073);
    target = &source;
    assign.field = *findField(source.info.fields, name.column);
    checkOnce(statement.assigns, assign);
    if (assign.field.autonumber) fail(3113, assign.field.name);
    resolveExpr(assign.value, scope);
  }
  if (statement.where) resolveExpr(*statement.where, scope);
  statement.target = target->info;
  statement.targetSource = target->alias;
}

void Resolver::resolveDelete(Statement& statement) {
  Scope scope;
  resolveFrom(statement.from, scope);
  const From& target = statement.deleteTable.isEmpty() ? *scope.sources.front()
                                                       : sourceNamed(scope.sources, statement.deleteTable);
  if (target.kind != From::Kind::Table || (scope.sources.size() > 1 && statement.deleteTable.isEmpty()))
    fail(3128);
  statement.target = target.info;
  statement.targetSource = target.alias;
  if (statement.where) resolveExpr(*statement.where, scope);
}

void Resolver::resolveDefinition(Statement& statement) {
  const QString& name = statement.definition.name;
  const std::optional<TableInfo> table = catalogue_.table(name);
  if (statement.kind == Compiled::Kind::CreateTable) {
    if (table) fail(3010, name);
    return;
  }
  if (!table) fail(3376, name);
  statement.target = *table;
  if (statement.kind == Compiled::Kind::AlterColumn &&
      !findField(table->fields, statement.definition.fields.front().name))
    fail(3061, statement.definition.fields.front().name);
  if (statement.kind == Compiled::Kind::AddColumn &&
      findField(table->fields, statement.definition.fields.front().name))
    fail(3380, statement.definition.fields.front().name);
}

void Resolver::resolveFrom(std::vector<From>& from, Scope& scope) {
  for (From& each : from) resolveSource(each, scope);
  scope.sources = sourcesAsWritten(from);
  if (scope.sources.size() > kTablesAtMost) fail(3360);
  for (const From* source : scope.sources)
    for (const From* other : scope.sources)
      if (source != other && sameName(source->alias, other->alias)) fail(3012, source->alias);
  for (From& each : from) resolveOn(each, scope);
}

void Resolver::resolveSource(From& from, Scope& scope) {
  for (From& side : from.sides) resolveSource(side, scope);
  if (from.kind == From::Kind::Table) from.info = tableOf(from);
  if (from.kind != From::Kind::Query) return;
  Select& query = from.query.front();
  resolveSelect(query, scope.outer);
  for (const ResultColumn& column : query.columns) {
    Field& field = from.info.fields.emplace_back();
    field.name = column.name;
    field.type = column.type;
  }
}

void Resolver::resolveOn(From& from, const Scope& scope) {
  for (From& side : from.sides) resolveOn(side, scope);
  if (from.on.empty()) return;
  Scope joined;
  joined.outer = scope.outer;
  joined.sources = sourcesOf(from);
  for (Expr& on : from.on) resolveExpr(on, joined);
}

TableInfo Resolver::tableOf(const From& from) {
  std::optional<TableInfo> found =
      from.path.isEmpty() ? catalogue_.table(from.table) : catalogue_.tableIn(from.path, from.table);
  if (!found) fail(3078, from.table);
  return *std::move(found);
}

void Resolver::resolveSelect(Select& select, const Scope* outer) {
  Scope scope;
  scope.outer = outer;
  resolveFrom(select.from, scope);
  if (select.where) resolveExpr(*select.where, scope);
  for (Expr& group : select.groupBy) resolveExpr(group, scope);
  if (select.groupBy.size() > kColumnsAtMost || select.orderBy.size() > kColumnsAtMost) fail(3360);
  expandStars(select, scope);

  bool aggregated = false;
  Scope output = scope;
  output.aggregates = true;
  output.aggregated = &aggregated;
  for (SelectItem& item : select.items) resolveExpr(item.expr, output);
  const bool groups = aggregated || !select.groupBy.empty();
  if (select.having) resolveExpr(*select.having, output);
  resolveColumns(select, scope);
  resolveUnions(select, outer);
  resolveOrder(select, output);
  if (!groups && (select.having || aggregated)) fail(3122, select.having ? u"HAVING"_s : u"ORDER BY"_s);
  select.grouped = groups;
  if (select.grouped) checkGrouped(select);
}

void Resolver::expandStars(Select& select, const Scope& scope) {
  std::vector<SelectItem> items;
  for (SelectItem& item : select.items) {
    if (!item.star) {
      items.push_back(std::move(item));
      continue;
    }
    if (scope.sources.empty()) fail(3067);
    if (!item.starTable.isEmpty()) sourceNamed(scope.sources, item.starTable);
    for (const From* source : scope.sources) {
      if (!item.starTable.isEmpty() && !sameName(source->alias, item.starTable)) continue;
      for (const Field& field : source->info.fields) {
        SelectItem& column = items.emplace_back();
        column.place = item.place;
        column.expr.kind = Expr::Kind::Column;
        column.expr.place = item.place;
        column.expr.name = field.name;
        column.expr.qualifier = source->alias;
      }
    }
  }
  if (items.size() > kColumnsAtMost) fail(3190);
  select.items = std::move(items);
}

void Resolver::resolveColumns(Select& select, const Scope& scope) {
  for (size_t i = 0; i < select.items.size(); ++i) {
    const SelectItem& item = select.items[i];
    ResultColumn& column = select.columns.emplace_back();
    column.type = typeOf(item.expr.holds);
    if (item.expr.kind == Expr::Kind::Column) {
      column.name = item.expr.name;
      for (const From* source : scope.sources) {
        if (source->alias != item.expr.source) continue;
        column.type = findField(source->info.fields, item.expr.column)->type;
        column.schema = source->info.schema;
        column.table = source->info.name;
        if (!column.table.isEmpty()) column.column = item.expr.column;
      }
    } else {
      column.name = unnamedColumn(i);
    }
    if (!item.alias.isEmpty()) column.name = item.alias;
  }
}

void Resolver::resolveUnions(Select& select, const Scope* outer) {
  if (select.unions.size() > kUnionsAtMost) fail(3360);
  for (Select& next : select.unions) {
    resolveSelect(next, outer);
    if (next.columns.size() != select.columns.size()) fail(3307);
  }
}

/** The order of a UNION names the first query's columns; a DISTINCT one only what is selected. */
void Resolver::resolveOrder(Select& select, Scope& scope) {
  for (OrderItem& item : select.orderBy) {
    if (item.position > 0) {
      if (item.position > int(select.columns.size())) fail(3138, QString::number(item.position));
      item.expr = select.items[item.position - 1].expr;
      continue;
    }
    if (!select.unions.empty()) {
      for (size_t i = 0; i < select.columns.size() && item.position == 0; ++i)
        if (item.expr.kind == Expr::Kind::Column && sameName(select.columns[i].name, item.expr.name))
          item.position = int(i) + 1;
      if (item.position == 0) fail(3351);
      item.expr = select.items[item.position - 1].expr;
      continue;
    }
    resolveExpr(item.expr, scope);
    if (!select.distinct) continue;
    for (size_t i = 0; i < select.items.size() && item.position == 0; ++i)
      if (sameExpr(select.items[i].expr, item.expr)) item.position = int(i) + 1;
    if (item.position == 0) fail(3093);
  }
}

void Resolver::checkGrouped(const Select& select) const {
  for (const SelectItem& item : select.items) checkGrouped(item.expr, select.groupBy);
  if (select.having) checkGrouped(*select.having, select.groupBy);
  for (const OrderItem& item : select.orderBy) checkGrouped(item.expr, select.groupBy);
}

void Resolver::checkGrouped(const Expr& expr, const std::vector<Expr>& groups) const {
  if (expr.kind == Expr::Kind::Aggregate) return;
  for (const Expr& group : groups)
    if (sameExpr(group, expr)) return;
  if (expr.kind == Expr::Kind::Column) fail(3122, expr.name);
  for (const Expr& operand : expr.operands) checkGrouped(operand, groups);
}

}  // namespace jet
