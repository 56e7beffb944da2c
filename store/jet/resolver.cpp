#include "store/jet/resolver.h"

#include <algorithm>

namespace jet {

using namespace Qt::StringLiterals;

namespace {

/** In the order they are written, which a right join turns round. */
void collectSources(const From& from, std::vector<const From*>& sources) {
  if (from.sides.empty()) sources.push_back(&from);
  for (const From& side : from.sides) collectSources(side, sources);
}

void sortAsWritten(std::vector<const From*>& sources) {
  std::sort(sources.begin(), sources.end(), [](const From* a, const From* b) { return a->place < b->place; });
}

const From& sourceNamed(const std::vector<const From*>& sources, const QString& name) {
  for (const From* source : sources)
    if (sameName(source->alias, name)) return *source;
  throwUnknownName(name);
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
  if (given != statement.assigns.size()) throw Error(3346, u"쿼리 값의 수와 대상 필드의 수가 다릅니다."_s);

  for (Assignment& assign : statement.assigns) {
    const Field* field = findField(fields, assign.name);
    if (!field || !(assign.qualifier.isEmpty() || sameName(assign.qualifier, into.alias)))
      throw Error(3127, u"INSERT INTO 문에 알 수 없는 필드 이름 '%1'이(가) 있습니다."_s.arg(assign.name));
    for (const Assignment& earlier : statement.assigns) {
      if (&earlier == &assign) break;
      if (earlier.field.name == field->name)
        throw Error(3063, u"출력 대상 '%1'이(가) 중복되었습니다."_s.arg(field->name));
    }
    assign.field = *field;
    if (!statement.fromSelect) resolveExpr(assign.value, Scope());
  }
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
    if ((target && target != &source) || source.kind != From::Kind::Table)
      throw Error(3073, u"업데이트할 수 있는 쿼리가 아닙니다."_s);
    target = &source;
    assign.field = *findField(source.info.fields, name.column);
    if (assign.field.autonumber)
      throw Error(3113, u"'%1'을(를) 업데이트할 수 없습니다. 필드를 업데이트할 수 없습니다."_s.arg(
                            assign.field.name));
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
    throw Error(3128, u"삭제할 레코드가 들어 있는 테이블을 지정하십시오."_s);
  statement.target = target.info;
  statement.targetSource = target.alias;
  if (statement.where) resolveExpr(*statement.where, scope);
}

void Resolver::resolveDefinition(Statement& statement) {
  const QString& name = statement.definition.name;
  const std::optional<TableInfo> table = catalogue_.table(name);
  if (statement.kind == Compiled::Kind::CreateTable) {
    if (table) throw Error(3010, u"'%1' 테이블이 이미 있습니다."_s.arg(name));
    return;
  }
  if (!table) throw Error(3376, u"'%1' 테이블이 없습니다."_s.arg(name));
  statement.target = *table;
  if (statement.kind == Compiled::Kind::AddColumn &&
      findField(table->fields, statement.definition.fields.front().name))
    throw Error(3380, u"'%1' 필드가 '%2' 테이블에 이미 있습니다."_s.arg(
                          statement.definition.fields.front().name, name));
}

void Resolver::resolveFrom(std::vector<From>& from, Scope& scope) {
  for (From& each : from) {
    resolveSource(each, scope);
    collectSources(each, scope.sources);
  }
  sortAsWritten(scope.sources);
  for (const From* source : scope.sources)
    for (const From* other : scope.sources)
      if (source != other && sameName(source->alias, other->alias))
        throw Error(3012, u"'%1' 개체가 FROM 절에 두 번 있습니다."_s.arg(source->alias));
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
  collectSources(from, joined.sources);
  for (Expr& on : from.on) resolveExpr(on, joined);
}

TableInfo Resolver::tableOf(const From& from) {
  std::optional<TableInfo> found =
      from.path.isEmpty() ? catalogue_.table(from.table) : catalogue_.tableIn(from.path, from.table);
  if (!found) throw Error(3078, u"입력 테이블이나 쿼리 '%1'을(를) 찾을 수 없습니다."_s.arg(from.table));
  return *std::move(found);
}

void Resolver::resolveSelect(Select& select, const Scope* outer) {
  Scope scope;
  scope.outer = outer;
  resolveFrom(select.from, scope);
  if (select.where) resolveExpr(*select.where, scope);
  for (Expr& group : select.groupBy) resolveExpr(group, scope);
  expandStars(select, scope);

  bool aggregated = false;
  Scope output = scope;
  output.aggregates = true;
  output.aggregated = &aggregated;
  for (SelectItem& item : select.items) resolveExpr(item.expr, output);
  if (select.having) resolveExpr(*select.having, output);
  resolveColumns(select, scope);
  resolveUnions(select, outer);
  resolveOrder(select, output);
  select.grouped = aggregated || !select.groupBy.empty() || select.having;
  if (select.grouped) checkGrouped(select);
}

void Resolver::expandStars(Select& select, const Scope& scope) {
  std::vector<SelectItem> items;
  for (SelectItem& item : select.items) {
    if (!item.star) {
      items.push_back(std::move(item));
      continue;
    }
    if (scope.sources.empty()) throw Error(3067, u"쿼리 입력에 테이블이나 쿼리가 하나 이상 있어야 합니다."_s);
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
  for (Select& next : select.unions) {
    resolveSelect(next, outer);
    if (next.columns.size() != select.columns.size())
      throw Error(3307, u"UNION의 두 쿼리의 열의 수가 다릅니다."_s);
  }
}

/** The order of a UNION names the first query's columns; a DISTINCT one only what is selected. */
void Resolver::resolveOrder(Select& select, Scope& scope) {
  for (OrderItem& item : select.orderBy) {
    if (item.position > 0) {
      if (item.position > int(select.columns.size()))
        throw Error(3138, u"ORDER BY 절의 위치 %1이(가) 잘못되었습니다."_s.arg(item.position));
      item.expr = select.items[item.position - 1].expr;
      continue;
    }
    if (!select.unions.empty()) {
      for (size_t i = 0; i < select.columns.size() && item.position == 0; ++i)
        if (item.expr.kind == Expr::Kind::Column && sameName(select.columns[i].name, item.expr.name))
          item.position = int(i) + 1;
      if (item.position == 0) throw Error(3351, u"ORDER BY 식이 UNION의 필드가 아닙니다."_s);
      item.expr = select.items[item.position - 1].expr;
      continue;
    }
    resolveExpr(item.expr, scope);
    if (!select.distinct) continue;
    for (size_t i = 0; i < select.items.size() && item.position == 0; ++i)
      if (sameExpr(select.items[i].expr, item.expr)) item.position = int(i) + 1;
    if (item.position == 0) throw Error(3093, u"ORDER BY 절이 DISTINCT와 충돌합니다."_s);
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
  if (expr.kind == Expr::Kind::Column)
    throw Error(3122, u"집계 함수의 일부로 지정한 식 '%1'을(를) 포함하지 않는 쿼리입니다."_s.arg(expr.name));
  for (const Expr& operand : expr.operands) checkGrouped(operand, groups);
}

}  // namespace jet
