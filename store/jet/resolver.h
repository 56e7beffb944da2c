#pragma once
// Gives the names of a parsed statement their tables and columns, and every expression what it holds.
#include "store/jet/tree.h"

namespace jet {

class Resolver {
 public:
  explicit Resolver(Catalogue& catalogue) : catalogue_(catalogue) {}
  void resolve(Statement& statement);

 private:
  /** The tables whose columns may be named, and those of the query around. */
  struct Scope {
    std::vector<const From*> sources;
    const Scope* outer = nullptr;
    bool aggregates = false;  ///< may Sum and its like stand here
    bool* aggregated = nullptr;
  };

  void resolveInsert(Statement& statement);
  void resolveUpdate(Statement& statement);
  void resolveDelete(Statement& statement);
  void resolveDefinition(Statement& statement);

  void resolveFrom(std::vector<From>& from, Scope& scope);
  void resolveSource(From& from, Scope& scope);
  void resolveOn(From& from, const Scope& scope);
  TableInfo tableOf(const From& from);

  void resolveSelect(Select& select, const Scope* outer);
  void expandStars(Select& select, const Scope& scope);
  void resolveColumns(Select& select, const Scope& scope);
  void resolveOrder(Select& select, Scope& scope);
  void resolveUnions(Select& select, const Scope* outer);
  void checkGrouped(const Select& select) const;
  void checkGrouped(const Expr& expr, const std::vector<Expr>& groups) const;

  // resolver_expr.cpp
  void resolveExpr(Expr& expr, const Scope& scope);
  void resolveColumn(Expr& expr, const Scope& scope);
  bool findColumn(Expr& expr, const Scope& scope);
  void resolveCall(Expr& expr);
  void checkComparison(const Expr& expr) const;

  Catalogue& catalogue_;
};

Holds holdsOf(Type type);
Type typeOf(Holds holds);
/** The same expression; names by where they lead, literals by value. */
bool sameExpr(const Expr& left, const Expr& right);
/** Case does not matter in names. */
bool sameName(QStringView left, QStringView right);
const Field* findField(const std::vector<Field>& fields, QStringView name);

}  // namespace jet
